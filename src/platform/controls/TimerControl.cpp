#include "platform/controls/TimerControl.h"

#include "platform/system/Host.h"

namespace orvane
{

TimerControl::TimerControl(const QString &name, int interval) : m_interval(interval)
{
    setObjectName(name);
}

TimerControl::~TimerControl()
{
    setEnabled(false);
}

void TimerControl::setEnabled(bool enabled)
{
    if (enabled == m_enabled) return;
    m_enabled = enabled;
    if (m_interval == 0) return;
    if (enabled)
        m_number = host().startTimer(m_interval, [this] { emit Timer(); });
    else
        host().stopTimer(m_number);
}

} // namespace orvane
