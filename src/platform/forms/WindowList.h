// All loaded windows, in the order in which they were loaded.
#pragma once

#include <vector>

namespace orvane
{

class Form;

class WindowList
{
public:
    void add(Form &form);
    void remove(Form &form);

    // A copy: windows may come and go while a caller walks the list.
    std::vector<Form *> forms() const { return m_forms; }
    bool contains(const Form *form) const;

private:
    std::vector<Form *> m_forms;
};

WindowList &windowList();

inline std::vector<Form *> Forms()
{
    return windowList().forms();
}

} // namespace orvane
