// The Action Tools window.
#pragma once

#include "documents/PendingWindow.h"

namespace orvane
{

class frmATMain : public PendingWindow
{
public:
    frmATMain();
};

} // namespace orvane
