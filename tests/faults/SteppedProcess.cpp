#include "faults/SteppedProcess.h"

#include <csignal>
#include <sys/ptrace.h>
#include <sys/wait.h>
#include <unistd.h>

namespace orvane::test
{

namespace
{
// Stops before the work begins. A parent that dies takes the process with it.
pid_t begin(const std::function<void()> &work)
{
    const pid_t process = fork();
    if (process != 0) return process;
    if (ptrace(PTRACE_TRACEME, 0, nullptr, nullptr) != 0) _exit(2);
    raise(SIGSTOP);
    work();
    _exit(0);
}

bool isStopped(pid_t process, int &status)
{
    return waitpid(process, &status, 0) == process && WIFSTOPPED(status);
}

// On to the next point. False where the process ended instead; what waitpid tells of it is in status.
bool goOn(pid_t process, int &status)
{
    return ptrace(PTRACE_SYSCALL, process, nullptr, nullptr) == 0 && isStopped(process, status);
}

void end(pid_t process)
{
    kill(process, SIGKILL);
    int status = 0;
    waitpid(process, &status, 0);
}

bool endedWell(int status)
{
    return WIFEXITED(status) && WEXITSTATUS(status) == 0;
}
} // namespace

bool SteppedProcess::isPossible()
{
    return pointsOf([] {}).has_value();
}

std::optional<int> SteppedProcess::pointsOf(const std::function<void()> &work)
{
    int status = 0;
    const pid_t process = begin(work);
    if (!isStopped(process, status)) return {};
    int points = 0;
    while (goOn(process, status))
        ++points;
    if (!endedWell(status)) return {};
    return points;
}

bool SteppedProcess::killAt(int point, const std::function<void()> &work)
{
    int status = 0;
    const pid_t process = begin(work);
    if (!isStopped(process, status)) return false;
    for (int i = 0; i <= point; ++i)
        if (!goOn(process, status)) return false;
    end(process);
    return true;
}

} // namespace orvane::test
