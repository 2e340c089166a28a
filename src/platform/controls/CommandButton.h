// A push button.
#pragma once

#include "platform/controls/Control.h"

class QPushButton;

namespace orvane
{

class CommandButton : public Control
{
    Q_OBJECT

public:
    CommandButton(Container &parent, const QString &name, const QString &caption);

    QString Caption() const override;
    void setFont(const QString &family, double points, bool bold);

signals:
    void Click();

private:
    QPushButton &m_button;
};

} // namespace orvane
