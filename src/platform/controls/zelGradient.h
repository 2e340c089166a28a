// A ground of graded colour that holds panels and lies behind whatever else its container holds.
#pragma once

#include "platform/controls/Control.h"

namespace orvane
{

class zelGradient : public Control, public Container
{
    Q_OBJECT

public:
    enum Look { Strip, Ground }; // a title strip, or the ground of a whole window

    zelGradient(Container &parent, const QString &name, Look look);

    QWidget &surface() override { return widget(); }
    Form &form() override { return Control::form(); }

private:
    class Paper;
};

} // namespace orvane
