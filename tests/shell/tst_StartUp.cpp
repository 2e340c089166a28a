#include "support/RunningSystem.h"

#include <QTest>

using namespace orvane;
using namespace orvane::test;

class tst_StartUp : public QObject
{
    Q_OBJECT

private slots:
    void theIntroFollowsTheSplash();
    void theSystemIsUpAfterTheIntro();
    void aGuideOpenedWhileTheConsoleHasTheFocusStaysActive();
};

void tst_StartUp::theIntroFollowsTheSplash()
{
    RunningSystem system;
    system.showSplash();
    QCOMPARE(countWindows(QStringLiteral("frmSplash")), 0);
    QCOMPARE(countWindows(QStringLiteral("frmInfo")), 1);
    QVERIFY(!system.frame().Visible());
    QVERIFY(!system.diagram().Visible());
    QVERIFY(!system.console().Visible());
}

void tst_StartUp::theSystemIsUpAfterTheIntro()
{
    RunningSystem system;
    system.start();
    QCOMPARE(system.console().Tag(), QStringLiteral("101"));
    QCOMPARE(system.active(), &system.diagram());
    QCOMPARE(system.diagram().WindowState(), int(Maximized));
    QCOMPARE(system.frame().Caption(), QStringLiteral("orvane"));
}

void tst_StartUp::aGuideOpenedWhileTheConsoleHasTheFocusStaysActive()
{
    RunningSystem system;
    system.start();
    system.console().SetFocus();
    QTRY_VERIFY(system.console().shell().isActiveWindow());
    system.click(system.diagram().cmdImp(1));
    QTest::qWait(50);
    QVERIFY(system.active());
    QCOMPARE(system.active()->Name(), QStringLiteral("frmIGSteps"));
}

QTEST_MAIN(tst_StartUp)
#include "tst_StartUp.moc"
