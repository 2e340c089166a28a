#include "platform/controls/bars/BarMenu.h"

#include "platform/controls/bars/ActiveBar.h"
#include "platform/controls/bars/BarLooks.h"
#include "platform/controls/bars/ToolAction.h"

#include <QCoreApplication>
#include <QKeyEvent>

namespace orvane
{

BarMenu::BarMenu(ActiveBar &bar, const ToolSource &source, QWidget *parent)
    : QMenu(source.title, parent), m_bar(&bar), m_entries(bar, source, *this)
{
    setObjectName(source.name);
    setAccessibleName(source.title);
    applyMenuLooks(*this);
    connect(this, &QMenu::aboutToShow, &m_entries, &BandActions::follow);
    connect(this, &QMenu::aboutToHide, this, &BarMenu::tellHighlight);
    connect(this, &QMenu::triggered, this, &BarMenu::note);
    connect(&bar, &ActiveBar::Changed, this, [this] {
        if (isVisible()) m_entries.follow();
    });
    connect(&bar, &QObject::destroyed, this, &QWidget::close);
}

std::shared_ptr<Tool> BarMenu::choose(const DropPlace &place)
{
    m_entries.follow();
    if (isEmpty() || isVisible()) return nullptr;
    m_place = place;
    m_choosing = true;
    const QPointer<BarMenu> self = this;
    exec(place.beside(sizeHint()));
    if (!self) return nullptr;
    m_choosing = false;
    return std::exchange(m_chosen, nullptr);
}

// The outermost menu hears of every entry. What it was not told to choose from is pressed at once: menus of the menu
// bar, and those that an assistive technology opens.
void BarMenu::note(QAction *action)
{
    if (&root() != this) return;
    const auto tool = static_cast<ToolAction *>(action)->pressable();
    if (isVisible()) close();
    if (m_choosing)
        m_chosen = tool;
    else if (m_bar && tool)
        m_bar->press(*tool);
}

void BarMenu::showEvent(QShowEvent *event)
{
    QMenu::showEvent(event);
    if (!m_place.selectFirst) return;
    QKeyEvent down(QEvent::KeyPress, Qt::Key_Down, Qt::NoModifier);
    QCoreApplication::sendEvent(this, &down);
}

void BarMenu::leaveEvent(QEvent *event)
{
    QMenu::leaveEvent(event);
    tellHighlight();
}

BarMenu &BarMenu::root()
{
    auto *above = qobject_cast<BarMenu *>(parentWidget());
    return above ? above->root() : *this;
}

void BarMenu::tellHighlight()
{
    const BarMenu *open = this;
    while (open && !open->isVisible())
        open = qobject_cast<BarMenu *>(open->parentWidget());
    const auto *action = open ? qobject_cast<ToolAction *>(open->activeAction()) : nullptr;
    const auto tool = action ? action->tool() : nullptr;
    if (m_bar) m_bar->hover(tool ? tool->Description() : QString());
}

} // namespace orvane
