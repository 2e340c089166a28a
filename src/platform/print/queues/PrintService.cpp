#include "platform/print/queues/PrintService.h"

#include <QElapsedTimer>
#include <QLibrary>
#include <memory>

namespace orvane
{

namespace
{
constexpr int InterfaceVersion = 2;
constexpr int AnyFamily = 0;
constexpr int Blocking = 1;
constexpr int Continue = 100; // more of the answer is to come
constexpr int NoAnswer = -1;
constexpr int LastGoodState = 7;          // of the states that the service answers a request with
constexpr char NoService[] = "/dev/null"; // refuses whoever connects to it
constexpr char Stopped[] = "5";           // of the states of a queue
constexpr double SecondsToWait = 3;
constexpr int MillisecondsToWait = 3000;
constexpr int MillisecondsOfSilence = 5000;

struct Connection; // the service's own
struct Option;

// A queue and what it tells of itself, as the service's library hands it over.
struct Destination {
    char *name;
    char *instance;
    int isDefault;
    int optionCount;
    Option *options;
};

template <class Function>
Function entry(const char *name)
{
    QLibrary service(QStringLiteral("cups"), InterfaceVersion);
    return reinterpret_cast<Function>(service.resolve(name));
}

using Connect = Connection *(*)(const char *, int, void *, int, int, int, int, int *);
using SetTimeout = void (*)(Connection *, double, int (*)(Connection *, void *), void *);
using Ask = int (*)(Connection *, const char *);
using Read = int (*)(Connection *);
using Close = void (*)(Connection *);
using Find = Destination *(*)(Connection *, const char *, const char *);
using Tell = const char *(*)(const char *, int, Option *);
using Forget = void (*)(int, Destination *);
using SetServer = void (*)(const char *); // for this thread; nullptr is the one that the system is set up with
using Text = const char *(*)();
using Number = int (*)();

Connection *connectToService()
{
    const auto server = entry<Text>("cupsServer");
    const auto port = entry<Number>("ippPort");
    const auto encryption = entry<Number>("cupsEncryption");
    const auto connect = entry<Connect>("httpConnect2");
    if (!server || !port || !encryption || !connect) return nullptr;
    return connect(server(), port(), nullptr, AnyFamily, encryption(), Blocking, MillisecondsToWait, nullptr);
}

int giveUp(Connection *, void *)
{
    return 0;
}

// The state of the service's answer to the least of all requests.
int answerOf(Connection *connection)
{
    const auto setTimeout = entry<SetTimeout>("httpSetTimeout");
    const auto ask = entry<Ask>("httpOptions");
    const auto read = entry<Read>("httpUpdate");
    if (!setTimeout || !ask || !read) return NoAnswer;
    setTimeout(connection, SecondsToWait, giveUp, nullptr);
    if (ask(connection, "*") != 0) return NoAnswer;
    int state = Continue;
    while (state == Continue)
        state = read(connection);
    return state;
}

void setServer(const char *name)
{
    if (const auto set = entry<SetServer>("cupsSetServer")) set(name);
}
} // namespace

bool printServiceAnswers()
{
    static QElapsedTimer silence;
    if (silence.isValid() && !silence.hasExpired(MillisecondsOfSilence)) return false;
    silence.invalidate();
    QElapsedTimer waited;
    waited.start();
    const std::unique_ptr<Connection, Close> connection(connectToService(), entry<Close>("httpClose"));
    const bool answers = connection && answerOf(connection.get()) != NoAnswer;
    if (!answers && waited.hasExpired(MillisecondsToWait / 2)) silence.start();
    return answers;
}

SilentServiceHidden::SilentServiceHidden() : m_hidden(!printServiceAnswers())
{
    if (m_hidden) setServer(NoService);
}

SilentServiceHidden::~SilentServiceHidden()
{
    if (m_hidden) setServer(nullptr);
}

QString refusalOfLastJob()
{
    const auto state = entry<Number>("cupsLastError");
    const auto words = entry<Text>("cupsLastErrorString");
    if (!state || !words || state() <= LastGoodState) return {};
    const QString reason = QString::fromUtf8(words());
    return reason.isEmpty() ? QStringLiteral("The print service doesn't answer.") : reason;
}

// The toolkit takes a queue that doesn't tell its state for a paused one.
bool isQueuePaused(const QString &queueName)
{
    const auto find = entry<Find>("cupsGetNamedDest");
    const auto tell = entry<Tell>("cupsGetOption");
    const auto forget = entry<Forget>("cupsFreeDests");
    if (!find || !tell || !forget || !printServiceAnswers()) return false;
    Destination *queue = find(nullptr, queueName.section(u'/', 0, 0).toUtf8().constData(), nullptr);
    if (!queue) return false;
    const QByteArray state = tell("printer-state", queue->optionCount, queue->options);
    forget(1, queue);
    return state == Stopped;
}

} // namespace orvane
