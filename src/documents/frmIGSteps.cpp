#include "documents/frmIGSteps.h"

#include "documents/ModuleWindow.h"
#include "documents/pages/GuidePages.h"
#include "layouts/frmIGSteps_mnuLinks.h"
#include "layouts/frmIGSteps_mnuNav.h"
#include "platform/forms/DefaultInstance.h"
#include "platform/system/Number.h"
#include "printing/frmPrint.h"
#include "shell/ModulePrefixes.h"
#include "shell/SharedState.h"
#include "shell/modFunctions.h"
#include "tour/modDemo.h"

namespace orvane
{

namespace
{
constexpr int StepSection = 127;
constexpr int StepTools = 4;
constexpr int PrintBand = 7;

struct PageRow {
    QString section;
    QString number;
    QString heading;
    QString (*page)();
};

const PageRow &pageOf(const QString &section)
{
    static const PageRow introductions[] = {
        {QStringLiteral("101"), QStringLiteral("Section 1"), QStringLiteral("Welcome to orvane"), pages::guideSection1},
        {QStringLiteral("102"), QStringLiteral("Section 2"), QStringLiteral("Using this Guide"), pages::guideSection2},
        {QStringLiteral("103"), QStringLiteral("Section 3"), QStringLiteral("24 Step Summary"), pages::guideSection3},
        {QStringLiteral("104"), QStringLiteral("Section 4"), QStringLiteral("What is ISO 14001?"),
         pages::guideSection4},
    };
    static const PageRow step{{},
                              QStringLiteral("Phase II"),
                              QStringLiteral("Step 17 Emergency Preparedness and Response"),
                              pages::stepRequirement};
    for (const PageRow &row : introductions)
        if (row.section == section) return row;
    return step;
}
} // namespace

void frmIGSteps::Form_Load()
{
    Section = Shared().SectionText;
    if (toNumber(Section) != StepSection) mnuLinks.Bands(PrintBand).Tools(0).setEnabled(false);
    mnuLinks.Bands(PrintBand).Tools(1).setEnabled(false);
    loadPage();
    setTag(prefix::Guide() + Shared().TitleText);
    setCaption(Shared().TitleText);
    UpdateEditTools();
    rtfData.Refresh();
    setWindowState(Maximized);
    FormWidth = 0;
    FormHeight = 0;
    Form_Resize();
}

void frmIGSteps::Form_Activate()
{
    module::activate(*this, QStringLiteral("IGSteps"));
}

void frmIGSteps::Form_Deactivate()
{
    module::deactivate(*this);
}

void frmIGSteps::Form_Unload(bool &)
{
    mnuLinks.Bands(0).setVisible(false);
    Hide();
    RemoveWindowTool(Tag());
}

void frmIGSteps::loadPage()
{
    const PageRow &row = pageOf(Section);
    enableStepTools(row.section.isEmpty());
    pnlNumber.setCaption(row.number);
    pnlHeading.setCaption(row.heading);
    PageRtf = row.page();
    rtfData.setTextRTF(PageRtf);
}

// An introduction has no views, so the check goes back to the first.
void frmIGSteps::enableStepTools(bool enabled)
{
    ToolList &tools = mnuNav.Bands(0).Tools();
    for (int i = 0; i < StepTools; ++i)
        tools.Item(i).setEnabled(enabled);
    if (enabled) return;
    for (int i = 1; i < StepTools; ++i) {
        if (!tools.Item(i).Checked()) continue;
        tools.Item(0).setChecked(true);
        tools.Item(i).setChecked(false);
    }
}

void frmIGSteps::mnuNav_Click(Tool &tool)
{
    const QString name = tool.Name();
    if (module::isPagingTool(name)) {
        cmdTipsClose_Click();
    } else {
        for (int i = 0; i < mnuNav.ToolCount(); ++i)
            mnuNav.Tools(i).setChecked(false);
        tool.setChecked(true);
    }
    ShowTourStep(QString::number(tool.ToolTag()));
    if (name == QStringLiteral("Requirement")) {
        cmdTipsClose_Click();
        loadPage();
    } else if (name == QStringLiteral("Procedure")) {
        showProcedure();
    } else if (name == QStringLiteral("Implementation")) {
        showImplementation();
    } else if (name == QStringLiteral("Tips")) {
        showTips();
    }
}

void frmIGSteps::showProcedure()
{
    cmdTipsClose_Click();
    PageRtf = pages::stepProcedure();
    rtfData.setTextRTF(PageRtf);
    rtfData.Refresh();
}

// The short heading stands only as long as the pane takes to close.
void frmIGSteps::showTips()
{
    rtfData.setTextRTF(pages::tipsHeading());
    cmdTipsClose_Click();
    PageRtf = pages::stepTips();
    rtfData.setTextRTF(PageRtf);
}

void frmIGSteps::cmdTipsClose_Click()
{
    showPane(false);
    Form_Resize();
}

void frmIGSteps::mnuLinks_Click(Tool &tool)
{
    constexpr int CloseTag = 108;
    constexpr int FirstLinkTag = 3;
    ShowTourStep(QString::number(tool.ToolTag()));
    const int tag = tool.ToolTag();
    if (tag == CloseTag) {
        module::close(*this);
    } else if (tag >= FirstLinkTag) {
        OpenFromTool(tool);
    } else if (tag == 1 || tag == 2) {
        ShowTourStep(QStringLiteral("103"));
        Default<frmPrint>().PrintPreview(1, QStringLiteral("1"), 1, 1, pnlNumber.Caption(), pnlHeading.Caption());
    } else if (tool.Caption() == QStringLiteral("Print Current Page") ||
               tool.Caption() == QStringLiteral("Print Section")) {
        Default<frmPrint>().Show();
    }
}

} // namespace orvane
