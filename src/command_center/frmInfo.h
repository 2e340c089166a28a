// The intro: a picture of the whole system and the gate to the tour. Leaving it brings the frame, the diagram and the
// console up.
#pragma once

#include "platform/controls/Label.h"
#include "platform/controls/TimerControl.h"
#include "platform/controls/pictures/Image.h"
#include "platform/forms/Window.h"

namespace orvane
{

class frmInfo : public Window
{
public:
    frmInfo();

    Image Image1;
    Label lblBtn; // lies over the picture's red dot
    TimerControl Timer1;

protected:
    void Form_Load() override;
    void Form_QueryUnload(bool &cancel, int mode) override;
    void Form_Unload(bool &cancel) override;
    void Form_KeyPress(int keyAscii) override;

private:
    void leaveByUser();
    void Timer1_Timer();
    void showSystem();
    void placeConsole();
};

} // namespace orvane
