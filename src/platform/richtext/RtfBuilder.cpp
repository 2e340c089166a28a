#include "platform/richtext/RtfBuilder.h"

#include <QTextDocument>
#include <QTextList>
#include <algorithm>
#include <cstdlib>

namespace orvane
{

namespace
{

// Each look costs a font. Text behind so many takes the look of the text before.
constexpr qsizetype MostLooks = 4096;
// The time for a list grows with the square of the items. A bullet looks the same in any list.
constexpr int MostListItems = 64;

// Heights count in thousandths, since sums have to come out the same however the text is cut.
constexpr qsizetype PieceLength = 1024;

qint64 lineHeight(const RtfCharacters &characters)
{
    return qint64(800) * characters.size;
}

// In a column of about 100 pixels.
qint64 heightOf(QStringView text, const RtfCharacters &characters)
{
    const qint64 charactersInLine = std::max(1, 300 / characters.size);
    const qsizetype breaks = text.count(QChar::LineSeparator) + text.count(u'\t');
    return lineHeight(characters) * breaks + lineHeight(characters) / charactersInLine * text.size();
}

qint64 heightOf(const QTextBlock &block, const RtfCharacters &defaults)
{
    const QTextBlockFormat format = block.blockFormat();
    qint64 height = lineHeight(charactersOf(block.charFormat(), defaults)) +
                    qint64(1000 * (format.topMargin() + format.bottomMargin()));
    for (auto at = block.begin(); !at.atEnd(); ++at)
        height += heightOf(at.fragment().text(), charactersOf(at.fragment().charFormat(), defaults));
    return height;
}

} // namespace

qint64 heightOf(const QTextDocument &document)
{
    const RtfCharacters defaults = charactersOf(document.defaultFont());
    qint64 height = 0;
    for (QTextBlock block = document.begin(); block.isValid(); block = block.next())
        height += heightOf(block, defaults);
    return height;
}

void RtfBuilder::addText(QStringView text, const RtfCharacters &characters)
{
    const RtfCharacters &look = admitted(characters);
    while (!m_full && !text.isEmpty()) {
        const qsizetype start = m_runs.text().size();
        m_runs.add(text.left(PieceLength), look);
        const qint64 height = m_height + heightOf(QStringView(m_runs.text()).sliced(start), look);
        m_full = height > TallestDocument;
        if (m_full) return m_runs.truncate(start);
        m_height = height;
        text = text.sliced(std::min(PieceLength, text.size()));
    }
}

void RtfBuilder::endParagraph(const RtfParagraph &paragraph, const RtfCharacters &mark)
{
    const RtfCharacters &look = admitted(mark);
    if (m_first) applyDefaultTab();
    insertBlock(blockFormat(paragraph), m_charFormats.value(look));
    joinList();
    insertRuns();
    m_runs.clear();
    m_height += lineHeight(look) + qint64(1000 * (m_format.topMargin() + m_format.bottomMargin()));
    m_full = m_full || m_height > TallestDocument;
    m_pageBreak = false;
    m_first = false;
}

void RtfBuilder::breakPage(const RtfParagraph &paragraph, const RtfCharacters &mark)
{
    if (!m_runs.text().isEmpty()) endParagraph(paragraph, mark);
    m_pageBreak = true;
}

void RtfBuilder::finish(const RtfParagraph &paragraph, const RtfCharacters &mark)
{
    if (m_first || !m_runs.text().isEmpty()) endParagraph(paragraph, mark);
}

// While the document is empty: each change of the option lays out again.
void RtfBuilder::applyDefaultTab()
{
    QTextDocument *document = m_cursor.document();
    QTextOption option = document->defaultTextOption();
    const double distance = pixelsOfTwips(std::clamp(m_defaultTab, SmallestTabTwips, LargestLengthTwips));
    if (option.tabStopDistance() == distance) return;
    option.setTabStopDistance(distance);
    document->setDefaultTextOption(option);
}

void RtfBuilder::insertBlock(const QTextBlockFormat &format, const QTextCharFormat &mark)
{
    if (!m_first) return m_cursor.insertBlock(format, mark);
    m_cursor.setBlockFormat(format);
    m_cursor.setBlockCharFormat(mark);
}

void RtfBuilder::insertRuns()
{
    qsizetype start = 0;
    for (const RtfRuns::Run &run : m_runs.runs()) {
        m_cursor.insertText(m_runs.text().sliced(start, run.end - start), m_charFormats.value(run.characters));
        start = run.end;
    }
}

QTextBlockFormat RtfBuilder::blockFormat(const RtfParagraph &paragraph)
{
    if (m_first || !(paragraph == m_paragraph)) {
        const RtfParagraph normal = normalParagraph(paragraph);
        m_paragraph = paragraph;
        m_format = toBlockFormat(normal);
        m_bullet = normal.bullet;
    }
    QTextBlockFormat format = m_format;
    if (m_pageBreak) format.setPageBreakPolicy(QTextFormat::PageBreak_AlwaysBefore);
    return format;
}

void RtfBuilder::joinList()
{
    if (!m_bullet) {
        m_list = nullptr;
    } else if (m_list && m_list->count() < MostListItems) {
        m_list->add(m_cursor.block());
    } else {
        QTextListFormat format;
        format.setStyle(QTextListFormat::ListDisc);
        format.setIndent(0);
        m_list = m_cursor.createList(format);
    }
}

const RtfCharacters &RtfBuilder::admitted(const RtfCharacters &characters)
{
    if (!m_charFormats.isEmpty() && characters == m_look) return m_look;
    const bool known = m_charFormats.contains(characters);
    if (known || m_charFormats.size() < MostLooks) m_look = characters;
    if (!known) m_charFormats.insert(m_look, toCharFormat(m_look));
    return m_look;
}

} // namespace orvane
