// The chain of windows from the splash to the running system.
#include "platform/controls/pictures/PaintedPicture.h"
#include "platform/system/Application.h"
#include "platform/system/SettingsStore.h"
#include "shell/ShellProbes.h"
#include "support/RunningSystem.h"
#include "tour/DealerText.h"

#include <QFile>
#include <QTest>
#include <QTimer>

using namespace Qt::Literals::StringLiterals;
using namespace orvane;
using namespace orvane::test;

namespace
{
void store(const QString &key, const QString &value)
{
    SaveSetting(u"orvane Quillmark CD"_s, u"UserDetails"_s, key, value);
}

frmInfo &intro()
{
    return Default<frmInfo>();
}

bool introIsUp()
{
    return countWindows(u"frmInfo"_s) == 1;
}
} // namespace

class tst_StartUp : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void nothingIsSharedBeforeAnyWindowRuns();
    void theSplashNamesProductVersionAndPlatform();
    void withoutStoredDetailsTheSplashShowsNone();
    void blanksOfAStoredNameAreDecodedAndThoseOfACompanyAreNot();
    void theSplashLiftsTheMute();
    void theHelpFileIsLookedForBesideTheProgram();
    void anyKeyUnloadsTheSplash_data();
    void anyKeyUnloadsTheSplash();
    void aClickOnItsFrameUnloadsTheSplash();
    void theSplashHasNoTimer();
    void theLegalNoticesAreToBeSeenWhole();
    void theSplashHoldsItsControls_data();
    void theSplashHoldsItsControls();
    void aPictureOfTheStartIsPaintedByTheBuild_data();
    void aPictureOfTheStartIsPaintedByTheBuild();
    void aKeyDuringTheLoadsTakesTheSplashAwayAndStopsNothing();

    void theIntroFollowsTheSplash();
    void theWindowsAreLoadedInTheirOrder();
    void eventsRunBetweenTheLoads();
    void theFrameStartsWithItsDesignTitle();
    void theNumbersOfWindowToolsStartAt35000();
    void theHiddenConsoleHearsNothingOfTheLoads();

    void theIntroGoesByTheUsersHand_data();
    void theIntroGoesByTheUsersHand();
    void theRedDotLiesOverThePicture();
    void otherKeysLeaveTheIntroUp_data();
    void otherKeysLeaveTheIntroUp();
    void theUserLeavingTheIntroGetsTheDealersText();
    void theIntroGoesAfter45Seconds();
    void leftAloneTheIntroBringsUpAnEmptyConsole();
    void leftAloneTheIntroReadsNoDealerText();
    void noTimerRunsBehindTheIntro_data();
    void noTimerRunsBehindTheIntro();

    void theSystemIsUpAfterTheIntro();
    void theConsoleStandsInThePanelsCorner_data();
    void theConsoleStandsInThePanelsCorner();
    void aGuideOpenedWhileTheConsoleHasTheFocusStaysActive();

private:
    void leaveIntro(bool byUser);

    std::optional<RunningSystem> m_system;
};

void tst_StartUp::init()
{
    m_system.emplace();
}

void tst_StartUp::cleanup()
{
    m_system.reset();
}

void tst_StartUp::leaveIntro(bool byUser)
{
    if (byUser)
        m_system->leaveIntro();
    else
        m_system->host.advance(45000);
}

void tst_StartUp::nothingIsSharedBeforeAnyWindowRuns()
{
    const SharedState state;
    QCOMPARE(state.ToolIdCounter, 0);
    QCOMPARE(state.SectionNumber, 0);
    QCOMPARE(state.SectionText + state.TitleText, u""_s);
    QCOMPARE(state.FrameScaleWidth, 0);
    QCOMPARE(state.FrameScaleHeight, 0);
    for (const Boolean16 mark :
         {state.DiagramLayoutHeld, state.UserDetailsSaved, state.TourStepsMuted, state.DealerTextPresent})
        QCOMPARE(mark.value(), short(0));
}

void tst_StartUp::theSplashNamesProductVersionAndPlatform()
{
    const frmSplash &splash = Default<frmSplash>();
    QCOMPARE(splash.lblPlatform.Caption(), u"95/98/NT4"_s);
    QCOMPARE(splash.lblVersion.Caption(), u"Version 1.0"_s);
    QCOMPARE(splash.Label1.Caption(), u"DEMO"_s);
    QCOMPARE(splash.lblCompanyProduct.Caption(), u"orvane"_s);
    QVERIFY(!splash.lblWarning.Caption().isEmpty());
    QVERIFY(!splash.lblCopyright.Caption().isEmpty());
}

