#include "platform/richtext/RtfFormats.h"

#include <QFont>
#include <QHashFunctions>
#include <QTextList>
#include <algorithm>
#include <cmath>

namespace orvane
{

namespace
{

enum Property {
    RaiseProperty =
        QTextFormat::UserProperty + 0x71, // half points: the toolkit knows a share of the font's height only
    BulletHangProperty,                   // twips from the bullet to its text
};

// Ascent and descent together, in sizes of the font, as good as equal for all book fonts.
constexpr double FontHeight = 1.11;
// The toolkit puts a bullet right before its text; this much keeps it in its place for body sizes.
constexpr int SmallestHang = 240;
constexpr int UsualHang = 360;

int clampedLength(int twips)
{
    return std::clamp(twips, 0, LargestLengthTwips);
}

void makeBulletRoom(RtfParagraph &paragraph)
{
    const int glyph = std::clamp(paragraph.left + paragraph.first, 0, LargestIndentTwips - SmallestHang);
    const int wanted = std::max(-paragraph.first, paragraph.bulletIndent);
    const int hang = std::clamp(wanted <= 0 ? UsualHang : wanted, SmallestHang, LargestIndentTwips - glyph);
    paragraph.left = glyph + hang;
    paragraph.first = -hang;
}

// Where the toolkit counts tab positions from: the start of the first line's text.
int tabOrigin(const RtfParagraph &paragraph)
{
    return paragraph.bullet ? paragraph.left : paragraph.left + paragraph.first;
}

// A hanging first line has a tab stop where the other lines begin, without any word that says so.
bool hasImpliedTab(const RtfParagraph &paragraph)
{
    return paragraph.first < 0 && !paragraph.bullet;
}

QList<RtfTab> normalTabs(const RtfParagraph &paragraph)
{
    QList<RtfTab> tabs = paragraph.tabs;
    std::stable_sort(tabs.begin(), tabs.end(), [](auto &a, auto &b) { return a.position < b.position; });
    const auto last = std::unique(tabs.begin(), tabs.end(), [](auto &a, auto &b) { return a.position == b.position; });
    tabs.resize(last - tabs.begin());
    if (hasImpliedTab(paragraph)) tabs.removeOne(RtfTab{paragraph.left, QTextOption::LeftTab});
    return tabs;
}

QList<QTextOption::Tab> toTabs(const RtfParagraph &normal)
{
    QList<RtfTab> all = normal.tabs;
    const auto place = std::lower_bound(all.begin(), all.end(), normal.left,
                                        [](const RtfTab &tab, int left) { return tab.position < left; });
    if (hasImpliedTab(normal) && (place == all.end() || place->position != normal.left))
        all.insert(place - all.begin(), RtfTab{normal.left, QTextOption::LeftTab});
    QList<QTextOption::Tab> tabs;
    for (const RtfTab &tab : all)
        tabs.append(QTextOption::Tab(pixelsOfTwips(tab.position - tabOrigin(normal)), tab.type, u'.'));
    return tabs;
}

QList<RtfTab> tabsOf(const QTextBlockFormat &format, const RtfParagraph &paragraph)
{
    QList<RtfTab> tabs;
    for (const QTextOption::Tab &tab : format.tabPositions())
        tabs.append({twipsOfPixels(tab.position) + tabOrigin(paragraph), tab.type});
    return tabs;
}

Qt::Alignment alignmentOf(const QTextBlockFormat &format)
{
    for (const Qt::AlignmentFlag flag : {Qt::AlignRight, Qt::AlignHCenter, Qt::AlignJustify})
        if (format.alignment() & flag) return flag;
    return Qt::AlignLeft;
}

int sizeOf(const QTextCharFormat &format, int fallback)
{
    double halfPoints = fallback;
    if (format.hasProperty(QTextFormat::FontPointSize))
        halfPoints = format.fontPointSize() * 2;
    else if (format.hasProperty(QTextFormat::FontPixelSize))
        halfPoints = format.intProperty(QTextFormat::FontPixelSize) * 1.5;
    return int(std::lround(std::clamp<double>(halfPoints, SmallestHalfPoints, LargestHalfPoints)));
}

} // namespace

double pixelsOfTwips(int twips)
{
    return twips / 15.0;
}

int twipsOfPixels(double pixels)
{
    return int(std::lround(std::clamp<double>(pixels * 15, -LargestLengthTwips, LargestLengthTwips)));
}

RtfParagraph normalParagraph(RtfParagraph paragraph)
{
    if (paragraph.bullet) makeBulletRoom(paragraph);
    paragraph.left = std::clamp(paragraph.left, 0, LargestIndentTwips);
    paragraph.right = std::clamp(paragraph.right, 0, LargestIndentTwips - paragraph.left);
    paragraph.first = std::clamp(paragraph.first, -paragraph.left, LargestIndentTwips - paragraph.left);
    paragraph.before = clampedLength(paragraph.before);
    paragraph.after = clampedLength(paragraph.after);
    paragraph.bulletIndent = 0;
    paragraph.numbered = false;
    paragraph.tabs = normalTabs(paragraph);
    return paragraph;
}

QTextBlockFormat toBlockFormat(const RtfParagraph &normal)
{
    QTextBlockFormat format;
    if (normal.alignment != Qt::AlignLeft) format.setAlignment(normal.alignment);
    if (normal.left) format.setLeftMargin(pixelsOfTwips(normal.left));
    if (normal.right) format.setRightMargin(pixelsOfTwips(normal.right));
    if (normal.before) format.setTopMargin(pixelsOfTwips(normal.before));
    if (normal.after) format.setBottomMargin(pixelsOfTwips(normal.after));
    if (normal.bullet)
        format.setProperty(BulletHangProperty, -normal.first);
    else if (normal.first)
        format.setTextIndent(pixelsOfTwips(normal.first));
    if (!normal.tabs.isEmpty() || hasImpliedTab(normal)) format.setTabPositions(toTabs(normal));
    return format;
}

RtfParagraph paragraphOf(const QTextBlock &block)
{
    const QTextBlockFormat format = block.blockFormat();
    RtfParagraph paragraph;
    paragraph.left = twipsOfPixels(format.leftMargin());
    paragraph.right = twipsOfPixels(format.rightMargin());
    paragraph.first = twipsOfPixels(format.textIndent());
    paragraph.before = twipsOfPixels(format.topMargin());
    paragraph.after = twipsOfPixels(format.bottomMargin());
    paragraph.alignment = alignmentOf(format);
    paragraph.bullet = block.textList() != nullptr;
    if (paragraph.bullet) paragraph.first = -format.intProperty(BulletHangProperty);
    paragraph.tabs = tabsOf(format, paragraph);
    return normalParagraph(paragraph);
}

QTextCharFormat toCharFormat(const RtfCharacters &characters)
{
    QTextCharFormat format;
    if (!characters.family.isEmpty()) format.setFontFamilies({characters.family});
    format.setFontPointSize(characters.size / 2.0);
    format.setFontWeight(characters.bold ? QFont::Bold : QFont::Normal);
    format.setFontItalic(characters.italic);
    format.setFontUnderline(characters.underline);
    if (characters.colour) format.setForeground(QColor(characters.colour));
    if (characters.script == RtfCharacters::SuperScript) format.setVerticalAlignment(QTextCharFormat::AlignSuperScript);
    if (characters.script == RtfCharacters::SubScript) format.setVerticalAlignment(QTextCharFormat::AlignSubScript);
    if (characters.raise) {
        format.setProperty(RaiseProperty, characters.raise);
        format.setBaselineOffset(100 * characters.raise / (characters.size * FontHeight));
    }
    return format;
}

RtfCharacters charactersOf(const QTextCharFormat &format, const RtfCharacters &defaults)
{
    RtfCharacters characters = defaults;
    const QStringList families = format.fontFamilies().toStringList();
    if (!families.isEmpty()) characters.family = families.first();
    characters.size = sizeOf(format, defaults.size);
    if (format.hasProperty(QTextFormat::FontWeight)) characters.bold = format.fontWeight() >= QFont::DemiBold;
    if (format.hasProperty(QTextFormat::FontItalic)) characters.italic = format.fontItalic();
    if (format.hasProperty(QTextFormat::TextUnderlineStyle))
        characters.underline = format.underlineStyle() != QTextCharFormat::NoUnderline;
    if (format.foreground().style() == Qt::SolidPattern) characters.colour = format.foreground().color().rgb();
    if (format.verticalAlignment() == QTextCharFormat::AlignSuperScript) characters.script = RtfCharacters::SuperScript;
    if (format.verticalAlignment() == QTextCharFormat::AlignSubScript) characters.script = RtfCharacters::SubScript;
    characters.raise = format.intProperty(RaiseProperty);
    return characters;
}

RtfCharacters charactersOf(const QFont &font)
{
    RtfCharacters characters;
    QTextCharFormat format;
    if (font.pointSizeF() > 0)
        format.setFontPointSize(font.pointSizeF());
    else if (font.pixelSize() > 0)
        format.setProperty(QTextFormat::FontPixelSize, font.pixelSize());
    characters.family = font.families().value(0);
    characters.size = sizeOf(format, characters.size);
    characters.bold = font.bold();
    characters.italic = font.italic();
    characters.underline = font.underline();
    return characters;
}

size_t qHash(const RtfCharacters &characters, size_t seed) noexcept
{
    const int flags = characters.bold + 2 * characters.italic + 4 * characters.underline + 8 * characters.script;
    return qHashMulti(seed, characters.size, characters.raise, characters.colour, flags, characters.family);
}

} // namespace orvane
