// Rich text: reads RTF into a QTextDocument and writes it back.
//
// What is kept: family, size, colour, bold, italic, underline and raised text; indents, spacing, alignment, tab stops
// and bullets; tabs, line and page breaks. Everything else gives its text, or nothing where it is no text.
//
// Positions: every character of the document is one character of its plain text, and a paragraph break is one. Bullets
// are list membership, so they are not part of the text.
//
// The last paragraph mark: a paragraph mark that nothing but the end of the document follows ends the last paragraph
// and opens none. "a\par }" and "a}" are both one paragraph, "a\par\par}" is two.
#pragma once

#include <QString>

class QTextCursor;
class QTextDocument;

namespace orvane
{

// True when the text, after any leading blanks and line ends, begins with "{\rtf".
bool isRtf(QStringView text);

// Replaces the whole document, without undo. A text that is no RTF is put as plain text in the document's default font.
// Any input is taken: what can't be read is left out. The read ends with the group that the text begins with.
void readRtf(QStringView text, QTextDocument &document);

// False where the two documents would make one that is taller than can be laid out.
bool fitTogether(const QTextDocument &one, const QTextDocument &other);

// The RTF, on one line of ASCII characters, that reads back to the same document: as short as goes with what other
// programs make of it.
QString writeRtf(const QTextDocument &document);

// The same for what is selected. An empty selection gives an empty document.
QString writeRtf(const QTextCursor &selection);

} // namespace orvane
