// The notice that something has no live example here. It goes by itself.
#pragma once

#include "platform/controls/Label.h"
#include "platform/controls/TimerControl.h"
#include "platform/controls/pictures/Image.h"
#include "platform/forms/Window.h"

namespace orvane
{

class frmError : public Window
{
public:
    frmError();

    TimerControl Timer1;
    Image Image1;
    Label Label1;

protected:
    void Form_Load() override;
    void Form_QueryUnload(bool &cancel, int mode) override;
    void Form_Unload(bool &cancel) override;
};

} // namespace orvane
