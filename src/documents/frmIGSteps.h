// The Implementation Guide: one of four introductory sections, or the guide's step with its four views.
//
// The view on show is the checked tool of mnuNav; the state of the advice pane is the caption of ssPanel.
#pragma once

#include "platform/controls/CommandButton.h"
#include "platform/controls/SSPanel.h"
#include "platform/controls/bars/ActiveBar.h"
#include "platform/controls/pictures/Image.h"
#include "platform/controls/pictures/PictureBox.h"
#include "platform/controls/text/RichTextBox.h"
#include "platform/controls/zelGradient.h"
#include "platform/forms/MDIChild.h"

namespace orvane
{

class frmIGSteps : public MDIChild
{
public:
    frmIGSteps();

    zelGradient gradient; // named "zelGradient"
    SSPanel pnlNumber;
    SSPanel pnlHeading;
    SSPanel ssMnu;
    ActiveBar mnuNav;
    RichTextBox rtfData;
    SSPanel ssPanel;
    CommandButton cmdTipsClose;
    RichTextBox rtfTips;
    PictureBox ssMnuLinks;
    ActiveBar mnuLinks;
    Image imgLogo;

    void Form_Resize() override;
    void mnuNav_Click(Tool &tool);
    void mnuLinks_Click(Tool &tool);
    void cmdTipsClose_Click();
    void rtfData_MouseUp(int button, int shift, float x, float y);
    void rtfData_MouseMove(int button, int shift, float x, float y);

protected:
    void Form_Load() override;
    void Form_Activate() override;
    void Form_Deactivate() override;
    void Form_Unload(bool &cancel) override;

private:
    void placeControls();
    void wireControls();
    void loadPage();
    void enableStepTools(bool enabled);
    void showProcedure();
    void showImplementation();
    void showTips();
    void showPane(bool visible);
    void layOut();
    double roomForText() const;

    QString Section;
    QString PageRtf;
    int FormWidth = 0; // twips, 0 before the first layout
    int FormHeight = 0;
};

} // namespace orvane
