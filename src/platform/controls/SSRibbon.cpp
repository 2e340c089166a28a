#include "platform/controls/SSRibbon.h"

#include <algorithm>

namespace orvane
{

SSRibbon::SSRibbon(Container &parent, const QString &name, RibbonGroup &group, bool down)
    : SSCommand(parent, name, CaptionButton::TopPicture), m_group(group)
{
    group.m_members.push_back(this);
    button().setCheckable(true);
    button().setChecked(down);
    button().setFocusPolicy(Qt::TabFocus); // the mouse leaves no frame on it
    // The toolkit has toggled the button by the time it tells; the group decides what that leads to.
    connect(&button(), &CaptionButton::clicked, this, [this](bool nowDown) {
        button().setChecked(!nowDown);
        setValue(true);
    });
}

SSRibbon::~SSRibbon()
{
    std::erase(m_group.m_members, this);
}

bool SSRibbon::Value() const
{
    return button().isChecked();
}

void SSRibbon::setValue(bool down)
{
    if (down == Value()) return;
    if (down)
        if (SSRibbon *risen = m_group.downOne()) risen->change(false);
    change(down);
}

void SSRibbon::change(bool down)
{
    button().setChecked(down);
    emit ValueClick(down);
}

SSRibbon *RibbonGroup::downOne() const
{
    const auto found =
        std::find_if(m_members.begin(), m_members.end(), [](const SSRibbon *member) { return member->Value(); });
    return found == m_members.end() ? nullptr : *found;
}

} // namespace orvane
