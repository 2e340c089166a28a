// A picture as an uncompressed bitmap file of 8 bits a pixel.
#pragma once

#include <QByteArray>
#include <QImage>

namespace orvane::records
{

// The palette has exactly that many colors: those of the form, and the steps from each ink to each ground that it
// stands on. Two bytes of padding follow the pixels.
QByteArray indexedBitmap(const QImage &picture, int colours);

} // namespace orvane::records
