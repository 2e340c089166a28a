// What a program with windows sees to before it makes its application.
#pragma once

namespace orvane
{

// X11 is taken where a Wayland desktop has it too. What the toolkit can't go on without, such as a display, ends the
// program with a failure code.
void prepareForDisplay();

} // namespace orvane
