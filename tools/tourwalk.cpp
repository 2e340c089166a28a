// Walks the tour through the live program by its own buttons and leaves a picture of each step.

#include "command_center/frmInfo.h"
#include "platform/controls/Palette.h"
#include "platform/forms/DefaultInstance.h"
#include "platform/forms/WindowList.h"
#include "platform/system/Guard.h"
#include "platform/system/Host.h"
#include "shell/frmSplash.h"
#include "shell/mdiMain.h"
#include "tour/frmDemo.h"

#include <QAbstractButton>
#include <QApplication>
#include <QCommandLineParser>
#include <QDir>
#include <QElapsedTimer>
#include <QKeyEvent>
#include <QPainter>
#include <QPixmap>
#include <cstdio>

using namespace orvane;

namespace
{
constexpr int MostSteps = 500; // a script that goes round and round ends here
constexpr int SettleMilliseconds = 150;

// Nobody is there to answer a message box, and the program's end must not be the walk's.
class WalkHost : public Host
{
public:
    void messageBox(const QString &text, int, const QString &) override
    {
        std::fprintf(stderr, "tourwalk: the program says: %s\n", qPrintable(text));
        ++messages;
    }
    void endProcess(int exitCode) override
    {
        ended = true;
        code = exitCode;
    }

    int messages = 0;
    bool ended = false;
    int code = 0;
};

class Walk
{
public:
    explicit Walk(const QString &folder) : m_folder(folder) {}

    bool run(WalkHost &host);
    int pictures() const { return m_pictures; }

private:
    void takePicture(const QString &name, const QPixmap &picture);
    void takeStep(const frmDemo &console);
    void leaveIntro();
    bool walkChain(const WalkHost &host);

    QDir m_folder;
    int m_pictures = 0;
    bool m_whole = true;
};

void settle()
{
    QElapsedTimer clock;
    clock.start();
    while (clock.elapsed() < SettleMilliseconds)
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents, 10);
}

void press(const CommandButton &button)
{
    static_cast<QAbstractButton &>(button.widget()).click();
    settle();
}

// The frame as the user sees it, with the console over it.
QPixmap systemPicture(const frmDemo &console)
{
    QWidget &frame = Default<mdiMain>().shell();
    QPixmap picture = frame.grab();
    QPainter painter(&picture);
    const QPoint place = console.shell().mapToGlobal(QPoint()) - frame.mapToGlobal(QPoint());
    const QPixmap over = console.shell().grab();
    painter.setPen(palette::GreyText);
    painter.drawRect(QRect(place - QPoint(1, 1), console.shell().size() + QSize(1, 1)));
    painter.drawPixmap(place, over);
    return picture;
}

void Walk::takePicture(const QString &name, const QPixmap &picture)
{
    const QString file =
        m_folder.filePath(QStringLiteral("%1-%2.png").arg(m_pictures, 2, 10, QLatin1Char('0')).arg(name));
    if (!picture.save(file)) {
        std::fprintf(stderr, "tourwalk: \"%s\" can't be written\n", qPrintable(file));
        m_whole = false;
    }
    ++m_pictures;
}

void Walk::takeStep(const frmDemo &console)
{
    takePicture(QStringLiteral("step-") + console.Tag(), systemPicture(console));
    if (console.Header.Text() == QStringLiteral("(none)")) {
        std::fprintf(stderr, "tourwalk: the script has no step %s\n", qPrintable(console.Tag()));
        m_whole = false;
    }
}

void Walk::leaveIntro()
{
    frmInfo &intro = Default<frmInfo>();
    settle();
    takePicture(QStringLiteral("intro"), intro.shell().grab());
    QKeyEvent enter(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier, QStringLiteral("\r"));
    QApplication::sendEvent(&intro.shell(), &enter);
    settle();
}

// True where the walk came to the end of the tour.
bool Walk::walkChain(const WalkHost &host)
{
    frmDemo &console = Default<frmDemo>();
    for (int step = 0; step < MostSteps && !host.ended; ++step) {
        takeStep(console);
        if (console.cmdQuit.Visible()) {
            press(console.cmdQuit);
            return true;
        }
        const QString before = console.Tag();
        press(console.cmdGoNext);
        if (console.Tag() == before) {
            std::fprintf(stderr, "tourwalk: Next leads nowhere from step %s\n", qPrintable(before));
            return false;
        }
    }
    return false;
}

bool Walk::run(WalkHost &host)
{
    if (!m_folder.mkpath(QStringLiteral("."))) return false;
    takePicture(QStringLiteral("splash"), Default<frmSplash>().shell().grab());
    Default<frmSplash>().Show();
    leaveIntro();
    const bool ended = walkChain(host);
    return ended && m_whole && host.messages == 0 && host.code == 0;
}

QString folderFrom(const QStringList &arguments)
{
    QCommandLineParser parser;
    parser.setApplicationDescription(QStringLiteral("Walks the tour and writes a picture of each step."));
    parser.addHelpOption();
    const QCommandLineOption out(QStringLiteral("out"), QStringLiteral("The folder for the pictures."),
                                 QStringLiteral("folder"), QStringLiteral("out"));
    parser.addOption(out);
    parser.process(arguments);
    return parser.value(out);
}
} // namespace

int main(int argc, char *argv[])
{
    QApplication application(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    applyLooks(application);
    WalkHost host;
    setHost(&host);
    const QString folder = folderFrom(QApplication::arguments());
    Walk walk(folder);
    bool whole = false;
    guarded([&] { whole = walk.run(host); });
    std::printf("%d pictures in %s\n", walk.pictures(), qPrintable(folder));
    std::fflush(stdout);
    std::_Exit(whole ? 0 : 1); // as the program itself ends: no window's clean-up
}
