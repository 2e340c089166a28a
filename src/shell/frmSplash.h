// The splash: what the program is and for whom, while the frame and the diagram are being loaded behind it.
#pragma once

#include "platform/controls/Frame.h"
#include "platform/controls/Label.h"
#include "platform/controls/pictures/Image.h"
#include "platform/controls/pictures/PictureBox.h"
#include "platform/controls/zelGradient.h"
#include "platform/forms/Window.h"

namespace orvane
{

class frmSplash : public Window
{
public:
    frmSplash();

    zelGradient gradient; // named "zelGradient"
    PictureBox Picture1;
    Frame Frame1;
    Label Label1;
    Label lblCompanyProduct;
    Label lblUserName;
    Label lblPlatform;
    Label lblVersion;
    Label lblWarning;
    Label lblCopyright;
    Image imgLogo;
    Label lblUserCompany;
    Image imgTitle;

protected:
    void Form_Load() override;
    void Form_Activate() override;
    void Form_KeyPress(int keyAscii) override;

private:
    void placeControls();
    void dressLabels();
};

} // namespace orvane
