#include "platform/controls/pictures/ProgramMark.h"

#include "platform/controls/pictures/Drawing.h"

#include <QPainter>
#include <QPixmap>
#include <initializer_list>

namespace orvane
{

namespace
{
// Drawn here, since the toolkit's own icon of a drawing looks for plug-ins first.
QIcon markOf(std::initializer_list<int> sizes)
{
    Drawing drawing;
    drawing.set(QStringLiteral("mark"));
    QIcon mark;
    for (const int pixels : sizes) {
        QPixmap size(pixels, pixels);
        size.fill(Qt::transparent);
        QPainter painter(&size);
        drawing.paint(painter, size.rect());
        painter.end();
        mark.addPixmap(size);
    }
    return mark;
}
} // namespace

QIcon programMark()
{
    return markOf({16, 24, 32, 48, 64, 128, 256});
}

QIcon smallProgramMark()
{
    return markOf({16, 32});
}

} // namespace orvane
