// The one bar of the print preview.
#pragma once

#include "platform/controls/bars/ToolTable.h"

namespace orvane::layouts
{

extern const BarTable frmPrint_mnuPrintPreview;

} // namespace orvane::layouts
