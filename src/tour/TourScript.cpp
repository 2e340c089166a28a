#include "tour/TourScript.h"

#include "platform/system/RunTimeError.h"

namespace orvane
{

const QString &TourScript::field(int index) const
{
    if (index >= m_fields.size())
        throw RunTimeError(SubscriptOutOfRange,
                           QStringLiteral("The script \"%1\" has no field %2.").arg(m_text).arg(index));
    return m_fields.at(index);
}

} // namespace orvane
