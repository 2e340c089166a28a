#include "documents/frmMPMain.h"

#include "documents/ModuleWindow.h"
#include "documents/pages/ProcedurePages.h"
#include "layouts/frmMPMain_mnuLinks.h"
#include "layouts/frmMPMain_mnuNav.h"
#include "platform/forms/Wiring.h"
#include "shell/ModulePrefixes.h"
#include "shell/SharedState.h"
#include "shell/modFunctions.h"
#include "tour/modDemo.h"

#include <map>

namespace orvane
{

namespace
{
constexpr int ProceduresModule = 3;
constexpr int CloseTag = 307;
constexpr int ModeTag = 302;
constexpr int LastPrintTag = 2;

QString designDate()
{
    return QStringLiteral("99/03/31");
}
} // namespace

frmMPMain::frmMPMain()
    : VersionedWindow({QStringLiteral("frmMPMain"), layouts::frmMPMain_mnuNav, layouts::frmMPMain_mnuLinks,
                       ProceduresModule, designDate()}),
      pnlTools(*this, QStringLiteral("pnlTools"))
{
    setCaption(QStringLiteral("Management Procedures"));
    setDesignSize(9135, 5850);
    gradient.Move(0, 0, 6855, 375);
    imgLogo.Move(6840, 0, 1500, 420);
    pnlTools.Move(0, 375, 7935, 420);
    pnlTools.ZOrderBack();
    rtfData.Move(0, 720, 8415, 3015);
    ssMnuLinks.Move(0, 3960, 7950, 375);
    pnlBottom.Move(0, 9360, 9300, 420);
    txtDate.setTabAfter(txtAuthorized);
    txtIssue.setTabAfter(txtDate);
    answerName(*this, &frmMPMain::QuitSaveData, QStringLiteral("QuitSaveData"));
}

void frmMPMain::Form_Load()
{
    Dirty = False;
    rtfData.setLocked(true);
    rtfData.setTextRTF(pages::procedureAim());
    setFields(designDate());
    pnlHeading.setCaption(QStringLiteral("Emergency Planning"));
    pnlNumber.setCaption(QStringLiteral("C11"));
    mnuNav.RecalcLayout();
    mnuLinks.Bands(0).setVisible(true);
    setTag(prefix::Procedures() + Shared().TitleText);
    setCaption(Shared().TitleText);
    rtfData.setEditingEnabled(false);
    saveTool().setEnabled(false);
    if (Shared().UserDetailsSaved == False) nameModeTool();
    Shared().UserDetailsSaved = False;
    UpdateEditTools();
    showLongDate();
    setWindowState(Maximized);
    FormWidth = 0;
    FormHeight = 0;
    Form_Resize();
}

void frmMPMain::Form_Activate()
{
    module::activate(*this, QStringLiteral("MP"));
}

void frmMPMain::Form_Unload(bool &)
{
    repairDate();
    Dirty = False;
    mnuLinks.Bands(0).setVisible(false);
    Hide();
    RemoveWindowTool(Tag());
    saveTool().setEnabled(false);
}

Tool &frmMPMain::saveTool() const
{
    return mnuLinks.Bands(0).Tools(QStringLiteral("Save"));
}

bool frmMPMain::showPage(const QString &name)
{
    static const std::map<QString, QString (*)()> contents{
        {QStringLiteral("Aim"), pages::procedureAim},
        {QStringLiteral("Responsibility"), pages::procedureResponsibility},
        {QStringLiteral("Method"), pages::procedureMethod},
        {QStringLiteral("Records"), pages::procedureRecords},
        {QStringLiteral("References"), pages::procedureReferences}};
    const auto page = contents.find(name);
    if (page == contents.end()) return false;
    rtfData.setTextRTF(page->second());
    return true;
}

// A page change keeps what stands in the fields.
void frmMPMain::mnuNav_Click(Tool &tool)
{
    ShowTourStep(QString::number(tool.ToolTag()));
    if (isOwn()) markSaved();
    if (!module::isPagingTool(tool.Name())) check(tool);
    showPage(tool.Name());
    showLongDate();
}

void frmMPMain::mnuLinks_Click(Tool &tool)
{
    ShowTourStep(QString::number(tool.ToolTag()));
    const int tag = tool.ToolTag();
    if (tag == CloseTag) {
        module::close(*this);
    } else if (tag == ModeTag) {
        handleLinkTool(tool);
    } else if (tag > LastPrintTag) {
        OpenFromTool(tool);
    } else if (tag == 1 || tag == LastPrintTag) {
        ShowTourStep(QStringLiteral("310"));
        markSaved();
        print();
    } else {
        handleLinkTool(tool);
    }
}

void frmMPMain::save()
{
    markSaved();
}

void frmMPMain::QuitSaveData()
{
    markSaved();
}

} // namespace orvane
