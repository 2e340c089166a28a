#include "platform/print/dialog/SystemPrintDialog.h"

#include "platform/print/Printers.h"
#include "platform/print/dialog/PrintChoice.h"
#include "platform/print/dialog/PrintDialogWindow.h"
#include "platform/print/dialog/WindowHandle.h"
#include "platform/print/queues/PrintService.h"

#include <QPrinter>
#include <algorithm>

namespace orvane
{

namespace
{
QPrinter::DuplexMode modeOf(int duplex)
{
    switch (duplex) {
    case 1:
        return QPrinter::DuplexNone;
    case 2:
        return QPrinter::DuplexLongSide;
    case 3:
        return QPrinter::DuplexShortSide;
    default:
        return QPrinter::DuplexAuto;
    }
}

int duplexOf(QPrinter::DuplexMode mode)
{
    switch (mode) {
    case QPrinter::DuplexNone:
        return 1;
    case QPrinter::DuplexLongSide:
        return 2;
    case QPrinter::DuplexShortSide:
        return 3;
    default:
        return 0;
    }
}

void prepare(QPrinter &printer, const PrintChoice &choice)
{
    printer.setCopyCount(choice.copies);
    if (choice.duplex != 0) printer.setDuplex(modeOf(choice.duplex));
    if (choice.paperSize != 0) printer.setPageSize(QPageSize(QPageSize::id(choice.paperSize)));
    printer.setPageOrientation(choice.orientation == 2 ? QPageLayout::Landscape : QPageLayout::Portrait);
}

bool isInstalled(const QString &deviceName)
{
    const auto printers = installedPrinters();
    return std::any_of(printers.begin(), printers.end(),
                       [&](const InstalledPrinter &each) { return each.deviceName == deviceName; });
}

void prepare(QPrintDialog &dialog, const PrintChoice &choice)
{
    QAbstractPrintDialog::PrintDialogOptions options =
        QAbstractPrintDialog::PrintPageRange | QAbstractPrintDialog::PrintShowPageSize;
    options.setFlag(QAbstractPrintDialog::PrintToFile, isInstalled(pdfPrinterName()));
    dialog.setOptions(options);
    dialog.setMinMax(choice.minPage, choice.maxPage);
    dialog.setFromTo(choice.firstPage, choice.lastPage);
    dialog.setPrintRange(choice.pageRange ? QAbstractPrintDialog::PageRange : QAbstractPrintDialog::AllPages);
}

QString deviceNameOf(const QPrinter &printer)
{
    if (printer.outputFormat() == QPrinter::PdfFormat) return pdfPrinterName();
    const auto printers = installedPrinters();
    const auto found = std::find_if(printers.begin(), printers.end(),
                                    [&](const InstalledPrinter &each) { return each.port == printer.printerName(); });
    return found == printers.end() ? printer.printerName() : found->deviceName;
}

void take(const QPrinter &printer, PrintChoice &choice)
{
    choice.deviceName = deviceNameOf(printer);
    if (choice.deviceName == pdfPrinterName()) setPdfFileName(printer.outputFileName());
    choice.copies = printer.copyCount();
    choice.duplex = duplexOf(printer.duplex());
    choice.orientation = printer.pageLayout().orientation() == QPageLayout::Landscape ? 2 : 1;
    choice.pageRange = printer.printRange() == QPrinter::PageRange;
    if (!choice.pageRange) return;
    choice.firstPage = printer.fromPage();
    choice.lastPage = printer.toPage();
}
} // namespace

bool showSystemPrintDialog(PrintChoice &choice, quint32 owner)
{
    const auto printer = openPrinter(choice.deviceName);
    prepare(*printer, choice);
    const QString listedName = choice.deviceName == pdfPrinterName() ? choice.deviceName : printer->printerName();
    const SilentServiceHidden hidden;
    PrintDialogWindow dialog(printer.get(), windowOfHandle(owner), listedName, choice.paperSize);
    prepare(dialog, choice);
    if (dialog.exec() != QDialog::Accepted) return false;
    take(*printer, choice);
    choice.paperSize = dialog.paperSize();
    return true;
}

} // namespace orvane
