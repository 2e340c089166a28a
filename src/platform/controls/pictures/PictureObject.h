// A picture of pixels, as a picture box shows and the printer draws it. Copies share the pixels.
#pragma once

#include <QImage>
#include <QString>

namespace orvane
{

class PictureObject
{
public:
    PictureObject() = default;
    explicit PictureObject(const QImage &image) : m_image(image) {}

    // One of the program's own bitmaps: a file under records/, without its ending; error 53 where there is none. It is
    // decoded when somebody first looks at it, and held once for all who do.
    static PictureObject stored(const QString &name);

    const QImage &image() const;

private:
    QImage m_image;
    QString m_name; // of a bitmap of the program
};

} // namespace orvane
