#include "layouts/frmMPMain_mnuNav.h"

namespace orvane::layouts
{

namespace
{

// A row fills its lines; the formatter would give each attribute a line of its own.
// clang-format off
constexpr ToolRow navRows[] = {
    {.id = 1, .name = u"Aim", .caption = u"          Aim...         ", .tooltip = u"Aim", .description = u"",
     .category = u"", .toolTag = 311, .flyout = u"", .enabled = true, .checked = true, .groupStart = false,
     .kind = ToolKind::Button, .width = -1, .image = u"aim"},
    {.id = 2, .name = u"Responsibility", .caption = u"  Responsibility... ", .tooltip = u"Responsibility",
     .description = u"", .category = u"", .toolTag = 303, .flyout = u"", .enabled = true, .checked = false,
     .groupStart = true, .kind = ToolKind::Button, .width = -1, .image = u"responsibility"},
    {.id = 3, .name = u"Method", .caption = u"        Method...      ", .tooltip = u"Method", .description = u"",
     .category = u"", .toolTag = 304, .flyout = u"", .enabled = true, .checked = false, .groupStart = true,
     .kind = ToolKind::Button, .width = -1, .image = u"method"},
    {.id = 9, .name = u"Records", .caption = u"     Records...    ", .tooltip = u"Records", .description = u"",
     .category = u"", .toolTag = 305, .flyout = u"", .enabled = true, .checked = false, .groupStart = true,
     .kind = ToolKind::Button, .width = -1, .image = u"records"},
    {.id = 10, .name = u"References", .caption = u"   References...", .tooltip = u"References", .description = u"",
     .category = u"", .toolTag = 306, .flyout = u"", .enabled = true, .checked = false, .groupStart = true,
     .kind = ToolKind::Button, .width = -1, .image = u"references"},
    {.id = 7, .name = u"First", .caption = u"First", .tooltip = u"First", .description = u"", .category = u"",
     .toolTag = 900, .flyout = u"", .enabled = true, .checked = false, .groupStart = true, .kind = ToolKind::Button,
     .width = -1, .image = u"first"},
    {.id = 5, .name = u"Prev", .caption = u"Previous", .tooltip = u"Previous", .description = u"", .category = u"",
     .toolTag = 900, .flyout = u"", .enabled = true, .checked = false, .groupStart = false, .kind = ToolKind::Button,
     .width = -1, .image = u"previous"},
    {.id = 6, .name = u"Next", .caption = u"Next", .tooltip = u"Next", .description = u"", .category = u"",
     .toolTag = 900, .flyout = u"", .enabled = true, .checked = false, .groupStart = false, .kind = ToolKind::Button,
     .width = -1, .image = u"next"},
    {.id = 8, .name = u"Last", .caption = u"Last", .tooltip = u"Last", .description = u"", .category = u"",
     .toolTag = 900, .flyout = u"", .enabled = true, .checked = false, .groupStart = false, .kind = ToolKind::Button,
     .width = -1, .image = u"last"},
};

constexpr BandRow bands[] = {
    {.name = u"Nav", .caption = u"Nav", .width = 191, .height = 164, .tools = navRows},
};
// clang-format on

} // namespace

constexpr BarTable frmMPMain_mnuNav = bands;

} // namespace orvane::layouts
