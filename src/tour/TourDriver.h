// Presses tools in the live windows, by the names that a move script gives.
#pragma once

#include <QString>

namespace orvane
{

class TourScript;

// The two tables of verbs differ: the way back needn't open again what the way forward opened.
void moveForward(const TourScript &script); // cf cc mm mn ml pp rc cb po
void moveBack(const TourScript &script);    // cf (guide, manual and records only) cc mn ml rc cb pp

// Presses a tool of a bar of the active window, through the handler that the bar itself calls.
void pressInActiveWindow(const QString &bar, const QString &band, const QString &tool);

// The same, and lays the bar out again: its tools may be others after the press.
void pressAndLayOut(const QString &bar, const QString &band, const QString &tool);

// The Name of the active window; error 91 where there is none.
QString activeWindowName();

} // namespace orvane
