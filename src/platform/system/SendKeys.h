// Key strokes sent to the control that has the focus, as if they were typed. Where none has it they go nowhere.
#pragma once

#include <QString>

namespace orvane
{

// A character stands for its key; ^ % + before a key hold Ctrl, Alt, Shift; a key's name stands in braces, and so does
// a character that would mean something here. The keys have been worked when the call returns. Keys that don't make
// sense are refused with error 5.
void SendKeys(const QString &keys);

// Lets paint and queued events run.
void DoEvents();

} // namespace orvane
