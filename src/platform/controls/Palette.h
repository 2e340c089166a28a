// The program's own colours: calm greens on near-white, the same on every desktop and under a dark theme.
// Every text colour has a contrast of 4.5:1 or more on every ground it stands on.
#pragma once

#include <QColor>
#include <QPalette>

class QApplication;

namespace orvane
{

namespace palette
{
inline constexpr QColor Ink{0x1F, 0x3A, 0x3D};
inline constexpr QColor DeepTeal{0x17, 0x59, 0x5B};
inline constexpr QColor Teal{0x2A, 0x7F, 0x7B};
inline constexpr QColor Leaf{0x5F, 0xA3, 0x6A};
inline constexpr QColor Mist{0xE8, 0xF1, 0xEC};
inline constexpr QColor PressedMist{0xCF, 0xE3, 0xD8}; // the ground of what is pressed or checked
inline constexpr QColor Paper{0xFB, 0xFC, 0xF9};
inline constexpr QColor White{0xFF, 0xFF, 0xFF};
inline constexpr QColor Sand{0xF4, 0xEE, 0xDC};
inline constexpr QColor Line{0xC9, 0xD6, 0xCF};
inline constexpr QColor Amber{0xD9, 0x8E, 0x2B};
inline constexpr QColor RedDot{0xC8, 0x37, 0x2D};
inline constexpr QColor GreyText{0x4A, 0x5A, 0x57};
inline constexpr QColor DisabledText{0x5F, 0x6E, 0x69};
} // namespace palette

QPalette applicationPalette();

// The style and palette of the whole program; the desktop's own have no say in it.
void applyLooks(QApplication &application);

} // namespace orvane
