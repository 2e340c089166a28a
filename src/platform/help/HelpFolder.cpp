#include "platform/help/HelpFolder.h"

#include "platform/system/RunTimeError.h"

#include <QDir>
#include <QLockFile>
#include <QStandardPaths>
#include <QTemporaryDir>

namespace orvane
{

namespace
{
constexpr int MostAtATime = 16; // programs of one user that show their help

std::unique_ptr<QLockFile> lockOf(const QString &path)
{
    auto lock = std::make_unique<QLockFile>(path + QStringLiteral(".lock"));
    lock->setStaleLockTime(0); // only the end of its program frees a folder
    return lock->tryLock() ? std::move(lock) : nullptr;
}
} // namespace

HelpFolder::HelpFolder()
{
    if (!takeInCache()) takeTemporary();
}

HelpFolder::~HelpFolder()
{
    if (!m_temporary) QDir(m_path).removeRecursively();
}

// The program ends without giving anything back, so folders are numbered: the next program takes the same one again.
bool HelpFolder::takeInCache()
{
    const QString cache = QStandardPaths::writableLocation(QStandardPaths::CacheLocation);
    if (cache.isEmpty() || !QDir().mkpath(cache)) return false;
    for (int number = 0; number < MostAtATime && !m_lock; ++number) {
        m_path = QStringLiteral("%1/help%2").arg(cache).arg(number);
        m_lock = lockOf(m_path);
    }
    constexpr auto OwnersAlone = QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner;
    return m_lock && QDir(m_path).removeRecursively() && QDir().mkdir(m_path, OwnersAlone);
}

void HelpFolder::takeTemporary()
{
    m_lock.reset();
    m_temporary = std::make_unique<QTemporaryDir>();
    if (!m_temporary->isValid())
        throw RunTimeError(
            PathAccessError,
            QStringLiteral("The help can't be shown: there is no folder that it could keep its index in."));
    m_path = m_temporary->path();
}

QString HelpFolder::filePath(const QString &name) const
{
    return m_path + u'/' + name;
}

} // namespace orvane
