#include "platform/forms/WindowList.h"

#include <algorithm>

namespace orvane
{

void WindowList::add(Form &form)
{
    if (!contains(&form)) m_forms.push_back(&form);
}

void WindowList::remove(Form &form)
{
    std::erase(m_forms, &form);
}

bool WindowList::contains(const Form *form) const
{
    return std::find(m_forms.begin(), m_forms.end(), form) != m_forms.end();
}

WindowList &windowList()
{
    static WindowList list;
    return list;
}

} // namespace orvane
