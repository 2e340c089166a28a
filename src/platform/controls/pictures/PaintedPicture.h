// Pictures that the build has painted in the size that they are shown in.
#pragma once

#include <QImage>
#include <QSize>
#include <QString>

namespace orvane
{

// Empty where the picture isn't there in just this size, in pixels of the screen.
QImage paintedPicture(const QString &name, QSize pixels);

} // namespace orvane
