// What assistive technologies are told of the program's own buttons, and what they can do to them: just what the mouse
// can. The toolkit's own way would check a button that can be checked, and leave it at that.
#pragma once

#include <QAccessibleWidget>

class QAbstractButton;

namespace orvane
{

class SpokenButton : public QAccessibleWidget
{
public:
    explicit SpokenButton(QAbstractButton &button);

    QAccessible::Role role() const override;
    QAccessible::State state() const override;
    QString text(QAccessible::Text text) const override;
    QStringList actionNames() const override;
    void doAction(const QString &actionName) override;
    QStringList keyBindingsForAction(const QString &actionName) const override;

protected:
    // Asked each time: buttons are dressed after they have been told of.
    virtual bool dropsMenu() const = 0;
    virtual QAccessible::Role checkableRole() const = 0;

private:
    QAbstractButton &m_button;
};

} // namespace orvane
