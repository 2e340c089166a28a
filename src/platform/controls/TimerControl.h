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
    bool Enabled() const { return m_enabled; }
    void setEnabled(bool enabled);

signals:
    void Timer();

private:
    int m_interval;
    bool m_enabled = false;
    int m_number = 0; // the host's, while the timer runs
};

} // namespace orvane
