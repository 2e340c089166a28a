// Keeps its window above the others.
#pragma once

#include "platform/forms/Window.h"

namespace orvane
{

class zelFormLock
{
public:
    explicit zelFormLock(Window &window) : m_window(window) {}

    void setsettopmost(bool topMost) { m_window.setTopMost(topMost); }

private:
    Window &m_window;
};

} // namespace orvane
