// The Records window.
#pragma once

#include "documents/PendingWindow.h"

namespace orvane
{

class frmRCMain : public PendingWindow
{
public:
    frmRCMain();
};

} // namespace orvane