void tst_StartUp::withoutStoredDetailsTheSplashShowsNone()
{
    QCOMPARE(Default<frmSplash>().lblUserName.Caption(), u"None"_s);
    QCOMPARE(Default<frmSplash>().lblUserCompany.Caption(), u"None"_s);
}

void tst_StartUp::blanksOfAStoredNameAreDecodedAndThoseOfACompanyAreNot()
{
    store(u"UserName"_s, u"Ada%20Maria%20Lindqvist"_s);
    store(u"Company"_s, u"Global%20Inc"_s);
    QCOMPARE(Default<frmSplash>().lblUserName.Caption(), u"Ada Maria Lindqvist"_s);
    QCOMPARE(Default<frmSplash>().lblUserCompany.Caption(), u"Global%20Inc"_s);
}

void tst_StartUp::theSplashLiftsTheMute()
{
    Shared().TourStepsMuted = True;
    Default<frmSplash>();
    QVERIFY(Shared().TourStepsMuted == False);
}

void tst_StartUp::theHelpFileIsLookedForBesideTheProgram()
{
    Default<frmSplash>();
    QCOMPARE(App().HelpFile(), m_system->host.folder() + u"/Orvane.hlp"_s);
    QVERIFY(!QFile::exists(App().HelpFile()));
}

void tst_StartUp::anyKeyUnloadsTheSplash_data()
{
    QTest::addColumn<Qt::Key>("key");
    QTest::newRow("a letter") << Qt::Key_A;
    QTest::newRow("Enter") << Qt::Key_Return;
    QTest::newRow("Escape") << Qt::Key_Escape;
    QTest::newRow("Space") << Qt::Key_Space;
}

void tst_StartUp::anyKeyUnloadsTheSplash()
{
    QFETCH(Qt::Key, key);
    QTest::keyClick(&Default<frmSplash>().shell(), key);
    QCOMPARE(countWindows(u"frmSplash"_s), 0);
}

void tst_StartUp::aClickOnItsFrameUnloadsTheSplash()
{
    m_system->click(Default<frmSplash>().Frame1);
    QCOMPARE(countWindows(u"frmSplash"_s), 0);
}

void tst_StartUp::theSplashHasNoTimer()
{
    Default<frmSplash>();
    QCOMPARE(m_system->host.runningTimers(), 0);
}

void tst_StartUp::theLegalNoticesAreToBeSeenWhole()
{
    const frmSplash &splash = Default<frmSplash>();
    QVERIFY(splash.lblCopyright.Caption().contains(u"copyright"));
    QVERIFY(splash.lblWarning.Caption().contains(u"license"));
    for (const Label *notice : {&splash.lblCopyright, &splash.lblWarning}) {
        const QWidget &shown = notice->widget();
        const QRect needed = shown.fontMetrics().boundingRect(shown.rect(), Qt::TextWordWrap, notice->Caption());
        QVERIFY2(shown.rect().contains(needed), qPrintable(notice->Name()));
    }
}

void tst_StartUp::theSplashHoldsItsControls_data()
{
    QTest::addColumn<QString>("holder");
    for (const char *control : {"zelGradient", "Picture1", "Frame1"})
        QTest::newRow(control) << u""_s;
    for (const char *control : {"Label1", "lblCompanyProduct", "lblUserName", "lblPlatform", "lblVersion", "lblWarning",
                                "lblCopyright", "imgLogo", "lblUserCompany", "imgTitle"})
        QTest::newRow(control) << u"Frame1"_s;
}

void tst_StartUp::theSplashHoldsItsControls()
{
    const Control *control = Default<frmSplash>().control(QString::fromLatin1(QTest::currentDataTag()));
    QVERIFY(control);
    const Control *holder = Control::of(control->widget().parentWidget());
    QTEST(holder ? holder->Name() : u""_s, "holder");
}

void tst_StartUp::aPictureOfTheStartIsPaintedByTheBuild_data()
{
    QTest::addColumn<QString>("control");
    QTest::addColumn<QString>("picture");
    QTest::newRow("splash") << u"Picture1"_s << u"splash"_s;
    QTest::newRow("title") << u"imgTitle"_s << u"imgTitle"_s;
    QTest::newRow("sign") << u"imgLogo"_s << u"mark"_s;
    QTest::newRow("intro") << u"Image1"_s << u"intro"_s;
}

void tst_StartUp::aPictureOfTheStartIsPaintedByTheBuild()
{
    QFETCH(QString, control);
    QFETCH(QString, picture);
    const Control *shown = Default<frmSplash>().control(control);
    if (!shown) shown = Default<frmInfo>().control(control);
    QVERIFY(shown);
    QVERIFY(!paintedPicture(picture, shown->widget().size()).isNull());
}

