// Places and sizes of windows between twips and the window system.
#pragma once

class QWidget;

namespace orvane
{

// The length as it was set, unless the window system has made it another number of pixels since.
double asSet(double twips, int pixels);

void refuseMaximized(int windowState); // error 384

// Sizes the window so that it measures this with its frame.
void resizeOutside(QWidget &shell, int width, int height);

// Returns when the window system has put the window on screen, maximised where that was asked for. Without a window
// manager nobody maximises: the window then takes the whole screen by itself.
void settle(QWidget &shell, bool maximized);

} // namespace orvane
