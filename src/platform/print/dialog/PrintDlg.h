// The call of the system's print dialog with records in movable memory.
#pragma once

#include "platform/print/dialog/PrintRecords.h"

namespace orvane
{

// Shows the dialog for the printer that the device names tell (else the one of the device mode, else the first that is
// installed) and changes the record and its two blocks to what the user chose; a block that is too small or missing is
// replaced, with a new handle. 0 where the user cancels or the dialog can't be shown, and then nothing is changed.
//
// Of the device mode count the orientation, and the duplex, copies and paper size that its fields mark. A paper size
// that isn't marked is the default printer object's as long as that stands for the same printer. The pages that come
// back are the ones that went in, unless the user chose a range.
int PrintDlgA(PRINTDLG &record);

} // namespace orvane
