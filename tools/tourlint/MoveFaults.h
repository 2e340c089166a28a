// Move scripts that are wrong wherever they run.
#pragma once

#include "ScriptFile.h"

#include "tour/TourScript.h"

#include <optional>

namespace orvane::lint
{

void findMoveFaults(const ScriptFile &script, Findings &findings);

// What is wrong with the verb and its fields on that way, if anything is.
std::optional<QString> verbFault(const TourScript &move, Way way);

} // namespace orvane::lint
