// Puts paragraphs into a document: gathers the runs of one, then inserts them with formats that are made once.
#pragma once

#include "platform/richtext/RtfRuns.h"
#include <QHash>
#include <QTextCursor>

class QTextList;

namespace orvane
{

// Heights count in thousandths of a pixel, as tall as a text gets in a narrow view. The toolkit never comes back from
// laying out what is taller than 8,388,607 pixels. What is read ends at the first of these, and nothing may grow by a
// paste beyond the second.
inline constexpr qint64 TallestDocument = 6'000'000'000;
inline constexpr qint64 TallestWithPastes = 7'500'000'000;
qint64 heightOf(const QTextDocument &document);

class RtfBuilder
{
public:
    // The document must be empty, and inside an edit block for as long as the builder lives.
    explicit RtfBuilder(QTextDocument &document) : m_cursor(&document) {}

    void setDefaultTab(int twips) { m_defaultTab = twips; }
    void addText(QStringView text, const RtfCharacters &characters);
    // The document is as tall as can be laid out: no more is to be added.
    bool isFull() const { return m_full; }

    // The mark's characters are the format of an empty paragraph and of a bullet.
    void endParagraph(const RtfParagraph &paragraph, const RtfCharacters &mark);
    // The paragraph begun next starts a page; text before ends its paragraph.
    void breakPage(const RtfParagraph &paragraph, const RtfCharacters &mark);
    // The end of the document: ends a paragraph that has text, or an empty document's only one.
    void finish(const RtfParagraph &paragraph, const RtfCharacters &mark);

private:
    void applyDefaultTab();
    void insertBlock(const QTextBlockFormat &format, const QTextCharFormat &mark);
    void insertRuns();
    QTextBlockFormat blockFormat(const RtfParagraph &paragraph);
    void joinList();
    const RtfCharacters &admitted(const RtfCharacters &characters);

    QTextCursor m_cursor;
    int m_defaultTab = DefaultTabTwips;
    RtfRuns m_runs;
    qint64 m_height = 0; // as tall as the document gets in a narrow view
    bool m_full = false;
    QHash<RtfCharacters, QTextCharFormat> m_charFormats;
    RtfCharacters m_look; // of the text or mark before
    RtfParagraph m_paragraph;
    QTextBlockFormat m_format;
    QTextList *m_list = nullptr;
    bool m_bullet = false;
    bool m_first = true;
    bool m_pageBreak = false;
};

} // namespace orvane
