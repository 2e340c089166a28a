#include "documents/frmRCMain.h"

#include "documents/ModuleWindow.h"
#include "layouts/frmRCMain_mnuLinks.h"
#include "layouts/frmRCMain_mnuNav.h"
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

constexpr double PlanSection = 511;
constexpr double AspectsSection = 519;
constexpr double LineStep = 150;
constexpr double PageStep = 750;

// Of the module opened last, which need not be that of the window that asks.
double sectionNow()
{
    return toNumber(Shared().SectionText);
}

} // namespace

frmRCMain::frmRCMain()
    : MDIChild(Default<mdiMain>(), QStringLiteral("frmRCMain")), ssScroll(*this, QStringLiteral("ssScroll")),
      picb1a(ssScroll, QStringLiteral("picb1a")), picf1a(ssScroll, QStringLiteral("picf1a")),
      picb2(ssScroll, QStringLiteral("picb2")), picb1(ssScroll, QStringLiteral("picb1")),
      picf2(ssScroll, QStringLiteral("picf2")), picf1(ssScroll, QStringLiteral("picf1")),
      picRCF(ssScroll, QStringLiteral("picRCF")), picRCB(ssScroll, QStringLiteral("picRCB")),
      pnlHeading(*this, QStringLiteral("pnlHeading")), pnlNumber(*this, QStringLiteral("pnlNumber")),
      mnuLinks(*this, QStringLiteral("mnuLinks"), layouts::frmRCMain_mnuLinks),
      imgLogo(*this, QStringLiteral("imgLogo")), mnuNav(*this, QStringLiteral("mnuNav"), layouts::frmRCMain_mnuNav)
{
    setCaption(QStringLiteral("Records"));
    setBackColor(0xFFFFFF);
    fillPictures();
    placeControls();
    answerTools(mnuLinks, *this, &frmRCMain::mnuLinks_Click, QStringLiteral("mnuLinks_Click"));
    answerName(*this, &frmRCMain::Form_Resize, QStringLiteral("Form_Resize"));
}

void frmRCMain::fillPictures()
{
    for (PictureBox *box : {&picb1a, &picf1a, &picb2, &picb1, &picf2, &picf1, &picRCF, &picRCB}) {
        box->setPicture(PictureObject::stored(box->Name()));
        box->setVisible(box == &picRCF);
    }
    picRCF.Move(0, 0, 11400, 17655);
    picRCB.Move(2520, 0, 11400, 17655);
    picRCF.setAutoSize(true);
    picRCB.setAutoSize(true);
    picRCF.setPurpose(QStringLiteral("Completed record"));
    picRCB.setPurpose(QStringLiteral("Blank record"));
}

// Once it fills the window, the container covers the logo and the two panels, which bear nothing here.
void frmRCMain::placeControls()
{
    setDesignSize(8250, 6345);
    ssScroll.Move(0, 0, 7080, 6345);
    ssScroll.setSteps(LineStep, PageStep);
    ssScroll.setBackColor(0xFFFFFF);
    ssScroll.setPurpose(QStringLiteral("Record"));
    pnlHeading.Move(1440, 0, 4935, 375);
    pnlNumber.Move(0, 0, 1455, 375);
    pnlHeading.setDataField(QStringLiteral("StepDesc"));
    pnlNumber.setDataField(QStringLiteral("IGStepCode"));
    imgLogo.Move(6750, 0, 1500, 420);
    imgLogo.setPicture(QStringLiteral("logo"));
    imgLogo.setPurpose(QStringLiteral("orvane"));
    for (Control *covered : std::initializer_list<Control *>{&pnlHeading, &pnlNumber, &imgLogo})
        covered->ZOrderBack();
    mnuLinks.setPurpose(QStringLiteral("Print, choice of form and close"));
    mnuNav.setPurpose(QStringLiteral("Pages"));
}

void frmRCMain::Form_Load()
{
    ssScroll.setAlign(AlignedAllOver); // until now it has its size in the design
    pnlNumber.setDataField(QStringLiteral("Section"));
    pnlHeading.setDataField(QStringLiteral("Title"));
    if (sectionNow() != PlanSection) {
        picRCB.setPicture(picb1a.Picture());
        picRCF.setPicture(picf1a.Picture());
    }
    setTag(prefix::Records() + Shared().TitleText);
    setCaption(Shared().TitleText);
    mnuLinks.Bands(0).setVisible(true);
    mnuLinks.Bands(0).setDockingArea(DockedBottom);
    mnuLinks.RecalcLayout();
    ssScroll.setScrollHeight(static_cast<int>(picRCF.Height()));
    ssScroll.setScrollWidth(static_cast<int>(picRCF.Width()));
    setWindowState(Maximized);
    FormWidth = 0;
    FormHeight = 0;
    Form_Resize();
}

