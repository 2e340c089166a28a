// Notes which files of a folder somebody opens, as the kernel tells of it.
#pragma once

#include <QFile>
#include <QStringList>
#include <QTest>

#include <array>
#include <sys/inotify.h>
#include <unistd.h>

namespace orvane::test
{

class FolderWatch
{
public:
    explicit FolderWatch(const QString &folder) : m_queue(::inotify_init1(IN_NONBLOCK | IN_CLOEXEC))
    {
        if (::inotify_add_watch(m_queue, QFile::encodeName(folder).constData(), IN_OPEN) < 0)
            QTest::qFail("the folder can't be watched", __FILE__, __LINE__);
    }
    ~FolderWatch() { ::close(m_queue); }
    FolderWatch(const FolderWatch &) = delete;
    FolderWatch &operator=(const FolderWatch &) = delete;

    // The files that were opened since this was asked last, each as often as that happened.
    QStringList opened() const
    {
        alignas(inotify_event) std::array<char, 65536> buffer{};
        QStringList names;
        for (ssize_t got = 0; (got = ::read(m_queue, buffer.data(), buffer.size())) > 0;)
            for (std::size_t at = 0; at < static_cast<std::size_t>(got);) {
                const auto *event = reinterpret_cast<const inotify_event *>(&buffer[at]);
                if (event->len > 0) names << QString::fromUtf8(event->name);
                at += sizeof(inotify_event) + event->len;
            }
        return names;
    }

private:
    int m_queue;
};

} // namespace orvane::test
