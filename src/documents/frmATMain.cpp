#include "documents/frmATMain.h"

#include "documents/ModuleWindow.h"
#include "documents/pages/ToolPages.h"
#include "layouts/frmATMain_mnuLinks.h"
#include "platform/forms/DefaultInstance.h"
#include "platform/forms/Wiring.h"
#include "platform/system/Number.h"
#include "printing/frmPrint.h"
#include "shell/ModulePrefixes.h"
#include "shell/SharedState.h"
#include "shell/mdiMain.h"
#include "shell/modFunctions.h"
#include "tour/modDemo.h"

namespace orvane
{

namespace
{
constexpr int CloseTag = 401;
constexpr int FirstOtherTag = 3; // behind those of the print tools
constexpr int LinkDigits = 4;
constexpr double BarTop = 4575; // of ssMnuLinks in the design; in the window it clings to the foot
} // namespace

frmATMain::frmATMain()
    : MDIChild(Default<mdiMain>(), QStringLiteral("frmATMain")),
      gradient(*this, QStringLiteral("zelGradient"), zelGradient::Strip),
      pnlNumber(gradient, QStringLiteral("pnlNumber")), pnlHeading(gradient, QStringLiteral("pnlHeading")),
      imgLogo(*this, QStringLiteral("imgLogo")), ssMnu(*this, QStringLiteral("ssMnu")),
      rtfData(*this, QStringLiteral("rtfData")), ssMnuLinks(*this, QStringLiteral("ssMnuLinks")),
      mnuLinks(ssMnuLinks, QStringLiteral("mnuLinks"), layouts::frmATMain_mnuLinks)
{
    setCaption(QStringLiteral("Action Tools"));
    setBackColor(0xFFFFFF);
    placeControls();
    answerTools(mnuLinks, *this, &frmATMain::mnuLinks_Click, QStringLiteral("mnuLinks_Click"));
    answerName(*this, &frmATMain::Form_Resize, QStringLiteral("Form_Resize"));
    wire(rtfData, &RichTextBox::SelChange, *this, [](frmATMain &) { UpdateEditTools(); });
}

void frmATMain::placeControls()
{
    setDesignSize(8250, 4950);
    gradient.Move(0, 0, 6615, 375);
    pnlNumber.Move(0, 0, 1455, 375);
    pnlHeading.Move(1560, 0, 4935, 375);
    imgLogo.Move(6750, 0, 1500, 420);
    ssMnu.Move(-15, 360, 7935, 405);
    rtfData.Move(240, 780, 7905, 4095);
    ssMnuLinks.Move(0, BarTop, 8250, 375);
    ssMnuLinks.setAlign(AlignedBottom);
    mnuLinks.setAlign(AlignedAllOver);
    for (SSPanel *panel : {&pnlNumber, &pnlHeading})
        panel->setFont(QStringLiteral("Arial"), 9.75, true);
    imgLogo.setPicture(QStringLiteral("logo"));
    imgLogo.setPurpose(QStringLiteral("orvane"));
    imgLogo.ZOrderBack(); // the bar covers its foot
    rtfData.setPurpose(QStringLiteral("Page of the Action Tool"));
    mnuLinks.setPurpose(QStringLiteral("Related topics, print and close"));
    rtfData.setLocked(true);
}

void frmATMain::Form_Load()
{
    pnlHeading.setCaption(QStringLiteral("Key Points to Include in Emergency Plans"));
    pnlNumber.setCaption(QStringLiteral("T1.C11"));
    setTag(prefix::Tools() + Shared().TitleText);
    PageRtf = pages::actionTool();
    rtfData.setTextRTF(PageRtf);
    setWindowState(Maximized);
    FormWidth = 0;
    FormHeight = 0;
    Form_Resize();
}

void frmATMain::Form_Activate()
{
    module::activate(*this, QStringLiteral("AT"));
}

void frmATMain::Form_Deactivate()
{
    module::deactivate(*this);
}

void frmATMain::Form_Unload(bool &)
{
    mnuLinks.Bands(0).setVisible(false);
    Hide();
    RemoveWindowTool(Tag());
}

// A window too low for its own bars is not laid out.
void frmATMain::Form_Resize()
{
    const bool first = FormWidth == 0;
    FormWidth = first ? Shared().FrameScaleWidth : static_cast<int>(ScaleWidth());
    FormHeight = first ? Shared().FrameScaleHeight : static_cast<int>(ScaleHeight());
    if (FormHeight - ssMnu.Height() - 10 < BarTop) return;
    resumeNext([this] { ssMnu.setWidth(FormWidth); });
    if (WindowState() == Minimized) return;
    layOut();
}

void frmATMain::layOut()
{
    resumeNext([this] { rtfData.setWidth(FormWidth - 220); });
    resumeNext([this] { rtfData.setRightMargin(FormWidth - 550); });
    resumeNext([this] { imgLogo.setLeft(FormWidth - imgLogo.Width()); });
    resumeNext([this] { pnlHeading.setWidth(FormWidth - imgLogo.Width() - pnlNumber.Width()); });
    resumeNext([this] { rtfData.setHeight(FormHeight - rtfData.Top() - ssMnuLinks.Height()); });
    resumeNext([this] { gradient.setWidth(imgLogo.Left()); });
}

void frmATMain::mnuLinks_Click(Tool &tool)
{
    const int tag = tool.ToolTag();
    if (QString::number(tag).size() >= LinkDigits) {
        followLink(tool);
    } else if (tag > 0 && tag < FirstOtherTag) {
        ShowTourStep(QStringLiteral("402"));
        UnloadPrintWindows();
        Default<frmPrint>().PrintPreview(4, QStringLiteral("1"), 1, 1, pnlNumber.Caption(), pnlHeading.Caption());
    } else if (tag == CloseTag) {
        ShowTourStep(QStringLiteral("401"));
        module::close(*this);
    } else {
        ShowTourStep(QString::number(tag));
    }
}

// A link's number has a leading digit, which it loses for as long as the target is opened.
void frmATMain::followLink(Tool &tool)
{
    const auto section = [&tool] { return QString::number(tool.ToolTag()).mid(1, 3); };
    ShowTourStep(section());
    tool.setToolTag(toInteger(section()));
    OpenFromTool(tool);
    const QString tag = QString::number(tool.ToolTag());
    if (tag.size() < LinkDigits) tool.setToolTag(toInteger(QStringLiteral("1") + tag));
}

} // namespace orvane
