// The Records window: one form, completed or blank, in a container that scrolls.
//
// Which form is on show is the visibility of picRCF and picRCB. The pages for the printer are pictures of their own, in
// boxes that are never shown.
#pragma once

#include "platform/controls/SSPanel.h"
#include "platform/controls/SSScroll.h"
#include "platform/controls/bars/ActiveBar.h"
#include "platform/controls/pictures/Image.h"
#include "platform/controls/pictures/PictureBox.h"
#include "platform/forms/MDIChild.h"

namespace orvane
{

class frmRCMain : public MDIChild
{
public:
    frmRCMain();

    SSScroll ssScroll;
    PictureBox picb1a; // the single-page sample; f is completed, b blank
    PictureBox picf1a;
    PictureBox picb2; // pages of the plan
    PictureBox picb1;
    PictureBox picf2;
    PictureBox picf1;
    PictureBox picRCF; // on show
    PictureBox picRCB;
    SSPanel pnlHeading;
    SSPanel pnlNumber;
    ActiveBar mnuLinks;
    Image imgLogo;
    ActiveBar mnuNav; // its tools do nothing

    void Form_Resize() override;
    void mnuLinks_Click(Tool &tool);

protected:
    void Form_Load() override;
    void Form_Activate() override;
    void Form_Deactivate() override;
    void Form_Unload(bool &cancel) override;

private:
    void placeControls();
    void fillPictures();
    void centre(PictureBox &picture) const;
    void centreAtTop(PictureBox &picture) const;
    void print(const PictureBox &onShow, const PictureBox &front, const PictureBox &back);
    void toggleForm(Tool &tool);

    int FormWidth = 0; // twips, 0 before the first layout
    int FormHeight = 0;
    Boolean16 TwoPageRecord; // once set it stays set
};

} // namespace orvane
