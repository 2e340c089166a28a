#include "platform/system/MachineTimers.h"

#include <QTimerEvent>

namespace orvane
{

int MachineTimers::start(int interval, std::function<void()> tick)
{
    const int number = startTimer(interval, Qt::PreciseTimer);
    m_ticks.emplace(number, std::move(tick));
    return number;
}

void MachineTimers::stop(int number)
{
    if (m_ticks.erase(number) > 0) killTimer(number);
}

void MachineTimers::timerEvent(QTimerEvent *event)
{
    const auto found = m_ticks.find(event->timerId());
    if (found == m_ticks.end()) return;
    const auto tick = found->second; // the handler may stop its own timer
    tick();
}

MachineTimers &machineTimers()
{
    static MachineTimers timers;
    return timers;
}

} // namespace orvane
