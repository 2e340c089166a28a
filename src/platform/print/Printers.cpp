#include "platform/print/Printers.h"

#include "platform/print/queues/HandOver.h"
#include "platform/print/queues/PrintService.h"
#include "platform/system/CodePage1252.h"
#include "platform/system/Host.h"
#include "platform/system/RunTimeError.h"

#include <QDir>
#include <QFileInfo>
#include <QLocale>
#include <QPageSize>
#include <QPainter>
#include <QPrinter>
#include <algorithm>
#include <set>

namespace orvane
{

namespace
{
constexpr qsizetype NameLength = 31; // of the 32 characters that the dialog's record has for a name, one ends it

QString &chosenFile()
{
    static QString fileName;
    return fileName;
}

bool canBeWritten(const QString &folder)
{
    if (folder.isEmpty()) return false;
    QFileInfo place(QDir::cleanPath(QDir(folder).absolutePath()));
    while (!place.exists() && !place.isRoot())
        place.setFile(place.path());
    return place.isDir() && place.isWritable();
}

int usualPaperSize()
{
    const bool imperial = QLocale::system().measurementSystem() == QLocale::ImperialUSSystem;
    return QPageSize::windowsId(imperial ? QPageSize::Letter : QPageSize::A4);
}

InstalledPrinter pdfPrinter()
{
    return {pdfPrinterName(), QStringLiteral("PDF"), QStringLiteral("FILE:"), false, usualPaperSize()};
}

QString deviceNameOf(const QString &queueName, std::set<QString> &taken)
{
    const QString whole = CodePage1252::decode(CodePage1252::encode(queueName));
    QString name = whole.left(NameLength);
    for (int number = 2; !taken.insert(name).second; ++number) {
        const QString end = QStringLiteral("~%1").arg(number);
        name = whole.left(NameLength - end.size()) + end;
    }
    return name;
}

// The toolkit looks for the usual queue first, even for a file.
std::unique_ptr<QPrinter> openPdfPrinter()
{
    const SilentServiceHidden hidden;
    auto printer = std::make_unique<QPrinter>(QPrinter::HighResolution);
    printer->setOutputFormat(QPrinter::PdfFormat);
    printer->setOutputFileName(pdfFileName());
    QDir().mkpath(QFileInfo(pdfFileName()).path());
    return printer;
}

std::unique_ptr<QPrinter> openInstalled(const InstalledPrinter &printer)
{
    return printer.deviceName == pdfPrinterName() ? openPdfPrinter() : host().openQueue(printer.port);
}
} // namespace

std::vector<InstalledPrinter> installedPrinters()
{
    std::set<QString> taken{pdfPrinterName()};
    auto printers = host().printQueues();
    for (InstalledPrinter &printer : printers) {
        printer.port = printer.deviceName;
        printer.deviceName = deviceNameOf(printer.port, taken);
    }
    if (canBeWritten(host().documentsFolder())) printers.push_back(pdfPrinter());
    return printers;
}

int ownPaperSize(const QString &deviceName)
{
    for (const InstalledPrinter &printer : installedPrinters())
        if ((deviceName.isEmpty() || printer.deviceName == deviceName) && printer.paperSize > 0)
            return printer.paperSize;
    return usualPaperSize();
}

std::unique_ptr<QPrinter> openPrinter(const QString &deviceName)
{
    const auto printers = installedPrinters();
    const auto found = std::find_if(printers.begin(), printers.end(),
                                    [&](const InstalledPrinter &each) { return each.deviceName == deviceName; });
    auto printer = found == printers.end() ? nullptr : openInstalled(*found);
    if (!printer)
        throw RunTimeError(PrinterFailure, QStringLiteral("The printer \"%1\" is not there.").arg(deviceName));
    printer->setFullPage(true);
    return printer;
}

void finishJob(const std::shared_ptr<QPrinter> &printer, const std::shared_ptr<QPainter> &painter)
{
    const QString refusal = handOver(printer, painter);
    if (refusal.isEmpty()) return;
    throw RunTimeError(
        PrinterFailure,
        QStringLiteral("The printer \"%1\" didn't take the document. %2").arg(printer->printerName(), refusal));
}

QString pdfFileName()
{
    return chosenFile().isEmpty() ? QDir(host().documentsFolder()).filePath(QStringLiteral("Document.pdf"))
                                  : chosenFile();
}

void setPdfFileName(const QString &fileName)
{
    chosenFile() = fileName;
}

bool isPdfFileChosen()
{
    return !chosenFile().isEmpty();
}

QString pdfPrinterName()
{
    return QStringLiteral("Print to File (PDF)");
}

} // namespace orvane
