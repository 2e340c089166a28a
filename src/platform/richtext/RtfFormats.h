// The formatting that a document keeps, in RTF's own units, and its way into the toolkit's formats and back.
//
// Lengths are twips, sizes half points. For a normal paragraph and any characters the way back gives the same again.
#pragma once

#include <QList>
#include <QRgb>
#include <QString>
#include <QTextBlock>
#include <QTextBlockFormat>
#include <QTextCharFormat>
#include <QTextOption>

class QFont;

namespace orvane
{

struct RtfCharacters {
    enum Script { NormalScript, SuperScript, SubScript };

    int size = 24;
    int raise = 0;   // half points above the line, negative below
    QRgb colour = 0; // 0: the view's own text colour
    Script script = NormalScript;
    bool bold = false;
    bool italic = false;
    bool underline = false;
    QString family; // empty: the document's default font

    bool operator==(const RtfCharacters &) const = default;
};

struct RtfTab {
    int position = 0; // from the left margin of the page
    QTextOption::TabType type = QTextOption::LeftTab;

    bool operator==(const RtfTab &) const = default;
};

struct RtfParagraph {
    int left = 0;
    int right = 0;
    int first = 0; // of the first line (of the bullet, in a bulleted paragraph), from left
    int before = 0;
    int after = 0;
    Qt::Alignment alignment = Qt::AlignLeft;
    bool bullet = false;
    int bulletIndent = 0;  // least distance from the bullet to the text; part of first in a normal paragraph
    bool numbered = false; // the numbers are in the text
    QList<RtfTab> tabs;

    bool operator==(const RtfParagraph &) const = default;
};

inline constexpr int DefaultTabTwips = 720;
inline constexpr int SmallestTabTwips = 15;
inline constexpr int LargestLengthTwips = 31680; // 22 inches
inline constexpr int LargestIndentTwips = 7200;  // leaves room for text on a page and in most windows
inline constexpr int SmallestHalfPoints = 2;
inline constexpr int LargestHalfPoints = 800;
inline constexpr int MostTabs = 64;

double pixelsOfTwips(int twips);
int twipsOfPixels(double pixels);

// Lengths that can be laid out: nothing begins left of the page, and a bullet has room before its text.
RtfParagraph normalParagraph(RtfParagraph paragraph);

QTextBlockFormat toBlockFormat(const RtfParagraph &normal);
RtfParagraph paragraphOf(const QTextBlock &block);

// Leaves nothing but the colour to the document's default font and the view.
QTextCharFormat toCharFormat(const RtfCharacters &characters);
// What the format leaves open is the default font's.
RtfCharacters charactersOf(const QTextCharFormat &format, const RtfCharacters &defaults);
RtfCharacters charactersOf(const QFont &font);

size_t qHash(const RtfCharacters &characters, size_t seed = 0) noexcept;

} // namespace orvane
