#include "platform/controls/pictures/PictureFile.h"

// Outside any namespace, as the pictures' own code is; a static library drops them unless they are asked for.
static void bringPicturesIn()
{
    Q_INIT_RESOURCE(pictures);
}

namespace orvane
{

QString pictureFile(const QString &name)
{
    bringPicturesIn();
    return QStringLiteral(":/pictures/%1.svg").arg(name);
}

} // namespace orvane
