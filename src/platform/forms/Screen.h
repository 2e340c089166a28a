// What is active on the whole screen.
#pragma once

namespace orvane
{

class Control;

// The control that has the focus in the program's active window, or nullptr.
Control *screenActiveControl();

enum ClipboardFormats { PlainTextFormat = 1, RichTextFormat = -16639 };

bool clipboardHolds(int format); // one of ClipboardFormats; rich text is whatever a rich-text control takes as such

} // namespace orvane
