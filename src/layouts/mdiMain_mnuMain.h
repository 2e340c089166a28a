// The frame's one bar: band 0 is the menu bar, the others are its drop-downs and their flyouts, which the diagram
// also pops up. mnuWindow is filled at run time. The bands have no design size; they take the size of their tools.
#pragma once

#include "platform/controls/bars/ToolTable.h"

namespace orvane::layouts
{

extern const BarTable mdiMain_mnuMain;

} // namespace orvane::layouts
