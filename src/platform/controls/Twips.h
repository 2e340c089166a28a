// Lengths on screen: 1440 twips to the inch of a 96 dpi screen, so 15 twips are one device-independent pixel.
#pragma once

#include "platform/system/RunTimeError.h"

#include <cmath>

namespace orvane
{

inline constexpr double TwipsPerInch = 1440.0;
inline constexpr double TwipsPerPoint = TwipsPerInch / 72;
inline constexpr double TwipsPerPixel = TwipsPerInch / 96;

inline int toPixels(double twips)
{
    return static_cast<int>(std::lround(twips / TwipsPerPixel));
}
inline double toTwips(int pixels)
{
    return pixels * TwipsPerPixel;
}

inline void refuseNegative(double twips) // error 380
{
    if (twips < 0) throw RunTimeError(InvalidPropertyValue, QStringLiteral("A width or height can't be negative."));
}

// The 16-bit Boolean of the variables that windows share. Its True is -1, and tests against True compare that value.
class Boolean16
{
public:
    constexpr Boolean16() = default;
    constexpr Boolean16(bool value) : m_value(value ? -1 : 0) {}

    constexpr short value() const { return m_value; }
    friend constexpr bool operator==(Boolean16, Boolean16) = default;

private:
    short m_value = 0;
};

inline constexpr Boolean16 True{true};
inline constexpr Boolean16 False{false};

} // namespace orvane
