#include "platform/controls/bars/BandActions.h"

#include "platform/controls/bars/ActiveBar.h"
#include "platform/controls/bars/BarMenu.h"
#include "platform/controls/bars/ToolAction.h"

#include <QMenu>
#include <algorithm>

namespace orvane
{

ToolSource sourceOf(Band &band)
{
    return {band.Name(), band.Caption(),
            [&band] { return std::vector<std::shared_ptr<Tool>>(band.Tools().begin(), band.Tools().end()); }};
}

BandActions::BandActions(ActiveBar &bar, const ToolSource &source, QWidget &holder)
    : QObject(&holder), m_bar(&bar), m_source(source), m_holder(holder)
{
}

void BandActions::follow()
{
    if (!m_bar) return;
    const auto tools = m_source.tools();
    if (!isInStep(tools)) rebuild(tools);
    for (size_t i = 0; i < tools.size(); ++i) {
        m_actions[i]->follow();
        followFlyout(*m_actions[i], *tools[i]);
    }
}

bool BandActions::isInStep(const std::vector<std::shared_ptr<Tool>> &tools) const
{
    return std::ranges::equal(m_actions, tools, {}, [](const ToolAction *action) { return action->tool(); });
}

void BandActions::rebuild(const std::vector<std::shared_ptr<Tool>> &tools)
{
    for (QAction *action : m_holder.actions()) {
        m_holder.removeAction(action);
        if (action->isSeparator()) action->deleteLater();
    }
    std::vector<ToolAction *> actions;
    for (const auto &tool : tools) {
        if (tool->GroupStart() && !actions.empty()) {
            auto *separator = new QAction(this);
            separator->setSeparator(true);
            m_holder.addAction(separator);
        }
        m_holder.addAction(actions.emplace_back(take(tool)));
    }
    for (ToolAction *left : m_actions)
        drop(*left);
    m_actions = std::move(actions);
}

ToolAction *BandActions::take(const std::shared_ptr<Tool> &tool)
{
    const auto kept = std::ranges::find(m_actions, tool, [](const ToolAction *action) { return action->tool(); });
    if (kept == m_actions.end()) return new ToolAction(*m_bar, tool, this);
    ToolAction *action = *kept;
    m_actions.erase(kept);
    return action;
}

// Later, since the entry of a tool that is removed by its own Click is still at work.
void BandActions::drop(ToolAction &action)
{
    if (QMenu *menu = action.menu()) {
        menu->close();
        menu->deleteLater();
    }
    action.deleteLater();
}

void BandActions::followFlyout(ToolAction &action, const Tool &tool)
{
    if (tool.Flyout().isEmpty()) return;
    Band &band = m_bar->Bands(tool.Flyout());
    if (QMenu *menu = action.menu(); menu && band.Tools().Count() == 0) {
        action.setMenu(static_cast<QMenu *>(nullptr));
        menu->deleteLater();
    } else if (!menu && band.Tools().Count() > 0) {
        action.setMenu(new BarMenu(*m_bar, sourceOf(band), &m_holder));
    }
}

} // namespace orvane
