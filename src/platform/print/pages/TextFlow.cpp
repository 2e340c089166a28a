#include "platform/print/pages/TextFlow.h"

#include <algorithm>

namespace orvane
{

namespace
{
constexpr int Together = 2; // lines of a paragraph that are not parted at its beginning and at its end

double heightOf(const Paragraph &paragraph, int firstLine, int count)
{
    double height = 0;
    for (int line = firstLine; line < firstLine + count; ++line)
        height += paragraph.height(line);
    return height;
}

// The lines with which a paragraph begins on a page: all where the rest would be a single line.
int openingLines(const Paragraph &paragraph)
{
    return paragraph.lines() <= Together + 1 ? paragraph.lines() : Together;
}
} // namespace

TextFlow::TextFlow(Recording &recording, Paragraphs paragraphs)
    : m_recording(recording), m_paragraphs(std::move(paragraphs))
{
}

void TextFlow::run()
{
    if (!m_recording.bringUpPage()) return;
    m_body = m_recording.setup().body();
    for (size_t index = 0; index < m_paragraphs.size(); ++index)
        set(index);
}

void TextFlow::set(size_t index)
{
    const auto &paragraph = m_paragraphs[index];
    if (paragraph->startsPage() && !atTop()) nextPage();
    const bool fits = spaceAbove(*paragraph) + heightWithFollowers(index) <= room();
    if (!fits && paragraph->isBlank() && !atTop()) return;
    if (!fits && !atTop()) nextPage();
    m_recording.place.ry() += spaceAbove(*paragraph);
    setLines(paragraph);
    m_spaceAfter = paragraph->spaceAfter();
}

double TextFlow::spaceAbove(const Paragraph &paragraph) const
{
    return atTop() ? 0 : std::max(m_spaceAfter, paragraph.spaceBefore());
}

// What has to be on one page from here on. Headings that fill a page by themselves are not kept together.
double TextFlow::heightWithFollowers(size_t index) const
{
    const Paragraph &first = *m_paragraphs[index];
    const double alone = heightOf(first, 0, openingLines(first));
    if (!first.isHeading()) return alone;
    double height = first.height();
    while (++index < m_paragraphs.size() && height <= m_body.height()) {
        const Paragraph &next = *m_paragraphs[index];
        if (next.startsPage()) return height;
        height += std::max(m_paragraphs[index - 1]->spaceAfter(), next.spaceBefore());
        if (!next.isHeading() && !next.isBlank()) {
            height += heightOf(next, 0, openingLines(next));
            return height <= m_body.height() ? height : alone;
        }
        height += next.height();
    }
    return alone;
}

void TextFlow::setLines(const std::shared_ptr<const Paragraph> &paragraph)
{
    for (int line = 0; line < paragraph->lines();) {
        const int count = linesThatFit(*paragraph, line);
        putLines(paragraph, line, count);
        line += count;
        if (line < paragraph->lines()) nextPage();
    }
}

// At the top of a page at least one, even if it is taller than the page.
int TextFlow::linesThatFit(const Paragraph &paragraph, int firstLine) const
{
    const int left = paragraph.lines() - firstLine;
    int count = 0;
    for (double height = 0; count < left; ++count) {
        height += paragraph.height(firstLine + count);
        if (height > room()) break;
    }
    if (count == left) return count;
    return std::max(std::min(count, left - Together), 1);
}

void TextFlow::putLines(const std::shared_ptr<const Paragraph> &paragraph, int firstLine, int count)
{
    m_recording.put(PlacedLines{paragraph, firstLine, count, {m_body.left(), m_recording.place.y()}});
    m_recording.place.ry() += heightOf(*paragraph, firstLine, count);
}

void TextFlow::nextPage()
{
    m_recording.newPage();
    m_body = m_recording.setup().body();
}

} // namespace orvane
