// The one bar of the print preview.
#pragma once

#include "platform/controls/ToolTable.h"

namespace orvane::layouts
{

extern const BarTable frmPrint_mnuPrintPreview;

} // namespace orvane::layouts
