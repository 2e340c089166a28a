// The bytes that a write puts into a profile file, at the place that a ProfileScan has found.
#pragma once

#include <QString>

namespace orvane
{

struct ProfilePlace;

// Whether a line of these names would be found again: a section can't hold "]", a key can't be empty, hold "=" or begin
// as a comment or a section does, and neither can hold a line break.
bool canNameProfileLine(QStringView section, QStringView key);

// The value alone where the key is there already, else its line, with its section's line where that is missing too.
// Line breaks in the value are dropped, since a value lies on one line.
QByteArray profileInsertion(const ProfilePlace &place, QStringView section, QStringView key, QStringView value);

} // namespace orvane
