// One press of Next or Back, on the windows that are open then.
#pragma once

#include "OpenWindows.h"
#include "tour/MoveVerbs.h"
#include "tour/TourScript.h"

namespace orvane::lint
{

struct MoveFault {
    QString message;
    bool endsProgram = false; // else nothing happens, or what no hand could do
};

// Does what the verb does to the windows. Says what is wrong at this point, if anything is. The verb and its fields
// have to be right by themselves.
std::optional<MoveFault> move(const TourScript &script, Way way, OpenWindows &windows);

} // namespace orvane::lint
