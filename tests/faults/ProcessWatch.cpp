#include "faults/ProcessWatch.h"

#include <QDir>
#include <QFile>
#include <QSet>

using namespace Qt::Literals::StringLiterals;

namespace orvane::test
{

namespace
{
QByteArray read(const QString &fileName)
{
    QFile file(fileName);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

QString folderOf(qint64 processId)
{
    return u"/proc/%1"_s.arg(processId);
}

QStringList sockets(qint64 processId)
{
    QStringList found;
    const QDir open(folderOf(processId) + u"/fd"_s);
    for (const QString &number : open.entryList(QDir::Files | QDir::System | QDir::NoDotAndDotDot)) {
        const QString target = QFile::symLinkTarget(open.filePath(number));
        const QString name = target.section(u'/', -1);
        if (name.startsWith(u"socket:[")) found << name;
    }
    return found;
}

// The seventh column of the kernel's table is the number of the socket.
QSet<QString> machineSockets(qint64 processId)
{
    QSet<QString> found;
    for (const QByteArray &line : read(folderOf(processId) + u"/net/unix"_s).split('\n'))
        found << u"socket:[%1]"_s.arg(QString::fromLatin1(line.simplified().split(' ').value(6)));
    return found;
}

// The parent is the second field behind the name, which stands in brackets and may hold anything.
qint64 parentOf(const QString &process)
{
    const QByteArray state = read(u"/proc/"_s + process + u"/stat"_s);
    return state.mid(state.lastIndexOf(')') + 2).split(' ').value(1).toLongLong();
}
} // namespace

QStringList socketsToElsewhere(qint64 processId)
{
    const QStringList open = sockets(processId);
    QStringList found;
    const QSet<QString> known = machineSockets(processId);
    for (const QString &socket : open)
        if (!known.contains(socket)) found << socket;
    return found;
}

int socketsOfThisMachine(qint64 processId)
{
    return static_cast<int>(sockets(processId).size() - socketsToElsewhere(processId).size());
}

QStringList childrenOf(qint64 processId)
{
    QStringList found;
    for (const QString &process : QDir(u"/proc"_s).entryList({u"[0-9]*"_s}, QDir::Dirs))
        if (parentOf(process) == processId) found << QFile::symLinkTarget(u"/proc/%1/exe"_s.arg(process));
    return found;
}

} // namespace orvane::test
