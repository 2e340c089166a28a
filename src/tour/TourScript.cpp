#include "tour/TourScript.h"

#include "platform/system/RunTimeError.h"

namespace orvane
{

QString TourScript::field(int index) const
{
    if (!has(index))
        throw RunTimeError(SubscriptOutOfRange,
                           QStringLiteral("The script \"%1\" has no field %2.").arg(m_text).arg(index));
    return m_text.section(u'/', index, index);
}

} // namespace orvane
