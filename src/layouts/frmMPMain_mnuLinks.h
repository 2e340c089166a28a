// Related topics, printing, the two versions and Close of a Management Procedures window.
#pragma once

#include "platform/controls/bars/ToolTable.h"

namespace orvane::layouts
{

extern const BarTable frmMPMain_mnuLinks;

} // namespace orvane::layouts
