#include "platform/controls/bars/ActiveBar.h"
#include "platform/system/RunTimeError.h"

#include <algorithm>

namespace orvane
{

size_t ToolList::place(int index) const
{
    if (index < 0 || index >= Count())
        throw RunTimeError(SubscriptOutOfRange,
                           QStringLiteral("The band %1 has no tool %2.").arg(m_bandName).arg(index));
    return static_cast<size_t>(index);
}

Tool *ToolList::find(const QString &name) const
{
    const auto found = std::ranges::find(m_tools, name, [](const auto &tool) { return tool->Name(); });
    return found == m_tools.end() ? nullptr : found->get();
}

Tool &ToolList::Item(int index) const
{
    return *m_tools[place(index)];
}

Tool &ToolList::Item(const QString &name) const
{
    if (Tool *tool = find(name)) return *tool;
    throw RunTimeError(SubscriptOutOfRange,
                       QStringLiteral("The band %1 has no tool of the name %2.").arg(m_bandName, name));
}

bool ToolList::contains(const QString &name) const
{
    return find(name);
}

Tool &ToolList::Add(int id, const QString &name)
{
    Tool &tool = *m_tools.emplace_back(std::make_shared<Tool>(m_bar, id, name));
    emit m_bar.Changed();
    return tool;
}

void ToolList::Remove(int index)
{
    m_tools.erase(m_tools.begin() + static_cast<std::ptrdiff_t>(place(index)));
    emit m_bar.Changed();
}

} // namespace orvane
