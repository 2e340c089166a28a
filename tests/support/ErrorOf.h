// The refusal of a step.
#pragma once

#include "platform/system/RunTimeError.h"

#include <functional>

namespace orvane::test
{

// Its number is 0 where the step went through.
inline RunTimeError refusalOf(const std::function<void()> &step)
{
    try {
        step();
        return RunTimeError(0, {});
    } catch (const RunTimeError &error) {
        return error;
    }
}

inline int errorOf(const std::function<void()> &step)
{
    return refusalOf(step).Number();
}

// The number, a blank, and the words.
inline QString failureOf(const std::function<void()> &step)
{
    const RunTimeError refusal = refusalOf(step);
    return QStringLiteral("%1 %2").arg(refusal.Number()).arg(refusal.Description());
}

} // namespace orvane::test
