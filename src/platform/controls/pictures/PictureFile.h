// Where the program's drawings are: all of them are part of it.
#pragma once

#include <QString>

namespace orvane
{

QString pictureFile(const QString &name); // of the drawing pictures/NAME.svg; there need not be one

} // namespace orvane
