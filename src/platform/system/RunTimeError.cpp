#include "platform/system/RunTimeError.h"

namespace orvane
{

RunTimeError::RunTimeError(int number, const QString &description)
    : std::runtime_error(description.toStdString()), m_number(number), m_description(description)
{
}

} // namespace orvane
