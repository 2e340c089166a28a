// How module windows are opened and brought forward.

#include "command_center/frmCommandCentre.h"
#include "documents/frmATMain.h"
#include "documents/frmEMMain.h"
#include "documents/frmIGSteps.h"
#include "documents/frmMPMain.h"
#include "documents/frmRCMain.h"
#include "platform/controls/bars/Tool.h"
#include "platform/forms/DefaultInstance.h"
#include "platform/forms/WindowList.h"
#include "platform/system/Host.h"
#include "platform/system/Number.h"
#include "platform/system/RunTimeError.h"
#include "shell/ModulePrefixes.h"
#include "shell/SharedState.h"
#include "shell/mdiMain.h"
#include "shell/modFunctions.h"

namespace orvane
{

namespace
{
template <class Window>
void openModule(const QString &prefix, const QString &title, const QString &section)
{
    const QString key = prefix + title;
    if (ActivateOpenWindow(key) == True) return;
    auto *window = new Window;
    OpenWindowCore(*window, title, section);
    if (!window->Loaded()) {
        delete window;
        return;
    }
    Shared().DiagramLayoutHeld = True;
    window->Show();
}

Form *windowNamedBy(const Tool &tool)
{
    for (Form *form : Forms())
        if (form->Caption() == tool.Name() || form->Caption() == tool.Caption() || form->Tag() == tool.Name())
            return form;
    return nullptr;
}

void takeSizeOfActive(Form &target)
{
    const MDIChild *active = Default<mdiMain>().ActiveForm();
    if (!active || active->WindowState() != Maximized) return;
    target.setWidth(active->Width());
    target.setHeight(active->Height());
}

void bringForward(Form &target)
{
    takeSizeOfActive(target);
    if (target.WindowState() == Minimized) target.setWindowState(Maximized);
    target.SetFocus();
    if (target.Name() != QStringLiteral("frmCommandCentre")) target.names().call(QStringLiteral("Form_Resize"));
}

Form *windowWithTag(const QString &tag)
{
    for (Form *form : Forms())
        if (form->Tag() == tag) return form;
    return nullptr;
}

void takeSizeUnlessMaximized(Form &target)
{
    try {
        takeSizeOfActive(target);
    } catch (const RunTimeError &error) {
        if (error.Number() != CannotSizeInThisState) throw;
    }
}
} // namespace

void OpenGuide(const QString &title, const QString &section)
{
    openModule<frmIGSteps>(prefix::Guide(), title, section);
}

void OpenManual(const QString &title, const QString &section)
{
    openModule<frmEMMain>(prefix::Manual(), title, section);
}

void OpenProcedures(const QString &title, const QString &section)
{
    openModule<frmMPMain>(prefix::Procedures(), title, section);
}

void OpenTools(const QString &title, const QString &section)
{
    openModule<frmATMain>(prefix::Tools(), title, section);
}

void OpenRecords(const QString &title, const QString &section)
{
    openModule<frmRCMain>(prefix::Records(), title, section);
}

void OpenFromTool(Tool &tool)
{
    const QString section = QString::number(tool.ToolTag());
    switch (section.front().unicode()) {
    case u'1':
        return OpenGuide(tool.Caption(), section);
    case u'2':
        return OpenManual(tool.Caption(), section);
    case u'3':
        return OpenProcedures(tool.Caption(), section);
    case u'4':
        return OpenTools(tool.Caption(), section);
    case u'5':
        return OpenRecords(tool.Caption(), section);
    default:
        break;
    }
    Form *target = windowNamedBy(tool);
    if (!target) return; // the usual end for a tool that only carries a number
    try {
        bringForward(*target);
    } catch (const RunTimeError &) {
        // Ends without a word: the window stays where it is.
    }
}

Boolean16 ActivateOpenWindow(const QString &tagKey)
{
    Form *target = windowWithTag(tagKey);
    if (!target) return False;
    try {
        takeSizeUnlessMaximized(*target);
        if (target->WindowState() == Minimized) target->setWindowState(Normal);
        Shared().DiagramLayoutHeld = True;
        target->SetFocus();
        return True;
    } catch (const RunTimeError &) {
        return False; // the caller opens a second window
    }
}

void OpenWindowCore(MDIChild &window, const QString &title, const QString &section)
{
    try {
        Default<mdiMain>().setMousePointer(HourglassPointer);
        Shared().SectionNumber = toInteger(section);
        Shared().SectionText = section;
        Shared().TitleText = title;
        window.Load();
        Default<mdiMain>().setMousePointer(DefaultPointer);
    } catch (const RunTimeError &error) {
        MsgBox(error.Description());
    }
}

void UnloadPrintWindows()
{
    for (Form *form : Forms())
        if (form->Name() == QStringLiteral("frmPrint")) form->Unload();
}

void ShowDiagram()
{
    Shared().DiagramLayoutHeld = False;
    Default<frmCommandCentre>().setWindowState(Maximized);
}

} // namespace orvane
