// Headings and bodies that the console couldn't show whole.
#pragma once

#include "ScriptFile.h"

namespace orvane::lint
{

void findTextFaults(const ScriptFile &script, Findings &findings);

} // namespace orvane::lint
