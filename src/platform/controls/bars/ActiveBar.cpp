#include "platform/controls/bars/ActiveBar.h"

#include "platform/controls/bars/BarStrip.h"
#include "platform/controls/bars/FrameMenu.h"
#include "platform/controls/bars/LastInput.h"
#include "platform/forms/Form.h"
#include "platform/system/RunTimeError.h"

#include <QEvent>
#include <QMainWindow>

namespace orvane
{

namespace
{
QWidget *newView(ActiveBar::Look look)
{
    if (look == ActiveBar::MenuBar) return new FrameMenu;
    return new BarStrip;
}
} // namespace

ActiveBar::ActiveBar(Container &parent, const QString &name, BarTable table, Look look)
    : Control(parent, name, newView(look)), m_strip(qobject_cast<BarStrip *>(&widget())), m_container(parent.surface())
{
    m_bands.reserve(table.size());
    for (const BandRow &row : table)
        m_bands.push_back(std::make_unique<Band>(*this, row));
    requireFlyouts();
    LastInput::watch();
    if (m_strip) {
        m_strip->showBar(*this);
        m_container.installEventFilter(this);
        dock();
    } else if (auto *menu = qobject_cast<FrameMenu *>(&widget())) {
        menu->showBar(*this);
        if (auto *frame = qobject_cast<QMainWindow *>(&parent.form().shell())) frame->setMenuBar(menu);
    }
}

ActiveBar::~ActiveBar() = default;

void ActiveBar::requireFlyouts() const
{
    for (const auto &band : m_bands)
        for (const auto &tool : band->Tools())
            if (!tool->Flyout().isEmpty()) Bands(tool->Flyout());
}

Band &ActiveBar::Bands(int index) const
{
    if (index < 0 || index >= BandCount())
        throw RunTimeError(SubscriptOutOfRange, QStringLiteral("The bar %1 has no band %2.").arg(Name()).arg(index));
    return *m_bands[static_cast<size_t>(index)];
}

Band &ActiveBar::Bands(const QString &name) const
{
    for (const auto &band : m_bands)
        if (band->Name() == name) return *band;
    throw RunTimeError(SubscriptOutOfRange, QStringLiteral("The bar %1 has no band of the name %2.").arg(Name(), name));
}

int ActiveBar::ToolCount() const
{
    int count = 0;
    for (const auto &band : m_bands)
        count += band->Tools().Count();
    return count;
}

Tool &ActiveBar::Tools(int index) const
{
    int rest = index;
    for (const auto &band : m_bands) {
        if (rest >= 0 && rest < band->Tools().Count()) return band->Tools(rest);
        rest -= band->Tools().Count();
    }
    throw RunTimeError(SubscriptOutOfRange, QStringLiteral("The bar %1 has no tool %2.").arg(Name()).arg(index));
}

Tool &ActiveBar::Tools(const QString &name) const
{
    for (const auto &band : m_bands)
        if (band->Tools().contains(name)) return band->Tools(name);
    throw RunTimeError(SubscriptOutOfRange, QStringLiteral("The bar %1 has no tool of the name %2.").arg(Name(), name));
}

void ActiveBar::RecalcLayout()
{
    emit Changed();
    dock();
}

void ActiveBar::press(Tool &tool)
{
    if (!tool.Enabled()) return;
    const std::shared_ptr<Tool> held = tool.shared_from_this();
    emit Click(held.get()); // after this the bar itself may be gone
}

void ActiveBar::hover(const QString &description)
{
    if (description == m_hovered) return;
    m_hovered = description;
    emit Hover(description);
}

bool ActiveBar::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == &m_container && event->type() == QEvent::Resize) dock();
    return Control::eventFilter(watched, event);
}

void ActiveBar::dock()
{
    if (!m_strip || hasOwnPlace()) return;
    const QRect place = isOnWindow() ? placeOnWindow() : placeInContainer();
    const int corner = isOnWindow() ? form().inside().top() : 0;
    m_docked =
        QRectF(toTwips(place.left()), toTwips(place.top() - corner), toTwips(place.width()), toTwips(place.height()));
    Move(m_docked.left(), m_docked.top(), m_docked.width(), m_docked.height());
}

void ActiveBar::moved()
{
    if (m_strip && isOnWindow() && hasOwnPlace()) form().dock(*this, false, 0);
}

bool ActiveBar::isOnWindow() const
{
    return &m_container == &form().surface();
}

bool ActiveBar::hasOwnPlace() const
{
    return QRectF(Left(), Top(), Width(), Height()) != m_docked;
}

// The window's inside ends where the bar begins.
QRect ActiveBar::placeOnWindow()
{
    const int height = Bands(0).Visible() ? m_strip->sizeHint().height() : 0;
    return form().dock(*this, Bands(0).DockingArea() == DockedBottom, height);
}

// A container that is hardly higher than the bar is there for it alone, and is filled.
QRect ActiveBar::placeInContainer() const
{
    const QRect room = m_container.contentsRect();
    const int wanted = m_strip->sizeHint().height();
    const int height = room.height() < 2 * wanted ? room.height() : wanted;
    const int top = Bands(0).DockingArea() == DockedBottom ? room.bottom() + 1 - height : room.top();
    return {room.left(), top, room.width(), height};
}

} // namespace orvane
