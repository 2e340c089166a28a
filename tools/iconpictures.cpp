// Renders a picture as icons of several sizes. The build uses it for the desktop's icon set.

#include <QDir>
#include <QGuiApplication>
#include <QImage>
#include <QPainter>
#include <QSvgRenderer>
#include <QTextStream>

namespace
{

bool render(QSvgRenderer &picture, int pixels, const QString &fileName)
{
    QImage icon(pixels, pixels, QImage::Format_ARGB32_Premultiplied);
    icon.fill(Qt::transparent);
    QPainter painter(&icon);
    picture.render(&painter);
    painter.end();
    return icon.save(fileName, "PNG");
}

} // namespace

int main(int argc, char **argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen"); // a build may have no display
    const QGuiApplication application(argc, argv);
    const QStringList arguments = QGuiApplication::arguments();
    QTextStream errors(stderr);
    if (arguments.size() < 4) {
        errors << "Usage: iconpictures PICTURE FOLDER SIZE...\n"
                  "Renders the SVG picture in each size, in pixels, and writes SIZE.png into the folder.\n";
        return 2;
    }
    QSvgRenderer picture(arguments[1]);
    for (const QString &size : arguments.sliced(3)) {
        const QString fileName = QDir(arguments[2]).filePath(size + QStringLiteral(".png"));
        if (picture.isValid() && size.toInt() > 0 && render(picture, size.toInt(), fileName)) continue;
        errors << arguments[1] << " can't be rendered as " << fileName << '\n';
        return 1;
    }
    return 0;
}
