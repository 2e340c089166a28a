// The advice on the actions of the Implementation view: one RTF document for each action, shown in the pane under the
// page. The body is given as well, from the first paragraph to the last sentence and without the frame, since a printed
// step holds all seven. Actions are numbered 1 to 7 as on the page; for any other number both texts are empty.
#pragma once

#include <QString>

namespace orvane::pages
{

QString adviceBody(int number);
QString advice(int number);

} // namespace orvane::pages
