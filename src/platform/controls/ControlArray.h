// Controls of one name, told apart by an index. Indices may have gaps.
#pragma once

#include "platform/controls/Control.h"
#include "platform/system/RunTimeError.h"

#include <map>
#include <memory>

namespace orvane
{

template <class Element>
class ControlArray
{
public:
    explicit ControlArray(const QString &name) : m_name(name) {}

    template <class... Arguments>
    Element &add(int index, Container &parent, Arguments &&...arguments)
    {
        const QString name = QStringLiteral("%1(%2)").arg(m_name).arg(index);
        auto made = std::make_unique<Element>(parent, name, std::forward<Arguments>(arguments)...);
        return *m_elements.insert_or_assign(index, std::move(made)).first->second;
    }

    // Error 340 where the array has no such element.
    Element &operator()(int index) const
    {
        const auto found = m_elements.find(index);
        if (found == m_elements.end())
            throw RunTimeError(NoSuchControlArrayElement,
                               QStringLiteral("There is no element %1 in the array \"%2\".").arg(index).arg(m_name));
        return *found->second;
    }

    int Count() const { return static_cast<int>(m_elements.size()); }
    auto begin() const { return m_elements.begin(); } // pairs of index and element
    auto end() const { return m_elements.end(); }

private:
    QString m_name;
    std::map<int, std::unique_ptr<Element>> m_elements;
};

} // namespace orvane
