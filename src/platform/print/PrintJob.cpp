#include "platform/print/PrintJob.h"

#include "platform/controls/Twips.h"
#include "platform/print/PdfFile.h"
#include "platform/print/PrintProgress.h"
#include "platform/print/Printers.h"
#include "platform/print/queues/PrintService.h"
#include "platform/system/Host.h"
#include "platform/system/RunTimeError.h"

#include <QFileInfo>
#include <QPageLayout>
#include <QPainter>
#include <QPrinter>
#include <memory>

namespace orvane
{

namespace
{
void require(bool done, const QString &deviceName)
{
    if (!done) throw RunTimeError(PrinterFailure, QStringLiteral("The printer \"%1\" can't print.").arg(deviceName));
}

QPrinter::DuplexMode duplexMode(int duplex)
{
    if (duplex == 1) return QPrinter::DuplexNone;
    return duplex == 2 ? QPrinter::DuplexLongSide : QPrinter::DuplexShortSide;
}

// The queue's own name, or the folder of the file.
QString portOf(const QPrinter &printer)
{
    const bool isFile = printer.outputFormat() == QPrinter::PdfFormat;
    return isFile ? QFileInfo(printer.outputFileName()).absolutePath() : printer.printerName();
}

void setUp(QPrinter &printer, const PrintJob &job)
{
    printer.setFullPage(true);
    printer.setDocName(job.title);
    if (job.duplex > 0) printer.setDuplex(duplexMode(job.duplex));
    printer.setCopyCount(printer.supportsMultipleCopies() ? job.copies : 1);
}

void paintPage(QPainter &painter, QPrinter &printer, const RecordedPage &page)
{
    painter.save();
    painter.scale(printer.logicalDpiX() / TwipsPerInch, printer.logicalDpiY() / TwipsPerInch);
    drawPage(painter, page);
    painter.restore();
}

// A printer that can't count gets the pages as often as they are wanted. False where the user cancels.
bool paint(QPainter &painter, QPrinter &printer, const RecordedPages &pages, const PrintJob &job,
           PrintProgress &progress)
{
    const int rounds = printer.supportsMultipleCopies() ? 1 : job.copies;
    for (int round = 0; round < rounds; ++round) {
        for (int number = job.from; number <= job.to; ++number) {
            const RecordedPage &page = pages[number - 1];
            printer.setPageLayout(page.setup.printerLayout());
            require(painter.isActive() ? printer.newPage() : painter.begin(&printer), job.deviceName);
            if (!progress.goOn(number)) return false;
            paintPage(painter, printer, page);
        }
    }
    return true;
}

// Nothing for a printer of paper.
std::unique_ptr<PdfFile> fileOf(const QPrinter &printer, const PrintJob &job)
{
    if (printer.outputFormat() != QPrinter::PdfFormat) return nullptr;
    if (job.deviceName != pdfPrinterName() || isPdfFileChosen()) return PdfFile::chosen(printer.outputFileName());
    return PdfFile::named(QFileInfo(printer.outputFileName()).absolutePath(), job.title);
}

// The queue that took the job; none for a file, and for a job that was cancelled.
QString run(const RecordedPages &pages, const PrintJob &job)
{
    const std::shared_ptr<QPrinter> printer = openPrinter(job.deviceName);
    setUp(*printer, job);
    PrintProgress progress(job, portOf(*printer));
    const auto file = fileOf(*printer, job);
    if (file)
        printer->setOutputFileName(file->workingName());
    else
        progress.withholdCancel(); // the toolkit hands a job to its queue even if it isn't complete
    const auto painter = std::make_shared<QPainter>();
    if (!paint(*painter, *printer, pages, job, progress)) return {};
    if (!file) {
        finishJob(printer, painter);
        return printer->printerName();
    }
    painter->end();
    file->keep();
    return {};
}
} // namespace

void printPages(const RecordedPages &pages, const PrintJob &job)
{
    const QString queue = run(pages, job);
    if (queue.isEmpty() || !isQueuePaused(queue)) return;
    MsgBox(QStringLiteral("The printer \"%1\" is paused. The document waits there until the printer is resumed.")
               .arg(job.deviceName),
           InformationIcon);
}

} // namespace orvane
