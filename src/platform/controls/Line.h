// A straight line that parts a window's inside, upright or level: as long and as thick as its place.
#pragma once

#include "platform/controls/Control.h"

namespace orvane
{

class Line : public Control
{
    Q_OBJECT

public:
    Line(Container &parent, const QString &name);

    void setBorderColor(int colour); // blue, green, red
};

} // namespace orvane
