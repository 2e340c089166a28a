#include "platform/system/CodePage1252.h"

#include <algorithm>
#include <array>
#include <optional>

namespace orvane::CodePage1252
{

namespace
{

constexpr char Substitute = '?';
constexpr int OwnFirst = 0x80;
constexpr int OwnEnd = 0xA0;
constexpr int PageEnd = 0x100;

// The characters of the codes 0x80 to 0x9F.
constexpr std::array<char16_t, OwnEnd - OwnFirst> Own{
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178,
};

QChar characterOf(unsigned char code)
{
    return code < OwnFirst || code >= OwnEnd ? QChar(char16_t(code)) : QChar(Own[code - OwnFirst]);
}

std::optional<char> codeOf(QChar character)
{
    const char16_t unit = character.unicode();
    if (unit < OwnFirst || (unit >= OwnEnd && unit < PageEnd)) return static_cast<char>(unit);
    const auto *found = std::find(Own.begin(), Own.end(), unit);
    if (found == Own.end()) return std::nullopt;
    return static_cast<char>(OwnFirst + (found - Own.begin()));
}

} // namespace

QString decode(QByteArrayView bytes)
{
    QString text(bytes.size(), Qt::Uninitialized);
    std::transform(bytes.begin(), bytes.end(), text.begin(),
                   [](char byte) { return characterOf(static_cast<unsigned char>(byte)); });
    return text;
}

QByteArray encode(QStringView text)
{
    QByteArray bytes(text.size(), Qt::Uninitialized);
    std::transform(text.begin(), text.end(), bytes.begin(),
                   [](QChar character) { return codeOf(character).value_or(Substitute); });
    return bytes;
}

bool hasCode(QChar character)
{
    return codeOf(character).has_value();
}

} // namespace orvane::CodePage1252
