#include "support/PrivateDisplay.h"

#include <QRegularExpression>
#include <QStandardPaths>
#include <QTest>

using namespace Qt::Literals::StringLiterals;

namespace orvane::test
{

namespace
{
constexpr int MillisecondsToStart = 20000;

QProcessEnvironment environmentOn(const QString &display)
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(u"DISPLAY"_s, display);
    return environment;
}

QRect placeIn(const QString &geometry)
{
    const auto number = [&geometry](const QString &name) {
        static const QString pattern = u"^%1=(-?\\d+)$"_s;
        const QRegularExpression line(pattern.arg(name), QRegularExpression::MultilineOption);
        return line.match(geometry).captured(1).toInt();
    };
    return {number(u"X"_s), number(u"Y"_s), number(u"WIDTH"_s), number(u"HEIGHT"_s)};
}
} // namespace

QString PrivateDisplay::missingProgram()
{
    for (const QString &name : {u"Xvfb"_s, u"openbox"_s, u"xdotool"_s})
        if (QStandardPaths::findExecutable(name).isEmpty()) return name;
    return {};
}

PrivateDisplay::PrivateDisplay(QSize size) : m_size(size)
{
    m_server.setStandardErrorFile(QProcess::nullDevice());
    m_server.start(u"Xvfb"_s,
                   {u"-displayfd"_s, u"1"_s, u"-screen"_s, u"0"_s, u"%1x%2x24"_s.arg(size.width()).arg(size.height()),
                    u"-nolisten"_s, u"tcp"_s, u"-noreset"_s, u"-ac"_s});
    if (!QTest::qWaitFor([this] { return m_server.canReadLine(); }, MillisecondsToStart))
        QTest::qFail("the X server doesn't start", __FILE__, __LINE__);
    m_name = u':' + QString::fromLatin1(m_server.readLine()).trimmed();
    m_windowManager.setStandardErrorFile(QProcess::nullDevice());
    m_windowManager.setProcessEnvironment(environmentOn(m_name));
    m_windowManager.start(u"openbox"_s, {u"--sm-disable"_s});
    if (!QTest::qWaitFor([this] { return !act({u"get_desktop"_s}).isEmpty(); }, MillisecondsToStart))
        QTest::qFail("the window manager doesn't start", __FILE__, __LINE__);
}

PrivateDisplay::~PrivateDisplay()
{
    for (QProcess *process : {&m_windowManager, &m_server}) {
        process->terminate();
        process->waitForFinished();
    }
}

void PrivateDisplay::kill()
{
    m_server.kill();
    m_server.waitForFinished();
}

QString PrivateDisplay::act(const QStringList &arguments) const
{
    QProcess hand;
    hand.setProcessEnvironment(environmentOn(m_name));
    hand.start(u"xdotool"_s, arguments);
    hand.waitForFinished();
    return QString::fromUtf8(hand.readAllStandardOutput());
}

QList<ShownWindow> PrivateDisplay::windowsOf(qint64 processId) const
{
    QList<ShownWindow> windows;
    const QString ids = act({u"search"_s, u"--onlyvisible"_s, u"--pid"_s, QString::number(processId)});
    for (const QString &id : ids.split(u'\n', Qt::SkipEmptyParts)) {
        const QString told = act({u"getwindowgeometry"_s, u"--shell"_s, id, u"getwindowname"_s, id});
        windows.append({id, told.trimmed().section(u'\n', -1), placeIn(told)});
    }
    return windows;
}

void PrivateDisplay::click(const ShownWindow &window, QPoint place) const
{
    act({u"windowraise"_s, window.id, u"mousemove"_s, u"--window"_s, window.id, QString::number(place.x()),
         QString::number(place.y()), u"click"_s, u"1"_s});
}

void PrivateDisplay::pressIn(const ShownWindow &window, const QString &key) const
{
    act({u"windowactivate"_s, u"--sync"_s, window.id, u"key"_s, key});
}

} // namespace orvane::test
