// The view tools of an Implementation Guide window; the first four are reached by index.
#pragma once

#include "platform/controls/bars/ToolTable.h"

namespace orvane::layouts
{

extern const BarTable frmIGSteps_mnuNav;

} // namespace orvane::layouts
