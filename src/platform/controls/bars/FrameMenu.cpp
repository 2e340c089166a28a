#include "platform/controls/bars/FrameMenu.h"

#include "platform/controls/bars/ActiveBar.h"
#include "platform/controls/bars/BandActions.h"
#include "platform/controls/bars/BarLooks.h"
#include "platform/controls/bars/ToolAction.h"

#include <QApplication>
#include <QMouseEvent>

namespace orvane
{

FrameMenu::FrameMenu()
{
    applyMenuLooks(*this);
    setNativeMenuBar(false); // a desktop's own menu bar has no room for the buttons of a maximised child
}

void FrameMenu::showBar(ActiveBar &bar)
{
    m_bar = &bar;
    auto *entries = new BandActions(bar, sourceOf(bar.Bands(0)), *this);
    connect(&bar, &ActiveBar::Changed, entries, &BandActions::follow);
    connect(this, &QMenuBar::triggered, &bar, [this](QAction *action) {
        if (!actions().contains(action)) return; // the menus tell of their own entries
        if (const auto tool = static_cast<ToolAction *>(action)->pressable()) m_bar->press(*tool);
    });
    entries->follow();
}

// The toolkit highlights a title under the mouse only while a menu is open.
void FrameMenu::mouseMoveEvent(QMouseEvent *event)
{
    QMenuBar::mouseMoveEvent(event);
    if (!QApplication::activePopupWidget()) tellTitle(actionAt(event->position().toPoint()));
}

void FrameMenu::leaveEvent(QEvent *event)
{
    QMenuBar::leaveEvent(event);
    tellTitle(activeAction());
}

void FrameMenu::tellTitle(QAction *title)
{
    const auto *action = qobject_cast<ToolAction *>(title);
    const auto tool = action ? action->tool() : nullptr;
    if (m_bar) m_bar->hover(tool ? tool->Description() : QString());
}

} // namespace orvane
