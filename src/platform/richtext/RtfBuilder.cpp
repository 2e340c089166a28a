#include "RtfBuilder.h"

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

// The toolkit never comes back from laying out what is taller than 8,388,607 pixels.
constexpr double TallestDocument = 6000000;

double lineHeight(const RtfCharacters &characters)
{
    return characters.size * 0.8;
}

// A column of about 100 pixels.
double charactersInLine(const RtfCharacters &characters)
{
    return std::max(1.0, 300.0 / characters.size);
}

double heightOf(QStringView text, const RtfCharacters &characters)
{
    const qsizetype breaks = text.count(QChar::LineSeparator) + text.count(u'\t');
    return lineHeight(characters) * (double(breaks) + double(text.size()) / charactersInLine(characters));
}

} // namespace

void RtfBuilder::addText(QStringView text, const RtfCharacters &characters)
{
    m_runs.add(text, characters);
    m_height += heightOf(text, characters);
}

bool RtfBuilder::isFull() const
{
    return m_height > TallestDocument;
}

void RtfBuilder::endParagraph(const RtfParagraph &paragraph, const RtfCharacters &mark)
{
    if (m_first) applyDefaultTab();
    insertBlock(blockFormat(paragraph), charFormat(mark));
    joinList();
    insertRuns();
    m_runs.clear();
    m_height += lineHeight(mark) + pixelsOfTwips(std::abs(paragraph.before) + std::abs(paragraph.after));
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
        m_cursor.insertText(m_runs.text().sliced(start, run.end - start), charFormat(run.characters));
        start = run.end;
    }
}

QTextBlockFormat RtfBuilder::blockFormat(const RtfParagraph &paragraph)
{
    if (m_first || !(paragraph == m_lastParagraph)) {
        const RtfParagraph normal = normalParagraph(paragraph);
        m_lastParagraph = paragraph;
        m_lastFormat = toBlockFormat(normal);
        m_bullet = normal.bullet;
    }
    QTextBlockFormat format = m_lastFormat;
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

QTextCharFormat RtfBuilder::charFormat(const RtfCharacters &characters)
{
    auto found = m_charFormats.constFind(characters);
    if (found != m_charFormats.cend())
        m_lastLook = *found;
    else if (m_charFormats.size() < MostLooks)
        m_lastLook = *m_charFormats.insert(characters, toCharFormat(characters));
    return m_lastLook;
}

} // namespace orvane
