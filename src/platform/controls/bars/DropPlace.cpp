#include "platform/controls/bars/DropPlace.h"

#include "platform/controls/bars/LastInput.h"

#include <QApplication>
#include <QCursor>
#include <QScreen>
#include <QWidget>

namespace orvane
{

namespace
{
QRect screenAround(const QPoint &point)
{
    const QScreen *screen = QGuiApplication::screenAt(point);
    return (screen ? screen : QGuiApplication::primaryScreen())->availableGeometry();
}
} // namespace

QPoint DropPlace::beside(const QSize &menu) const
{
    const QPoint below(anchor.left(), anchor.bottom() + 1);
    const QPoint above(anchor.left(), anchor.top() - menu.height());
    const bool fitsBelow = below.y() + menu.height() <= room.bottom() + 1;
    return fitsBelow || above.y() < screenAround(anchor.topLeft()).top() ? below : above;
}

DropPlace dropPlaceAt(const QPoint &point)
{
    return {.anchor = QRect(point, QSize(0, 0)), .room = screenAround(point)};
}

DropPlace dropPlaceAt(const QWidget &opener)
{
    const QRect anchor(opener.mapToGlobal(QPoint(0, 0)), opener.size());
    return {.anchor = anchor,
            .room = opener.window()->frameGeometry() & screenAround(anchor.topLeft()),
            .selectFirst = LastInput::wasKey()};
}

DropPlace dropPlaceOfUser()
{
    const QWidget *focus = QApplication::focusWidget();
    if (!focus || !LastInput::wasKey()) return dropPlaceAt(QCursor::pos());
    const QRect anchor(focus->mapToGlobal(QPoint(0, 0)), focus->size());
    return {.anchor = anchor, .room = screenAround(anchor.topLeft()), .selectFirst = true};
}

} // namespace orvane
