// A borderless group of controls that is moved as one.
#pragma once

#include "platform/controls/Control.h"

namespace orvane
{

class Frame : public Control, public Container
{
    Q_OBJECT

public:
    Frame(Container &parent, const QString &name);

    QWidget &surface() override { return widget(); }
    Form &form() override { return Control::form(); }

signals:
    void Click();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
};

} // namespace orvane
