// The help's sources: the tree, the keywords and the files of the project, and the pages as they are written.
// The pattern is made for each attribute: clazy:excludeall=use-static-qregularexpression
#pragma once

#include <QDir>
#include <QFile>
#include <QRegularExpression>
#include <QStringList>
#include <QXmlStreamReader>

namespace orvane::test
{

struct HelpEntry {
    int level = 0;
    QString name;
    QString target;
};

struct HelpProject {
    QList<HelpEntry> sections;
    QList<HelpEntry> keywords;
    QStringList files;
};

inline QString helpSource(const QString &name)
{
    QFile file(QStringLiteral(ORVANE_SOURCE_DIR "/data/help/") + name);
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

inline HelpProject helpProject()
{
    HelpProject project;
    QXmlStreamReader reader(helpSource(QStringLiteral("orvane.qhp")));
    int level = -1;
    while (!reader.atEnd()) {
        const auto token = reader.readNext();
        const bool isSection = reader.name() == QStringLiteral("section");
        if (token == QXmlStreamReader::EndElement && isSection) --level;
        if (token != QXmlStreamReader::StartElement) continue;
        const auto attribute = [&reader](const char *name) {
            return reader.attributes().value(QLatin1String(name)).toString();
        };
        if (isSection) project.sections << HelpEntry{++level, attribute("title"), attribute("ref")};
        if (reader.name() == QStringLiteral("keyword"))
            project.keywords << HelpEntry{0, attribute("name"), attribute("ref")};
        if (reader.name() == QStringLiteral("file")) project.files << reader.readElementText();
    }
    return project;
}

inline QStringList helpPages()
{
    return QDir(QStringLiteral(ORVANE_SOURCE_DIR "/data/help")).entryList({QStringLiteral("*.html")}, QDir::Files);
}

// What stands between the quotes of an attribute, wherever it is in the page.
inline QStringList attributesOf(const QString &page, const QString &attribute)
{
    QStringList values;
    const QRegularExpression pattern(QStringLiteral("\\b%1=\"([^\"]*)\"").arg(attribute));
    for (auto matches = pattern.globalMatch(helpSource(page)); matches.hasNext();)
        values << matches.next().captured(1);
    return values;
}

// Whether "page.html#place", seen from another page, is there.
inline bool isThere(const QString &target, const QString &from)
{
    const QString page = target.startsWith(u'#') ? from : target.section(u'#', 0, 0);
    const QString place = target.section(u'#', 1);
    const bool placeIsThere = place.isEmpty() || attributesOf(page, QStringLiteral("id")).contains(place);
    return helpProject().files.contains(page) && !helpSource(page).isEmpty() && placeIsThere;
}

} // namespace orvane::test
