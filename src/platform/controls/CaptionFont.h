// The fonts of captions: a family by its name, a size in points, bold or not.
#pragma once

#include <QFont>
#include <QWidget>

namespace orvane
{

inline void setFont(QWidget &widget, const QString &family, double points, bool bold)
{
    QFont font(family);
    font.setPointSizeF(points);
    font.setBold(bold);
    widget.setFont(font);
}

inline void setBold(QWidget &widget, bool bold)
{
    QFont font = widget.font();
    font.setBold(bold);
    widget.setFont(font);
}

} // namespace orvane
