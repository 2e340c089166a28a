// Bytes of the Windows code pages that fonts and documents name.
#pragma once

#include <QChar>

namespace orvane
{

inline constexpr int WesternCodePage = 1252;
inline constexpr int SymbolCodePage = 42;

// The code page for a font's character set; a set that isn't known, or is the default one, has the document's.
int codePageOfCharset(int charset, int documentCodePage);

// A page that isn't known, or that the toolkit was built without, is read as 1252.
QChar characterOfByte(int codePage, int byte);

} // namespace orvane
