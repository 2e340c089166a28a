// A window with one rich-text box, for the tests of the box itself.
#pragma once

#include "platform/FormFixture.h"
#include "platform/controls/text/RichTextBox.h"

namespace orvane::test
{

class BoxWindow : public NotedWindow
{
public:
    BoxWindow() { box.Move(0, 0, 4500, 3000); }

    RichTextBox box{*this, QStringLiteral("rtfData")};
};

} // namespace orvane::test
