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
    if (enabled == Enabled()) return;
    if (enabled) {
        m_number = host().startTimer(m_interval, [this] { emit Timer(); });
    } else {
        host().stopTimer(m_number);
        m_number = 0;
    }
}

} // namespace orvane
