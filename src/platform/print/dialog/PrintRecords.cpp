#include "platform/print/dialog/PrintRecords.h"

#include "platform/system/CodePage1252.h"

#include <algorithm>

namespace orvane
{

void putText(char *bytes, std::size_t length, const QString &text)
{
    const QByteArray encoded = CodePage1252::encode(text).leftJustified(static_cast<qsizetype>(length), ' ', true);
    std::copy(encoded.begin(), encoded.end(), bytes);
}

QString textOf(const char *bytes, std::size_t length)
{
    return CodePage1252::decode(QByteArrayView(bytes, static_cast<qsizetype>(length)));
}

} // namespace orvane
