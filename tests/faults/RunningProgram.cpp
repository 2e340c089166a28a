#include "faults/RunningProgram.h"

#include <QFile>
#include <QTest>
#include <algorithm>
#include <filesystem>
#include <sys/stat.h>
#include <unistd.h>

using namespace Qt::Literals::StringLiterals;

namespace orvane::test
{

namespace
{
constexpr int MillisecondsToWait = 30000; // a sanitizer on a busy machine takes its time
constexpr int MillisecondsToLeave = 2000;
constexpr uid_t Nobody = 65534;

// Of the console and of the intro, in pixels of their client areas.
constexpr QPoint NextButton(164, 308);
constexpr QPoint QuitButton(156, 272);
constexpr QSize Intro(621, 466);

std::filesystem::path pathOf(const QString &name)
{
    return name.toStdString();
}

bool isIntro(const ShownWindow &window)
{
    return window.place.size() == Intro;
}

void copyFile(const QString &from, const QString &to)
{
    std::error_code failure;
    std::filesystem::create_hard_link(pathOf(from), pathOf(to), failure);
    if (failure && !QFile::copy(from, to)) QTest::qFail(qPrintable(u"no copy of "_s + from), __FILE__, __LINE__);
}
} // namespace

RunningProgram::RunningProgram(const PrivateDisplay &display)
    : m_display(display), m_environment(QProcessEnvironment::systemEnvironment())
{
    copyFile(QStringLiteral(ORVANE_TOOLS_DIR "/orvane"), file(u"orvane"_s));
    for (const QString &name : {u"DemoData.ini"_s, u"DealerData.dat"_s, u"Orvane.hlp"_s})
        if (!QFile::copy(QStringLiteral(ORVANE_TOOLS_DIR "/") + name, file(name)))
            QTest::qFail(qPrintable(name + u" isn't built"_s), __FILE__, __LINE__);
    for (const QString &variable : {u"XDG_CONFIG_HOME"_s, u"XDG_CACHE_HOME"_s, u"XDG_DATA_HOME"_s})
        unset(variable);
    set(u"HOME"_s, home());
    set(u"XDG_RUNTIME_DIR"_s, home());
    set(u"DISPLAY"_s, display.name());
    set(u"QT_QPA_PLATFORM"_s, u"xcb"_s);
}

RunningProgram::~RunningProgram()
{
    m_process.kill();
    m_process.waitForFinished();
}

void RunningProgram::runAsNobody()
{
    for (const QString &path : {folder(), home()})
        ::chmod(QFile::encodeName(path).constData(), 0555);
    m_process.setChildProcessModifier([] {
        if (::geteuid() == 0 && ::setuid(Nobody) != 0) ::_exit(2);
    });
}

void RunningProgram::start()
{
    m_process.setProcessEnvironment(m_environment);
    m_process.start(file(u"orvane"_s), {});
    if (!m_process.waitForStarted()) QTest::qFail("the program can't be started", __FILE__, __LINE__);
}

std::optional<ShownWindow> RunningProgram::find(const Which &isIt) const
{
    const auto windows = m_display.windowsOf(processId());
    const auto place = std::find_if(windows.begin(), windows.end(), isIt);
    return place == windows.end() ? std::nullopt : std::optional(*place);
}

std::optional<ShownWindow> RunningProgram::shown(const Which &isIt) const
{
    std::optional<ShownWindow> found;
    (void)QTest::qWaitFor(
        [&] {
            found = find(isIt);
            return found || !isRunning();
        },
        MillisecondsToWait);
    return found;
}

bool RunningProgram::showsIntro() const
{
    return shown(isIntro).has_value();
}

void RunningProgram::leaveIntroAtOnce() const
{
    if (const auto intro = shown(isIntro)) m_display.click(*intro, QPoint(Intro.width() / 2, Intro.height() / 4));
}

// A click on a window that the window manager is just about to place is lost.
bool RunningProgram::leaveIntro()
{
    bool left = false;
    for (int clicks = 0; !left && clicks < 10; ++clicks) {
        leaveIntroAtOnce();
        left = QTest::qWaitFor([this] { return !find(isIntro); }, MillisecondsToLeave);
    }
    return left && console() && frame();
}

std::optional<ShownWindow> RunningProgram::console() const
{
    return shown([](const ShownWindow &each) { return each.title == u"orvane Quillmark CD DEMO"; });
}

std::optional<ShownWindow> RunningProgram::frame() const
{
    return shown([](const ShownWindow &each) { return each.title.startsWith(u"orvane - ["); });
}

std::optional<ShownWindow> RunningProgram::message() const
{
    return shown([](const ShownWindow &each) { return each.title == u"orvane Quillmark CD"; });
}

QStringList RunningProgram::titles() const
{
    QStringList titles;
    for (const ShownWindow &each : m_display.windowsOf(processId()))
        titles << each.title;
    return titles;
}

void RunningProgram::pressNext(const ShownWindow &console) const
{
    m_display.click(console, NextButton);
}

void RunningProgram::pressQuit(const ShownWindow &console) const
{
    m_display.click(console, QuitButton);
}

// The frame's close box brings up the Quit button, and nothing tells from outside when that is there.
bool RunningProgram::closeAndQuit()
{
    const auto main = frame();
    const auto tour = console();
    if (!main || !tour) return false;
    m_display.pressIn(*main, u"alt+F4"_s);
    return QTest::qWaitFor(
        [&] {
            pressQuit(*tour);
            return m_process.waitForFinished(100);
        },
        MillisecondsToWait);
}

std::optional<int> RunningProgram::exitCode()
{
    if (isRunning() && !m_process.waitForFinished(MillisecondsToWait)) return {};
    if (m_process.exitStatus() != QProcess::NormalExit) return {};
    return m_process.exitCode();
}

} // namespace orvane::test
