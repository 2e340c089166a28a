// A button of a group of which one is always down.
//
// Pressing one raises the other: the one that rises reports Click with its Value False, then the pressed one with
// True. So the last word is the pressed one's. Pressing the one that is down changes nothing and reports nothing.
#pragma once

#include "platform/controls/SSCommand.h"
#include "platform/controls/Twips.h"

#include <vector>

namespace orvane
{

class RibbonGroup;

class SSRibbon : public SSCommand
{
    Q_OBJECT

public:
    SSRibbon(Container &parent, const QString &name, RibbonGroup &group, bool down);
    ~SSRibbon() override;

    bool Value() const;
    void setValue(bool down); // True presses it as a click would; False raises it

signals:
    void ValueClick(orvane::Boolean16 value);

private:
    void change(bool down);

    RibbonGroup &m_group;
};

class RibbonGroup
{
public:
    SSRibbon *downOne() const;

private:
    friend class SSRibbon;
    std::vector<SSRibbon *> m_members;
};

} // namespace orvane
