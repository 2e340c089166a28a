#include "platform/controls/pictures/PaintedPicture.h"

#include <QResource>

// The macro declares a function of the global namespace.
static void registerPixels()
{
    Q_INIT_RESOURCE(start);
}

namespace orvane
{

QImage paintedPicture(const QString &name, QSize pixels)
{
    registerPixels();
    const QResource file(QStringLiteral(":/pixels/%1-%2x%3.pixels").arg(name).arg(pixels.width()).arg(pixels.height()));
    // The image looks at these bytes where they lie, and asks for whole words of them.
    const bool isAligned = reinterpret_cast<quintptr>(file.data()) % alignof(QRgb) == 0;
    const qint64 size = qint64(sizeof(QRgb)) * pixels.width() * pixels.height();
    if (!file.isValid() || !isAligned || file.size() != size) return {};
    return QImage(file.data(), pixels.width(), pixels.height(), QImage::Format_ARGB32_Premultiplied);
}

} // namespace orvane
