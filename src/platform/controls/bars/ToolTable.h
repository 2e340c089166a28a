// The shape of a bar as data: bands of tools, in stored order, which is both the order on screen and the index order.
#pragma once

#include <span>
#include <string_view>

namespace orvane
{

enum class ToolKind { Button = 0, Command = 1, ComboBox = 2, TextBox = 3 };

// One tool of a band. All texts are the design texts; "&" in a caption marks the access key.
struct ToolRow {
    int id = 0;               // design number; run-time tools are numbered from 35000
    std::u16string_view name; // key in Tools; may recur in other bands
    std::u16string_view caption;
    std::u16string_view tooltip = {};
    std::u16string_view description = {}; // text of the status bar
    std::u16string_view category = {};
    int toolTag = 0;                 // what the tour hears; see Tool::ToolTag
    std::u16string_view flyout = {}; // name of the band that the tool opens, or empty
    bool enabled = true;
    bool checked = false;
    bool groupStart = false; // a separator stands before the tool
    ToolKind kind = ToolKind::Button;
    int width = -1;                 // pixels, -1 for automatic
    std::u16string_view image = {}; // file name under pictures/tools, without ending; empty for none
};

struct BandRow {
    std::u16string_view name; // key in Bands
    std::u16string_view caption;
    int width = 0; // design size in pixels
    int height = 0;
    std::span<const ToolRow> tools = {};
};

using BarTable = std::span<const BandRow>;

} // namespace orvane
