#include "access/bus/Spoken.h"

#include <QDBusArgument>
#include <QDBusMessage>
#include <QDBusMetaType>
#include <QDBusVariant>

using namespace Qt::Literals::StringLiterals;

namespace orvane::test
{

namespace
{
constexpr int MillisecondsToAnswer = 5000;
const QString Prefix = u"org.a11y.atspi."_s;

template <class Value>
Value firstOf(const QDBusMessage &answer)
{
    if (answer.type() != QDBusMessage::ReplyMessage || answer.arguments().isEmpty()) return {};
    return qdbus_cast<Value>(answer.arguments().constFirst());
}

quint64 bitsOf(const QList<uint> &words)
{
    quint64 bits = 0;
    for (qsizetype i = 0; i < words.size(); ++i)
        bits |= quint64(words[i]) << (32 * i);
    return bits;
}
} // namespace

QDBusArgument &operator<<(QDBusArgument &argument, const SpokenAddress &address)
{
    argument.beginStructure();
    argument << address.service << address.path;
    argument.endStructure();
    return argument;
}

const QDBusArgument &operator>>(const QDBusArgument &argument, SpokenAddress &address)
{
    argument.beginStructure();
    argument >> address.service >> address.path;
    argument.endStructure();
    return argument;
}

std::vector<const Spoken *> Spoken::all() const
{
    std::vector<const Spoken *> found{this};
    for (const Spoken &child : children)
        for (const Spoken *each : child.all())
            found.push_back(each);
    return found;
}

std::vector<const Spoken *> Spoken::showing() const
{
    std::vector<const Spoken *> found = all();
    std::erase_if(found, [](const Spoken *each) { return !each->is(SpokenState::Showing); });
    return found;
}

const Spoken *Spoken::find(const QString &wanted, const QString &wantedRole) const
{
    for (const Spoken *each : showing())
        if (each->name == wanted && (wantedRole.isEmpty() || each->role == wantedRole)) return each;
    return nullptr;
}

const Spoken *Spoken::focused() const
{
    const Spoken *innermost = nullptr;
    for (const Spoken *each : showing())
        if (each->is(SpokenState::Focused)) innermost = each;
    return innermost;
}

QDBusMessage AccessBus::call(const SpokenAddress &address, const QString &interface, const QString &method,
                             const QVariantList &arguments) const
{
    QDBusMessage message = QDBusMessage::createMethodCall(address.service, address.path.path(), interface, method);
    message.setArguments(arguments);
    return m_connection.call(message, QDBus::Block, MillisecondsToAnswer);
}

QVariant AccessBus::property(const SpokenAddress &address, const QString &interface, const QString &name) const
{
    const QDBusMessage answer = call(address, u"org.freedesktop.DBus.Properties"_s, u"Get"_s, {interface, name});
    return firstOf<QDBusVariant>(answer).variant();
}

Spoken AccessBus::readTree(const SpokenAddress &address) const
{
    const QString interface = Prefix + u"Accessible"_s;
    Spoken spoken{address, {}, {}, 0, {}, {}};
    spoken.role = firstOf<QString>(call(address, interface, u"GetRoleName"_s));
    spoken.name = property(address, interface, u"Name"_s).toString();
    spoken.states = bitsOf(firstOf<QList<uint>>(call(address, interface, u"GetState"_s)));
    for (const QString &each : firstOf<QStringList>(call(address, interface, u"GetInterfaces"_s)))
        spoken.interfaces << each.section(u'.', -1);
    qDBusRegisterMetaType<SpokenAddress>();
    for (const SpokenAddress &child : firstOf<QList<SpokenAddress>>(call(address, interface, u"GetChildren"_s)))
        spoken.children.push_back(readTree(child));
    return spoken;
}

std::vector<SpokenAddress> AccessBus::applications() const
{
    qDBusRegisterMetaType<SpokenAddress>();
    const SpokenAddress root{Prefix + u"Registry"_s, QDBusObjectPath(u"/org/a11y/atspi/accessible/root"_s)};
    const auto found = firstOf<QList<SpokenAddress>>(call(root, Prefix + u"Accessible"_s, u"GetChildren"_s));
    return {found.begin(), found.end()};
}

QString AccessBus::text(const Spoken &spoken) const
{
    const QString interface = Prefix + u"Text"_s;
    const int count = property(spoken.address, interface, u"CharacterCount"_s).toInt();
    return firstOf<QString>(call(spoken.address, interface, u"GetText"_s, {0, count}));
}

QStringList AccessBus::actions(const Spoken &spoken) const
{
    const QString interface = Prefix + u"Action"_s;
    QStringList names;
    for (int i = 0, count = property(spoken.address, interface, u"NActions"_s).toInt(); i < count; ++i)
        names << firstOf<QString>(call(spoken.address, interface, u"GetName"_s, {i}));
    return names;
}

QRect AccessBus::place(const Spoken &spoken) const
{
    constexpr uint OnScreen = 0;
    const QDBusMessage answer = call(spoken.address, Prefix + u"Component"_s, u"GetExtents"_s, {OnScreen});
    if (answer.type() != QDBusMessage::ReplyMessage) return {};
    const auto argument = answer.arguments().constFirst().value<QDBusArgument>();
    int left = 0, top = 0, width = 0, height = 0;
    argument.beginStructure();
    argument >> left >> top >> width >> height;
    argument.endStructure();
    return {left, top, width, height};
}

void AccessBus::act(const Spoken &spoken, const QString &action) const
{
    QDBusMessage message = QDBusMessage::createMethodCall(spoken.address.service, spoken.address.path.path(),
                                                          Prefix + u"Action"_s, u"DoAction"_s);
    message.setArguments({int(actions(spoken).indexOf(action))});
    m_connection.send(message);
}

void AccessBus::press(int keySymbol) const
{
    constexpr uint SymbolKey = 3;
    const SpokenAddress keyboard{Prefix + u"Registry"_s,
                                 QDBusObjectPath(u"/org/a11y/atspi/registry/deviceeventcontroller"_s)};
    call(keyboard, Prefix + u"DeviceEventController"_s, u"GenerateKeyboardEvent"_s, {keySymbol, QString(), SymbolKey});
}

} // namespace orvane::test
