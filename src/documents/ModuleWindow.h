// What the document windows share: their part in the window list, and how they go.
#pragma once

#include "platform/forms/MDIChild.h"

namespace orvane::module
{

void activate(MDIChild &window, const QString &moduleCode);
void deactivate(MDIChild &window);

bool isPagingTool(const QString &name); // First, Prev, Next or Last: those that bear no check mark

// The diagram comes up, then the window goes.
void close(MDIChild &window);

} // namespace orvane::module
