#include "platform/forms/Window.h"

#include "platform/controls/CommandButton.h"
#include "platform/forms/FormSurface.h"

#include <QApplication>
#include <QKeyEvent>
#include <QPushButton>
#include <QScreen>
#include <algorithm>

namespace orvane
{

namespace
{
QWidget *newShell(Window::Border border)
{
    const Qt::WindowFlags frame = border == Window::NoBorder
                                      ? Qt::FramelessWindowHint
                                      : Qt::CustomizeWindowHint | Qt::WindowTitleHint | Qt::WindowCloseButtonHint;
    return new FormSurface(nullptr, Qt::Window | frame);
}

bool isOnTop(const QWidget &shell)
{
    return shell.windowFlags().testFlag(Qt::WindowStaysOnTopHint);
}

// A window that floats over the others and leaves the focus to them.
bool isFloating(const QWidget &shell)
{
    return isOnTop(shell) && shell.testAttribute(Qt::WA_ShowWithoutActivating);
}

// Of windows on top, the one that was raised last covers the others. A dialog is not to be lost behind one that floats.
void raiseDialogs()
{
    for (QWidget *shell : QApplication::topLevelWidgets())
        if (shell->isVisible() && isOnTop(*shell) && !isFloating(*shell)) shell->raise();
    if (QWidget *modal = QApplication::activeModalWidget()) modal->raise();
}

// Whether any control in it can have the focus.
bool takesKeys(const QWidget &shell)
{
    const auto widgets = shell.findChildren<QWidget *>();
    return std::ranges::any_of(widgets, [](const QWidget *widget) { return widget->focusPolicy() != Qt::NoFocus; });
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
    if (!takesKeys(shell())) focusRest().setFocus();
    Form::Show(mode);
    if (isFloating(shell())) raiseDialogs();
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
    if (event->type() == QEvent::WindowActivate && watched == &shell() && isFloating(shell())) raiseDialogs();
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
