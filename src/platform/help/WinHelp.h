// The help system, by command numbers.
#pragma once

#include <QString>

namespace orvane
{

enum HelpCommands { HelpContents = 3, HelpPartialKey = 261 };

// Shows the help file in the help window: with its contents, or with the search in keywords and pages. A window that
// shows this file already comes forward. Error 53 where the file isn't there, 75 where it can't be read, 321 where it
// is no help file of this program or is damaged, 5 for any other command. After an error there is no new window.
void WinHelp(const QString &helpFile, int command);

} // namespace orvane
