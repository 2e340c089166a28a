// One access key fires for one control only: where two of a window have the same, the toolkit presses neither.
#pragma once

class QKeySequence;
class QWidget;

namespace orvane
{

// The document window that holds the view, or else the window itself: within it, access keys and Tab go round.
const QWidget &innerWindowOf(const QWidget &view);

// Whether neither the frame's menu nor a button outside the view, in the view's window, has taken the key.
bool accessKeyIsFree(const QKeySequence &key, const QWidget &view);

} // namespace orvane
