// The tour on a screen of 800 x 600.
#include "walk/Walker.h"

#include <QAbstractButton>
#include <QGuiApplication>
#include <QScreen>
#include <QTemporaryFile>
#include <QTest>

using namespace Qt::Literals::StringLiterals;
using namespace orvane;
using namespace orvane::test;

class tst_SmallScreen : public QObject
{
    Q_OBJECT

public:
    static void initMain(); // sets the screen up before there is an application

private slots:
    void everyWindowOfTheTourIsOnTheScreen();
    void theConsolesButtonsAreInReach();
    void theDialogsFit();
};

namespace
{
QRect screen()
{
    return QGuiApplication::primaryScreen()->geometry();
}

QStringList windowsOffTheScreen()
{
    QStringList names;
    for (const QWidget *window : QApplication::topLevelWidgets())
        if (window->isVisible() && !screen().contains(window->frameGeometry()))
            names << window->objectName() + u' ' + window->windowTitle();
    return names;
}
} // namespace

void tst_SmallScreen::initMain()
{
    static QTemporaryFile settings;
    if (!settings.open()) qFatal("no temporary file");
    settings.write("{\"screens\": [{\"name\": \"small\", \"x\": 0, \"y\": 0, \"width\": 800, \"height\": 600, "
                   "\"logicalDpi\": 96, \"logicalBaseDpi\": 96, \"dpr\": 1}]}");
    settings.close();
    qputenv("QT_QPA_PLATFORM", "offscreen:configfile=" + settings.fileName().toUtf8());
}

void tst_SmallScreen::everyWindowOfTheTourIsOnTheScreen()
{
    QCOMPARE(screen(), QRect(0, 0, 800, 600));
    Walker walker;
    walker.start();
    QCOMPARE(windowsOffTheScreen(), QStringList());
    while (!ShippedTour::isEnd(Walker::target(walker.console().cmdGoNext)) && !QTest::currentTestFailed()) {
        walker.take(walker.console().cmdGoNext);
        QVERIFY2(windowsOffTheScreen().isEmpty(),
                 qPrintable(walker.console().Tag() + u": "_s + windowsOffTheScreen().join(u", "_s)));
    }
}

void tst_SmallScreen::theConsolesButtonsAreInReach()
{
    RunningSystem system;
    system.start();
    for (const CommandButton *button : {&system.console().cmdGoNext, &system.console().cmdGoBack}) {
        const QWidget &widget = button->widget();
        QVERIFY(screen().contains(QRect(widget.mapToGlobal(QPoint()), widget.size())));
    }
}

void tst_SmallScreen::theDialogsFit()
{
    RunningSystem system;
    system.start();
    for (const QString &tool : {u"properties"_s, u"miHAbout"_s}) {
        const QString band = tool == u"miHAbout" ? u"mnuHelp"_s : u"mnuTools"_s;
        QStringList off;
        system.whileModal([&] { system.clickTool(system.frame(), u"mnuMain"_s, band, tool); },
                          [&off] {
                              off = windowsOffTheScreen();
                              if (QWidget *modal = QApplication::activeModalWidget()) modal->close();
                          });
        QCOMPARE(off + windowsOffTheScreen(), QStringList());
    }
}

QTEST_MAIN(tst_SmallScreen)
#include "tst_SmallScreen.moc"
