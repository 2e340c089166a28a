// The tools of the Window menu and the frame's title.
#include "printing/frmPrint.h"
#include "shell/ShellProbes.h"
#include "shell/modFunctions.h"
#include "support/RunningSystem.h"

#include <QApplication>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QMenu>
#include <QRandomGenerator>
#include <QTest>

using namespace Qt::Literals::StringLiterals;
using namespace orvane;
using namespace orvane::test;

namespace
{
ToolList &windowTools()
{
    return Default<mdiMain>().mnuMain.Bands(u"mnuWindow"_s).Tools();
}

QStringList captions()
{
    QStringList all;
    for (const auto &tool : windowTools())
        all << tool->Caption();
    return all;
}

QStringList checkedNames()
{
    QStringList checked;
    for (const auto &tool : windowTools())
        if (tool->Checked()) checked << tool->Name();
    return checked;
}

// The names that the windows on show ought to have in the menu.
QStringList listedNames()
{
    QStringList names;
    for (const Form *form : Forms())
        if (dynamic_cast<const MDIChild *>(form)) names << (form->Tag().isEmpty() ? form->Caption() : form->Tag());
    return names;
}

QString titleOf(const Form &window)
{
    static const QMap<QString, QString> modules{{u"frmIGSteps"_s, u"orvane (Implementation Guide)"_s},
                                                {u"frmEMMain"_s, u"orvane (Environment Manual)"_s},
                                                {u"frmMPMain"_s, u"orvane (Management Procedures)"_s},
                                                {u"frmATMain"_s, u"orvane (Action Tools)"_s},
                                                {u"frmRCMain"_s, u"orvane (Records)"_s},
                                                {u"frmCommandCentre"_s, u"orvane"_s}};
    return modules.value(window.Name());
}

void openAny(QRandomGenerator &dice)
{
    const auto openers = {OpenGuide, OpenManual, OpenProcedures, OpenTools, OpenRecords};
    const auto opener = openers.begin()[dice.bounded(5)];
    opener(u"title %1"_s.arg(dice.bounded(3)), u"127"_s);
}

void chooseAny(QRandomGenerator &dice)
{
    ActiveBar &menu = Default<mdiMain>().mnuMain;
    menu.press(windowTools().Item(dice.bounded(windowTools().Count())));
}

void add(const QStringList &names)
{
    for (const QString &name : names)
        AddWindowTool(name, name, u""_s);
}
} // namespace

class tst_WindowMenu : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void anAddedToolBearsItsFields();
    void marksGoFromTheTextsAndStayInTheName();
    void leadingBlanksGoFromTheCaptionAlone();
    void blanksInATitleAreKept_data();
    void blanksInATitleAreKept();
    void aListedNameIsNotAddedAgain();
    void toolsAreNumberedInTheirOrder();
    void idsRunFrom35000AndNeverFall();
    void removingRenumbersTheRest();
    void removingAnUnknownNameRemovesNothing();
    void removingTakesTheFirstOfThatNameAlone();
    void otherBandsKeepTheirTools();

    void checkingOneUnchecksTheOthers();
    void uncheckingOneUnchecksAll();
    void checkingAnUnknownNameUnchecksAll();
    void theModuleCodeSetsTheFramesTitle_data();
    void theModuleCodeSetsTheFramesTitle();

    void theDiagramIsListedByItsCaption();
    void aModuleWindowIsListedByItsTag();
    void aPreviewIsListedByItsCaption();
    void anActiveWindowAloneIsChecked();
    void activatingAListedWindowAddsNothing();
    void aClosedWindowIsListedNoMore();
    void afterTheFirstOfTwoIsClosedTheSecondIsNumberOne();
    void theTitleFollowsTheActiveWindow();
    void aPreviewLeavesTheTitle();
    void theDesignTitleNeverComesBack();
    void theMenuShowsTheTools();
    void theMenuAgreesWithTheWindowsWhateverTheUserDoes_data();
    void theMenuAgreesWithTheWindowsWhateverTheUserDoes();

