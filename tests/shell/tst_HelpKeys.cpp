// The roads to the help: the Help menu, and F1 in every window.
#include "platform/forms/Screen.h"
#include "platform/system/Application.h"
#include "shell/ShellProbes.h"
#include "shell/frmAbout.h"
#include "shell/frmProperties.h"
#include "support/HelpUser.h"
#include "support/RunningSystem.h"

#include <optional>

using namespace Qt::Literals::StringLiterals;
using namespace orvane;
using namespace orvane::test;

class tst_HelpKeys : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void contentsShowsItsStepThenTheHelp();
    void searchShowsTheHelpAlone();
    void theMenuTakesTheSameWindow();
    void helpIsNoneOfTheProgramsWindows();
    void theUserGoesOnBesideTheHelp();

    void theKeyWorksInTheFrame();
    void theKeyWorksInTheConsole();
    void theKeyWorksInADocument();
    void theKeyWorksInADialog();
    void theKeyWorksInAModalDialog();
    void theKeyWorksInTheHelpItself();
    void theKeyGoesTheRoadOfTheMenu();
    void otherKeysOpenNoHelp_data();
    void otherKeysOpenNoHelp();
    void withoutHelpFileTheKeyTellsSo_data();
    void withoutHelpFileTheKeyTellsSo();
    void aDamagedFileIsToldAndTheProgramGoesOn();

private:
    mdiMain &frame() const { return m_system->frame(); }
    frmDemo &console() const { return m_system->console(); }
    void choose(const QString &tool) const { m_system->clickTool(frame(), u"mnuMain"_s, u"mnuHelp"_s, tool); }
    static void pressIn(const Form &window, Qt::Key key = Qt::Key_F1);
    void breakHelpFile() const { m_system->host.writeFile(u"Orvane.hlp"_s, "broken"); }

    std::optional<RunningSystem> m_system;
    std::optional<HelpUser> m_user;
};

void tst_HelpKeys::init()
{
    m_system.emplace();
    m_user.emplace(m_system->host);
    m_system->start();
}

void tst_HelpKeys::cleanup()
{
    m_user.reset();
    m_system.reset();
}

// On what has the focus in the window, as a keyboard does.
void tst_HelpKeys::pressIn(const Form &window, Qt::Key key)
{
    QWidget *focus = window.shell().focusWidget();
    QTest::keyClick(focus ? focus : &window.shell(), key);
}

void tst_HelpKeys::contentsShowsItsStepThenTheHelp()
{
    const StepLog log(console(), [this] { return m_user->window() ? u" after"_s : u" before"_s; });
    choose(u"miHContents"_s);
    QCOMPARE(log.steps(), QStringList{u"601 before"_s});
    QVERIFY(m_user->window());
    QCOMPARE(m_user->tab(), u"Contents"_s);
}

void tst_HelpKeys::searchShowsTheHelpAlone()
{
    choose(u"miHSearch"_s);
    QCOMPARE(console().Tag(), u"101"_s);
    QVERIFY(m_user->window());
    QCOMPARE(m_user->tab(), u"Search"_s);
}

void tst_HelpKeys::theMenuTakesTheSameWindow()
{
    choose(u"miHContents"_s);
    const QWidget *first = m_user->window();
    choose(u"miHSearch"_s);
    QCOMPARE(m_user->window(), first);
    QCOMPARE(m_user->tab(), u"Search"_s);
}

void tst_HelpKeys::helpIsNoneOfTheProgramsWindows()
{
    const QStringList windows = loadedNames();
    choose(u"miHContents"_s);
    QCOMPARE(loadedNames(), windows);
    QCOMPARE(m_system->active(), &m_system->diagram());
    QTRY_VERIFY(!screenActiveControl());
}

void tst_HelpKeys::theUserGoesOnBesideTheHelp()
{
    choose(u"miHContents"_s);
    m_system->click(m_system->diagram().cmdImp(1));
    QCOMPARE(m_system->active()->Name(), u"frmIGSteps"_s);
    QVERIFY(m_user->window());
}

void tst_HelpKeys::theKeyWorksInTheFrame()
{
    pressIn(frame());
    QVERIFY(m_user->window());
    QCOMPARE(m_user->tab(), u"Contents"_s);
}

