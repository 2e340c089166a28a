#include "Documents.h"

#include "platform/controls/bars/ActiveBar.h"
#include "platform/forms/DefaultInstance.h"
#include "platform/forms/MDIChild.h"
#include "platform/forms/Wiring.h"
#include "platform/print/Printers.h"
#include "platform/system/RunTimeError.h"
#include "printing/frmPrint.h"
#include "shell/mdiMain.h"
#include "shell/modFunctions.h"

#include "Screen.h"

using namespace Qt::Literals::StringLiterals;

namespace orvane::walk
{

namespace
{
struct Document {
    void (*open)(const QString &title, const QString &section);
    QStringView title;
    QStringView section;
    QStringView tool; // of the band of print tools
    QStringView file;
};

// clang-format off
constexpr Document Documents[] = {
    {OpenGuide,      u"STEP 17 - Emergency Preparedness and Response", u"127", u"prtPartial",      u"guide.pdf"},
    {OpenManual,     u"Emergency Preparedness and Response",           u"219", u"prtPartial",      u"manual.pdf"},
    {OpenProcedures, u"Emergency Planning",                            u"311", u"prtPartial",      u"procedure.pdf"},
    {OpenTools,      u"Emergency Plan Ideas",                          u"406", u"prtPartial",      u"tool.pdf"},
    {OpenRecords,    u"Emergency Plan",                                u"511", u"prtRecordFilled", u"record.pdf"},
};
// clang-format on

void print(const Document &document, const QDir &folder)
{
    document.open(document.title.toString(), document.section.toString());
    MDIChild *window = Default<mdiMain>().ActiveForm();
    if (!window) throw RunTimeError(ObjectNotSet, u"No window is active in the frame."_s);
    ActiveBar &bar = barOf(*window, u"mnuLinks"_s);
    bar.press(bar.Bands(u"subPrint"_s).Tools(document.tool.toString()));
    settle();
    VSPrinter &printer = Default<frmPrint>().vs;
    printer.setDevice(pdfPrinterName());
    setPdfFileName(folder.filePath(document.file.toString()));
    printer.PrintDoc(1, printer.PageCount());
}
} // namespace

void printDocuments(const QDir &folder, HandOut &handOut)
{
    for (const Document &document : Documents) {
        try {
            print(document, folder);
            handOut.addDocument(document.file.toString(), document.title.toString());
        } catch (const RunTimeError &failure) {
            handOut.complain(u"%1: %2"_s.arg(document.file, failure.Description()));
        }
    }
}

} // namespace orvane::walk
