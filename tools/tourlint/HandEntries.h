// The ways in which a user comes to a step by hand: from the diagram by the menu, and in a document by its own tools.
#pragma once

#include "OpenWindows.h"

namespace orvane::lint
{

struct HandEntry {
    int tag;             // of the step that comes up
    QString place;       // what was pressed
    OpenWindows windows; // afterwards
};

std::vector<HandEntry> handEntries();

} // namespace orvane::lint
