#include "RtfBuilder.h"

#include <QTextDocument>
#include <QTextList>
#include <algorithm>

namespace orvane
{

namespace
{

// The toolkit's time for a stretch without a blank grows with the square of its length: behind so many characters a
// line ends. No word of any language is as long.
constexpr int LongestStretch = 1024;
// Each look costs a font. Text behind so many takes the look of the text before.
constexpr qsizetype MostLooks = 4096;
// The time for a list grows with the square of the items. A bullet looks the same in any list.
constexpr int MostListItems = 64;

bool isBreak(QChar c)
{
    return c == u' ' || c == u'\t' || c == QChar::LineSeparator;
}

} // namespace

void RtfBuilder::addText(QStringView text, const RtfCharacters &characters)
{
    if (m_runs.empty() || !(m_runs.back().characters == characters)) m_runs.push_back({m_text.size(), characters});
    while (true) {
        const qsizetype fitting = takeStretch(text);
        m_text.append(text.left(fitting));
        text = text.sliced(fitting);
        if (text.isEmpty()) break;
        m_text.append(QChar::LineSeparator);
    }
    m_runs.back().end = m_text.size();
}

// How much of the text fits before a line has to end. Surrogates stay together.
qsizetype RtfBuilder::takeStretch(QStringView text)
{
    for (qsizetype i = 0; i < text.size(); ++i) {
        const bool fits = m_stretch < LongestStretch || (m_stretch == LongestStretch && text[i].isLowSurrogate());
        m_stretch = isBreak(text[i]) || !fits ? 0 : m_stretch + 1;
        if (!fits && !isBreak(text[i])) return i;
    }
    return text.size();
}

void RtfBuilder::endParagraph(const RtfParagraph &paragraph, const RtfCharacters &mark)
{
    if (m_first) applyDefaultTab();
    insertBlock(blockFormat(paragraph), charFormat(mark));
    joinList();
    insertRuns();
    m_text.clear();
    m_runs.clear();
    m_stretch = 0;
    m_pageBreak = false;
    m_first = false;
}

void RtfBuilder::breakPage(const RtfParagraph &paragraph, const RtfCharacters &mark)
{
    if (!m_text.isEmpty()) endParagraph(paragraph, mark);
    m_pageBreak = true;
}

void RtfBuilder::finish(const RtfParagraph &paragraph, const RtfCharacters &mark)
{
    if (m_first || !m_text.isEmpty()) endParagraph(paragraph, mark);
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
    for (const Run &run : m_runs) {
        m_cursor.insertText(m_text.sliced(start, run.end - start), charFormat(run.characters));
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
