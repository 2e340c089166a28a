// The variables that the windows share. All are zero, empty or False before any window runs.
#pragma once

#include "platform/controls/Twips.h"

#include <QString>

namespace orvane
{

struct SharedState {
    int ToolIdCounter = 0;   // next tool id of the Window menu; never falls
    int SectionNumber = 0;   // of the module opened last
    QString SectionText;     // handed to the module window that is being loaded
    QString TitleText;       // likewise
    int FrameScaleWidth = 0; // the frame's inside after its last Resize, whole twips
    int FrameScaleHeight = 0;
    Boolean16 DiagramLayoutHeld; // the diagram's next Resize lays nothing out
    Boolean16 UserDetailsSaved;  // the user details were just confirmed
    Boolean16 TourStepsMuted;    // the tour hears nothing
    Boolean16 DealerTextPresent; // the tour ends with the dealer's lines
};

SharedState &Shared();

} // namespace orvane
