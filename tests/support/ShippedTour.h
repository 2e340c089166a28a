// The tour script that the program ships with, section by section, read as the program reads it.
#pragma once

#include "platform/system/ProfileFile.h"

#include <QFile>
#include <QRegularExpression>
#include <QStringList>

namespace orvane::test
{

struct TourSection {
    QString heading;
    QString body;
    QString next;
    QString back;
};

class ShippedTour
{
public:
    static QString fileName() { return QStringLiteral(ORVANE_SOURCE_DIR "/data/DemoData.ini"); }
    static QString none() { return QStringLiteral("(none)"); }

    static QByteArray bytes()
    {
        QFile file(fileName());
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }

    // In the order of the file.
    static QStringList tags()
    {
        static const QRegularExpression heading(QStringLiteral("^\\[(.+)\\]"), QRegularExpression::MultilineOption);
        QStringList tags;
        for (auto match = heading.globalMatch(QString::fromLatin1(bytes())); match.hasNext();)
            tags << match.next().captured(1);
        return tags;
    }

    static TourSection section(const QString &tag)
    {
        return {value(tag, QStringLiteral("Header"), 1023), value(tag, QStringLiteral("RTF"), 8191),
                value(tag, QStringLiteral("NextRTF"), 1023), value(tag, QStringLiteral("PrevRTF"), 1023)};
    }

    // The step that a script arrives at, empty where the button has no move.
    static QString target(const QString &script)
    {
        return script == none() ? QString() : script.section(QLatin1Char('/'), 0, 0);
    }

    static bool isEnd(const QString &tag) { return tag == QStringLiteral("603") || tag == QStringLiteral("604"); }

private:
    static QString value(const QString &tag, const QString &key, int size)
    {
        return readProfileString(tag, key, none(), size, fileName());
    }
};

} // namespace orvane::test
