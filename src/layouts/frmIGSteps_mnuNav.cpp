#include "layouts/frmIGSteps_mnuNav.h"

namespace orvane::layouts
{

namespace
{

// A row fills its lines; the formatter would give each attribute a line of its own.
// clang-format off
constexpr ToolRow navRows[] = {
    {.id = 1, .name = u"Requirement", .caption = u"The Requirement in brief...",
     .tooltip = u"The Requirement in brief...", .description = u"", .category = u"", .toolTag = 127, .flyout = u"",
     .enabled = true, .checked = true, .groupStart = false, .kind = ToolKind::Button, .width = -1,
     .image = u"requirement"},
    {.id = 2, .name = u"Procedure", .caption = u"Do I need a Procedure?...", .tooltip = u"Do I need a Procedure?...",
     .description = u"", .category = u"", .toolTag = 104, .flyout = u"", .enabled = true, .checked = false,
     .groupStart = true, .kind = ToolKind::Button, .width = -1, .image = u"procedure"},
    {.id = 3, .name = u"Implementation", .caption = u"Implementation action...", .tooltip = u"Implementation action...",
     .description = u"", .category = u"", .toolTag = 105, .flyout = u"", .enabled = true, .checked = false,
     .groupStart = true, .kind = ToolKind::Button, .width = -1, .image = u"implementation"},
    {.id = 4, .name = u"Tips", .caption = u"     Hot Tips...   ", .tooltip = u"Hot Tips...", .description = u"",
     .category = u"", .toolTag = 107, .flyout = u"", .enabled = true, .checked = false, .groupStart = true,
     .kind = ToolKind::Button, .width = -1, .image = u"tips"},
    {.id = 7, .name = u"First", .caption = u"First", .tooltip = u"First", .description = u"",
     .category = u"Naviagation", .toolTag = 900, .flyout = u"", .enabled = true, .checked = false, .groupStart = true,
     .kind = ToolKind::Button, .width = -1, .image = u"first"},
    {.id = 5, .name = u"Prev", .caption = u"Previous", .tooltip = u"Previous", .description = u"",
     .category = u"Naviagation", .toolTag = 900, .flyout = u"", .enabled = true, .checked = false, .groupStart = false,
     .kind = ToolKind::Button, .width = -1, .image = u"previous"},
    {.id = 6, .name = u"Next", .caption = u"Next", .tooltip = u"Next", .description = u"", .category = u"Naviagation",
     .toolTag = 900, .flyout = u"", .enabled = true, .checked = false, .groupStart = false, .kind = ToolKind::Button,
     .width = -1, .image = u"next"},
    {.id = 8, .name = u"Last", .caption = u"Last", .tooltip = u"Last", .description = u"", .category = u"Naviagation",
     .toolTag = 900, .flyout = u"", .enabled = true, .checked = false, .groupStart = false, .kind = ToolKind::Button,
     .width = -1, .image = u"last"},
};

constexpr BandRow bands[] = {
    {.name = u"Nav", .caption = u"Nav", .width = 191, .height = 136, .tools = navRows},
};
// clang-format on

} // namespace

constexpr BarTable frmIGSteps_mnuNav = bands;

} // namespace orvane::layouts
