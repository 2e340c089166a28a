// A timer of a window. It ticks while it is enabled and its interval isn't 0.
#pragma once

#include <QObject>
#include <QString>

namespace orvane
{

class TimerControl : public QObject
{
    Q_OBJECT

public:
    TimerControl(const QString &name, int interval); // milliseconds
    ~TimerControl() override;

    int Interval() const { return m_interval; }
    bool Enabled() const { return m_number != 0; }
    void setEnabled(bool enabled);

signals:
    void Timer();

private:
    int m_interval;
    int m_number = 0; // the host's, 0 while the timer stands
};

} // namespace orvane
