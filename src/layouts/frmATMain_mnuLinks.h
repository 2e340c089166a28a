// Related topics, printing and Close of an Action Tools window. A link's tag is the section code behind a leading 1: by
// its four digits the window tells a link from its other tools.
#pragma once

#include "platform/controls/bars/ToolTable.h"

namespace orvane::layouts
{

extern const BarTable frmATMain_mnuLinks;

} // namespace orvane::layouts
