#include "platform/system/ProfileEdit.h"

#include "platform/system/CodePage1252.h"
#include "platform/system/ProfileScan.h"

#include <algorithm>

namespace orvane
{

namespace
{

bool containsAnyOf(QStringView name, QStringView characters)
{
    return std::any_of(name.begin(), name.end(), [characters](QChar c) { return characters.contains(c); });
}

} // namespace

bool canNameProfileLine(QStringView section, QStringView key)
{
    const QStringView keyText = key.trimmed();
    return !containsAnyOf(section, u"]\r\n") && !containsAnyOf(key, u"=\r\n") && !keyText.isEmpty() &&
           !keyText.startsWith(u';') && !keyText.startsWith(u'[');
}

QByteArray profileInsertion(const ProfilePlace &place, QStringView section, QStringView key, QStringView value)
{
    QByteArray valueBytes = CodePage1252::encode(value);
    valueBytes.replace('\r', "").replace('\n', "");
    if (place.keyFound) return valueBytes;

    QByteArray lines = place.afterOpenLine ? place.lineEnd : QByteArray();
    if (!place.sectionFound) lines += '[' + CodePage1252::encode(section) + ']' + place.lineEnd;
    return lines + CodePage1252::encode(key) + '=' + valueBytes + place.lineEnd;
}

} // namespace orvane
