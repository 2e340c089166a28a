// What the build installs, in a temporary folder.
#pragma once

#include <QDateTime>
#include <QDir>
#include <QDirIterator>
#include <QFileInfo>
#include <QProcess>
#include <QTemporaryDir>

#include <map>

namespace orvane::test
{

class InstalledTree
{
public:
    // Whether the installation went through; what it complained of is output().
    bool install()
    {
        QProcess cmake;
        cmake.setProcessChannelMode(QProcess::MergedChannels);
        cmake.start(QStringLiteral("cmake"), {QStringLiteral("--install"), QStringLiteral(ORVANE_BUILD_DIR),
                                              QStringLiteral("--prefix"), m_prefix.path()});
        const bool finished = cmake.waitForFinished(120'000);
        m_output = cmake.readAll();
        return finished && cmake.exitStatus() == QProcess::NormalExit && cmake.exitCode() == 0;
    }

    QByteArray output() const { return m_output; }
    QString path(const QString &name) const { return m_prefix.filePath(name); }

    // The folder that the program reads its files from.
    QDir programFolder() const { return QFileInfo(path(QStringLiteral("bin/orvane"))).canonicalPath(); }

    // Every file and folder by its path from the prefix, with its rights and its time.
    std::map<QString, std::pair<QFile::Permissions, QDateTime>> everything() const
    {
        std::map<QString, std::pair<QFile::Permissions, QDateTime>> found;
        QDirIterator next(m_prefix.path(), QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot,
                          QDirIterator::Subdirectories);
        while (next.hasNext()) {
            const QFileInfo entry(next.next());
            found[QDir(m_prefix.path()).relativeFilePath(entry.filePath())] = {entry.permissions(),
                                                                               entry.lastModified()};
        }
        return found;
    }

    // Takes the right to write from the program's folder and its files, or gives it back.
    bool letWrite(bool mayWrite) const
    {
        const QDir folder = programFolder();
        bool set = setWrite(folder.path(), mayWrite);
        for (const QFileInfo &file : folder.entryInfoList(QDir::Files))
            set = setWrite(file.filePath(), mayWrite) && set;
        return set;
    }

private:
    static bool setWrite(const QString &name, bool mayWrite)
    {
        const QFile::Permissions rights = QFile::permissions(name);
        return QFile::setPermissions(name, mayWrite ? rights | QFile::WriteOwner : rights & ~QFile::WriteOwner);
    }

    QTemporaryDir m_prefix;
    QByteArray m_output;
};

} // namespace orvane::test
