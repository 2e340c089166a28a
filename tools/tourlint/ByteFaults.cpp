#include "ByteFaults.h"

#include "platform/system/CodePage1252.h"

#include <QList>
#include <QStringDecoder>

#include <algorithm>
#include <optional>

using namespace Qt::Literals::StringLiterals;

namespace orvane::lint
{

namespace
{
QString hex(int code)
{
    return u"0x"_s + QString::number(code, 16).toUpper().rightJustified(2, u'0');
}

bool isAscii(QChar character)
{
    return character.unicode() < 0x80;
}

// A line that an editor has saved in UTF-8 shows two or three characters for one.
std::optional<QString> unicodeFault(const QByteArray &line)
{
    QStringDecoder decoder(QStringDecoder::Utf8, QStringDecoder::Flag::Stateless);
    const QString text = decoder(line);
    const auto strange = std::find_if_not(text.begin(), text.end(), isAscii);
    if (decoder.hasError() || strange == text.end()) return std::nullopt;
    const qsizetype units = strange->isHighSurrogate() ? 2 : 1;
    const QString character = text.mid(strange - text.begin(), units);
    if (units == 2 || !CodePage1252::hasCode(*strange))
        return u"the character \"%1\" is not in code page 1252"_s.arg(character);
    return u"the character \"%1\" is in UTF-8 and not in code page 1252"_s.arg(character);
}

std::optional<QString> byteFault(const QByteArray &line)
{
    for (const char byte : line) {
        const int code = static_cast<unsigned char>(byte);
        if (code < 0x20 && byte != '\t' && byte != '\r') return u"the control character %1"_s.arg(hex(code));
        if (isWithoutCharacter(code)) return u"the byte %1 has no character in code page 1252"_s.arg(hex(code));
    }
    return std::nullopt;
}
} // namespace

bool isWithoutCharacter(int code)
{
    return code == 0x81 || code == 0x8D || code == 0x8F || code == 0x90 || code == 0x9D;
}

bool isUtf16(const QByteArray &bytes)
{
    return bytes.startsWith("\xFF\xFE") || bytes.startsWith("\xFE\xFF");
}

void findByteFaults(const QByteArray &bytes, Findings &findings)
{
    int number = 0;
    for (const QByteArray &line : bytes.split('\n')) {
        ++number;
        const bool marked = number == 1 && line.startsWith(ByteOrderMark);
        std::optional<QString> fault = unicodeFault(line);
        if (marked) fault = u"a byte order mark hides the first line"_s;
        if (!fault) fault = byteFault(line);
        if (fault) findings.push_back({number, *fault});
    }
}

} // namespace orvane::lint
