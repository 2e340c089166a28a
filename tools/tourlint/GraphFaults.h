// Steps that are missing, that nothing leads to, or that don't lead to the end of the tour.
#pragma once

#include "ScriptFile.h"

namespace orvane::lint
{

// Without byHand the tags that a user's own press reports need no section.
void findGraphFaults(const ScriptFile &script, bool byHand, Findings &findings);

} // namespace orvane::lint
