// Moves that find the wrong window active where the tour comes to them: forward from the first step, and from each of
// those steps all the way back. And where a user has come to a step by hand, moves that would end the program.
#pragma once

#include "ScriptFile.h"

namespace orvane::lint
{

void findChainFaults(const ScriptFile &script, Findings &findings);

} // namespace orvane::lint
