// Contrast as the guidelines for accessible content define it: the ratio of the relative luminances of two colors, of
// which each is raised by a twentieth. 1 is none, 21 is black on white.
#pragma once

#include <QColor>
#include <QImage>
#include <QMap>
#include <cmath>

namespace orvane::test
{

inline constexpr double LeastContrast = 4.5;

inline double luminance(const QColor &color)
{
    const auto linear = [](double part) {
        return part <= 0.03928 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) + 0.0722 * linear(color.blueF());
}

inline double contrast(const QColor &one, const QColor &other)
{
    const double first = luminance(one) + 0.05;
    const double second = luminance(other) + 0.05;
    return first > second ? first / second : second / first;
}

// The color that most of the pixels have.
inline QColor groundOf(const QImage &image)
{
    QMap<QRgb, int> counts;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            ++counts[image.pixel(x, y)];
    QRgb most = 0;
    for (const auto &[pixel, count] : counts.asKeyValueRange())
        if (count > counts.value(most)) most = pixel;
    return QColor(most);
}

// The greatest contrast of a pixel to the ground: that of the strokes' inside, since their edges are blended.
inline double contrastIn(const QImage &image)
{
    const QColor ground = groundOf(image);
    double most = 1;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            most = std::max(most, contrast(image.pixelColor(x, y), ground));
    return most;
}

} // namespace orvane::test
