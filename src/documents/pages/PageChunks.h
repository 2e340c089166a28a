// The pieces that every rich-text page is joined from. A run is never closed: the next \plain replaces it. Sizes are
// half points; font 1 gives the bullet glyph, font 2 all text. A chunk carries the blank that ends its last control
// word when text may follow.
#pragma once

#include <QString>
#include <initializer_list>

namespace orvane::pages
{

// The frame of a page. The longer introductions have a Blank behind Header, ColourTable and Closing.
inline constexpr QStringView Header = uR"({\rtf1\ansi\ansicpg1252\deff0\deftab720{\fonttbl{\f0\fswiss MS Sans Serif;})"
                                      uR"({\f1\froman\fcharset2 Symbol;}{\f2\froman\fprq2 Times New Roman;}})";
inline constexpr QStringView ColourTable = uR"({\colortbl\red0\green0\blue0;})";
inline constexpr QStringView FirstParagraph = uR"(\deflang1033\pard)";
inline constexpr QStringView Closing = uR"(\par })";
inline constexpr QStringView Blank = u" ";

// The frame of the two short documents that announce a view.
inline constexpr QStringView RedHeader =
    uR"({\rtf1\ansi\deff0\deftab720{\fonttbl{\f0\fswiss MS Sans Serif;}{\f1\froman\fcharset2 Symbol;})"
    uR"({\f2\froman\fprq2 Times New Roman;}{\f3\froman Times New Roman;}})";
inline constexpr QStringView RedColourTable = uR"({\colortbl\red0\green0\blue0;\red255\green0\blue0;})";
inline constexpr QStringView RedFirstParagraph = uR"(\deflang2057\pard\plain\f2\fs18\b )";
inline constexpr QStringView RedTail = uR"(\plain\lang1033\f3\fs20)";

// Paragraphs. With no text behind it, a BodyParagraph or LeftParagraph is a blank line.
inline constexpr QStringView ParagraphBreak = uR"(\par )";
inline constexpr QStringView BodyParagraph = uR"(\par \plain\f2\fs24 )";
inline constexpr QStringView BoldParagraph = uR"(\par \plain\f2\fs24\b )";
inline constexpr QStringView LeftParagraph = uR"(\par \pard\plain\f2\fs24 )"; // back to the margin; ends a list
inline constexpr QStringView IndentedParagraph = uR"(\par \pard\li720\plain\f2\fs24 )";

// Empty paragraphs, ended by the \par that follows. A LeftEmptyParagraph ends a list, and so do the two behind it.
inline constexpr QStringView EmptyParagraph = uR"(\par)";
inline constexpr QStringView BodyEmptyParagraph = uR"(\par \plain\f2\fs24)"; // opens most bodies under their title
inline constexpr QStringView BoldEmptyParagraph = uR"(\par \plain\f2\fs24\b)";
inline constexpr QStringView LeftEmptyParagraph = uR"(\par \pard\plain\f2\fs24)";
inline constexpr QStringView LeftBoldEmptyParagraph = uR"(\par \pard\plain\f2\fs24\b)";    // a bold line follows
inline constexpr QStringView TabResettingParagraph = uR"(\par \pard\tx360\plain\f2\fs24)"; // text needs its own blank

// Lists. LeadingBullet opens a page, FirstBullet a list within one, FirstNarrowBullet one that hangs by 283 twips.
inline constexpr QStringView LeadingBullet =
    uR"(\deflang1033\pard\li360\fi-360\tx360{\*\pn\pnlvlblt\pnf1\pnindent360{\pntxtb\'b7}})"
    uR"(\plain\f2\fs24 {\pntext\f1\'b7\tab})";
inline constexpr QStringView FirstBullet =
    uR"(\par \pard\li360\fi-360\tx360{\*\pn\pnlvlblt\pnf1\pnindent360{\pntxtb\'b7}})"
    uR"(\plain\f2\fs24 {\pntext\f1\'b7\tab})";
inline constexpr QStringView FirstBulletNoTab =
    uR"(\par \pard\li360\fi-360{\*\pn\pnlvlblt\pnf1\pnindent360{\pntxtb\'b7}})"
    uR"(\plain\f2\fs24 {\pntext\f1\'b7\tab})";
inline constexpr QStringView FirstNarrowBullet =
    uR"(\par \pard\li283\fi-283{\*\pn\pnlvlblt\pnf1\pnindent283{\pntxtb\'b7}})"
    uR"(\plain\f2\fs24 {\pntext\f1\'b7\tab})";
inline constexpr QStringView NextBullet = uR"(\par {\pntext\f1\'b7\tab})";
inline constexpr QStringView NextBoldBullet = uR"(\par \plain\f2\fs24\b {\pntext\f1\'b7\tab})";

// Runs.
inline constexpr QStringView BodyRun = uR"(\plain\f2\fs24 )";
inline constexpr QStringView BoldOn = uR"(\plain\f2\fs24\b )";
inline constexpr QStringView LargeBold = uR"(\plain\f2\fs26\b )";
inline constexpr QStringView SubHeading = uR"(\plain\f2\fs28\b )";
inline constexpr QStringView UnderlinedHeading = uR"(\plain\f2\fs28\b\ul )";
inline constexpr QStringView PageTitle = uR"(\deflang1033\pard\plain\f2\fs28\b )"; // in all modules but the guide
inline constexpr QStringView TitleRun = uR"(\plain\f2\fs32\b )";
inline constexpr QStringView ProductWord = uR"(\plain\f2\fs26\b orvane)"; // as it stands in body text

// Between two sections of a printed document: a blank line at the margin, and the paragraph of the next section.
inline constexpr QStringView SectionBreak = uR"(\par \pard\plain\f2\fs24 \par )";

// The chunks one behind the other, in one allocation.
QString join(std::initializer_list<QStringView> chunks);

// The frame without blanks round a body that opens its own first paragraph.
QString page(QStringView body);

} // namespace orvane::pages
