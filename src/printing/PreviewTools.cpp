// The preview's tools: zoom, pages, page setup, printing.

#include "platform/print/DefaultPrinter.h"
#include "platform/print/preview/PreviewLayout.h"
#include "platform/system/Guard.h"
#include "platform/system/Host.h"
#include "platform/system/Number.h"
#include "printing/frmPrint.h"
#include "printing/modPrinter.h"
#include "shell/modFunctions.h"

#include <map>

namespace orvane
{

namespace
{
constexpr int CloseTag = 999;
constexpr int EnterKey = 13;
} // namespace

void frmPrint::mnuPrintPreview_Click(Tool &pressed)
{
    if (pressed.ToolTag() == CloseTag) reportClosing();
    const QString &name = pressed.Name();
    if (name == QStringLiteral("print")) {
        print();
    } else if (name == QStringLiteral("Next")) {
        if (vs.PreviewPage() < vs.PageCount()) {
            vs.setPreviewPage(vs.PreviewPage() + 1);
            tool(QStringLiteral("PageNumber")).setText(QString::number(vs.PreviewPage()));
        }
    } else if (name == QStringLiteral("Prev")) {
        if (vs.PreviewPage() > 0) {
            vs.setPreviewPage(vs.PreviewPage() - 1);
            tool(QStringLiteral("PageNumber")).setText(QString::number(vs.PreviewPage()));
        }
    } else if (name == QStringLiteral("printsetup")) {
        if (hasPrinters()) vs.PrintDialog(PrinterSetup);
    } else if (name == QStringLiteral("pagesetup")) {
        setUpPage();
    } else if (name == QStringLiteral("close")) {
        RemoveWindowTool(Caption());
        Hide();
    }
    enablePaging();
}

bool frmPrint::hasPrinters() const
{
    if (vs.NDevices() > 0) return true;
    MsgBox(QStringLiteral("There are no printers installed on your computer.  This view is unavailable"),
           InformationIcon);
    return false;
}

void frmPrint::enablePaging()
{
    tool(QStringLiteral("Prev")).setEnabled(vs.PreviewPage() > 1);
    tool(QStringLiteral("Next")).setEnabled(vs.PreviewPage() < vs.PageCount());
}

void frmPrint::showZoom()
{
    tool(QStringLiteral("miZoom")).setText(QStringLiteral("%1%").arg(static_cast<int>(vs.Zoom())));
}

void frmPrint::vs_PageTurned()
{
    tool(QStringLiteral("PageNumber")).setText(QString::number(vs.PreviewPage()));
    enablePaging();
}

void frmPrint::print()
{
    if (!hasPrinters()) return;
    Printer().setPaperSize(vs.PaperSize());
    Printer().setOrientation(vs.Orientation() + 1);
    vs.setDevice(Printer().DeviceName());
    qint16 from = 1;
    auto to = static_cast<qint16>(vs.PageCount());
    Boolean16 cancelled;
    qint32 flags = 0;
    ShowPrinter(*this, vs, from, to, cancelled, flags);
    if (!(cancelled == True)) resumeNext([&] { vs.PrintDoc(from, to); });
}

void frmPrint::setUpPage()
{
    if (!hasPrinters()) return;
    if (vs.PrintDialog(PageSetupOfPrinter)) compose();
}

void frmPrint::mnuPrintPreview_ComboSelChange(Tool &picked)
{
    static const std::map<QString, int> modes{{QStringLiteral("Page Width"), ZoomPageWidth},
                                              {QStringLiteral("Whole Page"), ZoomWholePage},
                                              {QStringLiteral("Two Pages"), ZoomTwoPages},
                                              {QStringLiteral("Thumbnails"), ZoomThumbnails}};
    const QString text = picked.Text();
    if (text.contains(u'%')) {
        vs.setZoom(leadingNumber(text));
    } else if (const auto mode = modes.find(text); mode != modes.end()) {
        vs.setZoomMode(mode->second);
    }
    picked.setText(QStringLiteral("%1%").arg(static_cast<int>(vs.Zoom())));
    vs.SetFocus();
}

// Enter in either field applies both.
void frmPrint::mnuPrintPreview_KeyPress(Tool &, int keyAscii)
{
    if (keyAscii != EnterKey) return;
    vs.setZoom(leadingNumber(tool(QStringLiteral("miZoom")).Text()));
    showZoom();
    const double page = leadingNumber(tool(QStringLiteral("PageNumber")).Text());
    if (page > 0 && page <= vs.PageCount()) {
        vs.setPreviewPage(static_cast<qint16>(page));
    } else {
        vs.setPreviewPage(1);
        tool(QStringLiteral("PageNumber")).setText(QStringLiteral("1"));
    }
    enablePaging();
}

} // namespace orvane
