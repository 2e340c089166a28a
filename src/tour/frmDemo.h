// The tour's console: floats above the frame and holds the step on show, with Back and Next. Its Tag is the step's
// tag, and its buttons' Tags are the step's scripts.
//
// The last seven controls lie below the window's lower edge: an author who makes the window taller gets them.
#pragma once

#include "platform/controls/CommandButton.h"
#include "platform/controls/Label.h"
#include "platform/controls/pictures/PictureBox.h"
#include "platform/controls/text/RichTextBox.h"
#include "platform/controls/text/TextBox.h"
#include "platform/controls/zelFormLock.h"
#include "platform/forms/Window.h"

namespace orvane
{

class frmDemo : public Window
{
public:
    frmDemo();

    RichTextBox Header;
    RichTextBox rtf;
    TextBox txtInfo;
    PictureBox pic; // behind the others
    CommandButton cmdGoBack;
    CommandButton cmdPrint;
    CommandButton cmdGoNext;
    CommandButton cmdNext;
    CommandButton cmdClose;
    CommandButton cmdQuit;
    Label Label1;
    TextBox txtPrev;
    Label Label3;
    TextBox txtTag;
    Label Label2;
    TextBox txtNext;
    CommandButton cmdSave;
    zelFormLock FormLock1;

    void cmdGoNext_Click();
    void NextClick(const QString &script); // "verb/band/tool" for the window at work; shows no step

protected:
    void Form_Load() override;
    void Form_KeyDown(int keyCode, int shift) override;

private:
    void placeControls();
    void dressControls();
    void wireControls();
    void rtf_Click();
    void cmdGoBack_Click();
    void cmdPrint_Click();
    void cmdNext_Click();
    void cmdClose_Click();
    void cmdQuit_Click();
    void cmdSave_Click();

    Boolean16 FirstClickPending;
};

} // namespace orvane
