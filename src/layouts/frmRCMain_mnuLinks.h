// Printing, the choice of form and Close of a Records window, which has no related topics. The window goes by the
// tools' names, not by their tags.
#pragma once

#include "platform/controls/bars/ToolTable.h"

namespace orvane::layouts
{

extern const BarTable frmRCMain_mnuLinks;

} // namespace orvane::layouts
