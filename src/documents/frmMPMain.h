// The Management Procedures window.
#pragma once

#include "documents/PendingWindow.h"

namespace orvane
{

class frmMPMain : public PendingWindow
{
public:
    frmMPMain();
};

} // namespace orvane
