// A disk with little room.
#pragma once

#include <QtGlobal>

#include <csignal>
#include <sys/resource.h>

namespace orvane::test
{

// While it lives no file may grow beyond this size, which looks to the program as a full disk does.
class NarrowDisk
{
public:
    explicit NarrowDisk(qint64 bytes)
    {
        std::signal(SIGXFSZ, SIG_IGN);
        ::getrlimit(RLIMIT_FSIZE, &m_before);
        const rlimit room{static_cast<rlim_t>(bytes), m_before.rlim_max};
        ::setrlimit(RLIMIT_FSIZE, &room);
    }
    ~NarrowDisk() { ::setrlimit(RLIMIT_FSIZE, &m_before); }
    NarrowDisk(const NarrowDisk &) = delete;
    NarrowDisk &operator=(const NarrowDisk &) = delete;

private:
    rlimit m_before{};
};

} // namespace orvane::test
