// The machine's own accounts. The file is read directly and no name service is asked, since that might go out to a
// network.
#pragma once

#include <QString>
#include <optional>

namespace orvane
{

// The full name in a file of the form of /etc/passwd: the fifth field up to its first comma. It may be empty. Nothing
// where the file can't be read or has no account of that number.
std::optional<QString> accountFullName(const QString &fileName, quint32 userId);

} // namespace orvane