private:
    void verifyAgreement() const;
    Tool &lastTool() const { return windowTools().Item(windowTools().Count() - 1); }

    std::optional<RunningSystem> m_system;
};

void tst_WindowMenu::init()
{
    m_system.emplace();
    m_system->frame();
}

void tst_WindowMenu::cleanup()
{
    m_system.reset();
}

// One numbered tool for each window, the active one's checked, and its module in the title.
void tst_WindowMenu::verifyAgreement() const
{
    QStringList names;
    int number = 0;
    for (const auto &tool : windowTools()) {
        names << tool->Name();
        QCOMPARE(tool->Caption(), u"&%1 "_s.arg(++number) + tool->Name());
    }
    QStringList windows = listedNames();
    names.sort();
    windows.sort();
    QCOMPARE(names, windows);
    const MDIChild &active = *m_system->active();
    QCOMPARE(checkedNames(), QStringList{active.Tag().isEmpty() ? active.Caption() : active.Tag()});
    QCOMPARE(m_system->frame().Caption(), titleOf(active));
    QCOMPARE(m_system->frame().area().activeSubWindow(), &active.subWindow());
}

void tst_WindowMenu::anAddedToolBearsItsFields()
{
    AddWindowTool(u"[Records] - Plan"_s, u"[Records] - Plan"_s, u"frmRCMain"_s);
    const Tool &tool = windowTools().Item(0);
    QCOMPARE(tool.Id(), 35000);
    QCOMPARE(tool.Name(), u"[Records] - Plan"_s);
    QCOMPARE(tool.Caption(), u"&1 [Records] - Plan"_s);
    QCOMPARE(tool.Description(), u"[Records] - Plan"_s);
    QCOMPARE(tool.TagText(), u"frmRCMain"_s);
    QCOMPARE(tool.ToolTag(), 0);
    QVERIFY(tool.Enabled());
    QVERIFY(!tool.Checked());
}

void tst_WindowMenu::marksGoFromTheTextsAndStayInTheName()
{
    AddWindowTool(u"Rules && &Roles"_s, u"&Rules && &Roles"_s, u""_s);
    QCOMPARE(windowTools().Item(0).Name(), u"Rules && &Roles"_s);
    QCOMPARE(windowTools().Item(0).Caption(), u"&1 Rules  Roles"_s);
    QCOMPARE(windowTools().Item(0).Description(), u"Rules  Roles"_s);
}

void tst_WindowMenu::leadingBlanksGoFromTheCaptionAlone()
{
    AddWindowTool(u"name"_s, u"  & Title "_s, u""_s);
    QCOMPARE(windowTools().Item(0).Caption(), u"&1 Title "_s);
    QCOMPARE(windowTools().Item(0).Description(), u"   Title "_s);
}

void tst_WindowMenu::blanksInATitleAreKept_data()
{
    QTest::addColumn<QString>("title");
    QTest::newRow("one") << u"STEP 17"_s;
    QTest::newRow("several in a row") << u"STEP 9   - Structure and Responsibility"_s;
    QTest::newRow("at the end") << u"Suppliers and Contractors "_s;
    QTest::newRow("no title") << u""_s;
}

void tst_WindowMenu::blanksInATitleAreKept()
{
    QFETCH(QString, title);
    add({u"first"_s, title});
    QCOMPARE(windowTools().Item(1).Caption(), u"&2 "_s + title);
    RemoveWindowTool(u"first"_s);
    QCOMPARE(windowTools().Item(0).Caption(), u"&1 "_s + title);
}

void tst_WindowMenu::aListedNameIsNotAddedAgain()
{
    AddWindowTool(u"name"_s, u"first"_s, u"one"_s);
    AddWindowTool(u"name"_s, u"second"_s, u"two"_s);
    QCOMPARE(captions(), QStringList{u"&1 first"_s});
    QCOMPARE(windowTools().Item(0).TagText(), u"one"_s);
    QCOMPARE(Shared().ToolIdCounter, 35001);
}

