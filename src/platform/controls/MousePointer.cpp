#include "platform/controls/MousePointer.h"

#include "platform/system/RunTimeError.h"

namespace orvane
{

Qt::CursorShape pointerShape(int mousePointer)
{
    switch (mousePointer) {
    case DefaultPointer:
    case ArrowPointer:
        return Qt::ArrowCursor;
    case HourglassPointer:
        return Qt::WaitCursor;
    case ArrowHourglassPointer:
        return Qt::BusyCursor;
    case ArrowQuestionPointer:
        return Qt::WhatsThisCursor;
    default:
        throw RunTimeError(InvalidPropertyValue, QStringLiteral("There is no mouse pointer of that number."));
    }
}

} // namespace orvane
