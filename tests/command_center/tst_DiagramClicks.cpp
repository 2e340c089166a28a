// What each button of the diagram does when it is pressed, by mouse and by keys.
#include "command_center/DiagramData.h"
#include "command_center/DiagramUser.h"
#include "shell/ShellProbes.h"
#include "support/ReportedTags.h"
#include "support/UserOnBars.h"

#include <QCursor>
#include <QMdiSubWindow>

using namespace Qt::Literals::StringLiterals;
using namespace orvane;
using namespace orvane::test;

namespace
{
int countModules()
{
    int count = 0;
    for (const auto &name : {u"frmIGSteps"_s, u"frmEMMain"_s, u"frmMPMain"_s, u"frmATMain"_s, u"frmRCMain"_s})
        count += countWindows(name);
    return count;
}
} // namespace

class tst_DiagramClicks : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void aGuideButtonOpensItsWindow_data();
    void aGuideButtonOpensItsWindow();
    void aButtonWithoutLiveExampleBringsTheNoticeAlone_data();
    void aButtonWithoutLiveExampleBringsTheNoticeAlone();
    void theEmergencyPlanIdeasOpenAndAreReportedThen();
    void aToolOfAnotherTagOpensWithoutAReport();
    void pressingTheFocusSinkDoesNothing();

    void aButtonDropsItsMenu_data();
    void aButtonDropsItsMenu();
    void theMenuDropsAtTheMouse();
    void theMenuDropsBelowTheButtonForTheKeyboard();
    void droppingAMenuReportsNothing_data();
    void droppingAMenuReportsNothing();
    void aChoiceOpensItsWindowInFront_data();
    void aChoiceOpensItsWindowInFront();
    void aChoiceWithoutLiveExampleBringsTheNotice_data();
    void aChoiceWithoutLiveExampleBringsTheNotice();

    void aMenuCanBeDroppedWithoutItsButton_data();
    void aMenuCanBeDroppedWithoutItsButton();
    void theFocusCanBePutToRest_data();
    void theFocusCanBePutToRest();
    void theFocusRestsWhenTheWindowIsCalledBack();

    void tabReachesEveryButtonOfAPanel_data();
    void tabReachesEveryButtonOfAPanel();

private:
    frmCommandCentre &diagram() const { return m_system->diagram(); }
    static void addButtons(const std::function<bool(const TabledButton &)> &isOne);
    static void addWaysToDrop();
    void pressBy(SSCommand &button, Qt::Key key) const; // Key_unknown: with the mouse

    std::optional<RunningSystem> m_system;
};

void tst_DiagramClicks::init()
{
    m_system.emplace();
    m_system->start();
}

void tst_DiagramClicks::cleanup()
{
    m_system.reset();
}

void tst_DiagramClicks::addButtons(const std::function<bool(const TabledButton &)> &isOne)
{
    QTest::addColumn<TabledButton>("row");
    for (const TabledButton &row : tabledButtons())
        if (isOne(row)) QTest::newRow(qPrintable(row.name)) << row;
}

void tst_DiagramClicks::addWaysToDrop()
{
    QTest::addColumn<TabledButton>("row");
    QTest::addColumn<Qt::Key>("key");
    for (const TabledButton &row : tabledButtons()) {
        if (!row.dropsMenu()) continue;
        QTest::addRow("%s by mouse", qPrintable(row.name)) << row << Qt::Key_unknown;
        QTest::addRow("%s by Space", qPrintable(row.name)) << row << Qt::Key_Space;
        QTest::addRow("%s by Enter", qPrintable(row.name)) << row << Qt::Key_Return;
        QTest::addRow("%s by Down", qPrintable(row.name)) << row << Qt::Key_Down;
    }
}

void tst_DiagramClicks::pressBy(SSCommand &button, Qt::Key key) const
{
    if (key == Qt::Key_unknown) return m_system->click(button);
    giveFocus(*m_system, button);
    QTest::keyClick(&button.widget(), key);
}

void tst_DiagramClicks::aGuideButtonOpensItsWindow_data()
{
    addButtons([](const TabledButton &row) { return row.does == u"guide"; });
}

void tst_DiagramClicks::aGuideButtonOpensItsWindow()
{
    QFETCH(TabledButton, row);
    m_system->click(buttonOf(diagram(), row.name));
    QCOMPARE(m_system->active()->Name(), u"frmIGSteps"_s);
    QCOMPARE(m_system->active()->Caption(), row.caption);
    QCOMPARE(m_system->active()->Tag(), u"[Implementation Guide] - "_s + row.caption);
    QCOMPARE(Shared().SectionText, row.tag);
    QCOMPARE(Shared().SectionNumber, row.tag.toInt());
    QCOMPARE(m_system->frame().Caption(), u"orvane (Implementation Guide)"_s);
    QCOMPARE(countModules(), 1);
}

