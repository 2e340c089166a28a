// Tells assistive technologies what the program's own widgets are: the toolkit knows only the kinds that are its own.
#pragma once

namespace orvane
{

// May be called more than once.
void speakOwnWidgets();

} // namespace orvane
