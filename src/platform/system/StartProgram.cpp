#include "platform/system/StartProgram.h"

#include "platform/system/RunTimeError.h"

#include <QDir>
#include <QFileInfo>
#include <QProcess>
#include <QStandardPaths>

namespace orvane
{

void StartProgram(const QString &path)
{
    if (!QProcess::startDetached(path, {}))
        throw RunTimeError(FileNotFound, QStringLiteral("The program \"%1\" can't be started.").arg(path));
}

QString findProgram(const QString &name)
{
    QStringList folders = qEnvironmentVariable("PATH").split(QDir::listSeparator());
    folders.removeIf([](const QString &folder) { return QDir::isRelativePath(folder); });
    return folders.isEmpty() ? QString() : QStandardPaths::findExecutable(name, folders);
}

bool FileExists(const QString &path)
{
    return QFileInfo(path).isFile();
}

} // namespace orvane
