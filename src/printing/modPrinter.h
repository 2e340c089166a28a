// The system's print dialog for the document in the preview.
#pragma once

#include "platform/controls/Twips.h"

#include <QString>

namespace orvane
{

class Form;
class VSPrinter;

// Shows the dialog for the pages from first to last, and brings the user's choice of printer, copies, sides,
// orientation and paper into the default printer and into vs, and the range into the two pages. On cancel nothing
// changes but the flag, which is False after OK. The flags are those of the dialog's call.
void ShowPrinter(Form &form, VSPrinter &vs, qint16 &firstPage, qint16 &lastPage, Boolean16 &cancelled, qint32 &flags);

} // namespace orvane
