// The frame on a screen that is smaller than its least size.
#include "support/RunningSystem.h"

#include <QGuiApplication>
#include <QScreen>
#include <QTemporaryFile>
#include <QTest>

using namespace Qt::Literals::StringLiterals;
using namespace orvane;
using namespace orvane::test;

namespace
{
constexpr int ScreenWidth = 600; // pixels; the least size is 633 x 373
constexpr int ScreenHeight = 360;
} // namespace

class tst_FrameOnASmallScreen : public QObject
{
    Q_OBJECT

public:
    static void initMain(); // sets the screen up before there is an application

private slots:
    void aMaximisedFrameIsNotTestedAgainstTheLimits();
    void aRestoredFrameIs();
};

void tst_FrameOnASmallScreen::initMain()
{
    static QTemporaryFile screen;
    if (!screen.open()) qFatal("no temporary file");
    screen.write(u"{\"screens\": [{\"name\": \"small\", \"x\": 0, \"y\": 0, \"width\": %1, \"height\": %2, "
                 "\"logicalDpi\": 96, \"logicalBaseDpi\": 96, \"dpr\": 1}]}"_s.arg(ScreenWidth)
                     .arg(ScreenHeight)
                     .toUtf8());
    screen.close();
    qputenv("QT_QPA_PLATFORM", "offscreen:configfile=" + screen.fileName().toUtf8());
}

void tst_FrameOnASmallScreen::aMaximisedFrameIsNotTestedAgainstTheLimits()
{
    RunningSystem system;
    QCOMPARE(QGuiApplication::primaryScreen()->size(), QSize(ScreenWidth, ScreenHeight));
    system.start();
    QCOMPARE(system.frame().WindowState(), int(Maximized));
    QCOMPARE(system.frame().Width(), ScreenWidth * TwipsPerPixel);
    QCOMPARE(system.frame().Height(), ScreenHeight * TwipsPerPixel);
    QCOMPARE(Shared().FrameScaleWidth, static_cast<int>(system.frame().ScaleWidth()));
    QCOMPARE(Shared().FrameScaleHeight, static_cast<int>(system.frame().ScaleHeight()));
}

void tst_FrameOnASmallScreen::aRestoredFrameIs()
{
    RunningSystem system;
    system.start();
    system.frame().setWindowState(Normal);
    system.frame().setWidth(8700);
    system.frame().setHeight(5100);
    QCOMPARE(system.frame().Width(), 9500.0);
    QCOMPARE(system.frame().Height(), 5600.0);
}

QTEST_MAIN(tst_FrameOnASmallScreen)
#include "tst_FrameOnASmallScreen.moc"
