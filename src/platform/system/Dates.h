// Dates as text.
#pragma once

#include <QString>

namespace orvane
{

// Today's date in the short form of the default locale, with all digits of the year.
QString Date();

// True where the text is one date, in any form that a user would type; see DateReader.h.
bool IsDate(const QString &text);

// The date in a pattern: d and dd the day, ddd and dddd the day of the week, m and mm the month, mmm and mmmm its name,
// yy and yyyy the year, in capitals or small; all else stands for itself. Names are English, as the documents are.
// A text that is no date comes back unchanged.
QString Format(const QString &text, const QString &pattern);

} // namespace orvane
