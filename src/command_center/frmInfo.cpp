#include "command_center/frmInfo.h"

#include "command_center/frmCommandCentre.h"
#include "platform/controls/Palette.h"
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

// In the sizes that the splash has just used: each other one would be a font more that a start has to find.
std::vector<PictureWords> pictureWords()
{
    constexpr int Small = 12; // pixels
    constexpr int Usual = 13;
    constexpr int Large = 20;
    return {
        {QStringLiteral("Five modules, one environmental management system"), 592, 39, Small, false, palette::GreyText,
         PictureWords::End},
        {QStringLiteral("Command"), 310, 236, Large, true, palette::Paper},
        {QStringLiteral("Center"), 310, 257, Large, true, palette::Paper},
        {QStringLiteral("Implementation Guide"), 310, 138, Usual, true, palette::Ink},
        {QStringLiteral("Environment Manual"), 510, 210, Usual, true, palette::Ink},
        {QStringLiteral("Management Procedures"), 482, 354, Usual, true, palette::Ink},
        {QStringLiteral("Action Tools"), 138, 354, Usual, true, palette::Ink},
        {QStringLiteral("Records"), 110, 210, Usual, true, palette::Ink},
        {QStringLiteral("Click the red dot to go on"), 310, 437, Usual, true, palette::Ink},
    };
}
} // namespace

frmInfo::frmInfo()
    : Window(QStringLiteral("frmInfo"), NoBorder), Image1(*this, QStringLiteral("Image1")),
      lblBtn(*this, QStringLiteral("lblBtn")), Timer1(QStringLiteral("Timer1"), IntroMilliseconds)
{
    setFixedDesignSize(9315, 6990);
    Image1.Move(0, 0, 9315, 6990);
    Image1.setPicture(QStringLiteral("intro"));
    Image1.setWords(QSizeF(620, 465), pictureWords());
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

// The ways out bring the system up, and nothing else could: the user can't close the intro.
void frmInfo::Form_QueryUnload(bool &cancel, int mode)
{
    if (mode == ByUser) cancel = true;
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
