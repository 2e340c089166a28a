// Other programs of this machine.
#pragma once

#include <QString>

namespace orvane
{

// Starts the program of that path as a process of its own, without arguments, and doesn't wait for it. Error 53 where
// it can't be started.
void StartProgram(const QString &path);

// The absolute path of a program of that name in the machine's folders of programs, or nothing. Folders that the
// environment names by relative paths don't count: what lies there depends on where the user happens to be.
QString findProgram(const QString &name);

bool FileExists(const QString &path); // a folder is none

} // namespace orvane
