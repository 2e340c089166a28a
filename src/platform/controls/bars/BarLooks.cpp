#include "platform/controls/bars/BarLooks.h"

#include "platform/controls/Palette.h"
#include "platform/controls/bars/Tool.h"
#include "platform/controls/pictures/PictureFile.h"

#include <QCoreApplication>
#include <QFile>
#include <QHash>
#include <QWidget>

namespace orvane
{

namespace
{
constexpr int PointSize = 9;
constexpr QChar Mark = u'&';

// One icon for all tools that show a picture: it keeps what it has drawn. Icons can't outlive the application.
QHash<QString, QIcon> &knownIcons()
{
    static QHash<QString, QIcon> icons;
    return icons;
}

QIcon readIcon(const QString &image)
{
    if (knownIcons().isEmpty()) qAddPostRoutine([] { knownIcons().clear(); });
    const QString file = pictureFile(QStringLiteral("tools/") + image);
    return QFile::exists(file) ? QIcon(file) : QIcon();
}
} // namespace

QFont barFont()
{
    return QFont(QStringLiteral("Arial"), PointSize);
}

void applyMenuLooks(QWidget &menu)
{
    menu.setFont(barFont());
    QPalette looks = applicationPalette();
    looks.setColor(QPalette::Highlight, palette::PressedMist);
    looks.setColor(QPalette::HighlightedText, palette::Ink);
    menu.setPalette(looks);
}

QIcon toolIcon(const Tool &tool)
{
    if (tool.Image().isEmpty()) return {};
    const auto known = knownIcons().constFind(tool.Image());
    if (known != knownIcons().cend()) return *known;
    const QIcon icon = readIcon(tool.Image());
    knownIcons().insert(tool.Image(), icon);
    return icon;
}

QString shownCaption(const Tool &tool)
{
    return tool.Caption().trimmed();
}

QString withoutAccessKey(const QString &caption)
{
    QString plain;
    for (qsizetype i = 0; i < caption.size(); ++i) {
        const bool doubled = caption.at(i) == Mark && i + 1 < caption.size() && caption.at(i + 1) == Mark;
        if (doubled) plain += caption.at(i++);
        if (doubled || caption.at(i) != Mark) plain += caption.at(i);
    }
    return plain;
}

QString spokenName(const Tool &tool)
{
    const QString caption = withoutAccessKey(shownCaption(tool)).replace(QStringLiteral("&&"), QStringLiteral("&"));
    return caption.isEmpty() ? tool.ToolTipText().trimmed() : caption;
}

} // namespace orvane