void tst_HelpKeys::theKeyWorksInTheConsole()
{
    console().SetFocus();
    pressIn(console());
    QVERIFY(m_user->window());
    QCOMPARE(console().Tag(), u"601"_s);
}

void tst_HelpKeys::theKeyWorksInADocument()
{
    m_system->click(m_system->diagram().cmdImp(1));
    QTest::keyClick(&m_system->active()->control(u"rtfData"_s)->widget(), Qt::Key_F1);
    QVERIFY(m_user->window());
    QCOMPARE(console().Tag(), u"601"_s);
}

void tst_HelpKeys::theKeyWorksInADialog()
{
    Default<frmProperties>().Show();
    pressIn(Default<frmProperties>());
    QVERIFY(m_user->window());
    QVERIFY(Default<frmProperties>().Visible());
    QCOMPARE(console().Tag(), u"601"_s);
}

void tst_HelpKeys::theKeyWorksInAModalDialog()
{
    m_system->whileModal([this] { choose(u"miHAbout"_s); },
                         [this] {
                             pressIn(Default<frmAbout>());
                             QVERIFY(m_user->window());
                             QTest::mouseClick(m_user->window()->findChild<QWidget *>(u"searchStart"_s),
                                               Qt::LeftButton);
                             m_user->goTo(u"printing.html"_s);
                             QTest::mouseClick(m_user->window()->findChild<QWidget *>(u"backButton"_s), Qt::LeftButton);
                             QCOMPARE(m_user->pageName(), u"index.html"_s);
                             pressIn(Default<frmAbout>(), Qt::Key_Escape);
                         });
    QVERIFY(m_user->window());
}

void tst_HelpKeys::theKeyWorksInTheHelpItself()
{
    m_user->openSearch();
    m_user->goTo(u"printing.html"_s);
    m_user->press(Qt::Key_F1);
    QCOMPARE(m_user->tab(), u"Contents"_s);
    QCOMPARE(m_user->pageName(), u"index.html"_s);
}

void tst_HelpKeys::theKeyGoesTheRoadOfTheMenu()
{
    const StepLog log(console(), [this] { return m_user->window() ? u" after"_s : u" before"_s; });
    pressIn(frame());
    QCOMPARE(log.steps(), QStringList{u"601 before"_s});
}

void tst_HelpKeys::otherKeysOpenNoHelp_data()
{
    QTest::addColumn<Qt::Key>("key");
    for (const Qt::Key key : {Qt::Key_F2, Qt::Key_F12, Qt::Key_P, Qt::Key_Help})
        QTest::addRow("%d", key) << key;
}

void tst_HelpKeys::otherKeysOpenNoHelp()
{
    QFETCH(Qt::Key, key);
    pressIn(frame(), key);
    pressIn(console(), key);
    QVERIFY(!m_user->window());
    QCOMPARE(console().Tag(), u"101"_s);
}

void tst_HelpKeys::withoutHelpFileTheKeyTellsSo_data()
{
    QTest::addColumn<bool>("inFrame");
    QTest::newRow("frame") << true;
    QTest::newRow("console") << false;
}

void tst_HelpKeys::withoutHelpFileTheKeyTellsSo()
{
    QFETCH(bool, inFrame);
    App().setHelpFile({});
    m_system->host.expectMessage(u"Unable to display Help Contents. There is no Help associated with this program."_s);
    if (inFrame)
        pressIn(frame());
    else
        pressIn(console());
    QCOMPARE(m_system->host.messages().size(), 1U);
    QCOMPARE(m_system->host.messages().at(0).style, 64);
    QCOMPARE(console().Tag(), u"101"_s);
    QVERIFY(!m_user->window());
}

void tst_HelpKeys::aDamagedFileIsToldAndTheProgramGoesOn()
{
    breakHelpFile();
    m_system->host.expectMessage(u"The help file \"%1\" is damaged, or is no help file at all."_s.arg(m_user->file()));
    pressIn(frame());
    QCOMPARE(m_system->host.messages().at(0).style, 0);
    QCOMPARE(console().Tag(), u"601"_s);
    QVERIFY(!m_user->window());
    QVERIFY(!m_system->host.exitCode());
}

QTEST_MAIN(tst_HelpKeys)
#include "tst_HelpKeys.moc"
