// The two versions of a document, and its three fields.

#include "documents/VersionedWindow.h"

#include "documents/ModuleWindow.h"
#include "platform/forms/DefaultInstance.h"
#include "platform/system/Dates.h"
#include "printing/frmPrint.h"
#include "shell/modFunctions.h"

namespace orvane
{

namespace
{
constexpr int ModeIndex = 2;

QString longDate()
{
    return QStringLiteral("mmmm d, yyyy");
}
QString captionInMaster()
{
    return QStringLiteral(" Go to Own ");
}
QString captionInOwn()
{
    return QStringLiteral("Go to Master");
}
} // namespace

void VersionedWindow::Form_Deactivate()
{
    module::deactivate(*this);
}

Tool &VersionedWindow::modeTool() const
{
    return mnuLinks.Bands(0).Tools(ModeIndex);
}

void VersionedWindow::nameModeTool()
{
    modeTool().setCaption(isOwn() ? captionInOwn() : captionInMaster());
    modeTool().setDescription(isOwn() ? QStringLiteral("Go to Master Version") : QStringLiteral("Go to Own Version"));
}

void VersionedWindow::setFields(const QString &date)
{
    txtIssue.setText(QStringLiteral("1"));
    txtDate.setText(date);
    txtAuthorized.setText(QStringLiteral("T Hallows"));
}

void VersionedWindow::showLongDate()
{
    txtDate.setText(Format(txtDate.Text(), longDate()));
}

void VersionedWindow::repairDate()
{
    if (!IsDate(txtDate.Text())) txtDate.setText(Date());
    if (txtDate.Text().isEmpty()) txtDate.setText(Date());
}

void VersionedWindow::markSaved()
{
    repairDate();
    Dirty = False;
    saveTool().setEnabled(false);
}

void VersionedWindow::fieldTyped()
{
    Dirty = True;
    saveTool().setEnabled(true);
}

void VersionedWindow::check(Tool &tool)
{
    for (int i = 0; i < mnuNav.ToolCount(); ++i)
        mnuNav.Tools(i).setChecked(false);
    tool.setChecked(true);
}

QString VersionedWindow::checkedPage() const
{
    QString page;
    for (const auto &tool : mnuNav.Bands(0).Tools())
        if (tool->Checked()) page = tool->Name();
    return page;
}

void VersionedWindow::handleLinkTool(Tool &tool)
{
    const QString &caption = tool.Caption();
    if (caption == captionInOwn() || caption == captionInMaster()) {
        switchVersion();
    } else if (caption == QStringLiteral("Save")) {
        save();
    } else if (caption == QStringLiteral("Close")) {
        markSaved();
        CheckWindowTool(Tag(), False, QString());
        Unload();
    }
}

void VersionedWindow::switchVersion()
{
    if (isOwn())
        switchToMaster();
    else
        switchToOwn();
}

void VersionedWindow::switchToOwn()
{
    rtfData.setEditingEnabled(true);
    OwnMode = -1;
    showPage(checkedPage());
    setFields(m_design.switchDate);
    enableFields(true);
    showLongDate();
    rtfData.Refresh();
    rtfData.setLocked(false);
    nameModeTool();
}

void VersionedWindow::switchToMaster()
{
    const QString page = checkedPage();
    rtfData.setEditingEnabled(false);
    markSaved();
    OwnMode = 0;
    showPage(page);
    setFields(m_design.switchDate);
    fieldsReset();
    enableFields(false);
    showLongDate();
    rtfData.Refresh();
    rtfData.setLocked(true);
    nameModeTool();
}

void VersionedWindow::enableFields(bool enabled)
{
    txtIssue.setEnabled(enabled);
    txtAuthorized.setEnabled(enabled);
    txtDate.setEnabled(enabled);
}

void VersionedWindow::print()
{
    constexpr int MasterVersion = 1;
    constexpr int OwnVersion = 2;
    Default<frmPrint>().PrintPreview(m_design.printModule, QStringLiteral("1"), 1, isOwn() ? OwnVersion : MasterVersion,
                                     pnlNumber.Caption(), pnlHeading.Caption());
}

} // namespace orvane
