// Words as outlines, the same on every machine: the screen, its hinting and its way of smoothing have no say in them.
#pragma once

#include <QPainterPath>
#include <QRawFont>
#include <QString>
#include <random>

namespace orvane::records
{

class Lettering
{
public:
    // Throws FormError where the family is not installed.
    Lettering(const QString &family, bool bold);

    double width(const QString &text, double size) const; // pixels
    QPainterPath outline(const QString &text, double size, const QPointF &baseline) const;

    // The same as a hand writes it: no letter quite on the line, nor quite as large or as slanted as the one before.
    QPainterPath uneven(const QString &text, double size, const QPointF &baseline, std::minstd_rand &chance) const;

private:
    QRawFont m_font; // so large that the size doesn't matter to the shapes
};

} // namespace orvane::records
