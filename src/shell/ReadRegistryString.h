// Texts from the machine's own record.
#pragma once

#include <QString>

namespace orvane
{

// A sentence for the reader where the key can't be opened; "" where it has no such value, or one of more than 255
// characters.
QString ReadRegistryString(const QString &subKey, quint32 rootKey, const QString &valueName);

// The first characters of the buffer, as many as length says, without the last of them if that is NUL.
QString TrimNul(const QString &buffer, qsizetype length);

} // namespace orvane
