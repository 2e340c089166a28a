// Words that stand in a drawing. The program's own font draws them, sharp at every scale, where words inside the
// drawing's file would be filled as outlines.
#pragma once

#include <QColor>
#include <QString>

namespace orvane
{

struct PictureWords {
    enum Anchors { Middle, End };

    QString text;
    double x = 0; // of the anchor, in pixels of the drawing
    double baseline = 0;
    int size = 0; // pixels
    bool bold = false;
    QColor colour;
    Anchors anchor = Middle;
};

} // namespace orvane
