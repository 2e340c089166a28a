// The tour's one ear: every window reports here what its user did.
#pragma once

#include <QString>

namespace orvane
{

inline constexpr int NoticeTag = 900;        // no step: brings up the notice
inline constexpr int EndTag = 603;           // the end of the tour
inline constexpr int EndWithDealerTag = 604; // the same with the dealer's lines

// Shows the step of that tag in the console. A tag is a number as text, anything else is refused with error 13. At the
// end of the tour the caller's "603" comes back as "604" where there is dealer text.
void ShowTourStep(QString &tag);
void ShowTourStep(QString &&tag);

// Writes the console's heading and body under that tag. Nothing is reported.
void SaveTourStep(const QString &tag);

// A body as it is saved: carriage returns, line feeds and form feeds are dropped, not replaced by blanks, and every
// other character stays. A heading isn't treated so.
QString withoutLineEnds(const QString &body);

// Reads the dealer's lines into the console. A file that isn't there ends the program with error 53.
void ReadDealerData();

} // namespace orvane
