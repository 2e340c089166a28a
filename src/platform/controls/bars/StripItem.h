// What a toolbar lays out: a tool's button, or its field.
#pragma once

class QWidget;

namespace orvane
{

class Tool;

class StripItem
{
public:
    virtual ~StripItem() = default;

    virtual QWidget &widget() = 0;
    virtual QWidget &focusTarget() = 0; // what takes the keys
    // Takes the tool's present state over. Without an access key the "&" of the caption goes unseen.
    virtual void follow(const Tool &tool, bool withAccessKey) = 0;
    virtual int widthFor(bool compact) const = 0; // pixels; compact is without the caption, where that can go
    virtual void setCompact(bool compact) = 0;
};

} // namespace orvane
