// The page tools of a Management Procedures window. The blanks in the captions set the buttons' widths.
#pragma once

#include "platform/controls/bars/ToolTable.h"

namespace orvane::layouts
{

extern const BarTable frmMPMain_mnuNav;

} // namespace orvane::layouts
