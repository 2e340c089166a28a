// The colors of a form's paper and inks.
#pragma once

#include <QColor>

namespace orvane::records::colours
{

inline constexpr QColor Paper{0xFF, 0xFF, 0xFF};
inline constexpr QColor Tint{0xE8, 0xF1, 0xEC};   // behind headings
inline constexpr QColor Ground{0x17, 0x59, 0x5B}; // behind the form's name
inline constexpr QColor Rule{0x6B, 0x84, 0x80};
inline constexpr QColor Ink{0x12, 0x22, 0x24}; // of the printer
inline constexpr QColor Pen{0x1B, 0x2A, 0x78}; // of the one who filled it in: blue-black

} // namespace orvane::records::colours
