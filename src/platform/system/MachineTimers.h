// Timers by number, on the event loop's own clock.
#pragma once

#include <QObject>
#include <functional>
#include <map>

namespace orvane
{

class MachineTimers : public QObject
{
public:
    int start(int interval, std::function<void()> tick); // milliseconds
    void stop(int number);

protected:
    void timerEvent(QTimerEvent *event) override;

private:
    std::map<int, std::function<void()>> m_ticks;
};

MachineTimers &machineTimers();

} // namespace orvane
