#include "shell/ReadRegistryString.h"

#include "platform/system/Host.h"

namespace orvane
{

namespace
{
constexpr qsizetype BufferLength = 255;
}

QString ReadRegistryString(const QString &subKey, quint32 rootKey, const QString &valueName)
{
    const std::optional<RegistryKey> key = host().openRegistryKey(rootKey, subKey);
    if (!key) return QStringLiteral("This machine has no record.");
    const std::optional<RegistryValue> value = key->query(valueName, BufferLength);
    if (!value) return QStringLiteral("");
    return TrimNul(value->data, value->data.size());
}

QString TrimNul(const QString &buffer, qsizetype length)
{
    const QString text = buffer.left(length);
    return text.size() == length && text.endsWith(QChar(u'\0')) ? text.chopped(1) : text;
}

} // namespace orvane
