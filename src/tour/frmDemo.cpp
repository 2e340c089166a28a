#include "tour/frmDemo.h"

#include "platform/controls/Colour.h"
#include "platform/controls/Palette.h"
#include "platform/forms/DefaultInstance.h"
#include "platform/forms/Wiring.h"
#include "shell/HelpKey.h"
#include "shell/mdiMain.h"
#include "tour/modDemo.h"

namespace orvane
{

frmDemo::frmDemo()
    : Window(QStringLiteral("frmDemo"), FixedBorder), Header(*this, QStringLiteral("Header")),
      rtf(*this, QStringLiteral("rtf")), txtInfo(*this, QStringLiteral("txtInfo"), TextBox::ManyLines),
      pic(*this, QStringLiteral("pic")), cmdGoBack(*this, QStringLiteral("cmdGoBack"), QStringLiteral("Back")),
      cmdPrint(*this, QStringLiteral("cmdPrint"), QStringLiteral("Print")),
      cmdGoNext(*this, QStringLiteral("cmdGoNext"), QStringLiteral("Next")),
      cmdNext(*this, QStringLiteral("cmdNext"), QStringLiteral("Next")),
      cmdClose(*this, QStringLiteral("cmdClose"), QStringLiteral("Close")),
      cmdQuit(*this, QStringLiteral("cmdQuit"), QStringLiteral("Quit")), Label1(*this, QStringLiteral("Label1")),
      txtPrev(*this, QStringLiteral("txtPrev")), Label3(*this, QStringLiteral("Label3")),
      txtTag(*this, QStringLiteral("txtTag")), Label2(*this, QStringLiteral("Label2")),
      txtNext(*this, QStringLiteral("txtNext")), cmdSave(*this, QStringLiteral("cmdSave"), QStringLiteral("Save")),
      FormLock1(*this)
{
    setCaption(QStringLiteral("orvane Quillmark CD DEMO"));
    setTag(QStringLiteral("0"));
    FormLock1.setsettopmost(true);
    setTakesFocus(false); // a step must not draw the user away from a page
    setFixedDesignSize(2955, 4890);
    setBackColor(fromColour(palette::Sand));
    placeControls();
    dressControls();
    wireControls();
}

void frmDemo::placeControls()
{
    Header.Move(0, 0, 2895, 375);
    rtf.Move(120, 420, 2655, 3735);
    txtInfo.Move(120, 1380, 2655, 1695);
    pic.Move(0, 0, 2955, 4275);
    pic.ZOrderBack();
    cmdGoBack.Move(60, 4440, 855, 375);
    cmdPrint.Move(1080, 4440, 855, 375);
    cmdGoNext.Move(2040, 4440, 855, 375);
    cmdNext.Move(1080, 3240, 855, 255);
    cmdClose.Move(1080, 3480, 855, 255);
    cmdQuit.Move(1920, 3960, 855, 255);
    Label1.Move(120, 5040, 1095, 255);
    txtPrev.Move(1440, 4920, 1455, 375);
    Label3.Move(120, 5520, 975, 255);
    txtTag.Move(1440, 5400, 495, 375);
    Label2.Move(120, 6000, 975, 255);
    txtNext.Move(1440, 5880, 1455, 375);
    cmdSave.Move(2040, 6360, 855, 375);
}

void frmDemo::dressControls()
{
    constexpr int HeadingMargin = 4; // pixels
    Header.setFont(QStringLiteral("MS Sans Serif"), 9.75, true);
    Header.setGround(palette::Sand, HeadingMargin);
    Header.setOneLine();
    Header.setPurpose(QStringLiteral("Heading of the step"));
    rtf.setGround(palette::Sand, 0);
    rtf.setPurpose(QStringLiteral("Text of the step"));
    pic.setBackColor(palette::Sand);
    pic.setPurpose(QStringLiteral("Background"));
    txtInfo.setColours(palette::Sand, palette::Ink);
    txtInfo.setLocked(true);
    txtInfo.setPurpose(QStringLiteral("Your dealer"));
    Label1.setCaption(QStringLiteral("Previous"));
    Label3.setCaption(QStringLiteral("Current"));
    Label2.setCaption(QStringLiteral("Next"));
    txtPrev.setPurpose(QStringLiteral("Script of Back"));
    txtTag.setPurpose(QStringLiteral("Tag of the step"));
    txtNext.setPurpose(QStringLiteral("Script of Next"));
    for (TextBox *box : {&txtPrev, &txtTag, &txtNext})
        box->setEnabled(false);
    // These are lower than a line of the font that a desktop may prefer.
    for (CommandButton *button : {&cmdNext, &cmdClose, &cmdQuit})
        button->setFont(QStringLiteral("Arial"), 9, false);
    txtInfo.setVisible(false);
    for (CommandButton *button : {&cmdPrint, &cmdNext, &cmdClose, &cmdQuit})
        button->setVisible(false);
}

void frmDemo::wireControls()
{
    wire(rtf, &RichTextBox::Click, *this, &frmDemo::rtf_Click);
    wire(cmdGoNext, &CommandButton::Click, *this, &frmDemo::cmdGoNext_Click);
    wire(cmdGoBack, &CommandButton::Click, *this, &frmDemo::cmdGoBack_Click);
    wire(cmdPrint, &CommandButton::Click, *this, &frmDemo::cmdPrint_Click);
    wire(cmdNext, &CommandButton::Click, *this, &frmDemo::cmdNext_Click);
    wire(cmdClose, &CommandButton::Click, *this, &frmDemo::cmdClose_Click);
    wire(cmdQuit, &CommandButton::Click, *this, &frmDemo::cmdQuit_Click);
    wire(cmdSave, &CommandButton::Click, *this, &frmDemo::cmdSave_Click);
}

void frmDemo::Form_Load()
{
    FirstClickPending = True;
    setVisible(false);
}

void frmDemo::Form_KeyDown(int keyCode, int)
{
    if (keyCode == KeyF6) Default<mdiMain>().SetFocus();
    answerHelpKey(keyCode);
}

void frmDemo::rtf_Click()
{
    if (FirstClickPending == True) ShowTourStep(QStringLiteral("102"));
    FirstClickPending = False;
}

void frmDemo::cmdNext_Click()
{
    ShowTourStep(QStringLiteral("603"));
}

void frmDemo::cmdClose_Click()
{
    ShowTourStep(QStringLiteral("602"));
}

void frmDemo::cmdQuit_Click()
{
    Unload();
    End();
}

void frmDemo::cmdSave_Click()
{
    SaveTourStep(Tag());
}

} // namespace orvane
