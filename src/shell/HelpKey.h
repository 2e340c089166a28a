// F1, which does the same in every window.
#pragma once

namespace orvane
{

// For F1 what Contents in the Help menu does; nothing for any other key.
void answerHelpKey(int keyCode);

} // namespace orvane
