// The one page of Action Tool T1.C11 as an RTF document, and its body without the frame, which is also what is printed.
#pragma once

#include <QString>

namespace orvane::pages
{

QString actionToolBody();
QString actionTool();

} // namespace orvane::pages
