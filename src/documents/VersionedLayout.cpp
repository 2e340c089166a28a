// The parts of a window with versions: how they are made and wired, and where they stand in a window of any size.

#include "documents/VersionedWindow.h"
#include "platform/controls/Palette.h"
#include "platform/forms/DefaultInstance.h"
#include "platform/forms/Wiring.h"
#include "platform/system/Dates.h"
#include "shell/SharedState.h"
#include "shell/mdiMain.h"
#include "shell/modFunctions.h"

#include <cmath>

namespace orvane
{

namespace
{
constexpr int PageMargin = 12; // pixels round the text
}

VersionedWindow::VersionedWindow(const VersionedDesign &design)
    : MDIChild(Default<mdiMain>(), design.name), gradient(*this, QStringLiteral("zelGradient"), zelGradient::Strip),
      pnlNumber(gradient, QStringLiteral("pnlNumber")), pnlHeading(gradient, QStringLiteral("pnlHeading")),
      imgLogo(*this, QStringLiteral("imgLogo")), ssMnu(*this, QStringLiteral("ssMnu")),
      mnuNav(ssMnu, QStringLiteral("mnuNav"), design.nav), rtfData(*this, QStringLiteral("rtfData")),
      pnlBottom(*this, QStringLiteral("pnlBottom")), lblIssue(pnlBottom, QStringLiteral("lblIssue")),
      txtIssue(pnlBottom, QStringLiteral("txtIssue")), lblDate(pnlBottom, QStringLiteral("lblDate")),
      txtDate(pnlBottom, QStringLiteral("txtDate")), lblAuthorized(pnlBottom, QStringLiteral("lblAuthorized")),
      txtAuthorized(pnlBottom, QStringLiteral("txtAuthorized")), ssMnuLinks(*this, QStringLiteral("ssMnuLinks")),
      mnuLinks(ssMnuLinks, QStringLiteral("mnuLinks"), design.links), m_design(design)
{
    setBackColor(0xFFFFFF);
    placeControls();
    placeFields();
    wireControls();
}

void VersionedWindow::placeControls()
{
    pnlNumber.Move(0, 0, 1455, 375);
    pnlHeading.Move(1800, 0, 4935, 375);
    ssMnu.Move(0, 360, 7935, 405);
    mnuNav.setAlign(AlignedAllOver);
    mnuLinks.setAlign(AlignedAllOver);
    for (SSPanel *panel : {&pnlNumber, &pnlHeading})
        panel->setFont(QStringLiteral("Arial"), 9.75, true);
    pnlNumber.setDataField(QStringLiteral("Section"));
    pnlHeading.setDataField(QStringLiteral("Title"));
    rtfData.setFont(QStringLiteral("Times New Roman"), 9.75, false);
    rtfData.setGround(palette::White, PageMargin);
    imgLogo.setPicture(QStringLiteral("logo"));
    imgLogo.setPurpose(QStringLiteral("orvane"));
    imgLogo.ZOrderBack(); // the bar covers its foot
    rtfData.setPurpose(QStringLiteral("Page of the document"));
    modeTool().setDescription(QStringLiteral("Mode")); // until a window names the version that it goes to
    mnuNav.setPurpose(QStringLiteral("Pages of the document"));
    mnuLinks.setPurpose(QStringLiteral("Related topics, print, version and close"));
}

void VersionedWindow::placeFields()
{
    lblIssue.Move(120, 90, 465, 195);
    txtIssue.Move(495, 45, 1770, 285);
    lblDate.Move(2400, 90, 495, 255);
    txtDate.Move(2880, 45, 1680, 285);
    lblAuthorized.Move(4680, 90, 1005, 195);
    txtAuthorized.Move(5760, 45, 2715, 285);
    lblIssue.setCaption(QStringLiteral("Issue:"));
    lblDate.setCaption(QStringLiteral("Date:"));
    lblAuthorized.setCaption(QStringLiteral("Authorized by:"));
    for (Label *label : {&lblIssue, &lblDate, &lblAuthorized}) {
        label->setFont(QStringLiteral("MS Sans Serif"), 8.25, false);
        label->setOneLine();
    }
    for (TextBox *box : {&txtIssue, &txtDate, &txtAuthorized})
        box->setFont(QStringLiteral("Arial"), 9, false);
    txtIssue.setPurpose(QStringLiteral("Issue"));
    txtDate.setPurpose(QStringLiteral("Date"));
    txtAuthorized.setPurpose(QStringLiteral("Authorized by"));
    enableFields(false);
}

void VersionedWindow::wireControls()
{
    answerTools<VersionedWindow>(mnuNav, *this, &VersionedWindow::mnuNav_Click, QStringLiteral("mnuNav_Click"));
    answerTools<VersionedWindow>(mnuLinks, *this, &VersionedWindow::mnuLinks_Click, QStringLiteral("mnuLinks_Click"));
    answerName<VersionedWindow>(*this, &VersionedWindow::Form_Resize, QStringLiteral("Form_Resize"));
    const auto typed = [](VersionedWindow &self, auto...) { self.fieldTyped(); };
    wire(txtIssue, &TextBox::KeyPress, *this, typed);
    wire(txtAuthorized, &TextBox::KeyPress, *this, typed);
    wire(txtDate, &TextBox::KeyPress, *this, typed);
    wire(txtDate, &TextBox::KeyUp, *this, typed);
    wire(rtfData, &zelRich::Change, *this, typed);
    wire(rtfData, &zelRich::SelChange, *this, [](VersionedWindow &) { UpdateEditTools(); });
    wire(txtDate, &TextBox::GotFocus, *this, [](VersionedWindow &self) {
        self.txtDate.setText(Format(self.txtDate.Text(), QStringLiteral("yyyy/mm/dd")));
    });
    wire(txtDate, &TextBox::LostFocus, *this, &VersionedWindow::showLongDate);
}

void VersionedWindow::Form_Resize()
{
    const bool first = FormWidth == 0;
    FormWidth = first ? Shared().FrameScaleWidth : static_cast<int>(std::lround(ScaleWidth()));
    FormHeight = first ? Shared().FrameScaleHeight : static_cast<int>(std::lround(ScaleHeight()));
    resumeNext([this] { ssMnu.setWidth(FormWidth); });
    if (WindowState() == Minimized) return;
    layOutStrips();
    layOutFields();
    resumeNext([this] { gradient.setWidth(imgLogo.Left()); });
}

// The heading's own place is not taken off its width: its end runs under the logo.
void VersionedWindow::layOutStrips()
{
    resumeNext([this] { imgLogo.setLeft(FormWidth - imgLogo.Width()); });
    resumeNext([this] { pnlHeading.setWidth(FormWidth - imgLogo.Width() - pnlNumber.Width()); });
    resumeNext([this] { ssMnuLinks.setTop(FormHeight - ssMnuLinks.Height()); });
    resumeNext([this] { ssMnuLinks.setWidth(FormWidth); });
    resumeNext([this] { pnlBottom.setWidth(FormWidth); });
    resumeNext([this] { pnlBottom.setTop(ssMnuLinks.Top() - pnlBottom.Height()); });
    resumeNext([this] { rtfData.setWidth(FormWidth); });
    resumeNext([this] { rtfData.setRightMargin(FormWidth - 430); });
    resumeNext([this] { rtfData.setTop(ssMnu.Top() + ssMnu.Height()); });
    resumeNext([this] { rtfData.setHeight(pnlBottom.Top() - ssMnu.Top() - ssMnu.Height()); });
}

void VersionedWindow::layOutFields()
{
    const double fifth = FormWidth / 5.0;
    const auto behind = [](const Control &control) { return control.Left() + control.Width() + 10; };
    resumeNext([&] { txtIssue.setLeft(behind(lblIssue)); });
    resumeNext([&] { txtIssue.setWidth(fifth - lblIssue.Width() - 10); });
    resumeNext([&] { lblDate.setLeft(behind(txtIssue)); });
    resumeNext([&] { txtDate.setLeft(behind(lblDate)); });
    resumeNext([&] { txtDate.setWidth(fifth - 20); });
    resumeNext([&] { lblAuthorized.setLeft(behind(txtDate)); });
    resumeNext([&] { txtAuthorized.setLeft(behind(lblAuthorized)); });
    resumeNext([&] { txtAuthorized.setWidth(fifth + fifth - lblAuthorized.Width() - 10); });
}

} // namespace orvane