// Between the loads the splash hears its events.
void tst_StartUp::aKeyDuringTheLoadsTakesTheSplashAwayAndStopsNothing()
{
    QStringList left;
    QTimer ticks;
    connect(&ticks, &QTimer::timeout, this, [&] {
        if (!loadedNames().contains(u"mdiMain"_s)) return;
        ticks.stop();
        QTest::keyClick(&Default<frmSplash>().shell(), Qt::Key_Space);
        left = loadedNames();
    });
    ticks.start(0);
    m_system->showSplash();
    QCOMPARE(left, (QStringList{u"frmDemo"_s, u"mdiMain"_s}));
    QCOMPARE(loadedNames(), (QStringList{u"frmDemo"_s, u"mdiMain"_s, u"frmCommandCentre"_s, u"frmInfo"_s}));
    QVERIFY(intro().Visible());
}

void tst_StartUp::theIntroFollowsTheSplash()
{
    m_system->showSplash();
    QCOMPARE(countWindows(u"frmSplash"_s), 0);
    QVERIFY(introIsUp());
    QVERIFY(intro().Visible());
    QVERIFY(!intro().shell().isModal());
    QVERIFY(!m_system->frame().Visible());
    QVERIFY(!m_system->diagram().Visible());
    QVERIFY(!m_system->console().Visible());
}

void tst_StartUp::theWindowsAreLoadedInTheirOrder()
{
    m_system->showSplash();
    QCOMPARE(loadedNames(), (QStringList{u"frmDemo"_s, u"mdiMain"_s, u"frmCommandCentre"_s, u"frmInfo"_s}));
}

void tst_StartUp::eventsRunBetweenTheLoads()
{
    QTimer ticks;
    QSet<QString> seen;
    connect(&ticks, &QTimer::timeout, this, [&] { seen << loadedNames().join(u' '); });
    ticks.start(0);
    m_system->showSplash();
    QVERIFY(seen.contains(u"frmSplash frmDemo"_s));
    QVERIFY(seen.contains(u"frmSplash frmDemo mdiMain"_s));
    QVERIFY(seen.contains(u"frmSplash frmDemo mdiMain frmCommandCentre"_s));
}

void tst_StartUp::theFrameStartsWithItsDesignTitle()
{
    m_system->showSplash();
    QCOMPARE(m_system->frame().Caption(), u"ORVANE"_s);
    QCOMPARE(m_system->frame().shell().windowTitle(), u"ORVANE"_s);
}

void tst_StartUp::theNumbersOfWindowToolsStartAt35000()
{
    m_system->showSplash();
    QCOMPARE(Shared().ToolIdCounter, 35000);
    QCOMPARE(m_system->frame().mnuMain.Bands(u"mnuWindow"_s).Tools().Count(), 0);
}

void tst_StartUp::theHiddenConsoleHearsNothingOfTheLoads()
{
    m_system->showSplash();
    QCOMPARE(m_system->console().Tag(), u"0"_s);
    QCOMPARE(m_system->console().Header.Text(), u""_s);
}

void tst_StartUp::theIntroGoesByTheUsersHand_data()
{
    QTest::addColumn<QString>("hand");
    QTest::newRow("Enter") << u"Enter"_s;
    QTest::newRow("Enter of the number pad") << u"number pad"_s;
    QTest::newRow("the picture") << u"picture"_s;
    QTest::newRow("the red dot") << u"red dot"_s;
}

void tst_StartUp::theIntroGoesByTheUsersHand()
{
    QFETCH(QString, hand);
    m_system->showSplash();
    if (hand == u"Enter") QTest::keyClick(&intro().shell(), Qt::Key_Return);
    if (hand == u"number pad") QTest::keyClick(&intro().shell(), Qt::Key_Enter, Qt::KeypadModifier);
    if (hand == u"picture") m_system->clickAt(intro().Image1, 1500, 1500);
    if (hand == u"red dot") m_system->click(intro().lblBtn);
    QVERIFY(!introIsUp());
    QVERIFY(m_system->frame().Visible());
    QVERIFY(m_system->console().Visible());
    QCOMPARE(m_system->console().Tag(), u"101"_s);
    QCOMPARE(m_system->console().Header.Text(), u"Step 101"_s);
}

void tst_StartUp::theRedDotLiesOverThePicture()
{
    m_system->showSplash();
    const QWidget &button = intro().lblBtn.widget();
    QCOMPARE(intro().shell().childAt(button.geometry().center()), &button);
}