void tst_DiagramClicks::aButtonWithoutLiveExampleBringsTheNoticeAlone_data()
{
    addButtons([](const TabledButton &row) { return row.does == u"report"; });
}

void tst_DiagramClicks::aButtonWithoutLiveExampleBringsTheNoticeAlone()
{
    QFETCH(TabledButton, row);
    showPanel(*m_system, row.panel);
    const ReportedTags reported(m_system->console());
    SSCommand &button = buttonOf(diagram(), row.name);
    QCOMPARE(noticesDuring(*m_system, [&] { m_system->click(button); }), 1);
    QCOMPARE(countModules(), 0);
    QCOMPARE(m_system->active(), &diagram());
    QCOMPARE(reported.tags(), QStringList());
    QVERIFY(focusRests(diagram()));
}

void tst_DiagramClicks::theEmergencyPlanIdeasOpenAndAreReportedThen()
{
    showPanel(*m_system, 4);
    const StepLog log(m_system->console(), [this] { return u" over "_s + m_system->active()->Tag(); });
    m_system->click(diagram().cmdAct(7));
    QCOMPARE(m_system->active()->Name(), u"frmATMain"_s);
    QCOMPARE(m_system->active()->Tag(), u"[Action Tools] - Emergency Plan Ideas"_s);
    QCOMPARE(Shared().SectionText, u"406"_s);
    QVERIFY(!log.steps().isEmpty());
    QCOMPARE(log.steps().last(), u"406 over [Action Tools] - Emergency Plan Ideas"_s);
    QCOMPARE(m_system->console().Tag(), u"406"_s);
}

void tst_DiagramClicks::aToolOfAnotherTagOpensWithoutAReport()
{
    showPanel(*m_system, 4);
    diagram().cmdAct(8).setTag(u"408"_s);
    const ReportedTags reported(m_system->console());
    m_system->click(diagram().cmdAct(8));
    QCOMPARE(m_system->active()->Tag(), u"[Action Tools] - Typical Nonconformances"_s);
    QVERIFY(!reported.tags().contains(u"408"_s));
}

void tst_DiagramClicks::pressingTheFocusSinkDoesNothing()
{
    showPanel(*m_system, 5);
    const ReportedTags reported(m_system->console());
    giveFocus(*m_system, diagram().cmdCommand(0));
    for (const Qt::Key key : {Qt::Key_Space, Qt::Key_Return})
        QTest::keyClick(&diagram().cmdCommand(0).widget(), key);
    QCOMPARE(panelOnShow(diagram()), 5);
    QCOMPARE(reported.tags(), QStringList());
    QCOMPARE(m_system->active(), &diagram());
    QCOMPARE(diagram().ActiveControl(), &diagram().cmdCommand(0));
}

void tst_DiagramClicks::aButtonDropsItsMenu_data()
{
    addWaysToDrop();
}

void tst_DiagramClicks::aButtonDropsItsMenu()
{
    QFETCH(TabledButton, row);
    QFETCH(Qt::Key, key);
    showPanel(*m_system, row.panel);
    QString band;
    bool selected = false;
    const auto look = [&](const QMenu &menu) {
        band = menu.objectName();
        selected = menu.activeAction() != nullptr;
        pressInMenu(Qt::Key_Escape);
        QVERIFY(!menu.isVisible());
    };
    QVERIFY(whileDropped([&] { pressBy(buttonOf(diagram(), row.name), key); }, look));
    QCOMPARE(band, row.does);
    QCOMPARE(selected, key != Qt::Key_unknown); // where the keyboard goes on from
    QVERIFY(focusRests(diagram()));
    QCOMPARE(countModules(), 0);
}

void tst_DiagramClicks::theMenuDropsAtTheMouse()
{
    const QPoint mouse = diagram().cmdImpMnu(3).widget().mapToGlobal(QPoint(20, 10));
    QCursor::setPos(mouse);
    QPoint corner;
    QVERIFY(whileDropped([&] { m_system->click(diagram().cmdImpMnu(3)); },
                         [&](const QMenu &menu) { corner = menu.geometry().topLeft(); }));
    QVERIFY2((corner - mouse).manhattanLength() <= 2,
             qPrintable(u"%1, %2 from the mouse"_s.arg(corner.x() - mouse.x()).arg(corner.y() - mouse.y())));
}

