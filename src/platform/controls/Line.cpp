#include "platform/controls/Line.h"

#include "platform/controls/Colour.h"

namespace orvane
{

Line::Line(Container &parent, const QString &name) : Control(parent, name, new QWidget)
{
    widget().setAutoFillBackground(true);
}

void Line::setBorderColor(int colour)
{
    QPalette palette = widget().palette();
    palette.setColor(QPalette::Window, toColour(colour));
    widget().setPalette(palette);
}

} // namespace orvane
