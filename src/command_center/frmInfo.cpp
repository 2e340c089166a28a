#include "command_center/frmInfo.h"

#include "command_center/frmCommandCentre.h"
#include "platform/forms/DefaultInstance.h"
#include "platform/forms/Wiring.h"
#include "platform/system/Guard.h"
#include "shell/mdiMain.h"
#include "tour/frmDemo.h"
#include "tour/modDemo.h"

namespace orvane
{

namespace
{
constexpr int IntroMilliseconds = 45000;
constexpr int EnterKey = 13;
} // namespace

frmInfo::frmInfo()
    : Window(QStringLiteral("frmInfo"), NoBorder), Image1(*this, QStringLiteral("Image1")),
      lblBtn(*this, QStringLiteral("lblBtn")), Timer1(QStringLiteral("Timer1"), IntroMilliseconds)
{
    setFixedDesignSize(9315, 6990);
    Image1.Move(0, 0, 9315, 6990);
    Image1.setPicture(QStringLiteral("intro"));
    Image1.setPurpose(QStringLiteral("The five modules round the Command Center. Press Enter to go on."));
    lblBtn.Move(3600, 5760, 1815, 495);
    lblBtn.setPurpose(QStringLiteral("Go on"));
    wire(Image1, &Image::Click, *this, &frmInfo::leaveByUser);
    wire(lblBtn, &Label::Click, *this, &frmInfo::leaveByUser);
    wire(Timer1, &TimerControl::Timer, *this, &frmInfo::Timer1_Timer);
}

void frmInfo::Form_Load()
{
    Default<frmDemo>().setVisible(false);
    Timer1.setEnabled(true);
}

void frmInfo::Form_Unload(bool &)
{
    Timer1.setEnabled(false);
}

void frmInfo::Form_KeyPress(int keyAscii)
{
    if (keyAscii == EnterKey) leaveByUser();
}

void frmInfo::leaveByUser()
{
    showSystem();
    ReadDealerData();
    Default<frmDemo>().setVisible(true);
    ShowTourStep(QStringLiteral("101"));
    placeConsole();
    Unload();
}

// Left alone, the intro goes without dealer text and without a first step, on purpose: the console comes up empty.
void frmInfo::Timer1_Timer()
{
    showSystem();
    placeConsole();
    Unload();
}

void frmInfo::showSystem()
{
    Default<mdiMain>().Show();
    Default<frmCommandCentre>().Show();
}

void frmInfo::placeConsole()
{
    const SSPanel &panel = Default<frmCommandCentre>().pnlDiag(1);
    frmDemo &console = Default<frmDemo>();
    console.setTop(panel.Top() + 900);
    console.setLeft(panel.Width() - 300 - console.Width() + panel.Left());
    console.setVisible(true);
}

} // namespace orvane
