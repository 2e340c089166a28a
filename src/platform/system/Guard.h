// The one door between the event loop and the program's handlers: a failure that no handler caught shows its number
// and description and ends the program, and never reaches the toolkit's own frames.
#pragma once

#include "platform/system/RunTimeError.h"

#include <functional>

namespace orvane
{

// Thrown by End where the host lets the program go on, as tests do.
class ProgramEnded
{
};

// Ends the process at once, with no further event in any window.
[[noreturn]] void End(int exitCode = 0);

void guarded(const std::function<void()> &handler) noexcept;

// Runs a step of a routine that goes on past failures.
void resumeNext(const std::function<void()> &step);

} // namespace orvane
