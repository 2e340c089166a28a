// A bar on show as a toolbar: the tools of its first band side by side, with a line before each group but the first.
//
// Where the strip is too narrow, captions of tools with a picture give way from the right, then a button with a menu of
// the rest stands at the end.
#pragma once

#include "platform/controls/bars/StripFit.h"

#include <QPointer>
#include <QWidget>
#include <memory>
#include <vector>

namespace orvane
{

class ActiveBar;
class StripItem;
class Tool;
class ToolButton;

class BarStrip : public QWidget
{
    Q_OBJECT

public:
    void showBar(ActiveBar &bar);
    QSize sizeHint() const override;

    bool eventFilter(QObject *watched, QEvent *event) override;

protected:
    void resizeEvent(QResizeEvent *event) override;
    void showEvent(QShowEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    struct Place {
        std::weak_ptr<Tool> tool;
        StripItem *item = nullptr;
        bool groupStart = false;
    };

    void follow();
    void keepItems();
    StripItem *newItem(const std::shared_ptr<Tool> &tool);
    ToolButton *newButton(const Tool &tool);
    void watchButton(ToolButton &button);
    void dropItem(StripItem &item);

    std::vector<StripPiece> pieces() const;
    void arrange();
    std::vector<std::shared_ptr<Tool>> rest() const;

    void openFlyout(ToolButton &button);
    void comeLast();
    bool moveFocus(const QWidget &from, int step);
    void tellHover();

    QPointer<ActiveBar> m_bar;
    std::vector<Place> m_places;
    std::vector<int> m_lines; // where separators stand
    size_t m_shown = 0;
    ToolButton *m_more = nullptr;
};

} // namespace orvane
