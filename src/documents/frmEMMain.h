// The Environment Manual window.
#pragma once

#include "documents/PendingWindow.h"

namespace orvane
{

class frmEMMain : public PendingWindow
{
public:
    frmEMMain();
};

} // namespace orvane
