#include "platform/system/AccountRecord.h"

#include <QFile>

namespace orvane
{

namespace
{
enum Field { UserId = 2, PersonalDetails = 4 };
}

std::optional<QString> accountFullName(const QString &fileName, quint32 userId)
{
    QFile file(fileName);
    if (!file.open(QIODevice::ReadOnly)) return {};
    const QByteArray number = QByteArray::number(userId);
    for (const QByteArray &line : file.readAll().split('\n')) {
        const QList<QByteArray> fields = line.split(':');
        if (fields.size() > PersonalDetails && fields[UserId] == number)
            return QString::fromUtf8(fields[PersonalDetails].split(',').constFirst());
    }
    return {};
}

} // namespace orvane
