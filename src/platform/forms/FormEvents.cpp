// What the toolkit tells a window, turned into the window's own events.

#include "platform/forms/Form.h"
#include "platform/forms/ShiftState.h"
#include "platform/system/Guard.h"

#include <QCloseEvent>
#include <QKeyEvent>

namespace orvane
{

namespace
{
constexpr int CarriageReturn = 13;

// Letters and digits have their own codes; the function keys follow F1.
int keyCodeOf(const QKeyEvent &event)
{
    if (event.key() >= Qt::Key_F1 && event.key() <= Qt::Key_F12) return KeyF1 + event.key() - Qt::Key_F1;
    return event.key();
}

int asciiOf(const QKeyEvent &event)
{
    if (event.key() == Qt::Key_Return || event.key() == Qt::Key_Enter) return CarriageReturn;
    return event.text().isEmpty() ? 0 : event.text().front().unicode();
}
} // namespace

bool Form::eventFilter(QObject *watched, QEvent *event)
{
    if (!m_loaded) return false;
    const FormPin pin(*this);
    if (event->type() == QEvent::Resize && watched == m_surface) guarded([this] { Form_Resize(); });
    if (watched != m_shell) return false;
    switch (event->type()) {
    case QEvent::Close:
        closeAsked(static_cast<QCloseEvent &>(*event));
        return true;
    case QEvent::WindowStateChange:
        stateChanged();
        break;
    case QEvent::WindowActivate:
        activationChanged(true);
        break;
    case QEvent::WindowDeactivate:
        activationChanged(false);
        break;
    case QEvent::KeyPress:
        guarded([&] { keyPressed(static_cast<QKeyEvent &>(*event)); });
        break;
    case QEvent::KeyRelease:
        guarded([&] { keyReleased(static_cast<QKeyEvent &>(*event)); });
        break;
    default:
        break;
    }
    return false;
}

// The window goes by Unload alone, so the toolkit's own close never comes to pass.
void Form::closeAsked(QCloseEvent &event)
{
    event.ignore();
    guarded([this] { Unload(ByUser); });
}

// The inside of a minimised window keeps its size, so the toolkit sends it no resize.
void Form::stateChanged()
{
    const int state = WindowState();
    const bool passesMinimized = (state == Minimized) != (m_lastState == Minimized);
    m_lastState = state;
    if (Visible()) m_state = state;
    if (!passesMinimized) return;
    guarded([this] { Form_Resize(); });
    // A window that came back together with this one may have taken the focus.
    if (state != Minimized && m_shell->isWindow() && !m_shell->testAttribute(Qt::WA_ShowWithoutActivating))
        m_shell->activateWindow();
}

void Form::activationChanged(bool active)
{
    guarded([&] {
        if (active)
            activated();
        else
            deactivated();
    });
}

void Form::keyPressed(const QKeyEvent &event)
{
    Form_KeyDown(keyCodeOf(event), shiftState(event.modifiers()));
    const int ascii = asciiOf(event);
    if (ascii != 0 && m_loaded) Form_KeyPress(ascii);
}

// A key that is held down tells of a release before each of its repeats.
void Form::keyReleased(const QKeyEvent &event)
{
    if (event.isAutoRepeat()) return;
    Form_KeyUp(keyCodeOf(event), shiftState(event.modifiers()));
}

} // namespace orvane