void tst_WindowMenu::toolsAreNumberedInTheirOrder()
{
    QStringList names;
    QStringList expected;
    for (int i = 1; i <= 12; ++i) {
        names << u"window %1"_s.arg(i);
        expected << u"&%1 window %1"_s.arg(i);
    }
    add(names);
    QCOMPARE(captions(), expected);
}

void tst_WindowMenu::idsRunFrom35000AndNeverFall()
{
    add({u"a"_s, u"b"_s});
    QCOMPARE(windowTools().Item(1).Id(), 35001);
    RemoveWindowTool(u"b"_s);
    RemoveWindowTool(u"a"_s);
    QCOMPARE(Shared().ToolIdCounter, 35002);
    add({u"a"_s});
    QCOMPARE(windowTools().Item(0).Id(), 35002);
}

void tst_WindowMenu::removingRenumbersTheRest()
{
    add({u"a"_s, u"b"_s, u"c"_s});
    RemoveWindowTool(u"b"_s);
    QCOMPARE(captions(), (QStringList{u"&1 a"_s, u"&2 c"_s}));
    RemoveWindowTool(u"a"_s);
    QCOMPARE(captions(), QStringList{u"&1 c"_s});
}

void tst_WindowMenu::removingAnUnknownNameRemovesNothing()
{
    add({u"a"_s, u"b"_s});
    RemoveWindowTool(u"A"_s);
    QCOMPARE(captions(), (QStringList{u"&1 a"_s, u"&2 b"_s}));
}

void tst_WindowMenu::removingTakesTheFirstOfThatNameAlone()
{
    windowTools().Add(7, u"a"_s).setCaption(u"1 one"_s);
    windowTools().Add(8, u"a"_s).setCaption(u"2 two"_s);
    RemoveWindowTool(u"a"_s);
    QCOMPARE(captions(), QStringList{u"&1 two"_s});
}

void tst_WindowMenu::otherBandsKeepTheirTools()
{
    RemoveWindowTool(u"exit"_s);
    CheckWindowTool(u"exit"_s, True, u""_s);
    const Tool &exit = m_system->frame().mnuMain.Bands(u"mnuFile"_s).Tools(u"exit"_s);
    QCOMPARE(exit.Caption(), u"E&xit"_s);
    QVERIFY(!exit.Checked());
}

void tst_WindowMenu::checkingOneUnchecksTheOthers()
{
    add({u"a"_s, u"b"_s, u"c"_s});
    CheckWindowTool(u"a"_s, True, u""_s);
    CheckWindowTool(u"b"_s, True, u""_s);
    QCOMPARE(checkedNames(), QStringList{u"b"_s});
}

void tst_WindowMenu::uncheckingOneUnchecksAll()
{
    add({u"a"_s, u"b"_s});
    CheckWindowTool(u"a"_s, True, u""_s);
    CheckWindowTool(u"b"_s, False, u""_s);
    QCOMPARE(checkedNames(), QStringList());
}

void tst_WindowMenu::checkingAnUnknownNameUnchecksAll()
{
    add({u"a"_s});
    CheckWindowTool(u"a"_s, True, u""_s);
    CheckWindowTool(u"x"_s, True, u""_s);
    QCOMPARE(checkedNames(), QStringList());
}

void tst_WindowMenu::theModuleCodeSetsTheFramesTitle_data()
{
    QTest::addColumn<QString>("code");
    QTest::addColumn<QString>("title");
    QTest::newRow("CS") << u"CS"_s << u"orvane"_s;
    QTest::newRow("IG") << u"IG"_s << u"orvane (Implementation Guide)"_s;
    QTest::newRow("IGSteps") << u"IGSteps"_s << u"orvane (Implementation Guide)"_s;
    QTest::newRow("MP") << u"MP"_s << u"orvane (Management Procedures)"_s;
    QTest::newRow("RC") << u"RC"_s << u"orvane (Records)"_s;
    QTest::newRow("AT") << u"AT"_s << u"orvane (Action Tools)"_s;
    QTest::newRow("EM") << u"EM"_s << u"orvane (Environment Manual)"_s;
    for (const auto &code : {u""_s, u"PV"_s, u"cs"_s, u"IGsteps"_s, u"XX"_s})
        QTest::addRow("other: %s", qPrintable(code)) << code << u"as it was"_s;
}

