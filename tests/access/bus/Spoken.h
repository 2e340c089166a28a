// The program as a screen reader meets it on the accessibility bus: what is there, by role and name, in which state,
// and what can be done to it. A tree is as it was when it was read.
#pragma once

#include <QDBusConnection>
#include <QDBusObjectPath>
#include <QRect>
#include <QStringList>
#include <vector>

namespace orvane::test
{

// The bits of a state, as the bus numbers them.
enum class SpokenState {
    Checked = 4,
    Enabled = 8,
    Focusable = 11,
    Focused = 12,
    MultiLine = 17,
    Showing = 25,
    ReadOnly = 43
};

// Where something is found on the bus.
struct SpokenAddress {
    QString service;
    QDBusObjectPath path;
};

struct Spoken {
    SpokenAddress address;
    QString role;
    QString name;
    quint64 states = 0;
    QStringList interfaces; // the last word of each
    std::vector<Spoken> children;

    bool is(SpokenState state) const { return states >> static_cast<int>(state) & 1; }
    bool can(const QString &interface) const { return interfaces.contains(interface); }
    QString told() const { return role + QStringLiteral(" \"") + name + QLatin1Char('"'); }

    // All that is in it and in what it holds, itself first, in reading order.
    std::vector<const Spoken *> all() const;
    std::vector<const Spoken *> showing() const;

    // The first on show of that name, and of that role unless it is empty; nullptr where there is none.
    const Spoken *find(const QString &wanted, const QString &wantedRole = {}) const;
    const Spoken *focused() const; // the innermost: a window is called so along with what is in it
};

// The client's side of the bus. A call that isn't answered gives an empty value.
class AccessBus
{
public:
    explicit AccessBus(const QDBusConnection &connection) : m_connection(connection) {}

    Spoken readTree(const SpokenAddress &address) const;
    std::vector<SpokenAddress> applications() const;

    QString text(const Spoken &spoken) const;
    QStringList actions(const Spoken &spoken) const;
    QRect place(const Spoken &spoken) const; // on the screen

    // Asks for it and doesn't wait: what it brings up may run a loop of its own.
    void act(const Spoken &spoken, const QString &action) const;
    void press(int keySymbol) const; // as if it was on the keyboard, by the registry

private:
    QDBusMessage call(const SpokenAddress &address, const QString &interface, const QString &method,
                      const QVariantList &arguments = {}) const;
    QVariant property(const SpokenAddress &address, const QString &interface, const QString &name) const;

    QDBusConnection m_connection;
};

} // namespace orvane::test

Q_DECLARE_METATYPE(orvane::test::SpokenAddress)
