#include "platform/richtext/RtfWriter.h"

#include <QTextDocument>
#include <array>

namespace orvane
{

using namespace Qt::Literals::StringLiterals;

namespace
{

// For programs that know no bullets but those of a list in this table.
constexpr QLatin1StringView
    BulletList("{\\*\\listtable{\\list{\\listlevel\\levelnfc23{\\leveltext\\'01\\'95;}{\\levelnumbers;}}\\listid1}}"
               "{\\*\\listoverridetable{\\listoverride\\listid1\\ls1}}");

QString code(QLatin1StringView word, int value)
{
    return word + QString::number(value);
}

// "\b" and "\b0".
QString toggle(QLatin1StringView word, bool from, bool to)
{
    if (from == to) return {};
    return to ? QString(word) : word + u'0';
}

QString raiseCode(int halfPoints)
{
    return halfPoints < 0 ? code("\\dn"_L1, -halfPoints) : code("\\up"_L1, halfPoints);
}

QString scriptCode(RtfCharacters::Script script)
{
    constexpr std::array words{"\\nosupersub"_L1, "\\super"_L1, "\\sub"_L1};
    return words[script];
}

QString alignmentCode(Qt::Alignment alignment)
{
    if (alignment == Qt::AlignRight) return u"\\qr"_s;
    if (alignment == Qt::AlignHCenter) return u"\\qc"_s;
    return alignment == Qt::AlignJustify ? u"\\qj"_s : u"\\ql"_s;
}

QString tabCodes(const QList<RtfTab> &tabs)
{
    QString codes;
    for (const RtfTab &tab : tabs) {
        if (tab.type == QTextOption::RightTab) codes += "\\tqr"_L1;
        if (tab.type == QTextOption::CenterTab) codes += "\\tqc"_L1;
        if (tab.type == QTextOption::DelimiterTab) codes += "\\tqdec"_L1;
        codes += code("\\tx"_L1, tab.position);
    }
    return codes;
}

// Codes that turn one paragraph into another, as far as codes can without a reset: they add tabs and bullets only.
QString paragraphCodes(const RtfParagraph &from, const RtfParagraph &to)
{
    QString codes;
    if (from.alignment != to.alignment) codes += alignmentCode(to.alignment);
    if (from.left != to.left) codes += code("\\li"_L1, to.left);
    if (from.right != to.right) codes += code("\\ri"_L1, to.right);
    if (from.first != to.first) codes += code("\\fi"_L1, to.first);
    if (from.before != to.before) codes += code("\\sb"_L1, to.before);
    if (from.after != to.after) codes += code("\\sa"_L1, to.after);
    if (from.tabs != to.tabs) codes += tabCodes(to.tabs);
    if (from.bullet != to.bullet) codes += "{\\*\\pn\\pnlvlblt}\\ls1"_L1;
    return codes;
}

bool needsReset(const RtfParagraph &from, const RtfParagraph &to)
{
    return (from.bullet && !to.bullet) || (!from.tabs.isEmpty() && from.tabs != to.tabs);
}

} // namespace

QString RtfWriter::write(const QTextDocument &document)
{
    m_defaults = charactersOf(document.defaultFont());
    const QTextBlock first = document.begin();
    const auto firstFragment = first.begin();
    const QTextCharFormat opening = firstFragment.atEnd() ? first.charFormat() : firstFragment.fragment().charFormat();
    m_characters.family = charactersOf(opening, m_defaults).family;
    fontNumber(m_characters.family);
    for (QTextBlock block = first; block.isValid(); block = block.next())
        writeBlock(block);
    return header(document.defaultTextOption().tabStopDistance()) + m_body.text() + u'}';
}

QString RtfWriter::header(double defaultTab) const
{
    QString text = u"{\\rtf1\\ansi\\ansicpg1252"_s;
    const int tab = twipsOfPixels(defaultTab);
    if (tab != DefaultTabTwips) text += code("\\deftab"_L1, tab);
    const RtfOutput fonts = fontTable();
    if (fonts.hasUnicode() || m_body.hasUnicode()) text += "\\uc0"_L1;
    text += fonts.text();
    if (m_bullets) text += BulletList;
    if (m_colours.isEmpty()) return text;
    text += "{\\colortbl;"_L1;
    for (const QRgb colour : m_colours)
        text += code("\\red"_L1, qRed(colour)) + code("\\green"_L1, qGreen(colour)) + code("\\blue"_L1, qBlue(colour)) +
                u';';
    return text + u'}';
}

RtfOutput RtfWriter::fontTable() const
{
    RtfOutput table;
    table.addCodes(u"{\\fonttbl"_s);
    for (qsizetype i = 0; i < m_families.size(); ++i) {
        table.addCodes(u'{' + code("\\f"_L1, int(i)));
        table.addText(QString(m_families[i]).remove(u';'));
        table.addCodes(u";}"_s);
    }
    table.addCodes(u"}"_s);
    return table;
}

void RtfWriter::writeBlock(const QTextBlock &block)
{
    if (block.blockFormat().pageBreakPolicy() & QTextFormat::PageBreak_AlwaysBefore) m_body.addCodes(u"\\page"_s);
    writeParagraph(paragraphOf(block));
    for (auto at = block.begin(); !at.atEnd(); ++at) {
        writeCharacters(charactersOf(at.fragment().charFormat(), m_defaults));
        writeText(at.fragment().text());
    }
    writeCharacters(charactersOf(block.charFormat(), m_defaults));
    // The last paragraph ends with the document; but where it is empty, that would end the one before.
    const bool last = !block.next().isValid();
    const bool needsMark = !last || (block.length() == 1 && block.position() > 0);
    if (needsMark) m_body.addCodes(u"\\par"_s);
}

void RtfWriter::writeText(const QString &text)
{
    // Blanks right behind the header are no text.
    if (m_body.text().isEmpty() && text.startsWith(u' ')) m_body.addCodes(u"\\pard"_s);
    m_body.addText(text);
}

void RtfWriter::writeParagraph(const RtfParagraph &wanted)
{
    m_bullets = m_bullets || wanted.bullet;
    const QString reset = "\\pard"_L1 + paragraphCodes({}, wanted);
    const QString changed = paragraphCodes(m_paragraph, wanted);
    if (!(wanted == m_paragraph))
        m_body.addCodes(needsReset(m_paragraph, wanted) || reset.size() < changed.size() ? reset : changed);
    m_paragraph = wanted;
}

// Without a reset, which some programs take for more than the characters behind it.
void RtfWriter::writeCharacters(const RtfCharacters &wanted)
{
    m_body.addCodes(characterCodes(m_characters, wanted));
    m_characters = wanted;
}

QString RtfWriter::characterCodes(const RtfCharacters &from, const RtfCharacters &to)
{
    QString codes;
    if (from.family != to.family) codes += code("\\f"_L1, fontNumber(to.family));
    if (from.size != to.size) codes += code("\\fs"_L1, to.size);
    if (from.colour != to.colour) codes += code("\\cf"_L1, colourNumber(to.colour));
    codes += toggle("\\b"_L1, from.bold, to.bold);
    codes += toggle("\\i"_L1, from.italic, to.italic);
    codes += toggle("\\ul"_L1, from.underline, to.underline);
    if (from.raise != to.raise) codes += raiseCode(to.raise);
    if (from.script != to.script) codes += scriptCode(to.script);
    return codes;
}

int RtfWriter::fontNumber(const QString &family)
{
    if (!m_families.contains(family)) m_families.append(family);
    return int(m_families.indexOf(family));
}

int RtfWriter::colourNumber(QRgb colour)
{
    if (colour == 0) return 0;
    if (!m_colours.contains(colour)) m_colours.append(colour);
    return int(m_colours.indexOf(colour)) + 1;
}

} // namespace orvane
