// Looks a tour script through.
#pragma once

#include "Finding.h"

namespace orvane::lint
{

enum class Extent { Whole, Draft }; // a draft may still lack sections for what a user presses by hand

// What is wrong, in the order of the lines, each once. A file that can't be read is refused with error 53 or 75.
Findings lookThrough(const QString &fileName, Extent extent);

} // namespace orvane::lint
