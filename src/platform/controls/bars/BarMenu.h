// A band on show as a menu. It is filled when it opens, and follows the tools while it is open.
#pragma once

#include "platform/controls/bars/BandActions.h"
#include "platform/controls/bars/DropPlace.h"

#include <QMenu>

namespace orvane
{

class BarMenu : public QMenu
{
    Q_OBJECT

public:
    BarMenu(ActiveBar &bar, const ToolSource &source, QWidget *parent);

    // Drops the menu, waits until it has closed, and returns the tool that was chosen, or null. The menu may have been
    // deleted meanwhile.
    std::shared_ptr<Tool> choose(const DropPlace &place);

protected:
    void showEvent(QShowEvent *event) override;
    void leaveEvent(QEvent *event) override;

private:
    void note(QAction *action);
    void tellHighlight();
    BarMenu &root();

    QPointer<ActiveBar> m_bar;
    BandActions m_entries;
    DropPlace m_place;
    std::shared_ptr<Tool> m_chosen;
    bool m_choosing = false;
};

} // namespace orvane
