// The help system, by command numbers.
#pragma once

#include <QString>

namespace orvane
{

enum HelpCommands { HelpContents = 3, HelpPartialKey = 261 };

// Opens the help file; error 53 where that can't be done.
void WinHelp(const QString &helpFile, int command);

} // namespace orvane
