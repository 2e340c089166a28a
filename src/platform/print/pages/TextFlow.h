// Sets paragraphs one below the other, from page to page. No line is cut, no single line of a paragraph is left behind
// or goes ahead alone, a heading stays with the text behind it, and blank lines don't open a page.
#pragma once

#include "platform/print/pages/Paragraph.h"
#include "platform/print/pages/Recording.h"

namespace orvane
{

class TextFlow
{
public:
    using Paragraphs = std::vector<std::shared_ptr<const Paragraph>>;

    TextFlow(Recording &recording, Paragraphs paragraphs);

    // From the recording's place down; leaves the place below the last line.
    void run();

private:
    void set(size_t index);
    void setLines(const std::shared_ptr<const Paragraph> &paragraph);
    void putLines(const std::shared_ptr<const Paragraph> &paragraph, int firstLine, int count);
    double spaceAbove(const Paragraph &paragraph) const;
    double heightWithFollowers(size_t index) const;
    int linesThatFit(const Paragraph &paragraph, int firstLine) const;
    bool atTop() const { return m_recording.place.y() <= m_body.top(); }
    double room() const { return m_body.bottom() - m_recording.place.y(); }
    void nextPage();

    Recording &m_recording;
    Paragraphs m_paragraphs;
    QRectF m_body;
    double m_spaceAfter = 0; // of the paragraph above
};

} // namespace orvane
