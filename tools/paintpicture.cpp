// Paints a picture in one size. The build uses it for the desktop's icons and for what a start shows.

#include <QCoreApplication>
#include <QFile>
#include <QImage>
#include <QPainter>
#include <QSvgRenderer>
#include <QTextStream>

namespace
{

QImage painted(QSvgRenderer &picture, QSize size)
{
    picture.setAspectRatioMode(Qt::KeepAspectRatio);
    QImage pixels(size, QImage::Format_ARGB32_Premultiplied);
    pixels.fill(Qt::transparent);
    QPainter painter(&pixels);
    picture.render(&painter);
    return pixels;
}

bool writePixels(const QImage &pixels, const QString &fileName)
{
    QFile file(fileName);
    const auto *bytes = reinterpret_cast<const char *>(pixels.constBits());
    return file.open(QIODevice::WriteOnly) && file.write(bytes, pixels.sizeInBytes()) == pixels.sizeInBytes() &&
           file.flush();
}

bool write(const QImage &pixels, const QString &fileName)
{
    return fileName.endsWith(QStringLiteral(".png")) ? pixels.save(fileName) : writePixels(pixels, fileName);
}

} // namespace

int main(int argc, char **argv)
{
    // Pictures without text need no display, and so no application of windows: a build may have none.
    const QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    QTextStream errors(stderr);
    if (arguments.size() != 5) {
        errors
            << "Usage: paintpicture PICTURE WIDTH HEIGHT FILE\n"
               "Paints the SVG picture in this size, in pixels. FILE.png is written as PNG; a file of any other name\n"
               "gets the pixels as they lie in memory: four bytes each, color multiplied by opacity.\n";
        return 2;
    }
    QSvgRenderer picture(arguments[1]);
    const QSize size(arguments[2].toInt(), arguments[3].toInt());
    if (picture.isValid() && !size.isEmpty() && write(painted(picture, size), arguments[4])) return 0;
    errors << arguments[1] << " can't be painted as " << arguments[4] << '\n';
    return 1;
}
