// Where a menu drops: below the anchor, or above it where it would leave the room. Screen coordinates in pixels.
#pragma once

#include <QPoint>
#include <QRect>
#include <QSize>

class QWidget;

namespace orvane
{

struct DropPlace {
    QRect anchor;
    QRect room;
    bool selectFirst = false; // as when the menu is opened by a key

    QPoint beside(const QSize &menu) const;
};

DropPlace dropPlaceAt(const QPoint &point);
DropPlace dropPlaceAt(const QWidget &opener); // within the opener's window
DropPlace dropPlaceOfUser();                  // at the mouse, or below the focus where the last press was a key

} // namespace orvane
