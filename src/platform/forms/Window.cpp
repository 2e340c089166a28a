#include "platform/forms/Window.h"

#include "platform/controls/CommandButton.h"

#include <QKeyEvent>
#include <QPushButton>
#include <QScreen>

namespace orvane
{

namespace
{
QWidget *newShell(Window::Border border)
{
    const Qt::WindowFlags frame = border == Window::NoBorder
                                      ? Qt::FramelessWindowHint
                                      : Qt::CustomizeWindowHint | Qt::WindowTitleHint | Qt::WindowCloseButtonHint;
    return new QWidget(nullptr, Qt::Window | frame);
}

QPushButton &buttonShownBy(const CommandButton &button)
{
    return static_cast<QPushButton &>(button.widget());
}
} // namespace

Window::Window(const QString &name, Border border) : Window(name, newShell(border)) {}

Window::Window(const QString &name, QWidget *shell) : Form(name, shell, shell) {}

void Window::Show(int mode)
{
    if (!m_placed) {
        m_placed = true;
        const QRect room = shell().screen()->availableGeometry();
        shell().move(room.center() - shell().rect().center());
    }
    Form::Show(mode);
}

void Window::setTopMost(bool topMost)
{
    shell().setWindowFlag(Qt::WindowStaysOnTopHint, topMost);
}

void Window::setTakesFocus(bool takes)
{
    shell().setAttribute(Qt::WA_ShowWithoutActivating, !takes);
}

void Window::setDefaultButton(CommandButton &button)
{
    m_defaultButton = &button;
    buttonShownBy(button).setDefault(true);
}

CommandButton *Window::buttonOf(const QKeyEvent &event) const
{
    switch (event.key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
        return m_defaultButton;
    case Qt::Key_Escape:
        return m_cancelButton;
    default:
        return nullptr;
    }
}

// A key that is still held down from before the window came up presses nothing.
bool Window::eventFilter(QObject *watched, QEvent *event)
{
    const bool isPress = event->type() == QEvent::KeyPress;
    const bool isKey = isPress || event->type() == QEvent::KeyRelease;
    if (!Loaded() || watched != &shell() || !isKey) return Form::eventFilter(watched, event);
    const auto &key = static_cast<QKeyEvent &>(*event);
    const CommandButton *button = buttonOf(key);
    if (!button) return Form::eventFilter(watched, event);
    if (isPress && !key.isAutoRepeat()) buttonShownBy(*button).click();
    return true;
}

} // namespace orvane
