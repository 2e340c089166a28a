// What stands where on the diagram: tabs, buttons and connectors, in twips inside their frames.
#pragma once

#include <span>
#include <string_view>

namespace orvane::diagram
{

struct TabRow {
    int index;
    double left;
    double width;
    std::u16string_view caption;
    std::u16string_view tag;
    std::u16string_view picture;
};

struct FrameRow {
    int index;
    double left;
    double top;
    double width;
    double height;
};

// The arrays of buttons. Those of one array stand on one panel and share their handlers.
enum class ButtonArray { cmdImp, cmdImpMnu, cmdEnv, cmdEnvMnu, cmdEnvMnuAn, cmdEnvMnuMSR, cmdPrc, cmdRec, cmdAct };

struct ButtonRow {
    ButtonArray array;
    int index;
    int panel;
    double left;
    double top;
    std::u16string_view tag;
    std::u16string_view caption;
    std::u16string_view toolTip = {}; // empty: the caption
    bool redDot = false;              // the way to a live example
};

enum class PictureArray { Image1, Image2, Image3, Image4, Image5, Image6 };

struct ConnectorRow {
    PictureArray array;
    int index; // -1 for a single picture
    int panel;
    std::u16string_view picture;
    double left;
    double top;
    double width;
    double height;
};

inline constexpr double ButtonWidth = 1395;
inline constexpr double ButtonHeight = 615;

std::span<const TabRow> tabs();
std::span<const FrameRow> frames();
std::span<const ButtonRow> buttons();
std::span<const ConnectorRow> connectors();

} // namespace orvane::diagram
