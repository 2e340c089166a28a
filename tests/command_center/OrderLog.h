// In which order conditions come true while the program runs: it looks at every event and at every sign that it is
// given. Two that come true between two looks are noted as one word, so an order that can't be told is no order.
#pragma once

#include <QCoreApplication>
#include <QEvent>
#include <QStringList>
#include <functional>
#include <vector>

namespace orvane::test
{

class OrderLog : public QObject
{
public:
    OrderLog() { QCoreApplication::instance()->installEventFilter(this); }

    // Not true yet.
    void watch(const QString &name, const std::function<bool()> &condition) { m_awaited.push_back({name, condition}); }

    template <class Sender, class Signal>
    void lookAt(const Sender &sender, Signal signal)
    {
        connect(&sender, signal, this, [this] { look(); });
    }

    const QStringList &order()
    {
        look();
        return m_order;
    }

    bool eventFilter(QObject *, QEvent *) override
    {
        look();
        return false;
    }

private:
    struct Awaited {
        QString name;
        std::function<bool()> condition;
    };

    void look()
    {
        if (m_looking) return; // a condition may cause events of its own
        m_looking = true;
        QStringList now;
        std::erase_if(m_awaited, [&now](const Awaited &awaited) {
            if (!awaited.condition()) return false;
            now << awaited.name;
            return true;
        });
        if (!now.isEmpty()) m_order << now.join(QLatin1Char('+'));
        m_looking = false;
    }

    std::vector<Awaited> m_awaited;
    QStringList m_order;
    bool m_looking = false;
};

} // namespace orvane::test
