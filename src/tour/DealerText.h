// The dealer's text as it lies beside the program: one byte of code page 1252 for each character, moved up by a key
// that depends on its position only (1, 3, 6, 10, 15 and so on, the triangular numbers modulo 64).
#pragma once

#include <QString>

namespace orvane
{

// In clear what was read from the file. Throws RunTimeError (InvalidProcedureCall) at a code below its key, which no
// proper file holds.
QString UnscrambleDealerData(const QString &text);

// The bytes of the file for a text in clear. Throws RunTimeError (InvalidProcedureCall), naming the character and its
// place, where the page has no code for it or where it would not come back: the key takes a code from 192 on over the
// end of the page at some positions.
QByteArray ScrambleDealerData(const QString &text);

} // namespace orvane
