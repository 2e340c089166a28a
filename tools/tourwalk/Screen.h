// What a user sees, and the user's hands.
#pragma once

#include <QPixmap>

namespace orvane
{

class CommandButton;
class Form;

namespace walk
{

void settle(); // until the windows are drawn
void press(const CommandButton &button);
void pressEnter(const Form &window);

QPixmap pictureOf(const Form &window);
QPixmap pictureOfAll(); // the frame, what stands over it, and the console on top

} // namespace walk
} // namespace orvane
