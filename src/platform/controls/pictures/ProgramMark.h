// The program's sign, on title bars and in the desktop's list of windows.
#pragma once

#include <QIcon>

namespace orvane
{

QIcon programMark(); // in every size
// For title bars alone: a window manager is sent every size that a window's icon has, which a start can't afford.
QIcon smallProgramMark();

} // namespace orvane
