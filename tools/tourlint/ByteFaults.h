// Bytes that don't belong into a text in code page 1252.
#pragma once

#include "Finding.h"

namespace orvane::lint
{

inline constexpr char ByteOrderMark[] = "\xEF\xBB\xBF";

// A file in UTF-16 holds no line that the program could read.
bool isUtf16(const QByteArray &bytes);

void findByteFaults(const QByteArray &bytes, Findings &findings);

// The five codes that the page gives no character.
bool isWithoutCharacter(int code);

} // namespace orvane::lint
