#include "platform/system/File.h"

#include "platform/system/RunTimeError.h"

#include <QFile>

namespace orvane
{

QByteArray readWholeFile(const QString &fileName)
{
    QFile file(fileName);
    if (!file.exists()) throw RunTimeError(FileNotFound, QStringLiteral("The file \"%1\" isn't there.").arg(fileName));
    const bool isOpen = file.open(QIODevice::ReadOnly);
    const QByteArray bytes = isOpen ? file.readAll() : QByteArray();
    if (!isOpen || file.error() != QFile::NoError)
        throw RunTimeError(PathAccessError, QStringLiteral("The file \"%1\" can't be read.").arg(fileName));
    return bytes;
}

} // namespace orvane
