// The user's name and company, as documents and the next session know them.
#pragma once

#include "platform/controls/CommandButton.h"
#include "platform/controls/Label.h"
#include "platform/controls/text/TextBox.h"
#include "platform/forms/Window.h"

namespace orvane
{

class frmProperties : public Window
{
public:
    frmProperties();

    // In the order in which Tab reaches them.
    Label lblName;
    TextBox txtUserName;
    CommandButton cmdOK;
    CommandButton cmdCancel;
    TextBox txtUserCompany;
    Label lblCompany;

    void cmdOK_Click(); // also pressed by the tour
    void cmdCancel_Click();

protected:
    void Form_Load() override;
    void Form_KeyDown(int keyCode, int shift) override;

private:
    void placeControls();
    void dressControls();
    void readDetails();
};

} // namespace orvane
