// Colours kept as one integer of blue, green and red, two hexadecimal digits each.
#pragma once

#include <QColor>

namespace orvane
{

inline QColor toColour(int bgr)
{
    return {bgr & 0xFF, (bgr >> 8) & 0xFF, (bgr >> 16) & 0xFF};
}
inline int fromColour(const QColor &colour)
{
    return colour.blue() << 16 | colour.green() << 8 | colour.red();
}

} // namespace orvane
