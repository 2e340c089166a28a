// The printers that the program can print on: the queues of the system's print service, and a printer of the toolkit
// that writes PDF files into the user's documents folder, so that a fresh machine prints too.
#pragma once

#include "platform/print/InstalledPrinter.h"

#include <memory>
#include <vector>

class QPainter;
class QPrinter;

namespace orvane
{

// The system's queues, its default one first, then the PDF file printer while the user's documents folder can be
// written: it is there, or can be made.
std::vector<InstalledPrinter> installedPrinters();

// By the published numbers: the paper of this printer, of the first that tells it where no name is given, or else what
// is usual in the country.
int ownPaperSize(const QString &deviceName);

// A printer in full-page mode with the settings of its queue. Error 482 where there is no such printer (any more).
std::unique_ptr<QPrinter> openPrinter(const QString &deviceName);

// Ends the painter on this printer of the system, and with it the job. Error 482 with the system's own words where the
// queue didn't take the job; a paused queue does.
void finishJob(const std::shared_ptr<QPrinter> &printer, const std::shared_ptr<QPainter> &painter);

// The file that the PDF file printer writes next. It is what the user chose last in the print dialog; until then a
// file in the documents folder.
QString pdfFileName();
void setPdfFileName(const QString &fileName);
bool isPdfFileChosen(); // by the user

// The file printer is called as the system's print dialog calls it.
QString pdfPrinterName();

} // namespace orvane
