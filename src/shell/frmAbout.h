// What the program is, whose it is, and the way to the machine's System Information tool.
#pragma once

#include "platform/controls/CommandButton.h"
#include "platform/controls/ControlArray.h"
#include "platform/controls/Label.h"
#include "platform/controls/Line.h"
#include "platform/controls/pictures/Image.h"
#include "platform/controls/pictures/PictureBox.h"
#include "platform/forms/Window.h"

namespace orvane
{

class frmAbout : public Window
{
public:
    frmAbout();

    PictureBox Picture1;
    CommandButton cmdOK;
    CommandButton cmdSysInfo;
    Label Label1;
    Label lblWWWAddress;
    Image imgLogo;
    ControlArray<Line> Line1;
    Label lblVersion;
    Label lblDisclaimer;
    Image imgTitle;

    void cmdOK_Click();
    void cmdSysInfo_Click();

    // Starts the tool and doesn't wait for it; a message where there is none or where it can't be started.
    void StartSysInfo();

    // False and an empty result where the key or the value isn't there, or where its data are longer than 1024
    // characters. The hexadecimal of a number follows what result holds before; a value that is neither string nor
    // number leaves it as it is.
    static Boolean16 GetKeyValue(quint32 rootKey, const QString &keyName, const QString &valueName, QString &result);

protected:
    void Form_Load() override;
    void Form_KeyDown(int keyCode, int shift) override;
    void Form_KeyUp(int keyCode, int shift) override;

private:
    void placeControls();
    void addLines();
    void dressPictures();
    void dressLabels();
    void dressButtons();
};

} // namespace orvane
