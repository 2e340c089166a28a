// Prints recorded pages on a printer, or into the file of the PDF file printer.
#pragma once

#include "platform/print/pages/RecordedPage.h"

#include <QString>

namespace orvane
{

struct PrintJob {
    QString deviceName;
    QString title;
    int from = 1;
    int to = 1;
    int copies = 1;
    int duplex = 0; // as VSPrinter::Duplex
};

// The pages from and to are pages of the document. Error 482 where the printer or the file fails. A job that the user
// cancels prints nothing. The user is told of a paused printer, which keeps the job.
void printPages(const RecordedPages &pages, const PrintJob &job);

} // namespace orvane
