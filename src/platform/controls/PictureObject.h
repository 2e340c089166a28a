// A picture of pixels, as a picture box shows and the printer draws it. Copies share the pixels.
#pragma once

#include <QImage>

namespace orvane
{

class PictureObject
{
public:
    PictureObject() = default;
    explicit PictureObject(const QImage &image) : m_image(image) {}

    const QImage &image() const { return m_image; }

private:
    QImage m_image;
};

} // namespace orvane