// A picture as wide or as high as the window, or wider and less high, stays where it is.
void frmRCMain::Form_Resize()
{
    const bool first = FormWidth == 0;
    FormWidth = first ? Shared().FrameScaleWidth : static_cast<int>(ScaleWidth());
    FormHeight = first ? Shared().FrameScaleHeight : static_cast<int>(ScaleHeight());
    if (WindowState() == Minimized) return;
    if (picRCF.Width() < FormWidth && picRCF.Height() < FormHeight) {
        resumeNext([this] { centre(picRCF); });
        resumeNext([this] { centre(picRCB); });
    }
    if (picRCF.Width() < FormWidth && picRCF.Height() > FormHeight) {
        resumeNext([this] { centreAtTop(picRCF); });
        resumeNext([this] { centreAtTop(picRCB); });
    }
    if (picRCF.Width() > FormWidth && picRCF.Height() > FormHeight) {
        resumeNext([this] { picRCF.Move(0, 0, picRCF.Width(), picRCF.Height()); });
        resumeNext([this] { picRCB.Move(0, 0, picRCB.Width(), picRCB.Height()); });
    }
}

void frmRCMain::centre(PictureBox &picture) const
{
    const double left = (FormWidth - picture.Width()) / 2;
    const double top = (FormHeight - picture.Height()) / 2;
    picture.Move(left, top, picture.Width(), picture.Height());
}

void frmRCMain::centreAtTop(PictureBox &picture) const
{
    picture.Move((FormWidth - picture.Width()) / 2, 0, picture.Width(), picture.Height());
}

void frmRCMain::Form_Activate()
{
    module::activate(*this, QStringLiteral("RC"));
    resumeNext([this] { ssScroll.setVerticalPosition(0); });
    picRCF.setTop(0);
    picRCB.setTop(0);
}

void frmRCMain::Form_Deactivate()
{
    module::deactivate(*this);
}

void frmRCMain::Form_Unload(bool &)
{
    mnuLinks.Bands(0).setVisible(false);
    Hide();
    RemoveWindowTool(Tag());
}

// The tools are told apart by their names alone.
void frmRCMain::mnuLinks_Click(Tool &tool)
{
    UnloadPrintWindows();
    const QString name = tool.Name();
    if (name == QStringLiteral("Close")) {
        ShowTourStep(sectionNow() == AspectsSection ? QStringLiteral("600") : QStringLiteral("504"));
        module::close(*this);
    } else if (name == QStringLiteral("prtRecordFilled")) {
        print(picRCF, picf1, picf2);
    } else if (name == QStringLiteral("prtRecordBlank")) {
        print(picRCB, picb1, picb2);
    } else if (name == QStringLiteral("vwOption")) {
        toggleForm(tool);
    } else if (name == QStringLiteral("Open")) {
        ShowTourStep(QStringLiteral("503"));
    }
}

void frmRCMain::print(const PictureBox &onShow, const PictureBox &front, const PictureBox &back)
{
    if (sectionNow() == PlanSection) TwoPageRecord = True;
    if (TwoPageRecord == False)
        Default<frmPrint>().PrintRecord(onShow, nullptr);
    else
        Default<frmPrint>().PrintRecord(front, &back);
}

void frmRCMain::toggleForm(Tool &tool)
{
    if (picRCB.Visible()) {
        picRCF.setVisible(true);
        picRCB.setVisible(false);
        tool.setCaption(QStringLiteral("View Blank"));
        tool.setToolTipText(QStringLiteral("View Blank Record"));
    } else {
        ShowTourStep(QStringLiteral("502"));
        picRCB.setVisible(true);
        picRCF.setVisible(false);
        tool.setCaption(QStringLiteral("View Completed"));
        tool.setToolTipText(QStringLiteral("View Completed Record"));
    }
    mnuLinks.RecalcLayout();
}

} // namespace orvane
