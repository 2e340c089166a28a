#include "platform/richtext/RtfKeywords.h"

#include "platform/richtext/RtfFormats.h"
#include <algorithm>
#include <array>

namespace orvane
{

namespace
{

// In the order of their names.
constexpr auto Keywords = std::to_array<RtfKeyword>({
    {"aftncn", RtfWord::SkippedGroup, 0},
    {"aftnsep", RtfWord::SkippedGroup, 0},
    {"aftnsepc", RtfWord::SkippedGroup, 0},
    {"annotation", RtfWord::SkippedGroup, 0},
    {"ansicpg", RtfWord::DocumentCodePage, 0},
    {"atnauthor", RtfWord::SkippedGroup, 0},
    {"atndate", RtfWord::SkippedGroup, 0},
    {"atnid", RtfWord::SkippedGroup, 0},
    {"b", RtfWord::Bold, 0},
    {"bkmkend", RtfWord::SkippedGroup, 0},
    {"bkmkstart", RtfWord::SkippedGroup, 0},
    {"blue", RtfWord::Blue, 0},
    {"bullet", RtfWord::Character, 0x2022},
    {"cell", RtfWord::Character, u'\t'},
    {"cf", RtfWord::Colour, 0},
    {"colorschememapping", RtfWord::SkippedGroup, 0},
    {"colortbl", RtfWord::ColourTable, 0},
    {"comment", RtfWord::SkippedGroup, 0},
    {"company", RtfWord::SkippedGroup, 0},
    {"creatim", RtfWord::SkippedGroup, 0},
    {"datastore", RtfWord::SkippedGroup, 0},
    {"deff", RtfWord::DefaultFont, 0},
    {"deftab", RtfWord::DefaultTab, 0},
    {"dn", RtfWord::Raise, -1},
    {"doccomm", RtfWord::SkippedGroup, 0},
    {"docvar", RtfWord::SkippedGroup, 0},
    {"emdash", RtfWord::Character, 0x2014},
    {"emspace", RtfWord::Character, 0x2003},
    {"endash", RtfWord::Character, 0x2013},
    {"enspace", RtfWord::Character, 0x2002},
    {"f", RtfWord::Font, 0},
    {"fcharset", RtfWord::Charset, 0},
    {"fi", RtfWord::FirstIndent, 0},
    {"filetbl", RtfWord::SkippedGroup, 0},
    {"fldinst", RtfWord::SkippedGroup, 0},
    {"fldrslt", RtfWord::FieldResult, 0},
    {"fonttbl", RtfWord::FontTable, 0},
    {"footer", RtfWord::SkippedGroup, 0},
    {"footerf", RtfWord::SkippedGroup, 0},
    {"footerl", RtfWord::SkippedGroup, 0},
    {"footerr", RtfWord::SkippedGroup, 0},
    {"footnote", RtfWord::SkippedGroup, 0},
    {"fs", RtfWord::FontSize, 0},
    {"ftncn", RtfWord::SkippedGroup, 0},
    {"ftnsep", RtfWord::SkippedGroup, 0},
    {"ftnsepc", RtfWord::SkippedGroup, 0},
    {"generator", RtfWord::SkippedGroup, 0},
    {"green", RtfWord::Green, 0},
    {"header", RtfWord::SkippedGroup, 0},
    {"headerf", RtfWord::SkippedGroup, 0},
    {"headerl", RtfWord::SkippedGroup, 0},
    {"headerr", RtfWord::SkippedGroup, 0},
    {"i", RtfWord::Italic, 0},
    {"info", RtfWord::SkippedGroup, 0},
    {"keywords", RtfWord::SkippedGroup, 0},
    {"latentstyles", RtfWord::SkippedGroup, 0},
    {"ldblquote", RtfWord::Character, 0x201C},
    {"li", RtfWord::LeftIndent, 0},
    {"line", RtfWord::Character, 0x2028},
    {"listoverridetable", RtfWord::SkippedGroup, 0},
    {"listtable", RtfWord::SkippedGroup, 0},
    {"listtext", RtfWord::ListLabel, 0},
    {"lquote", RtfWord::Character, 0x2018},
    {"ltrmark", RtfWord::Character, 0x200E},
    {"nestcell", RtfWord::Character, u'\t'},
    {"nestrow", RtfWord::ParagraphBreak, 0},
    {"nonshppict", RtfWord::SkippedGroup, 0},
    {"nosupersub", RtfWord::Script, RtfCharacters::NormalScript},
    {"objclass", RtfWord::SkippedGroup, 0},
    {"objdata", RtfWord::SkippedGroup, 0},
    {"objname", RtfWord::SkippedGroup, 0},
    {"operator", RtfWord::SkippedGroup, 0},
    {"page", RtfWord::PageBreak, 0},
    {"par", RtfWord::ParagraphBreak, 0},
    {"pard", RtfWord::ParagraphDefaults, 0},
    {"pict", RtfWord::SkippedGroup, 0},
    {"plain", RtfWord::Plain, 0},
    {"pn", RtfWord::BulletGroup, 0},
    {"pnindent", RtfWord::BulletIndent, 0},
    {"pnlvl", RtfWord::Numbered, 0},
    {"pnlvlblt", RtfWord::Bullet, 0},
    {"pnlvlbody", RtfWord::Numbered, 0},
    {"pnseclvl", RtfWord::SkippedGroup, 0},
    {"pntext", RtfWord::BulletText, 0},
    {"pntxta", RtfWord::SkippedGroup, 0},
    {"pntxtb", RtfWord::SkippedGroup, 0},
    {"printim", RtfWord::SkippedGroup, 0},
    {"private", RtfWord::SkippedGroup, 0},
    {"qc", RtfWord::Align, Qt::AlignHCenter},
    {"qj", RtfWord::Align, Qt::AlignJustify},
    {"ql", RtfWord::Align, Qt::AlignLeft},
    {"qmspace", RtfWord::Character, 0x2005},
    {"qr", RtfWord::Align, Qt::AlignRight},
    {"rdblquote", RtfWord::Character, 0x201D},
    {"red", RtfWord::Red, 0},
    {"revtbl", RtfWord::SkippedGroup, 0},
    {"revtim", RtfWord::SkippedGroup, 0},
    {"ri", RtfWord::RightIndent, 0},
    {"row", RtfWord::ParagraphBreak, 0},
    {"rquote", RtfWord::Character, 0x2019},
    {"rsidtbl", RtfWord::SkippedGroup, 0},
    {"rtlmark", RtfWord::Character, 0x200F},
    {"rxe", RtfWord::SkippedGroup, 0},
    {"sa", RtfWord::SpaceAfter, 0},
    {"sb", RtfWord::SpaceBefore, 0},
    {"sect", RtfWord::ParagraphBreak, 0},
    {"stylesheet", RtfWord::SkippedGroup, 0},
    {"sub", RtfWord::Script, RtfCharacters::SubScript},
    {"super", RtfWord::Script, RtfCharacters::SuperScript},
    {"tab", RtfWord::Character, u'\t'},
    {"tc", RtfWord::SkippedGroup, 0},
    {"template", RtfWord::SkippedGroup, 0},
    {"themedata", RtfWord::SkippedGroup, 0},
    {"tqc", RtfWord::TabType, QTextOption::CenterTab},
    {"tqdec", RtfWord::TabType, QTextOption::DelimiterTab},
    {"tqr", RtfWord::TabType, QTextOption::RightTab},
    {"tx", RtfWord::TabStop, 0},
    {"txe", RtfWord::SkippedGroup, 0},
    {"u", RtfWord::UnicodeCharacter, 0},
    {"uc", RtfWord::UnicodeSkip, 0},
    {"ul", RtfWord::Underline, 0},
    {"uld", RtfWord::Underline, 0},
    {"uldash", RtfWord::Underline, 0},
    {"uldashd", RtfWord::Underline, 0},
    {"uldashdd", RtfWord::Underline, 0},
    {"uldb", RtfWord::Underline, 0},
    {"ulhwave", RtfWord::Underline, 0},
    {"ulldash", RtfWord::Underline, 0},
    {"ulnone", RtfWord::UnderlineNone, 0},
    {"ulth", RtfWord::Underline, 0},
    {"ulthd", RtfWord::Underline, 0},
    {"ulthdash", RtfWord::Underline, 0},
    {"ulthdashd", RtfWord::Underline, 0},
    {"ulthdashdd", RtfWord::Underline, 0},
    {"ulthldash", RtfWord::Underline, 0},
    {"ululdbwave", RtfWord::Underline, 0},
    {"ulw", RtfWord::Underline, 0},
    {"ulwave", RtfWord::Underline, 0},
    {"up", RtfWord::Raise, 1},
    {"userprops", RtfWord::SkippedGroup, 0},
    {"xe", RtfWord::SkippedGroup, 0},
    {"xmlnstbl", RtfWord::SkippedGroup, 0},
    {"zwj", RtfWord::Character, 0x200D},
    {"zwnj", RtfWord::Character, 0x200C},
});

constexpr bool byName(const RtfKeyword &a, const RtfKeyword &b)
{
    return a.name < b.name;
}

static_assert(std::is_sorted(Keywords.begin(), Keywords.end(), byName));

constexpr size_t LongestName =
    std::max_element(Keywords.begin(), Keywords.end(), [](auto &a, auto &b) { return a.name.size() < b.name.size(); })
        -> name.size();

} // namespace

const RtfKeyword *findRtfKeyword(QStringView name)
{
    if (name.isEmpty() || size_t(name.size()) > LongestName) return nullptr;
    std::array<char, LongestName> letters;
    std::transform(name.begin(), name.end(), letters.begin(), [](QChar c) { return c.toLatin1(); });
    const std::string_view wanted(letters.data(), size_t(name.size()));
    const auto *found = std::lower_bound(Keywords.begin(), Keywords.end(), RtfKeyword{wanted, RtfWord::Plain}, byName);
    return found != Keywords.end() && found->name == wanted ? found : nullptr;
}

} // namespace orvane
