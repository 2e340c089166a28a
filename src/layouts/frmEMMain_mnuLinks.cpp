#include "layouts/frmEMMain_mnuLinks.h"

namespace orvane::layouts
{

namespace
{

// A row fills its lines; the formatter would give each attribute a line of its own.
// clang-format off
constexpr ToolRow mnuRelatedRows[] = {
    {.id = 1, .name = u"RelatedTopics", .caption = u"Related Topics...", .tooltip = u"Related Topics",
     .description = u"", .category = u"", .toolTag = 0, .flyout = u"subRelated", .enabled = true, .checked = false,
     .groupStart = false, .kind = ToolKind::Button, .width = -1, .image = u"related"},
    {.id = 8, .name = u"Print", .caption = u"Print Options", .tooltip = u"Print", .description = u"", .category = u"",
     .toolTag = 0, .flyout = u"subPrint", .enabled = true, .checked = false, .groupStart = true,
     .kind = ToolKind::Button, .width = -1, .image = u"print"},
    {.id = 7, .name = u"Mode", .caption = u" Go to Own ", .tooltip = u"Mode", .description = u"", .category = u"",
     .toolTag = 201, .flyout = u"", .enabled = true, .checked = false, .groupStart = true, .kind = ToolKind::Button,
     .width = -1, .image = u"mode"},
    {.id = 11, .name = u"Save", .caption = u"Save", .tooltip = u"Save", .description = u"", .category = u"",
     .toolTag = 0, .flyout = u"", .enabled = true, .checked = false, .groupStart = true, .kind = ToolKind::Button,
     .width = -1, .image = u"save"},
    {.id = 12, .name = u"Close", .caption = u"Close", .tooltip = u"Close", .description = u"", .category = u"temp",
     .toolTag = 207, .flyout = u"", .enabled = true, .checked = false, .groupStart = true, .kind = ToolKind::Button,
     .width = -1, .image = u"close"},
};

constexpr ToolRow subRelatedRows[] = {
    {.id = 2, .name = u"mnuIG", .caption = u"Implementation Guide",
     .tooltip = u"Related Topics on Implementation Guide", .description = u"", .category = u"First Level Options",
     .toolTag = 0, .flyout = u"IGLink", .enabled = true, .checked = false, .groupStart = false,
     .kind = ToolKind::Button, .width = -1, .image = u"guide"},
    {.id = 3, .name = u"mnuEM", .caption = u"Environment Manual", .tooltip = u"Related Topics on Environment Manual",
     .description = u"", .category = u"First Level Options", .toolTag = 0, .flyout = u"EMLink", .enabled = false,
     .checked = false, .groupStart = false, .kind = ToolKind::Button, .width = -1, .image = u"manual"},
    {.id = 4, .name = u"mnuMP", .caption = u"Management Procedures", .tooltip = u"Management Procedures",
     .description = u"", .category = u"First Level Options", .toolTag = 0, .flyout = u"MPLink", .enabled = true,
     .checked = false, .groupStart = false, .kind = ToolKind::Button, .width = -1, .image = u"procedures"},
    {.id = 5, .name = u"mnuAT", .caption = u"Action Tools", .tooltip = u"Action Tools", .description = u"",
     .category = u"First Level Options", .toolTag = 0, .flyout = u"ATLink", .enabled = true, .checked = false,
     .groupStart = false, .kind = ToolKind::Button, .width = -1, .image = u"tools"},
    {.id = 6, .name = u"mnuRC", .caption = u"Records", .tooltip = u"Records", .description = u"",
     .category = u"First Level Options", .toolTag = 0, .flyout = u"RCLink", .enabled = true, .checked = false,
     .groupStart = false, .kind = ToolKind::Button, .width = -1, .image = u"records"},
};

constexpr ToolRow igLinkRows[] = {
    {.id = 15, .name = u"IGlinks", .caption = u"STEP 17 - Emergency Preparedness and Response", .tooltip = u"",
     .description = u"", .category = u"NewTemp", .toolTag = 127, .flyout = u"", .enabled = true, .checked = false,
     .groupStart = false, .kind = ToolKind::Button, .width = -1, .image = u"link"},
};

constexpr ToolRow mpLinkRows[] = {
    {.id = 13, .name = u"btnemp", .caption = u"Emergency Planning", .tooltip = u"", .description = u"",
     .category = u"First Level Options", .toolTag = 311, .flyout = u"", .enabled = true, .checked = false,
     .groupStart = false, .kind = ToolKind::Button, .width = -1, .image = u"link"},
};

constexpr ToolRow atLinkRows[] = {
    {.id = 14, .name = u"btnat", .caption = u"Emergency Plan Ideas", .tooltip = u"", .description = u"",
     .category = u"NewTemp", .toolTag = 406, .flyout = u"", .enabled = true, .checked = false, .groupStart = false,
     .kind = ToolKind::Button, .width = -1, .image = u"link"},
};

constexpr ToolRow rcLinkRows[] = {
    {.id = 16, .name = u"btnRC", .caption = u"Emergency Plan", .tooltip = u"", .description = u"",
     .category = u"NewTemp", .toolTag = 511, .flyout = u"", .enabled = true, .checked = false, .groupStart = false,
     .kind = ToolKind::Button, .width = -1, .image = u"link"},
};

constexpr ToolRow subPrintRows[] = {
    {.id = 9, .name = u"prtPartial", .caption = u"Print Current Page", .tooltip = u"Print the currently active Page",
     .description = u"", .category = u"Print Options", .toolTag = 205, .flyout = u"", .enabled = true, .checked = false,
     .groupStart = false, .kind = ToolKind::Button, .width = -1, .image = u"page"},
    {.id = 10, .name = u"prtComplete", .caption = u"Print Module", .tooltip = u"Print the whole section",
     .description = u"", .category = u"Print Options", .toolTag = 2, .flyout = u"", .enabled = false, .checked = false,
     .groupStart = false, .kind = ToolKind::Button, .width = -1, .image = u"printmodule"},
};

constexpr BandRow bands[] = {
    {.name = u"mnuRelated", .caption = u"Related", .width = 191, .height = 80, .tools = mnuRelatedRows},
    {.name = u"subRelated", .caption = u"Sub Related Menu", .width = 167, .height = 121, .tools = subRelatedRows},
    {.name = u"IGLink", .caption = u"IGLink", .width = 293, .height = 45, .tools = igLinkRows},
    {.name = u"EMLink", .caption = u"EMLink", .width = 163, .height = 52, .tools = {}},
    {.name = u"MPLink", .caption = u"MPLink", .width = 145, .height = 45, .tools = mpLinkRows},
    {.name = u"ATLink", .caption = u"ATLink", .width = 154, .height = 45, .tools = atLinkRows},
    {.name = u"RCLink", .caption = u"RCLink", .width = 125, .height = 45, .tools = rcLinkRows},
    {.name = u"subPrint", .caption = u"Printing Options", .width = 134, .height = 64, .tools = subPrintRows},
};
// clang-format on

} // namespace

constexpr BarTable frmEMMain_mnuLinks = bands;

} // namespace orvane::layouts
