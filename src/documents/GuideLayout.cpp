// The guide window's parts: how they are made, and where they stand in a window of any size.

#include "documents/frmIGSteps.h"
#include "layouts/frmIGSteps_mnuLinks.h"
#include "layouts/frmIGSteps_mnuNav.h"
#include "platform/forms/DefaultInstance.h"
#include "platform/forms/Wiring.h"
#include "shell/SharedState.h"
#include "shell/mdiMain.h"
#include "shell/modFunctions.h"

namespace orvane
{

frmIGSteps::frmIGSteps()
    : MDIChild(Default<mdiMain>(), QStringLiteral("frmIGSteps")),
      gradient(*this, QStringLiteral("zelGradient"), zelGradient::Strip),
      pnlNumber(gradient, QStringLiteral("pnlNumber")), pnlHeading(gradient, QStringLiteral("pnlHeading")),
      ssMnu(*this, QStringLiteral("ssMnu")), mnuNav(ssMnu, QStringLiteral("mnuNav"), layouts::frmIGSteps_mnuNav),
      rtfData(*this, QStringLiteral("rtfData")), ssPanel(*this, QStringLiteral("ssPanel"), SSPanel::TitleBar),
      cmdTipsClose(ssPanel, QStringLiteral("cmdTipsClose"), QStringLiteral("X")),
      rtfTips(*this, QStringLiteral("rtfTips")), ssMnuLinks(*this, QStringLiteral("ssMnuLinks")),
      mnuLinks(ssMnuLinks, QStringLiteral("mnuLinks"), layouts::frmIGSteps_mnuLinks),
      imgLogo(*this, QStringLiteral("imgLogo"))
{
    setCaption(QStringLiteral("ISO 14001 - Implementation Guide"));
    setBackColor(0xFFFFFF);
    placeControls();
    wireControls();
}

void frmIGSteps::placeControls()
{
    setDesignSize(8250, 4950);
    gradient.Move(0, 0, 6735, 375);
    pnlNumber.Move(0, 0, 1455, 375);
    pnlHeading.Move(1680, 0, 4935, 375);
    ssMnuLinks.Move(0, 4575, 8250, 375);
    ssMnuLinks.setAlign(AlignedBottom);
    ssPanel.Move(0, 2330, 7815, 330);
    cmdTipsClose.Move(7400, 45, 300, 240);
    rtfTips.Move(0, 2640, 7815, 1935);
    rtfData.Move(240, 1080, 7455, 1335);
    ssMnu.Move(0, 375, 8250, 420);
    mnuNav.setAlign(AlignedAllOver);
    mnuLinks.setAlign(AlignedAllOver);
    imgLogo.Move(6750, 0, 1500, 420);
    for (SSPanel *panel : {&pnlNumber, &pnlHeading, &ssPanel})
        panel->setFont(QStringLiteral("Arial"), 9.75, true);
    cmdTipsClose.setFont(QStringLiteral("Verdana"), 9, true);
    cmdTipsClose.setToolTipText(QStringLiteral("Close the advice"));
    imgLogo.setPicture(QStringLiteral("logo"));
    imgLogo.setPurpose(QStringLiteral("orvane"));
    imgLogo.ZOrderBack(); // the bar covers its foot
    rtfData.setPurpose(QStringLiteral("Page of the guide"));
    rtfTips.setPurpose(QStringLiteral("Advice"));
    mnuNav.setPurpose(QStringLiteral("Views of the step"));
    mnuLinks.setPurpose(QStringLiteral("Related topics, print and close"));
    rtfData.setLocked(true);
    rtfTips.setLocked(true);
    showPane(false);
}

void frmIGSteps::wireControls()
{
    answerTools(mnuNav, *this, &frmIGSteps::mnuNav_Click, QStringLiteral("mnuNav_Click"));
    answerTools(mnuLinks, *this, &frmIGSteps::mnuLinks_Click, QStringLiteral("mnuLinks_Click"));
    answerName(*this, &frmIGSteps::Form_Resize, QStringLiteral("Form_Resize"));
    answerName(*this, &frmIGSteps::cmdTipsClose_Click, QStringLiteral("cmdTipsClose_Click"));
    names().add(QStringLiteral("rtfData_MouseUp"), [this](const CallArguments &arguments) {
        rtfData_MouseUp(arguments.button, arguments.shift, arguments.x, arguments.y);
    });
    wire(cmdTipsClose, &CommandButton::Click, *this, &frmIGSteps::cmdTipsClose_Click);
    wire(rtfData, &RichTextBox::MouseUp, *this, &frmIGSteps::rtfData_MouseUp);
    wire(rtfData, &RichTextBox::MouseMove, *this, &frmIGSteps::rtfData_MouseMove);
    wire(rtfData, &RichTextBox::SelChange, *this, [](frmIGSteps &) { UpdateEditTools(); });
}

void frmIGSteps::showPane(bool visible)
{
    rtfTips.setVisible(visible);
    if (visible) ssPanel.setVisible(true);
    cmdTipsClose.setVisible(visible);
    if (!visible) ssPanel.setVisible(false);
}

double frmIGSteps::roomForText() const
{
    const double foot = rtfTips.Visible() ? ssPanel.Top() : FormHeight;
    return foot - rtfData.Top() - ssMnuLinks.Height();
}

void frmIGSteps::Form_Resize()
{
    const bool first = FormWidth == 0;
    FormWidth = first ? Shared().FrameScaleWidth : static_cast<int>(ScaleWidth());
    FormHeight = first ? Shared().FrameScaleHeight : static_cast<int>(ScaleHeight());
    resumeNext([this] { rtfData.setHeight(roomForText()); });
    if (ssMnu.Width() == FormWidth && !rtfTips.Visible()) return;
    resumeNext([this] { ssMnu.setWidth(FormWidth); });
    if (WindowState() == Minimized) return;
    layOut();
}

void frmIGSteps::layOut()
{
    resumeNext([this] { rtfData.setWidth(FormWidth - 220); });
    resumeNext([this] { rtfData.setTop(ssMnu.Height() + ssMnu.Top()); });
    resumeNext([this] { rtfTips.setWidth(FormWidth); });
    resumeNext([this] { ssPanel.setWidth(FormWidth); });
    resumeNext([this] { imgLogo.setLeft(FormWidth - imgLogo.Width()); });
    resumeNext([this] { pnlHeading.setWidth(FormWidth - imgLogo.Width() - pnlNumber.Width()); });
    resumeNext([this] { rtfTips.setTop(FormHeight - rtfTips.Height() - ssMnuLinks.Height()); });
    resumeNext([this] { cmdTipsClose.setLeft(ssPanel.Width() - cmdTipsClose.Width() - 38); });
    resumeNext([this] { cmdTipsClose.setTop(45); });
    resumeNext([this] { ssPanel.setTop(rtfTips.Top() - ssPanel.Height()); });
    resumeNext([this] { rtfData.setHeight(roomForText()); });
    resumeNext([this] { rtfData.setRightMargin(Width() - 430); });
    resumeNext([this] { gradient.setWidth(imgLogo.Left()); });
}

} // namespace orvane
