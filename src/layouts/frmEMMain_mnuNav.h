// The page tools of an Environment Manual window. Bands and the three page tools are reached by index.
#pragma once

#include "platform/controls/bars/ToolTable.h"

namespace orvane::layouts
{

extern const BarTable frmEMMain_mnuNav;

} // namespace orvane::layouts
