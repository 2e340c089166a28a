// The print dialog of the system.
#pragma once

#include <QtGlobal>

namespace orvane
{

struct PrintChoice;

// Modal to the owner, a window's handle or 0. False where the user cancels, and then the choice stays as it was; where
// the PDF file printer was chosen, the file too is taken over. Error 482 where the choice's printer is not there.
bool showSystemPrintDialog(PrintChoice &choice, quint32 owner);

} // namespace orvane
