// Mouse pointers by their numbers.
#pragma once

#include <QtCore/qnamespace.h>

namespace orvane
{

enum MousePointers {
    DefaultPointer = 0,
    ArrowPointer = 1,
    HourglassPointer = 11,
    ArrowHourglassPointer = 13,
    ArrowQuestionPointer = 14,
};

Qt::CursorShape pointerShape(int mousePointer); // a number that isn't one of these is refused with error 380

} // namespace orvane
