#include "RtfCodePage.h"

#include <QStringDecoder>
#include <algorithm>
#include <array>
#include <utility>

namespace orvane
{

namespace
{

constexpr std::array<char16_t, 32> WesternHigh{
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178,
};

constexpr std::array<std::pair<int, int>, 9> CharsetPages{{{2, SymbolCodePage},
                                                           {161, 1253},
                                                           {162, 1254},
                                                           {163, 1258},
                                                           {177, 1255},
                                                           {178, 1256},
                                                           {186, 1257},
                                                           {204, 1251},
                                                           {238, 1250}}};

constexpr int FirstTablePage = 1250;
constexpr int LastTablePage = 1258;

using HighHalf = std::array<char16_t, 128>;

char16_t westernCharacter(int byte)
{
    return byte >= 0x80 && byte < 0xA0 ? WesternHigh[size_t(byte - 0x80)] : char16_t(byte);
}

HighHalf highHalf(int codePage)
{
    QStringDecoder decoder(QByteArray("windows-" + QByteArray::number(codePage)).constData());
    HighHalf half{};
    for (int byte = 0x80; byte < 0x100; ++byte) {
        const QString decoded = decoder.isValid() ? QString(decoder(QByteArray(1, char(byte)))) : QString();
        const bool usable = decoded.size() == 1 && decoded.front() != QChar::ReplacementCharacter;
        half[size_t(byte - 0x80)] = usable ? decoded.front().unicode() : westernCharacter(byte);
    }
    return half;
}

const HighHalf &cachedHighHalf(int codePage)
{
    static const auto halves = [] {
        std::array<HighHalf, LastTablePage - FirstTablePage + 1> all;
        for (int page = FirstTablePage; page <= LastTablePage; ++page)
            all[size_t(page - FirstTablePage)] = highHalf(page);
        return all;
    }();
    return halves[size_t(codePage - FirstTablePage)];
}

} // namespace

int codePageOfCharset(int charset, int documentCodePage)
{
    const auto *page =
        std::find_if(CharsetPages.begin(), CharsetPages.end(), [=](auto &p) { return p.first == charset; });
    return page == CharsetPages.end() ? documentCodePage : page->second;
}

char16_t characterOfByte(int codePage, int byte)
{
    // The bullet is the one glyph of the symbol font that documents of ours use.
    if (codePage == SymbolCodePage && byte == 0xB7) return 0x2022;
    const bool ownTable = codePage >= FirstTablePage && codePage <= LastTablePage && codePage != WesternCodePage;
    if (byte < 0x80 || !ownTable) return westernCharacter(byte);
    return cachedHighHalf(codePage)[size_t(byte - 0x80)];
}

int westernByte(char16_t character)
{
    if (character < 0x80 || (character >= 0xA0 && character < 0x100)) return character;
    const auto *found = std::find(WesternHigh.begin(), WesternHigh.end(), character);
    return found == WesternHigh.end() ? -1 : 0x80 + int(found - WesternHigh.begin());
}

} // namespace orvane
