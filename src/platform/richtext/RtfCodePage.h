// Bytes and characters of the Windows code pages that fonts and documents name.
#pragma once

#include <QChar>

namespace orvane
{

inline constexpr int WesternCodePage = 1252;
inline constexpr int SymbolCodePage = 42;

// The code page for a font's character set; a set that isn't known, or is the default one, has the document's.
int codePageOfCharset(int charset, int documentCodePage);

// Code pages that aren't known are read as 1252. Bytes without a character there stand for the control character of
// the same number.
char16_t characterOfByte(int codePage, int byte);

// 0 to 255, or -1 where page 1252 has no such character.
int westernByte(char16_t character);

} // namespace orvane