void tst_DiagramClicks::theMenuDropsBelowTheButtonForTheKeyboard()
{
    QCursor::setPos(0, 0);
    const QWidget &button = diagram().cmdImpMnu(3).widget();
    QPoint corner;
    QVERIFY(whileDropped([&] { pressBy(diagram().cmdImpMnu(3), Qt::Key_Down); },
                         [&](const QMenu &menu) { corner = menu.geometry().topLeft(); }));
    QCOMPARE(corner, button.mapToGlobal(QPoint(0, button.height())));
}

void tst_DiagramClicks::droppingAMenuReportsNothing_data()
{
    addButtons([](const TabledButton &row) { return row.dropsMenu(); });
}

void tst_DiagramClicks::droppingAMenuReportsNothing()
{
    QFETCH(TabledButton, row);
    showPanel(*m_system, row.panel);
    const ReportedTags reported(m_system->console());
    const auto press = [&] {
        QVERIFY(whileDropped([&] { m_system->click(buttonOf(diagram(), row.name)); },
                             [](const QMenu &) { pressInMenu(Qt::Key_Escape); }));
    };
    QCOMPARE(noticesDuring(*m_system, press), 0);
    QCOMPARE(reported.tags(), QStringList());
}

void tst_DiagramClicks::aChoiceOpensItsWindowInFront_data()
{
    QTest::addColumn<QString>("button");
    QTest::addColumn<int>("panel");
    QTest::addColumn<QStringList>("path");
    QTest::addColumn<QString>("tag"); // of the window
    QTest::addColumn<QString>("section");
    QTest::addColumn<bool>("byKeys");
    for (const bool byKeys : {true, false}) {
        const auto row = [byKeys](const char *what, const char *button, int panel, const QStringList &path,
                                  const QString &tag, const char *section) {
            QTest::addRow("%s by %s", what, byKeys ? "keys" : "mouse")
                << QString::fromLatin1(button) << panel << path << tag << QString::fromLatin1(section) << byKeys;
        };
        row("a step", "cmdImpMnu(3)", 1, {u"mnuPhase2"_s, u"mnuEmergencyPreparednessandResponse"_s},
            u"[Implementation Guide] - STEP 17 - Emergency Preparedness and Response"_s, "127");
        row("a section of the manual", "cmdEnvMnuMSR(5)", 2,
            {u"mnuImplementationandOperation"_s, u"mnuEmergencyPreparednessandResponse"_s},
            u"[Environmental Manual] - Emergency Preparedness and Response"_s, "219");
        row("a procedure", "cmdPrc(0)", 3, {u"EmergencyPlanning"_s}, u"[Management Procedures] - Emergency Planning"_s,
            "311");
        row("a core record", "cmdRec(0)", 5, {u"EmergencyPlan"_s}, u"[Records] - Emergency Plan"_s, "511");
        row("an environment record", "cmdRec(1)", 5, {u"SignificantAspectsandImpactsSummary"_s},
            u"[Records] - Significant Aspects and Impacts Summary"_s, "519");
    }
}

// It stays in front: putting the focus to rest doesn't call the diagram back.
void tst_DiagramClicks::aChoiceOpensItsWindowInFront()
{
    QFETCH(QString, button);
    QFETCH(int, panel);
    QFETCH(QStringList, path);
    QFETCH(QString, section);
    QFETCH(bool, byKeys);
    showPanel(*m_system, panel);
    const ReportedTags reported(m_system->console());
    bool chosen = false;
    const auto choose = [&](QMenu &menu) { chosen = byKeys ? chooseByKeys(path) : clickThrough(menu, path); };
    SSCommand &opener = buttonOf(diagram(), button);
    QVERIFY(whileDropped([&] { pressBy(opener, byKeys ? Qt::Key_Down : Qt::Key_unknown); }, choose));
    QVERIFY(chosen);
    m_system->frame().SetFocus();
    QTRY_VERIFY(m_system->frame().shell().isActiveWindow());
    QTEST(m_system->active()->Tag(), "tag");
    QCOMPARE(Shared().SectionText, section);
    QVERIFY(reported.tags().startsWith(section));
    QVERIFY(m_system->active()->subWindow().isMaximized());
}

void tst_DiagramClicks::aChoiceWithoutLiveExampleBringsTheNotice_data()
{
    QTest::addColumn<QString>("button");
    QTest::addColumn<int>("panel");
    QTest::addColumn<QStringList>("path");
    QTest::newRow("a step") << u"cmdImpMnu(3)"_s << 1 << QStringList{u"mnuPhase1"_s, u"mnuActionTeam"_s};
    QTest::newRow("an introduction") << u"cmdEnvMnu(1)"_s << 2 << QStringList{u"mnuOrganizationProfile"_s};
    QTest::newRow("an annex") << u"cmdEnvMnuAn(4)"_s << 2 << QStringList{u"mnuEnvironmentalPolicyStatement"_s};
    QTest::newRow("an environment procedure") << u"cmdPrc(1)"_s << 3 << QStringList{u"EnvironmentalAspects"_s};
}

