#include "platform/spoken/SpokenButton.h"

#include <QAbstractButton>
#include <QKeySequence>

namespace orvane
{

SpokenButton::SpokenButton(QAbstractButton &button) : QAccessibleWidget(&button), m_button(button) {}

QAccessible::Role SpokenButton::role() const
{
    if (dropsMenu()) return QAccessible::ButtonMenu;
    return m_button.isCheckable() ? checkableRole() : QAccessible::Button;
}

QAccessible::State SpokenButton::state() const
{
    QAccessible::State state = QAccessibleWidget::state();
    state.checkable = m_button.isCheckable();
    state.checked = m_button.isChecked();
    state.pressed = m_button.isDown();
    state.hasPopup = dropsMenu();
    return state;
}

QString SpokenButton::text(QAccessible::Text text) const
{
    if (text == QAccessible::Accelerator)
        return QKeySequence::mnemonic(m_button.text()).toString(QKeySequence::NativeText);
    return QAccessibleWidget::text(text);
}

QStringList SpokenButton::actionNames() const
{
    const QString &main = dropsMenu() ? showMenuAction() : pressAction();
    return m_button.isEnabled() ? QStringList{main} + QAccessibleWidget::actionNames() : QStringList();
}

// Later, since a click may run a loop of its own, and who asks waits for the answer.
void SpokenButton::doAction(const QString &actionName)
{
    const bool presses = actionName == pressAction() || actionName == toggleAction() || actionName == showMenuAction();
    if (presses)
        m_button.animateClick();
    else
        QAccessibleWidget::doAction(actionName);
}

QStringList SpokenButton::keyBindingsForAction(const QString &actionName) const
{
    const QString key = text(QAccessible::Accelerator);
    return actionName == actionNames().value(0) && !key.isEmpty() ? QStringList{key} : QStringList();
}

} // namespace orvane
