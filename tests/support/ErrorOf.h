// The refusal of a step.
#pragma once

#include "platform/system/RunTimeError.h"

#include <functional>

namespace orvane::test
{

// Its number, or 0 where the step went through.
inline int errorOf(const std::function<void()> &step)
{
    try {
        step();
        return 0;
    } catch (const RunTimeError &error) {
        return error.Number();
    }
}

} // namespace orvane::test
