#include "layouts/frmRCMain_mnuLinks.h"

namespace orvane::layouts
{

namespace
{

// A row fills its lines; the formatter would give each attribute a line of its own.
// clang-format off
constexpr ToolRow mnuRelatedRows[] = {
    {.id = 8, .name = u"Print", .caption = u"Print Options", .tooltip = u"Print", .description = u"", .category = u"",
     .toolTag = 0, .flyout = u"subPrint", .enabled = true, .checked = false, .groupStart = true,
     .kind = ToolKind::Button, .width = -1, .image = u"print"},
    {.id = 15, .name = u"vwOption", .caption = u"View Blank", .tooltip = u"View Blank Record", .description = u"",
     .category = u"", .toolTag = 0, .flyout = u"", .enabled = true, .checked = false, .groupStart = true,
     .kind = ToolKind::Button, .width = 80, .image = u"view"},
    {.id = 11, .name = u"Open", .caption = u"Open Blank", .tooltip = u"Open Blank Record", .description = u"",
     .category = u"", .toolTag = 900, .flyout = u"", .enabled = true, .checked = false, .groupStart = true,
     .kind = ToolKind::Button, .width = -1, .image = u"open"},
    {.id = 12, .name = u"Close", .caption = u"Close", .tooltip = u"Close", .description = u"", .category = u"temp",
     .toolTag = 0, .flyout = u"", .enabled = true, .checked = false, .groupStart = true, .kind = ToolKind::Button,
     .width = -1, .image = u"close"},
};

constexpr ToolRow subPrintRows[] = {
    {.id = 12, .name = u"prtRecordBlank", .caption = u"Print Blank Record", .tooltip = u"Print Blank Record",
     .description = u"", .category = u"Print Options", .toolTag = 0, .flyout = u"", .enabled = true, .checked = false,
     .groupStart = false, .kind = ToolKind::Button, .width = -1, .image = u"page"},
    {.id = 10, .name = u"prtRecordFilled", .caption = u"Print Completed Record", .tooltip = u"Print Completed Record",
     .description = u"", .category = u"Print Options", .toolTag = 2, .flyout = u"", .enabled = true, .checked = false,
     .groupStart = false, .kind = ToolKind::Button, .width = -1, .image = u"document"},
};

constexpr BandRow bands[] = {
    {.name = u"mnuRelated", .caption = u"Related", .width = 191, .height = 80, .tools = mnuRelatedRows},
    {.name = u"subPrint", .caption = u"Printing Options", .width = 161, .height = 64, .tools = subPrintRows},
};
// clang-format on

} // namespace

constexpr BarTable frmRCMain_mnuLinks = bands;

} // namespace orvane::layouts
