#include "platform/controls/pictures/PictureObject.h"

#include "platform/system/RunTimeError.h"

#include <QFile>
#include <map>

// The macro declares a function of the global namespace.
static void registerBitmaps()
{
    Q_INIT_RESOURCE(records);
}

namespace orvane
{

namespace
{
QString fileOf(const QString &name)
{
    return QStringLiteral(":/records/%1.bmp").arg(name);
}

// Nodes of a map stay where they are, and so do the images.
const QImage &decoded(const QString &name)
{
    static std::map<QString, QImage> images;
    auto place = images.find(name);
    if (place == images.end()) place = images.emplace(name, QImage(fileOf(name))).first;
    return place->second;
}
} // namespace

PictureObject PictureObject::stored(const QString &name)
{
    registerBitmaps();
    if (!QFile::exists(fileOf(name)))
        throw RunTimeError(FileNotFound, QStringLiteral("The program has no bitmap of the name %1.").arg(name));
    PictureObject picture;
    picture.m_name = name;
    return picture;
}

const QImage &PictureObject::image() const
{
    return m_name.isEmpty() ? m_image : decoded(m_name);
}

} // namespace orvane
