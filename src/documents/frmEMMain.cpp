#include "documents/frmEMMain.h"

#include "documents/ModuleWindow.h"
#include "documents/pages/ManualPages.h"
#include "layouts/frmEMMain_mnuLinks.h"
#include "layouts/frmEMMain_mnuNav.h"
#include "shell/ModulePrefixes.h"
#include "shell/SharedState.h"
#include "shell/modFunctions.h"
#include "tour/modDemo.h"

#include <map>

namespace orvane
{

namespace
{
constexpr int ManualModule = 2;
constexpr int PageTools = 3;
constexpr int SaveIndex = 3;
constexpr int CloseTag = 207;
constexpr int ModeTag = 201;
constexpr int PrintPageTag = 205;
constexpr int FirstLinkTag = 3;

QString pageDate()
{
    return QStringLiteral("99/3/31");
}
} // namespace

frmEMMain::frmEMMain()
    : VersionedWindow({QStringLiteral("frmEMMain"), layouts::frmEMMain_mnuNav, layouts::frmEMMain_mnuLinks,
                       ManualModule, pageDate()})
{
    setCaption(QStringLiteral("Environment Manual"));
    setDesignSize(9180, 6960);
    gradient.Move(0, 0, 7575, 375);
    imgLogo.Move(7560, -30, 1500, 420);
    rtfData.Move(0, 720, 8895, 4455);
    pnlBottom.Move(-15, 5985, 9300, 420);
    ssMnuLinks.Move(0, 6480, 9180, 375);
    txtDate.setTabAfter(txtIssue);
    txtAuthorized.setTabAfter(txtDate);
}

void frmEMMain::Form_Load()
{
    Dirty = False;
    rtfData.setLocked(true);
    rtfData.setTextRTF(pages::manualCommitment());
    pnlNumber.setCaption(QStringLiteral("Section 4.4.7"));
    pnlHeading.setCaption(QStringLiteral("Emergency Preparedness and Response"));
    setFields(QStringLiteral("99/03/31"));
    mnuNav.Bands(1).setVisible(false);
    for (int i = 0; i < PageTools; ++i)
        mnuNav.Bands(0).Tools(i).setEnabled(true);
    mnuNav.RecalcLayout();
    mnuLinks.Bands(0).setVisible(true);
    setTag(prefix::Manual() + Shared().TitleText);
    setCaption(Shared().TitleText);
    rtfData.setEditingEnabled(false);
    saveTool().setEnabled(false);
    if (Shared().UserDetailsSaved == False) nameModeTool();
    Shared().UserDetailsSaved = False;
    showLongDate();
    mnuLinks.RecalcLayout();
    mnuLinks.Refresh();
    setWindowState(Maximized);
    FormWidth = 0;
    FormHeight = 0;
    UpdateEditTools();
    rtfData.Refresh();
    Form_Resize();
}

void frmEMMain::Form_Activate()
{
    module::activate(*this, QStringLiteral("EM"));
}

void frmEMMain::Form_Unload(bool &)
{
    repairDate();
    Dirty = False;
    Hide();
    mnuLinks.Bands(0).setVisible(false);
    RemoveWindowTool(Tag());
    saveTool().setEnabled(false);
}

Tool &frmEMMain::saveTool() const
{
    return mnuLinks.Bands(0).Tools(SaveIndex);
}

bool frmEMMain::showPage(const QString &name)
{
    static const std::map<QString, QString (*)()> contents{{QStringLiteral("Commitment"), pages::manualCommitment},
                                                           {QStringLiteral("Procedures"), pages::manualProcedures},
                                                           {QStringLiteral("References"), pages::manualReferences}};
    const auto page = contents.find(name);
    if (page == contents.end()) return false;
    rtfData.setTextRTF(page->second());
    return true;
}

// What was typed counts as not saved, though the tool is disabled; the fields go back to what they were.
void frmEMMain::mnuNav_Click(Tool &tool)
{
    ShowTourStep(QString::number(tool.ToolTag()));
    if (isOwn()) {
        repairDate();
        saveTool().setEnabled(false);
    }
    if (!module::isPagingTool(tool.Name())) check(tool);
    showPage(tool.Name());
    setFields(pageDate());
    showLongDate();
}

void frmEMMain::mnuLinks_Click(Tool &tool)
{
    ShowTourStep(QString::number(tool.ToolTag()));
    const int tag = tool.ToolTag();
    if (tag == 1 || tag == 2 || tag == PrintPageTag) {
        markSaved();
        print();
    } else if (tag == CloseTag) {
        module::close(*this);
    } else if (tag == ModeTag) {
        handleLinkTool(tool);
    } else if (tag < FirstLinkTag) {
        handleLinkTool(tool);
    } else {
        OpenFromTool(tool);
    }
}

void frmEMMain::fieldsReset()
{
    txtIssue.Refresh();
    txtDate.Refresh();
    txtAuthorized.Refresh();
}

} // namespace orvane
