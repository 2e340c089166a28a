#include "layouts/frmRCMain_mnuNav.h"

namespace orvane::layouts
{

namespace
{

// A row fills its lines; the formatter would give each attribute a line of its own.
// clang-format off
constexpr ToolRow navRows[] = {
    {.id = 7, .name = u"First", .caption = u"First", .tooltip = u"First", .description = u"", .category = u"",
     .toolTag = 0, .flyout = u"", .enabled = true, .checked = false, .groupStart = true, .kind = ToolKind::Button,
     .width = -1, .image = u"first"},
    {.id = 5, .name = u"Prev", .caption = u"Previous", .tooltip = u"Previous", .description = u"", .category = u"",
     .toolTag = 0, .flyout = u"", .enabled = true, .checked = false, .groupStart = false, .kind = ToolKind::Button,
     .width = -1, .image = u"previous"},
    {.id = 6, .name = u"Next", .caption = u"Next", .tooltip = u"Next", .description = u"", .category = u"",
     .toolTag = 0, .flyout = u"", .enabled = true, .checked = false, .groupStart = false, .kind = ToolKind::Button,
     .width = -1, .image = u"next"},
    {.id = 8, .name = u"Last", .caption = u"Last", .tooltip = u"Last", .description = u"", .category = u"",
     .toolTag = 0, .flyout = u"", .enabled = true, .checked = false, .groupStart = false, .kind = ToolKind::Button,
     .width = -1, .image = u"last"},
};

constexpr BandRow bands[] = {
    {.name = u"Nav", .caption = u"Nav", .width = 191, .height = 52, .tools = navRows},
};
// clang-format on

} // namespace

constexpr BarTable frmRCMain_mnuNav = bands;

} // namespace orvane::layouts