void tst_WindowMenu::theModuleCodeSetsTheFramesTitle()
{
    QFETCH(QString, code);
    m_system->frame().setCaption(u"as it was"_s);
    CheckWindowTool(u"a"_s, True, code);
    QTEST(m_system->frame().Caption(), "title");
    QTEST(m_system->frame().shell().windowTitle(), "title");
}

void tst_WindowMenu::theDiagramIsListedByItsCaption()
{
    m_system->start();
    m_system->diagram().setTag(u"home"_s);
    RemoveWindowTool(u"Command Center"_s);
    m_system->click(m_system->diagram().cmdImp(1));
    m_system->diagram().SetFocus();
    QCOMPARE(lastTool().Name(), u"Command Center"_s);
    QCOMPARE(lastTool().Caption(), u"&2 Command Center"_s);
    QCOMPARE(lastTool().Description(), u"Command Center"_s);
    QCOMPARE(lastTool().TagText(), u"home"_s);
}

void tst_WindowMenu::aModuleWindowIsListedByItsTag()
{
    m_system->start();
    m_system->click(m_system->diagram().cmdImp(1));
    QCOMPARE(captions(), (QStringList{u"&1 Command Center"_s, u"&2 [Implementation Guide] - Using this Guide"_s}));
    QCOMPARE(lastTool().Id(), 35001);
    QCOMPARE(lastTool().Name(), u"[Implementation Guide] - Using this Guide"_s);
    QCOMPARE(lastTool().Description(), u"[Implementation Guide] - Using this Guide"_s);
    QCOMPARE(lastTool().TagText(), u"frmIGSteps"_s);
    QCOMPARE(lastTool().ToolTag(), 0);
}

void tst_WindowMenu::aPreviewIsListedByItsCaption()
{
    m_system->start();
    Default<frmPrint>().Load();
    Default<frmPrint>().setTag(u"preview"_s);
    Default<frmPrint>().Show();
    const QString caption = Default<frmPrint>().Caption();
    QCOMPARE(lastTool().Name(), caption);
    QCOMPARE(lastTool().Caption(), u"&2 "_s + caption);
    QCOMPARE(lastTool().Description(), caption);
    QCOMPARE(lastTool().TagText(), u"preview"_s);
}

void tst_WindowMenu::anActiveWindowAloneIsChecked()
{
    m_system->start();
    QCOMPARE(checkedNames(), QStringList{u"Command Center"_s});
    m_system->click(m_system->diagram().cmdImp(1));
    QCOMPARE(checkedNames(), QStringList{u"[Implementation Guide] - Using this Guide"_s});
    Default<frmPrint>().Show();
    QCOMPARE(checkedNames(), QStringList{Default<frmPrint>().Caption()});
    m_system->diagram().SetFocus();
    QCOMPARE(checkedNames(), QStringList{u"Command Center"_s});
}

void tst_WindowMenu::activatingAListedWindowAddsNothing()
{
    m_system->start();
    m_system->click(m_system->diagram().cmdImp(1));
    m_system->diagram().SetFocus();
    m_system->click(m_system->diagram().cmdImp(1));
    QCOMPARE(windowTools().Count(), 2);
    QCOMPARE(Shared().ToolIdCounter, 35002);
}

void tst_WindowMenu::aClosedWindowIsListedNoMore()
{
    m_system->start();
    m_system->click(m_system->diagram().cmdImp(1));
    m_system->active()->Unload();
    QCOMPARE(captions(), QStringList{u"&1 Command Center"_s});
    QCOMPARE(m_system->active(), &m_system->diagram());
    QCOMPARE(m_system->frame().Caption(), u"orvane"_s);
}

