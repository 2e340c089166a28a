#include "command_center/frmCommandCentre.h"

#include "platform/controls/bars/LastInput.h"
#include "platform/forms/DefaultInstance.h"
#include "platform/system/Guard.h"
#include "platform/system/Number.h"
#include "shell/SharedState.h"
#include "shell/mdiMain.h"
#include "shell/modFunctions.h"
#include "tour/frmDemo.h"
#include "tour/modDemo.h"

namespace orvane
{

namespace
{
constexpr double TabPitch = 1920;
constexpr double TabSpan = 9105; // four pitches and the last tab
constexpr double AtMouse = -1;
} // namespace

void frmCommandCentre::Form_Load()
{
    ShowTourStep(QStringLiteral("101"));
    const int current = 1;
    pnlDiag(current).setVisible(true);
    SSRibbon1(current).setFontBold(true);
    for (int i = 2; i <= pnlDiag.Count(); ++i) {
        pnlDiag(i).setTop(pnlDiag(1).Top());
        pnlDiag(i).setLeft(pnlDiag(1).Left());
        pnlDiag(i).setHeight(pnlDiag(1).Height());
        pnlDiag(i).setWidth(pnlDiag(1).Width());
    }
    setWindowState(Maximized);
}

void frmCommandCentre::Form_Activate()
{
    if (WindowState() == Normal) setWindowState(Maximized);
    AddWindowTool(Caption(), QStringLiteral("&") + Caption(), Tag());
    CheckWindowTool(Caption(), True, QStringLiteral("CS"));
    UpdateEditTools();
    cmdCommand(0).SetFocus();
    Default<frmDemo>().setVisible(true);
}

void frmCommandCentre::Form_Deactivate()
{
    CheckWindowTool(Caption(), False, QString());
}

void frmCommandCentre::Form_QueryUnload(bool &cancel, int mode)
{
    if (mode == ByUser) cancel = true;
}

void frmCommandCentre::Form_Resize()
{
    const bool first = m_width == 0;
    m_width = first ? Shared().FrameScaleWidth : static_cast<int>(ScaleWidth());
    m_height = first ? Shared().FrameScaleHeight : static_cast<int>(ScaleHeight());
    if (Shared().DiagramLayoutHeld == True) {
        Shared().DiagramLayoutHeld = False;
        return;
    }
    if (WindowState() == Minimized) return;
    resumeNext([this] { gradient.Move(0, 0, m_width, m_height); });
    layoutTabs();
    for (int i = 1; i <= pnlDiag.Count(); ++i)
        layoutPanel(i);
}

void frmCommandCentre::layoutTabs()
{
    resumeNext([this] { SSRibbon1(1).setLeft((m_width - TabSpan) / 2); });
    for (int i = 2; i <= 5; ++i)
        resumeNext([this, i] { SSRibbon1(i).setLeft(SSRibbon1(i - 1).Left() + TabPitch); });
}

// The margins at right and foot equal the left one. The buttons are centred in the window's width, and deliberately
// not in the panel's.
void frmCommandCentre::layoutPanel(int index)
{
    resumeNext([&] {
        SSPanel &panel = pnlDiag(index);
        panel.Move(pnlDiag(1).Left(), pnlDiag(1).Top(), m_width - 2 * panel.Left(),
                   m_height - panel.Top() - panel.Left());
    });
    resumeNext([&] {
        Frame &buttons = fraButtons(index);
        buttons.Move((m_width - buttons.Width()) / 2, (pnlDiag(1).Height() - buttons.Height()) / 2, buttons.Width(),
                     buttons.Height());
    });
}

void frmCommandCentre::SSRibbon1_Click(int index, Boolean16 value)
{
    ShowTourStep(SSRibbon1(index).Tag());
    SSRibbon1(index).setFontBold(value == True);
    pnlDiag(index).setVisible(value == True);
    // The keyboard goes on from the tab that it pressed.
    if (!LastInput::wasKey() && Default<mdiMain>().ActiveForm() == this) cmdCommand(0).SetFocus();
}

void frmCommandCentre::cmdImp_Click(int index)
{
    OpenGuide(cmdImp(index).Caption(), cmdImp(index).Tag());
}

// After the notice the focus rests. A window that opens takes it along, and Activate puts it to rest on the way back.
void frmCommandCentre::cmdAct_Click(int index)
{
    constexpr int EmergencyPlanIdeas = 7;
    const SSCommand &button = cmdAct(index);
    if (toNumber(button.Tag()) == NoticeTag) {
        ShowTourStep(QStringLiteral("900"));
        cmdCommand(0).SetFocus();
        return;
    }
    OpenTools(button.Caption(), button.Tag());
    if (index == EmergencyPlanIdeas) ShowTourStep(button.Tag());
}

void frmCommandCentre::cmdEnv_Click(int index)
{
    ShowTourStep(cmdEnv(index).Tag());
    cmdCommand(0).SetFocus();
}

// Only element 0 exists, and its press means nothing.
void frmCommandCentre::cmdCommand_Click(int index)
{
    if (index == 0) return;
    cmdCommand(0).SetFocus();
    pnlDiag(0).setVisible(false);
    pnlDiag(index).setVisible(true);
}

void frmCommandCentre::cmdPrc_Click(int index)
{
    if (index == 0) drop(QStringLiteral("CoreProcedures"));
    if (index == 1) drop(QStringLiteral("EnvironmentProcedures"));
}

void frmCommandCentre::cmdRec_Click(int index)
{
    if (index == 0) drop(QStringLiteral("CoreRecords"));
    if (index == 1) drop(QStringLiteral("EnvironmentRecords"));
}

void frmCommandCentre::dropAnnexes()
{
    drop(QStringLiteral("subAnnexes"));
}

void frmCommandCentre::drop24Steps()
{
    drop(QStringLiteral("sub24Steps"));
}

void frmCommandCentre::dropIntroduction()
{
    drop(QStringLiteral("subIntroduction"));
}

void frmCommandCentre::dropRequirements()
{
    drop(QStringLiteral("subManagementSystemRequirements"));
}

void frmCommandCentre::restFocus(int)
{
    cmdCommand(0).SetFocus();
}

// What was chosen may have opened a window, which then keeps the focus: taking it back would call the diagram forward.
void frmCommandCentre::drop(const QString &band)
{
    mdiMain &frame = Default<mdiMain>();
    frame.mnuMain.Bands(band).PopupMenu(AtMouse, AtMouse);
    if (frame.ActiveForm() == this) cmdCommand(0).SetFocus();
}

} // namespace orvane
