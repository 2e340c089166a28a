// Texts that stand for numbers.
#pragma once

#include <QString>

namespace orvane
{

// The value of a decimal number with blanks around it or none; any other text is refused with error 13.
double toNumber(const QString &text);

// The same as a 32-bit integer, rounded; error 6 where it doesn't fit.
int toInteger(const QString &text);

// The number that a text begins with, after any blanks, without exponent; 0 where it begins with none.
double leadingNumber(const QString &text);

} // namespace orvane
