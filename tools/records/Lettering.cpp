#include "records/Lettering.h"

#include "records/FormError.h"

#include <QFont>
#include <QTransform>

namespace orvane::records
{

namespace
{
constexpr double DesignSize = 1000; // pixels

QRawFont load(const QString &family, bool bold)
{
    QFont font(family);
    font.setPixelSize(static_cast<int>(DesignSize));
    font.setBold(bold);
    font.setHintingPreference(QFont::PreferNoHinting);
    font.setStyleStrategy(QFont::NoFontMerging);
    return QRawFont::fromFont(font);
}

// A number from -1 to 1. The distributions of the library differ from one library to the next.
double swing(std::minstd_rand &chance)
{
    constexpr auto Range = static_cast<double>(std::minstd_rand::max() - std::minstd_rand::min());
    return 2 * static_cast<double>(chance() - std::minstd_rand::min()) / Range - 1;
}
} // namespace

Lettering::Lettering(const QString &family, bool bold) : m_font(load(family, bold))
{
    if (m_font.familyName() != family) throw FormError(QStringLiteral("The font %1 is not installed.").arg(family));
}

double Lettering::width(const QString &text, double size) const
{
    double width = 0;
    const auto glyphs = m_font.glyphIndexesForString(text);
    for (const QPointF &advance : m_font.advancesForGlyphIndexes(glyphs, QRawFont::KernedAdvances))
        width += advance.x();
    return width * size / DesignSize;
}

QPainterPath Lettering::outline(const QString &text, double size, const QPointF &baseline) const
{
    QPainterPath outline;
    const auto glyphs = m_font.glyphIndexesForString(text);
    const auto advances = m_font.advancesForGlyphIndexes(glyphs, QRawFont::KernedAdvances);
    double x = 0;
    for (qsizetype i = 0; i < glyphs.size(); ++i) {
        outline.addPath(m_font.pathForGlyph(glyphs[i]).translated(x, 0));
        x += advances[i].x();
    }
    const double scale = size / DesignSize;
    return QTransform(scale, 0, 0, scale, baseline.x(), baseline.y()).map(outline);
}

QPainterPath Lettering::uneven(const QString &text, double size, const QPointF &baseline,
                               std::minstd_rand &chance) const
{
    QPainterPath outline;
    outline.setFillRule(Qt::WindingFill); // the letters touch
    const auto glyphs = m_font.glyphIndexesForString(text);
    const auto advances = m_font.advancesForGlyphIndexes(glyphs, QRawFont::KernedAdvances);
    double x = baseline.x();
    for (qsizetype i = 0; i < glyphs.size(); ++i) {
        const double scale = size / DesignSize * (1 + 0.03 * swing(chance));
        const double slant = 0.05 * swing(chance);
        const double y = baseline.y() + 0.02 * size * swing(chance);
        outline.addPath(QTransform(scale, 0, -slant * scale, scale, x, y).map(m_font.pathForGlyph(glyphs[i])));
        x += advances[i].x() * size / DesignSize;
    }
    return outline;
}

} // namespace orvane::records