void tst_WindowMenu::afterTheFirstOfTwoIsClosedTheSecondIsNumberOne()
{
    m_system->diagram();
    OpenGuide(u"Using this Guide"_s, u"102"_s);
    OpenManual(u"Scope"_s, u"219"_s);
    QCOMPARE(windowTools().Count(), 2);
    windowByTag(u"[Implementation Guide] - Using this Guide"_s)->Unload();
    QCOMPARE(captions(), QStringList{u"&1 [Environmental Manual] - Scope"_s});
    OpenTools(u"Ideas"_s, u"406"_s);
    QCOMPARE(captions().constLast(), u"&2 [Action Tools] - Ideas"_s);
    QCOMPARE(lastTool().Id(), 35002);
}

void tst_WindowMenu::theTitleFollowsTheActiveWindow()
{
    m_system->start();
    OpenManual(u"Scope"_s, u"219"_s);
    QCOMPARE(m_system->frame().Caption(), u"orvane (Environment Manual)"_s);
    OpenRecords(u"Emergency Plan"_s, u"511"_s);
    QCOMPARE(m_system->frame().Caption(), u"orvane (Records)"_s);
    windowByTag(u"[Environmental Manual] - Scope"_s)->SetFocus();
    QCOMPARE(m_system->frame().Caption(), u"orvane (Environment Manual)"_s);
    m_system->diagram().SetFocus();
    QCOMPARE(m_system->frame().Caption(), u"orvane"_s);
}

void tst_WindowMenu::aPreviewLeavesTheTitle()
{
    m_system->start();
    OpenManual(u"Scope"_s, u"219"_s);
    Default<frmPrint>().Show();
    QCOMPARE(m_system->active()->Name(), u"frmPrint"_s);
    QCOMPARE(m_system->frame().Caption(), u"orvane (Environment Manual)"_s);
}

void tst_WindowMenu::theDesignTitleNeverComesBack()
{
    m_system->showSplash();
    QCOMPARE(m_system->frame().Caption(), u"ORVANE"_s);
    m_system->leaveIntro();
    m_system->click(m_system->diagram().cmdImp(1));
    m_system->active()->Unload();
    QCOMPARE(m_system->frame().Caption(), u"orvane"_s);
}

void tst_WindowMenu::theMenuShowsTheTools()
{
    m_system->start();
    m_system->click(m_system->diagram().cmdImp(1));
    m_system->frame().SetFocus();
    QTRY_VERIFY(m_system->frame().shell().isActiveWindow());
    QTest::keyClick(&m_system->frame().shell(), Qt::Key_W, Qt::AltModifier);
    auto *menu = qobject_cast<QMenu *>(QApplication::activePopupWidget());
    QVERIFY(menu);
    QStringList shown;
    for (const QAction *action : menu->actions())
        shown << action->text() + (action->isChecked() ? u" checked"_s : u""_s);
    menu->close();
    QCOMPARE(shown, (QStringList{u"&1 Command Center"_s, u"&2 [Implementation Guide] - Using this Guide checked"_s}));
}

void tst_WindowMenu::theMenuAgreesWithTheWindowsWhateverTheUserDoes_data()
{
    QTest::addColumn<quint32>("seed");
    for (quint32 seed = 1; seed <= 8; ++seed)
        QTest::addRow("walk %u", seed) << seed;
}

void tst_WindowMenu::theMenuAgreesWithTheWindowsWhateverTheUserDoes()
{
    QFETCH(quint32, seed);
    QRandomGenerator dice(seed);
    m_system->start();
    for (int step = 0; step < 60; ++step) {
        switch (dice.bounded(5)) {
        case 0:
        case 1:
            openAny(dice);
            break;
        case 2:
            chooseAny(dice);
            break;
        case 3:
            m_system->active()->setWindowState(dice.bounded(3));
            break;
        default:
            m_system->active()->shell().close();
            break;
        }
        verifyAgreement();
        if (QTest::currentTestFailed()) return;
    }
}

QTEST_MAIN(tst_WindowMenu)
#include "tst_WindowMenu.moc"
