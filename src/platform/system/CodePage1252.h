// The system's ANSI code page, 1252: one byte for each character (UTF-16 unit), 0x80 to 0x9F being the page's own.
// A table of its own, because the toolkit has this page only where it was built with ICU, and its encoder doesn't
// substitute as the page does.
#pragma once

#include <QString>

namespace orvane::CodePage1252
{

// Every byte has a character: the five that the page leaves undefined are the control of the same code.
QString decode(QByteArrayView bytes);

// A character without a code becomes '?', the page's substitute; one beyond U+FFFF is two units and so two of them.
QByteArray encode(QStringView text);

bool hasCode(QChar character);

} // namespace orvane::CodePage1252
