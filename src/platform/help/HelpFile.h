// The help file as it comes from the program's folder. It is copied before anything looks into it, so that nothing is
// ever written beside it, and nothing that happens to it later reaches an open help window.
#pragma once

#include <QString>

namespace orvane
{

inline constexpr int InvalidFileFormat = 321; // the number of a file that isn't what it should be

QString helpNamespace(); // what the program's own help file calls itself

// Error 53 where there is no such file, 75 where it can't be read or copied.
void copyHelpFile(const QString &from, const QString &to);

// Error 321, with the shown name in its sentence, unless the copy is a whole help file of this program: a sound
// database in which every page can be unpacked and the contents make a tree.
void checkHelpFile(const QString &copy, const QString &shownName);

} // namespace orvane
