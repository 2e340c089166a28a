#include "platform/richtext/RtfRuns.h"

namespace orvane
{

namespace
{

// The toolkit's time for a stretch without a blank grows with the square of its length: behind so many characters a
// line ends. No word of any language is as long.
constexpr int LongestStretch = 1024;
// So does its time for the tabs of a paragraph. Those behind so many are blanks.
constexpr qsizetype MostTabsInText = 256;

bool isBreak(QChar c)
{
    return c == u' ' || c == u'\t' || c == QChar::LineSeparator;
}

} // namespace

void RtfRuns::add(QStringView text, const RtfCharacters &characters)
{
    if (m_runs.empty() || !(m_runs.back().characters == characters)) m_runs.push_back({m_text.size(), characters});
    const qsizetype start = m_text.size();
    for (qsizetype fits = takeStretch(text); fits < text.size(); fits = takeStretch(text)) {
        m_text.append(text.left(fits)).append(QChar::LineSeparator);
        text = text.sliced(fits);
    }
    m_text.append(text);
    limitTabs(start);
    m_runs.back().end = m_text.size();
}

void RtfRuns::limitTabs(qsizetype start)
{
    for (qsizetype tab = m_text.indexOf(u'\t', start); tab >= 0; tab = m_text.indexOf(u'\t', tab + 1))
        if (++m_tabs > MostTabsInText) m_text[tab] = u' ';
}

void RtfRuns::truncate(qsizetype length)
{
    m_text.truncate(length);
    while (!m_runs.empty() && (m_runs.size() == 1 ? 0 : m_runs[m_runs.size() - 2].end) >= length)
        m_runs.pop_back();
    if (!m_runs.empty()) m_runs.back().end = length;
}

void RtfRuns::clear()
{
    m_text.clear();
    m_runs.clear();
    m_stretch = 0;
    m_tabs = 0;
}

// How much of the text fits before a line has to end. Surrogates stay together.
qsizetype RtfRuns::takeStretch(QStringView text)
{
    for (qsizetype i = 0; i < text.size(); ++i) {
        const bool last = m_stretch > LongestStretch || (m_stretch == LongestStretch && !text[i].isLowSurrogate());
        m_stretch = isBreak(text[i]) || last ? 0 : m_stretch + 1;
        if (last && !isBreak(text[i])) return i;
    }
    return text.size();
}

} // namespace orvane
