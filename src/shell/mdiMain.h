// The frame. It refuses every close: what ends the program is the console's Quit.
#pragma once

#include "platform/controls/bars/ActiveBar.h"
#include "platform/forms/MDIForm.h"

namespace orvane
{

class mdiMain : public MDIForm
{
public:
    mdiMain();

    ActiveBar mnuMain;

    void mnuMain_Click(Tool &tool);
    void FormatSelection(Tool &tool); // for a formatting bar: acts on the screen's active control
    void FontSelection(Tool &tool);
    void ShowTourStepNumber(short tag);

protected:
    void Form_Load() override;
    void Form_Resize() override;
    void Form_QueryUnload(bool &cancel, int mode) override;
    void Form_Unload(bool &cancel) override;
    void Form_KeyDown(int keyCode, int shift) override;

private:
    enum class Afterwards { OpenFromTool, Return };

    Afterwards run(Tool &tool);
    void sendToText(const QString &keys);
    void help(int command);
};

} // namespace orvane
