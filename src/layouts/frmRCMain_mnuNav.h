// The page tools of a Records window. They stand there for the likeness with the other windows and do nothing.
#pragma once

#include "platform/controls/bars/ToolTable.h"

namespace orvane::layouts
{

extern const BarTable frmRCMain_mnuNav;

} // namespace orvane::layouts
