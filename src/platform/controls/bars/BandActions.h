// Keeps the entries of a menu or menu bar in step with the tools of a band: one entry for each tool, a separator before
// each group but the first, a sub-menu where a tool opens a band that has tools.
#pragma once

#include <QObject>
#include <QPointer>
#include <QString>
#include <functional>
#include <memory>
#include <vector>

class QWidget;

namespace orvane
{

class ActiveBar;
class Band;
class Tool;
class ToolAction;

// Where a menu gets its name, title and tools; it is asked anew whenever the menu is brought up to date.
struct ToolSource {
    QString name;
    QString title;
    std::function<std::vector<std::shared_ptr<Tool>>()> tools;
};

ToolSource sourceOf(Band &band);

class BandActions : public QObject
{
    Q_OBJECT

public:
    BandActions(ActiveBar &bar, const ToolSource &source, QWidget &holder);

    void follow();

private:
    bool isInStep(const std::vector<std::shared_ptr<Tool>> &tools) const;
    void rebuild(const std::vector<std::shared_ptr<Tool>> &tools);
    ToolAction *take(const std::shared_ptr<Tool> &tool);
    void drop(ToolAction &action);
    void followFlyout(ToolAction &action, const Tool &tool);

    QPointer<ActiveBar> m_bar;
    ToolSource m_source;
    QWidget &m_holder;
    std::vector<ToolAction *> m_actions;
};

} // namespace orvane
