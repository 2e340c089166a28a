// Reads a date as people write it, in the default locale and in English.
#pragma once

#include <QDate>
#include <QString>
#include <optional>

namespace orvane
{

// Takes day, month and year, divided by blanks, slashes, hyphens, dots or commas; the month as a number or by its name.
// Digits of any script count, and so do the words that the locale's own formats have between the numbers.
//
// Three numbers are taken in the order of the locale's short form; where that makes no date, with day and month the
// other way round, or year first, then month. A year of three or four digits is meant in full; of one or two it is 2000
// to 2029 or 1930 to 1999.
//
// Nothing where the text has more or less than one date, or a day that isn't in the calendar.
std::optional<QDate> readDate(const QString &text);

} // namespace orvane
