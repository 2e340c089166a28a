// Related topics, printing and Close of an Implementation Guide window. The print tools are reached by index: band 7.
#pragma once

#include "platform/controls/bars/ToolTable.h"

namespace orvane::layouts
{

extern const BarTable frmIGSteps_mnuLinks;

} // namespace orvane::layouts
