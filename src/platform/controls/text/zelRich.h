// A rich-text box with a state of editing, in the windows whose documents have two versions.
#pragma once

#include "platform/controls/text/RichTextBox.h"

namespace orvane
{

class zelRich : public RichTextBox
{
    Q_OBJECT

public:
    using RichTextBox::RichTextBox;
};

} // namespace orvane
