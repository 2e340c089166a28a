// The printing of a text that is no document of the program's, such as a page of the help.
#pragma once

class QTextDocument;
class QWidget;

namespace orvane
{

// Asks in the system's print dialog, over the owner, where and what to print, and prints the sheets of the text under
// its title. Where that fails the user is told why.
void printText(QTextDocument &text, const QWidget &owner);

} // namespace orvane
