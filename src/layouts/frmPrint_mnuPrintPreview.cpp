#include "layouts/frmPrint_mnuPrintPreview.h"

namespace orvane::layouts
{

namespace
{

// A row fills its lines; the formatter would give each attribute a line of its own.
// clang-format off
constexpr ToolRow bndPreviewRows[] = {
    {.id = 20009, .name = u"pagesetup", .caption = u"Page Setup...", .tooltip = u"Page Setup",
     .description = u"Set up page properties", .category = u"File", .toolTag = 0, .flyout = u"", .enabled = true,
     .checked = false, .groupStart = false, .kind = ToolKind::Button, .width = -1, .image = u"pagesetup"},
    {.id = 20008, .name = u"print", .caption = u"Print...", .tooltip = u"Print", .description = u"Print current file",
     .category = u"File", .toolTag = 0, .flyout = u"", .enabled = true, .checked = false, .groupStart = false,
     .kind = ToolKind::Button, .width = -1, .image = u"print"},
    {.id = 5, .name = u"Prev", .caption = u"Previous", .tooltip = u"Previous", .description = u"",
     .category = u"Naviagation", .toolTag = 0, .flyout = u"", .enabled = true, .checked = false, .groupStart = true,
     .kind = ToolKind::Button, .width = -1, .image = u"previous"},
    {.id = 1, .name = u"PageNumber", .caption = u"Page Number", .tooltip = u"Page Number",
     .description = u"Changes the current page", .category = u"", .toolTag = 0, .flyout = u"", .enabled = true,
     .checked = false, .groupStart = false, .kind = ToolKind::TextBox, .width = 30, .image = u"page"},
    {.id = 6, .name = u"Next", .caption = u"Next", .tooltip = u"Next", .description = u"", .category = u"Naviagation",
     .toolTag = 0, .flyout = u"", .enabled = true, .checked = false, .groupStart = false, .kind = ToolKind::Button,
     .width = -1, .image = u"next"},
    {.id = 20075, .name = u"miZoom", .caption = u"&Zoom", .tooltip = u"Zoom", .description = u"Zoom level",
     .category = u"View", .toolTag = 0, .flyout = u"", .enabled = true, .checked = false, .groupStart = true,
     .kind = ToolKind::ComboBox, .width = -1, .image = u"zoom"},
    {.id = 20002, .name = u"close", .caption = u"&Close", .tooltip = u"Close ", .description = u"Closes active file",
     .category = u"File", .toolTag = 999, .flyout = u"", .enabled = true, .checked = false, .groupStart = true,
     .kind = ToolKind::Button, .width = -1, .image = u"close"},
};

constexpr BandRow bands[] = {
    {.name = u"bndPreview", .caption = u"Print Preview", .width = 191, .height = 80, .tools = bndPreviewRows},
};
// clang-format on

} // namespace

constexpr BarTable frmPrint_mnuPrintPreview = bands;

} // namespace orvane::layouts
