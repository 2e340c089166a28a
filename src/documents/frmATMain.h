// The Action Tools window: the one checklist T1.C11.
#pragma once

#include "platform/controls/SSPanel.h"
#include "platform/controls/bars/ActiveBar.h"
#include "platform/controls/pictures/Image.h"
#include "platform/controls/pictures/PictureBox.h"
#include "platform/controls/text/RichTextBox.h"
#include "platform/controls/zelGradient.h"
#include "platform/forms/MDIChild.h"

namespace orvane
{

class frmATMain : public MDIChild
{
public:
    frmATMain();

    zelGradient gradient; // named "zelGradient"
    SSPanel pnlNumber;
    SSPanel pnlHeading;
    Image imgLogo;
    SSPanel ssMnu; // an empty bar
    RichTextBox rtfData;
    PictureBox ssMnuLinks;
    ActiveBar mnuLinks;

    void Form_Resize() override;
    void mnuLinks_Click(Tool &tool);

protected:
    void Form_Load() override;
    void Form_Activate() override;
    void Form_Deactivate() override;
    void Form_Unload(bool &cancel) override;

private:
    void placeControls();
    void layOut();
    void followLink(Tool &tool);

    QString PageRtf;
    int FormWidth = 0; // twips, 0 before the first layout
    int FormHeight = 0;
};

} // namespace orvane
