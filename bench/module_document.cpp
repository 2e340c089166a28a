// Leaves a module's whole document: as the rich text that is handed to the printer, or laid out and written as PDF.
// What word processors make of the first is timed against the second.
#include "documents/pages/PrintedPages.h"
#include "platform/controls/Palette.h"
#include "platform/forms/DefaultInstance.h"
#include "platform/print/Printers.h"
#include "printing/frmPrint.h"

#include <QApplication>
#include <QFile>
#include <array>
#include <cstdio>

using namespace orvane;

namespace
{

constexpr std::array Documents{pages::printedGuide, pages::printedManual, pages::printedProcedure, pages::printedTool};

bool writeRichText(int module, const QString &fileName)
{
    QFile file(fileName);
    return file.open(QFile::WriteOnly) && file.write(Documents.at(module - 1)().toLatin1()) > 0;
}

bool writePdf(int module, const QString &fileName)
{
    setPdfFileName(fileName);
    auto &preview = Default<frmPrint>();
    preview.PrintPreview(module, QStringLiteral("1"), 1, 1, QStringLiteral("C11"),
                         QStringLiteral("Emergency Planning"));
    preview.vs.setDevice(pdfPrinterName());
    preview.vs.PrintDoc(1, preview.vs.PageCount());
    std::printf("%d pages\n", preview.vs.PageCount());
    return QFile::exists(fileName);
}

} // namespace

// module_document MODULE FILE: MODULE from 1 to 4, FILE ends in .rtf or .pdf.
int main(int argc, char *argv[])
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argc, argv);
    applyLooks(application);
    const int module = QApplication::arguments().value(1).toInt();
    const QString fileName = QApplication::arguments().value(2);
    if (module < 1 || module > int(Documents.size()) || fileName.isEmpty()) {
        std::fputs("usage: module_document MODULE FILE.rtf|FILE.pdf\n", stderr);
        return 2;
    }
    const bool done =
        fileName.endsWith(QStringLiteral(".rtf")) ? writeRichText(module, fileName) : writePdf(module, fileName);
    return done ? 0 : 1;
}
