// The keys held down beside the one, or the mouse button, that an event tells of.
#pragma once

#include <QtCore/qnamespace.h>

namespace orvane
{

// 1 for Shift, 2 for Ctrl, 4 for Alt, added up.
inline int shiftState(Qt::KeyboardModifiers modifiers)
{
    return (modifiers & Qt::ShiftModifier ? 1 : 0) + (modifiers & Qt::ControlModifier ? 2 : 0) +
           (modifiers & Qt::AltModifier ? 4 : 0);
}

} // namespace orvane
