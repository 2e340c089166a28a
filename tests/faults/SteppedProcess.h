// A piece of work in a process of its own that can be killed at each of its calls of the system, before the call is
// carried out and after it.
#pragma once

#include <functional>
#include <optional>

namespace orvane::test
{

class SteppedProcess
{
public:
    // False where the system lets nobody look at another process.
    static bool isPossible();

    // How many points there are from the beginning of the work to its end; nothing where it doesn't come to its end.
    static std::optional<int> pointsOf(const std::function<void()> &work);

    // Kills the process at a point, counted from 0. False where the work ended before.
    static bool killAt(int point, const std::function<void()> &work);
};

} // namespace orvane::test