void tst_StartUp::otherKeysLeaveTheIntroUp_data()
{
    QTest::addColumn<Qt::Key>("key");
    QTest::newRow("Escape") << Qt::Key_Escape;
    QTest::newRow("Space") << Qt::Key_Space;
    QTest::newRow("a letter") << Qt::Key_M;
    QTest::newRow("Tab") << Qt::Key_Tab;
    QTest::newRow("F1") << Qt::Key_F1;
}

void tst_StartUp::otherKeysLeaveTheIntroUp()
{
    QFETCH(Qt::Key, key);
    m_system->showSplash();
    QTest::keyClick(&intro().shell(), key);
    QVERIFY(introIsUp());
    QVERIFY(intro().Visible());
    QVERIFY(!m_system->frame().Visible());
}

void tst_StartUp::theUserLeavingTheIntroGetsTheDealersText()
{
    m_system->host.writeFile(u"DealerData.dat"_s, ScrambleDealerData(u"Your dealer"_s));
    m_system->start();
    QVERIFY(Shared().DealerTextPresent == True);
    QVERIFY(m_system->console().txtInfo.Text().startsWith(u"Your dealer"));
}

void tst_StartUp::theIntroGoesAfter45Seconds()
{
    m_system->showSplash();
    m_system->host.advance(44999);
    QVERIFY(introIsUp());
    m_system->host.advance(1);
    QVERIFY(!introIsUp());
    QVERIFY(m_system->frame().Visible());
    QVERIFY(m_system->diagram().Visible());
}

void tst_StartUp::leftAloneTheIntroBringsUpAnEmptyConsole()
{
    m_system->showSplash();
    m_system->host.advance(45000);
    const frmDemo &console = m_system->console();
    QVERIFY(console.Visible());
    QCOMPARE(console.Tag(), u"0"_s);
    for (const RichTextBox *box : {&console.Header, &console.rtf})
        QCOMPARE(box->Text(), u""_s);
    for (const TextBox *box : {&console.txtNext, &console.txtPrev, &console.txtTag, &console.txtInfo})
        QCOMPARE(box->Text(), u""_s);
    QCOMPARE(console.cmdGoNext.Tag(), u""_s);
    QCOMPARE(console.cmdGoBack.Tag(), u""_s);
}

void tst_StartUp::leftAloneTheIntroReadsNoDealerText()
{
    m_system->host.writeFile(u"DealerData.dat"_s, ScrambleDealerData(u"Your dealer"_s));
    m_system->showSplash();
    m_system->host.advance(45000);
    QVERIFY(Shared().DealerTextPresent == False);
    QCOMPARE(m_system->console().txtInfo.Text(), u""_s);
}

void tst_StartUp::noTimerRunsBehindTheIntro_data()
{
    QTest::addColumn<bool>("byUser");
    QTest::newRow("left by the user") << true;
    QTest::newRow("left alone") << false;
}

void tst_StartUp::noTimerRunsBehindTheIntro()
{
    QFETCH(bool, byUser);
    m_system->showSplash();
    QCOMPARE(m_system->host.runningTimers(), 1);
    leaveIntro(byUser);
    QCOMPARE(m_system->host.runningTimers(), 0);
}

void tst_StartUp::theSystemIsUpAfterTheIntro()
{
    m_system->start();
    QCOMPARE(m_system->console().Tag(), u"101"_s);
    QCOMPARE(m_system->active(), &m_system->diagram());
    QCOMPARE(m_system->diagram().WindowState(), int(Maximized));
    QCOMPARE(m_system->frame().Caption(), u"orvane"_s);
}

void tst_StartUp::theConsoleStandsInThePanelsCorner_data()
{
    noTimerRunsBehindTheIntro_data();
}

void tst_StartUp::theConsoleStandsInThePanelsCorner()
{
    QFETCH(bool, byUser);
    m_system->showSplash();
    leaveIntro(byUser);
    const SSPanel &panel = m_system->diagram().pnlDiag(1);
    const frmDemo &console = m_system->console();
    QCOMPARE(console.Top(), panel.Top() + 900);
    QCOMPARE(console.Left(), panel.Width() - 300 - console.Width() + panel.Left());
}

void tst_StartUp::aGuideOpenedWhileTheConsoleHasTheFocusStaysActive()
{
    m_system->start();
    m_system->console().SetFocus();
    QTRY_VERIFY(m_system->console().shell().isActiveWindow());
    m_system->click(m_system->diagram().cmdImp(1));
    QVERIFY(m_system->active());
    QCOMPARE(m_system->active()->Name(), u"frmIGSteps"_s);
    m_system->frame().SetFocus();
    QTRY_VERIFY(m_system->frame().shell().isActiveWindow());
    QCOMPARE(m_system->active()->Name(), u"frmIGSteps"_s);
}

QTEST_MAIN(tst_StartUp)
#include "tst_StartUp.moc"
