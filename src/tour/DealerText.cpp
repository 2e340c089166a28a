#include "tour/DealerText.h"

#include "platform/system/CodePage1252.h"
#include "platform/system/RunTimeError.h"

#include <cstdint>

namespace orvane
{

namespace
{

constexpr std::int16_t KeyRange = 64;
constexpr std::int16_t CodeRange = 255;

// The key of the character at a position, given the key of the one before it.
std::int16_t nextKey(qsizetype position, std::int16_t key)
{
    return static_cast<std::int16_t>((position + key) % KeyRange);
}

std::int16_t moveDown(unsigned char code, std::int16_t key)
{
    return static_cast<std::int16_t>((code - key) % CodeRange);
}

std::int16_t moveUp(unsigned char code, std::int16_t key)
{
    return static_cast<std::int16_t>((code + key) % CodeRange);
}

[[noreturn]] void refuse(QChar character, qsizetype position, const QString &reason)
{
    const QString name = QStringLiteral("U+%1").arg(int(character.unicode()), 4, 16, QLatin1Char('0')).toUpper();
    throw RunTimeError(InvalidProcedureCall,
                       QStringLiteral("The character %1 at position %2 %3").arg(name).arg(position).arg(reason));
}

unsigned char scrambled(QChar character, qsizetype position, std::int16_t key)
{
    if (!CodePage1252::hasCode(character))
        refuse(character, position, QStringLiteral("has no code in code page 1252."));
    const auto code = static_cast<unsigned char>(CodePage1252::encode(QStringView(&character, 1)).front());
    const auto moved = static_cast<unsigned char>(moveUp(code, key));
    if (moveDown(moved, key) != code)
        refuse(character, position, QStringLiteral("cannot be read back there; another one has to take its place."));
    return moved;
}

} // namespace

QString UnscrambleDealerData(const QString &text)
{
    QByteArray codes = CodePage1252::encode(text);
    std::int16_t key = 0;
    for (qsizetype i = 1; i <= codes.size(); ++i) {
        key = nextKey(i, key);
        const std::int16_t code = moveDown(static_cast<unsigned char>(codes[i - 1]), key);
        if (code < 0)
            throw RunTimeError(InvalidProcedureCall,
                               QStringLiteral("The dealer text holds no character at position %1.").arg(i));
        codes[i - 1] = static_cast<char>(code);
    }
    return CodePage1252::decode(codes);
}

QByteArray ScrambleDealerData(const QString &text)
{
    QByteArray codes;
    codes.reserve(text.size());
    std::int16_t key = 0;
    for (qsizetype i = 1; i <= text.size(); ++i) {
        key = nextKey(i, key);
        codes.append(static_cast<char>(scrambled(text[i - 1], i, key)));
    }
    return codes;
}

} // namespace orvane
