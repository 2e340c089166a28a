#include "access/bus/SpokenDesktop.h"

#include <QDBusMessage>
#include <QDBusReply>
#include <QDBusVariant>
#include <QDir>
#include <QFile>
#include <QStandardPaths>
#include <QTest>

using namespace Qt::Literals::StringLiterals;

namespace orvane::test
{

namespace
{
constexpr int MillisecondsToStart = 30000;
const QString SessionName = u"spoken session"_s;
const QString AccessName = u"spoken accessibility"_s;

// The bus that is started on demand is told of by a file.
QString launcherFile()
{
    return QStandardPaths::locate(QStandardPaths::GenericDataLocation, u"dbus-1/services/org.a11y.Bus.service"_s);
}

// Of what the process has written so far, up to the end of a line.
QString firstLine(QProcess &process)
{
    const bool told = QTest::qWaitFor([&] { return process.canReadLine() || process.state() == QProcess::NotRunning; },
                                      MillisecondsToStart);
    return told ? QString::fromLocal8Bit(process.readLine()).trimmed() : QString();
}

QDBusMessage askLauncher(const QString &interface, const QString &method, const QVariantList &arguments)
{
    QDBusMessage question = QDBusMessage::createMethodCall(u"org.a11y.Bus"_s, u"/org/a11y/bus"_s, interface, method);
    question.setArguments(arguments);
    return QDBusConnection(SessionName).call(question);
}

void end(std::unique_ptr<QProcess> &process)
{
    if (!process) return;
    process->terminate();
    if (!process->waitForFinished(3000)) process->kill();
    process->waitForFinished();
    process.reset();
}
} // namespace

QString SpokenDesktop::missingProgram()
{
    if (const QString missing = PrivateDisplay::missingProgram(); !missing.isEmpty()) return missing;
    if (QStandardPaths::findExecutable(u"dbus-daemon"_s).isEmpty()) return u"dbus-daemon"_s;
    return launcherFile().isEmpty() ? u"at-spi-bus-launcher"_s : QString();
}

// Nothing of the machine's desktop gets through to the processes.
SpokenDesktop::SpokenDesktop() : m_environment(QProcessEnvironment::systemEnvironment())
{
    for (const QString &name : {u"WAYLAND_DISPLAY"_s, u"XDG_SESSION_TYPE"_s, u"QT_LINUX_ACCESSIBILITY_ALWAYS_ON"_s,
                                u"AT_SPI_BUS_ADDRESS"_s, u"QT_LOGGING_RULES"_s})
        m_environment.remove(name);
    for (const QString &name :
         {u"HOME"_s, u"XDG_CONFIG_HOME"_s, u"XDG_CACHE_HOME"_s, u"XDG_DATA_HOME"_s, u"XDG_RUNTIME_DIR"_s}) {
        const QString folder = m_folder.filePath(name.toLower());
        QDir().mkpath(folder);
        QFile::setPermissions(folder, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
        m_environment.insert(name, folder);
    }
    m_environment.insert(u"DISPLAY"_s, m_display.name());
    m_environment.insert(u"QT_QPA_PLATFORM"_s, u"xcb"_s);
    m_environment.insert(u"GSETTINGS_BACKEND"_s, u"memory"_s);
}

SpokenDesktop::~SpokenDesktop()
{
    endProgram();
    m_bus.reset();
    QDBusConnection::disconnectFromBus(AccessName);
    QDBusConnection::disconnectFromBus(SessionName);
    end(m_sessionBus);
}

bool SpokenDesktop::failed(const QString &problem)
{
    m_problem = problem;
    return false;
}

std::unique_ptr<QProcess> SpokenDesktop::newProcess(const QString &name, const QStringList &arguments) const
{
    auto process = std::make_unique<QProcess>();
    process->setProcessEnvironment(m_environment);
    process->setWorkingDirectory(m_folder.path());
    process->start(name, arguments);
    return process;
}

bool SpokenDesktop::start()
{
    return startSessionBus() && startAccessibilityBus();
}

bool SpokenDesktop::startSessionBus()
{
    m_sessionBus = newProcess(u"dbus-daemon"_s, {u"--session"_s, u"--nofork"_s, u"--print-address"_s});
    const QString address = firstLine(*m_sessionBus);
    if (address.isEmpty()) return failed(u"no session bus"_s);
    m_environment.insert(u"DBUS_SESSION_BUS_ADDRESS"_s, address);
    return QDBusConnection::connectToBus(address, SessionName).isConnected() || failed(u"the session bus is deaf"_s);
}

// Whoever listens says so, as a screen reader does; programs look for that as they start.
bool SpokenDesktop::startAccessibilityBus()
{
    const QDBusReply<QString> address = askLauncher(u"org.a11y.Bus"_s, u"GetAddress"_s, {});
    if (!address.isValid()) return failed(u"no accessibility bus: "_s + address.error().message());
    const QVariant on = QVariant::fromValue(QDBusVariant(true));
    const QDBusReply<void> told =
        askLauncher(u"org.freedesktop.DBus.Properties"_s, u"Set"_s, {u"org.a11y.Status"_s, u"IsEnabled"_s, on});
    if (!told.isValid()) return failed(told.error().message());
    const QDBusConnection connection = QDBusConnection::connectToBus(address.value(), AccessName);
    m_bus.emplace(connection);
    return connection.isConnected() || failed(u"the accessibility bus is deaf"_s);
}

bool SpokenDesktop::startProgram()
{
    endProgram();
    m_program = newProcess(QStringLiteral(ORVANE_TOOLS_DIR "/orvane"), {});
    return QTest::qWaitFor([this] { return !program().children.empty(); }, MillisecondsToStart);
}

// The frame refuses every close, so the program has to be told.
void SpokenDesktop::endProgram()
{
    end(m_program);
}

Spoken SpokenDesktop::program() const
{
    for (const SpokenAddress &address : m_bus->applications())
        if (Spoken application = m_bus->readTree(address); application.name == u"orvane") return application;
    return {};
}

} // namespace orvane::test
