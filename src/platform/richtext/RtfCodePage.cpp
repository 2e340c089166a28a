#include "platform/richtext/RtfCodePage.h"

#include "platform/system/CodePage1252.h"
#include <QStringDecoder>
#include <algorithm>
#include <array>
#include <utility>

namespace orvane
{

namespace
{

constexpr std::array<std::pair<int, int>, 9> CharsetPages{{{2, SymbolCodePage},
                                                           {161, 1253},
                                                           {162, 1254},
                                                           {163, 1258},
                                                           {177, 1255},
                                                           {178, 1256},
                                                           {186, 1257},
                                                           {204, 1251},
                                                           {238, 1250}}};

constexpr int FirstPage = 1250;
constexpr int LastPage = 1258;
constexpr int PageSize = 256;
constexpr int SymbolBullet = 0xB7;

using Page = std::array<QChar, PageSize>;

Page pageOf(int codePage)
{
    QStringDecoder decoder(("windows-" + QByteArray::number(codePage)).constData());
    Page page;
    for (int byte = 0; byte < PageSize; ++byte) {
        const QByteArray bytes(1, static_cast<char>(byte));
        const QString own = decoder.isValid() && codePage != WesternCodePage ? QString(decoder(bytes)) : QString();
        const bool usable = own.size() == 1 && own.front() != QChar::ReplacementCharacter;
        page[static_cast<size_t>(byte)] = usable ? own.front() : CodePage1252::decode(bytes).front();
    }
    return page;
}

const Page &cachedPage(int codePage)
{
    static const auto pages = [] {
        std::array<Page, LastPage - FirstPage + 1> all;
        for (size_t i = 0; i < all.size(); ++i)
            all[i] = pageOf(FirstPage + static_cast<int>(i));
        return all;
    }();
    const bool known = codePage >= FirstPage && codePage <= LastPage;
    return pages[static_cast<size_t>((known ? codePage : WesternCodePage) - FirstPage)];
}

} // namespace

int codePageOfCharset(int charset, int documentCodePage)
{
    const auto *page =
        std::find_if(CharsetPages.begin(), CharsetPages.end(), [=](const auto &p) { return p.first == charset; });
    return page == CharsetPages.end() ? documentCodePage : page->second;
}

QChar characterOfByte(int codePage, int byte)
{
    // The bullet is the one glyph of the symbol font that documents of ours use.
    if (codePage == SymbolCodePage && byte == SymbolBullet) return QChar(0x2022);
    return cachedPage(codePage)[static_cast<size_t>(byte)];
}

} // namespace orvane
