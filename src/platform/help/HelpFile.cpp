#include "platform/help/HelpFile.h"

#include "platform/help/HelpDatabase.h"
#include "platform/system/File.h"
#include "platform/system/RunTimeError.h"

#include <QDataStream>
#include <QFile>
#include <QFileInfo>
#include <algorithm>

namespace orvane
{

namespace
{
constexpr qint64 LargestFile = qint64{64} * 1024 * 1024; // bytes; the file is held in memory for a moment

bool write(const QString &fileName, const QByteArray &bytes)
{
    QFile file(fileName);
    return file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size() && file.flush();
}

[[noreturn]] void refuse(const QString &shownName, const QString &reason)
{
    throw RunTimeError(InvalidFileFormat, QStringLiteral("The help file \"%1\" %2").arg(shownName, reason));
}

// The engine takes the depths of the entries as they come, so a wrong one would lead it astray.
bool isTree(const QByteArray &contents)
{
    QDataStream stream(contents);
    int before = -1;
    while (!stream.atEnd()) {
        int depth = 0;
        QString link;
        QString title;
        stream >> depth >> link >> title;
        if (stream.status() != QDataStream::Ok || depth < 0 || depth > before + 1 || title.isEmpty()) return false;
        before = depth;
    }
    return before >= 0;
}

// What the engine asks for; where it gets no answer it goes on without, and the window would lack a part.
bool hasTables(const HelpDatabase &database)
{
    static const QStringList questions{
        QStringLiteral("SELECT Id, Name FROM NamespaceTable"),
        QStringLiteral("SELECT Id, Name, NamespaceID FROM FolderTable"),
        QStringLiteral("SELECT FolderId, Name, FileId, Title FROM FileNameTable"),
        QStringLiteral("SELECT Id, Data FROM FileDataTable"),
        QStringLiteral("SELECT Id, NamespaceId, Data FROM ContentsTable"),
        QStringLiteral("SELECT Id, Name, Identifier, NamespaceId, FileId, Anchor FROM IndexTable"),
    };
    return std::all_of(questions.begin(), questions.end(),
                       [&database](const QString &question) { return database.answers(question); });
}

bool holdsTrees(const HelpDatabase &database)
{
    const QList<QByteArray> contents = database.column(QStringLiteral("SELECT Data FROM ContentsTable"));
    return !contents.isEmpty() && std::all_of(contents.begin(), contents.end(), isTree);
}

bool canBeUnpacked(const HelpDatabase &database)
{
    const QList<QByteArray> pages =
        database.column(QStringLiteral("SELECT Data FROM FileDataTable WHERE Data IS NOT NULL"));
    const auto isPacked = [](const QByteArray &page) { return !qUncompress(page).isEmpty(); };
    return !pages.isEmpty() && std::all_of(pages.begin(), pages.end(), isPacked);
}
} // namespace

QString helpNamespace()
{
    return QStringLiteral("orvane.help");
}

void copyHelpFile(const QString &from, const QString &to)
{
    if (QFileInfo(from).size() > LargestFile) refuse(from, QStringLiteral("is too large to be a help file."));
    if (!write(to, readWholeFile(from)))
        throw RunTimeError(PathAccessError, QStringLiteral("The help can't be shown: there is no room for its index."));
}

void checkHelpFile(const QString &copy, const QString &shownName)
{
    const HelpDatabase database(copy);
    if (!database.isSound()) refuse(shownName, QStringLiteral("is damaged, or is no help file at all."));
    const QList<QByteArray> names = database.column(QStringLiteral("SELECT Name FROM NamespaceTable"));
    if (names.isEmpty()) refuse(shownName, QStringLiteral("is damaged, or is no help file at all."));
    if (names != QList{helpNamespace().toUtf8()}) refuse(shownName, QStringLiteral("is not the help of this program."));
    if (!hasTables(database) || !canBeUnpacked(database) || !holdsTrees(database))
        refuse(shownName, QStringLiteral("is damaged."));
}

} // namespace orvane