void tst_DiagramClicks::aChoiceWithoutLiveExampleBringsTheNotice()
{
    QFETCH(QString, button);
    QFETCH(int, panel);
    QFETCH(QStringList, path);
    showPanel(*m_system, panel);
    SSCommand &opener = buttonOf(diagram(), button);
    bool chosen = false;
    const auto choose = [&] {
        QVERIFY(whileDropped([&] { pressBy(opener, Qt::Key_Space); }, [&](QMenu &) { chosen = chooseByKeys(path); }));
    };
    QCOMPARE(noticesDuring(*m_system, choose), 1);
    QVERIFY(chosen);
    QCOMPARE(countModules(), 0);
    QCOMPARE(m_system->active(), &diagram());
    QVERIFY(focusRests(diagram()));
}

void tst_DiagramClicks::aMenuCanBeDroppedWithoutItsButton_data()
{
    using Routine = std::function<void(frmCommandCentre &)>;
    QTest::addColumn<Routine>("drop");
    QTest::addColumn<QString>("band");
    QTest::newRow("annexes") << Routine(&frmCommandCentre::dropAnnexes) << u"subAnnexes"_s;
    QTest::newRow("steps") << Routine(&frmCommandCentre::drop24Steps) << u"sub24Steps"_s;
    QTest::newRow("introduction") << Routine(&frmCommandCentre::dropIntroduction) << u"subIntroduction"_s;
    QTest::newRow("requirements") << Routine(&frmCommandCentre::dropRequirements)
                                  << u"subManagementSystemRequirements"_s;
}

void tst_DiagramClicks::aMenuCanBeDroppedWithoutItsButton()
{
    QFETCH(std::function<void(frmCommandCentre &)>, drop);
    giveFocus(*m_system, diagram().cmdImp(0));
    QString band;
    QVERIFY(whileDropped([&] { drop(diagram()); }, [&](const QMenu &menu) { band = menu.objectName(); }));
    QTEST(band, "band");
    QVERIFY(focusRests(diagram()));
}

void tst_DiagramClicks::theFocusCanBePutToRest_data()
{
    QTest::addColumn<int>("ignored");
    for (const int ignored : {0, 1, 7, -1})
        QTest::addRow("%d", ignored) << ignored;
}

void tst_DiagramClicks::theFocusCanBePutToRest()
{
    QFETCH(int, ignored);
    giveFocus(*m_system, diagram().cmdImp(2));
    diagram().restFocus(ignored);
    QVERIFY(focusRests(diagram()));
    QVERIFY(!diagram().cmdImp(2).widget().hasFocus());
    QCOMPARE(panelOnShow(diagram()), 1);
}

void tst_DiagramClicks::theFocusRestsWhenTheWindowIsCalledBack()
{
    giveFocus(*m_system, diagram().cmdImp(1));
    QTest::keyClick(&diagram().cmdImp(1).widget(), Qt::Key_Space);
    QVERIFY(m_system->active() != &diagram());
    diagram().SetFocus();
    QVERIFY(focusRests(diagram()));
}

void tst_DiagramClicks::tabReachesEveryButtonOfAPanel_data()
{
    QTest::addColumn<int>("panel");
    for (int panel = 1; panel <= 5; ++panel)
        QTest::addRow("%d", panel) << panel;
}

// The tabs, then the buttons of the panel on show, and round again; nothing that isn't to be seen.
void tst_DiagramClicks::tabReachesEveryButtonOfAPanel()
{
    QFETCH(int, panel);
    QStringList expected;
    for (int tab = 1; tab <= 5; ++tab)
        expected << u"SSRibbon1(%1)"_s.arg(tab);
    for (const TabledButton &row : tabledButtons())
        if (row.panel == panel) expected << row.name;
    showPanel(*m_system, panel);
    giveFocus(*m_system, diagram().SSRibbon1(1));
    QStringList reached;
    for (qsizetype i = 0; i < expected.size(); ++i) {
        reached << QApplication::focusWidget()->objectName();
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    }
    QCOMPARE(QSet<QString>(reached.begin(), reached.end()), QSet<QString>(expected.begin(), expected.end()));
    QCOMPARE(QApplication::focusWidget(), &diagram().SSRibbon1(1).widget());
}

QTEST_MAIN(tst_DiagramClicks)
#include "tst_DiagramClicks.moc"
