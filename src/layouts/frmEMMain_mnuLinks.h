// Related topics, printing, the two versions and Close of an Environment Manual window. Save is reached by index: band
// 0, tool 3.
#pragma once

#include "platform/controls/bars/ToolTable.h"

namespace orvane::layouts
{

extern const BarTable frmEMMain_mnuLinks;

} // namespace orvane::layouts
