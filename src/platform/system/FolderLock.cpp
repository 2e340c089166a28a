#include "platform/system/FolderLock.h"

#include <QDeadlineTimer>
#include <QFile>
#include <QThread>

#include <cerrno>
#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

namespace orvane
{

namespace
{
constexpr int MillisecondsToWait = 1000;
constexpr int MillisecondsBetweenTries = 5;

void waitFor(int folder)
{
    const QDeadlineTimer end(MillisecondsToWait);
    while (::flock(folder, LOCK_EX | LOCK_NB) != 0 && errno == EWOULDBLOCK && !end.hasExpired())
        QThread::msleep(MillisecondsBetweenTries);
}
} // namespace

FolderLock::FolderLock(const QString &folder)
    : m_folder(::open(QFile::encodeName(folder).constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC))
{
    if (m_folder >= 0) waitFor(m_folder);
}

FolderLock::~FolderLock()
{
    if (m_folder >= 0) ::close(m_folder);
}

} // namespace orvane
