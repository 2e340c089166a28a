// Files read whole.
#pragma once

#include <QByteArray>
#include <QString>

namespace orvane
{

// Error 53 where the file isn't there, error 75 where it can't be read.
QByteArray readWholeFile(const QString &fileName);

} // namespace orvane
