#include "printing/frmPrint.h"

#include "layouts/frmPrint_mnuPrintPreview.h"
#include "platform/forms/DefaultInstance.h"
#include "platform/forms/Wiring.h"
#include "platform/system/Application.h"
#include "platform/system/SendKeys.h"
#include "platform/system/SettingsStore.h"
#include "shell/SharedState.h"
#include "shell/mdiMain.h"
#include "shell/modFunctions.h"
#include "tour/modDemo.h"

namespace orvane
{

frmPrint::frmPrint()
    : MDIChild(Default<mdiMain>(), QStringLiteral("frmPrint")), vs(*this, QStringLiteral("vs")),
      rtfPrint(*this, QStringLiteral("rtfPrint")),
      mnuPrintPreview(*this, QStringLiteral("mnuPrintPreview"), layouts::frmPrint_mnuPrintPreview)
{
    setCaption(QStringLiteral("Print Preview"));
    setDesignSize(6615, 7455);
    vs.Move(0, 0, 6615, 6615);
    rtfPrint.Move(0, 6720, 6615, 735);
    rtfPrint.setPurpose(QStringLiteral("Text to print"));
    rtfPrint.setVisible(false);
    mnuPrintPreview.setPurpose(QStringLiteral("Print preview tools"));
    for (const auto margin :
         {&VSPrinter::setMarginLeft, &VSPrinter::setMarginTop, &VSPrinter::setMarginRight, &VSPrinter::setMarginBottom})
        (vs.*margin)(1440);
    wireEvents();
}

void frmPrint::wireEvents()
{
    answerTools(mnuPrintPreview, *this, &frmPrint::mnuPrintPreview_Click, QStringLiteral("mnuPrintPreview_Click"));
    answerName(*this, &frmPrint::Form_Resize, QStringLiteral("Form_Resize"));
    wire(mnuPrintPreview, &ActiveBar::ComboSelChange, *this,
         [](frmPrint &self, Tool *tool) { self.mnuPrintPreview_ComboSelChange(*tool); });
    wire(mnuPrintPreview, &ActiveBar::KeyPress, *this,
         [](frmPrint &self, Tool *tool, int keyAscii) { self.mnuPrintPreview_KeyPress(*tool, keyAscii); });
    wire(vs, &VSPrinter::HeaderBand, *this, &frmPrint::vs_HeaderBand);
    wire(vs, &VSPrinter::FooterBand, *this, &frmPrint::vs_FooterBand);
    wire(vs, &VSPrinter::ViewZoomed, *this, &frmPrint::showZoom);
    wire(vs, &VSPrinter::ViewScrolled, *this, &frmPrint::showZoom);
    wire(vs, &VSPrinter::PageTurned, *this, &frmPrint::vs_PageTurned);
    wire(mnuPrintPreview, &ActiveBar::Hover, *this,
         [](frmPrint &, const QString &description) { Default<mdiMain>().setStatusText(description); });
}

Tool &frmPrint::tool(const QString &name) const
{
    return mnuPrintPreview.Bands(QStringLiteral("bndPreview")).Tools(name);
}

void frmPrint::Form_Load()
{
    m_company = GetSetting(App().Title(), QStringLiteral("UserDetails"), QStringLiteral("Company"));
    tool(QStringLiteral("miZoom"))
        .setList({QStringLiteral("400%"), QStringLiteral("200%"), QStringLiteral("100%"), QStringLiteral("75%"),
                  QStringLiteral("50%"), QStringLiteral("25%"), QStringLiteral("Page Width"),
                  QStringLiteral("Whole Page"), QStringLiteral("Two Pages"), QStringLiteral("Thumbnails")});
    tool(QStringLiteral("miZoom")).setText(QStringLiteral("75%"));
    tool(QStringLiteral("PageNumber")).setText(QStringLiteral("1"));
    tool(QStringLiteral("Next")).setEnabled(vs.PreviewPage() < vs.PageCount());
    setWindowState(Maximized);
    m_width = 0;
    m_height = 0;
    Form_Resize();
    DoEvents();
}

void frmPrint::Form_Resize()
{
    if (WindowState() == Minimized) return;
    const bool first = m_width == 0;
    m_width = first ? Shared().FrameScaleWidth : static_cast<int>(ScaleWidth());
    m_height = first ? Shared().FrameScaleHeight : static_cast<int>(ScaleHeight());
    resumeNext([this] { vs.Move(0, 0, m_width, m_height); });
    resumeNext([this] { showZoom(); });
}

void frmPrint::Form_Activate()
{
    AddWindowTool(Caption(), QStringLiteral("&") + Caption(), Tag());
    CheckWindowTool(Caption(), True, QStringLiteral("PV"));
}

void frmPrint::Form_Deactivate()
{
    CheckWindowTool(Caption(), False, QString());
}

void frmPrint::Form_Unload(bool &)
{
    reportClosing();
    Hide();
    RemoveWindowTool(Caption());
}

// The guide, manual, procedure or tool that was printed is what the tour goes on with; a record reports nothing.
void frmPrint::reportClosing() const
{
    static constexpr int steps[] = {127, 206, 311, 406};
    if (m_job.module >= Guide && m_job.module <= Tools) ShowTourStep(QString::number(steps[m_job.module - Guide]));
}

} // namespace orvane
