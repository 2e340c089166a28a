#include "shell/mdiMain.h"

#include "layouts/mdiMain_mnuMain.h"
#include "platform/forms/DefaultInstance.h"
#include "platform/forms/WindowList.h"
#include "platform/forms/Wiring.h"
#include "shell/HelpKey.h"
#include "shell/SharedState.h"
#include "shell/modFunctions.h"
#include "tour/frmDemo.h"
#include "tour/modDemo.h"

namespace orvane
{

namespace
{
constexpr int FirstRunTimeTool = 35000;
constexpr double LeastWidth = 9500; // twips
constexpr double LeastHeight = 5600;
} // namespace

mdiMain::mdiMain()
    : MDIForm(QStringLiteral("mdiMain")),
      mnuMain(*this, QStringLiteral("mnuMain"), layouts::mdiMain_mnuMain, ActiveBar::MenuBar)
{
    setCaption(QStringLiteral("ORVANE"));
    setDesignSize(15000, 10500);
    setWindowState(Maximized);
    mnuMain.setPurpose(QStringLiteral("Main menu"));
    answerTools(mnuMain, *this, &mdiMain::mnuMain_Click, QStringLiteral("mnuMain_Click"));
    wire(mnuMain, &ActiveBar::Hover, *this, &mdiMain::setStatusText);
}

void mdiMain::Form_Load()
{
    mnuMain.RecalcLayout();
    Shared().ToolIdCounter = FirstRunTimeTool;
}

void mdiMain::Form_Resize()
{
    Default<frmDemo>().setWindowState(WindowState() == Minimized ? Minimized : Normal);
    if (WindowState() == Normal) {
        if (Width() < LeastWidth) setWidth(LeastWidth);
        if (Height() < LeastHeight) setHeight(LeastHeight);
    }
    Shared().FrameScaleWidth = static_cast<int>(ScaleWidth());
    Shared().FrameScaleHeight = static_cast<int>(ScaleHeight());
}

void mdiMain::Form_QueryUnload(bool &cancel, int)
{
    Default<frmDemo>().setVisible(true);
    ShowTourStep(QStringLiteral("603"));
    cancel = true;
}

void mdiMain::Form_Unload(bool &)
{
    Hide();
    for (Form *form : Forms())
        form->Unload();
}

// The console is a window of its own, and the keyboard has to get there too.
void mdiMain::Form_KeyDown(int keyCode, int)
{
    if (keyCode == KeyF6 && Default<frmDemo>().Visible()) Default<frmDemo>().SetFocus();
    answerHelpKey(keyCode);
}

void mdiMain::ShowTourStepNumber(short tag)
{
    ShowTourStep(QString::number(tag));
}

} // namespace orvane
