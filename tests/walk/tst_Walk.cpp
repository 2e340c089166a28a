// The whole program, walked by its own tour script from the first step to the last and back.
#include "platform/controls/bars/ActiveBar.h"
#include "tour/DealerText.h"
#include "walk/Walker.h"

#include <QAbstractButton>
#include <QTest>

using namespace Qt::Literals::StringLiterals;
using namespace orvane;
using namespace orvane::test;

class tst_Walk : public QObject
{
    Q_OBJECT

private slots:
    void init() { m_walker.emplace(); }
    void cleanup() { m_walker.reset(); }
    void nextLeadsFromTheFirstStepToTheLast();
    void everyStepShowsSomethingInTheFrame();
    void everyModuleIsSeenOnTheWay();
    void backLeadsFromTheLastStepToTheFirst();
    void backShowsWhatTheStepHadShown();
    void aClickInTheOpeningTextLeadsToTheLastStepToo();
    void anIntroThatWasLeftAloneLeadsIntoTheTour();
    void theWalkEndsWithTheDealersLines();
    void theHelpLeavesTheConsoleInView();
    void aMutedPreviewDoesNotDisturbTheWalk_data();
    void aMutedPreviewDoesNotDisturbTheWalk();

private:
    RunningSystem &system() { return m_walker->system(); }
    frmDemo &console() { return m_walker->console(); }
    void walkToTheLastStep() { m_walker->walkTo({}, console().cmdGoNext); }
    void walkToTheEnd();

    std::optional<Walker> m_walker;
};

void tst_Walk::walkToTheEnd()
{
    walkToTheLastStep();
    if (!QTest::currentTestFailed()) m_walker->take(console().cmdGoNext);
}

void tst_Walk::nextLeadsFromTheFirstStepToTheLast()
{
    m_walker->start();
    QCOMPARE(console().Tag(), u"101"_s);
    walkToTheEnd();
    QCOMPARE(console().Tag(), u"603"_s);
    QVERIFY(console().cmdQuit.Visible());
    const QStringList path = m_walker->path();
    QVERIFY(path.contains(u"102"_s));
    QCOMPARE(QSet<QString>(path.begin(), path.end()).size(), path.size()); // no step twice
    QVERIFY(system().host.messages().empty());
    system().host.expectEnd(0);
    system().click(console().cmdQuit);
}

// But for the first, which only tells of the diagram that is there, the dialog and the help, which stand before the
// frame, and the last stop.
void tst_Walk::everyStepShowsSomethingInTheFrame()
{
    m_walker->start();
    QImage before = m_walker->frame();
    QStringList same;
    while (!ShippedTour::isEnd(m_walker->target(console().cmdGoNext)) && !QTest::currentTestFailed()) {
        m_walker->take(console().cmdGoNext);
        const QImage now = m_walker->frame();
        if (now == before) same << console().Tag();
        before = now;
    }
    for (const QString &tag : same)
        QVERIFY2((QStringList{u"102"_s, u"208"_s, u"605"_s, u"602"_s}.contains(tag)), qPrintable(tag));
}

void tst_Walk::everyModuleIsSeenOnTheWay()
{
    m_walker->start();
    QSet<QString> windows;
    QSet<int> tabs;
    while (!ShippedTour::isEnd(m_walker->target(console().cmdGoNext)) && !QTest::currentTestFailed()) {
        m_walker->take(console().cmdGoNext);
        windows << system().active()->Name();
        for (int tab = 1; tab <= 5; ++tab)
            if (system().active() == &system().diagram() && system().diagram().SSRibbon1(tab).Value()) tabs << tab;
    }
    QCOMPARE(tabs, (QSet<int>{1, 2, 3, 4, 5}));
    QCOMPARE(windows, (QSet<QString>{u"frmCommandCentre"_s, u"frmIGSteps"_s, u"frmEMMain"_s, u"frmMPMain"_s,
                                     u"frmATMain"_s, u"frmRCMain"_s, u"frmPrint"_s}));
    QVERIFY(HelpUser::window());
}

void tst_Walk::backLeadsFromTheLastStepToTheFirst()
{
    m_walker->start();
    walkToTheLastStep();
    m_walker->forgetPath();
    m_walker->walkTo(u"101"_s, console().cmdGoBack);
    QCOMPARE(console().Tag(), u"101"_s);
    QCOMPARE(console().cmdGoBack.Tag(), ShippedTour::none());
    const QStringList path = m_walker->path();
    QCOMPARE(QSet<QString>(path.begin(), path.end()).size(), path.size());
    QVERIFY(system().host.messages().empty());
    QCOMPARE(system().active(), &system().diagram());
}

void tst_Walk::backShowsWhatTheStepHadShown()
{
    m_walker->start();
    QMap<QString, Sight> forward{{u"101"_s, m_walker->sight()}};
    while (!ShippedTour::isEnd(m_walker->target(console().cmdGoNext)) && !QTest::currentTestFailed()) {
        m_walker->take(console().cmdGoNext);
        forward.insert(console().Tag(), m_walker->sight());
    }
    while (!m_walker->target(console().cmdGoBack).isEmpty() && !QTest::currentTestFailed()) {
        m_walker->take(console().cmdGoBack);
        const QString tag = console().Tag();
        QVERIFY2(m_walker->sight() == forward.value(tag), qPrintable(tag + u": "_s + m_walker->sight().window));
    }
    QCOMPARE(console().Tag(), u"101"_s);
}

void tst_Walk::aClickInTheOpeningTextLeadsToTheLastStepToo()
{
    m_walker->start();
    system().click(console().rtf);
    QCOMPARE(console().Tag(), u"102"_s);
    walkToTheEnd();
    QCOMPARE(console().Tag(), u"603"_s);
}

void tst_Walk::anIntroThatWasLeftAloneLeadsIntoTheTour()
{
    system().showSplash();
    system().host.advance(45000);
    QTRY_VERIFY(console().Visible());
    QCOMPARE(console().Tag(), u"0"_s);
    system().click(console().cmdGoNext); // has nothing to do yet
    QCOMPARE(console().Header.Text(), QString());
    system().click(console().rtf);
    QCOMPARE(console().Tag(), u"102"_s);
    walkToTheEnd();
    QCOMPARE(console().Tag(), u"603"_s);
}

void tst_Walk::theWalkEndsWithTheDealersLines()
{
    system().host.writeFile(u"DealerData.dat"_s, ScrambleDealerData(u"Your dealer: 555-0199"_s));
    m_walker->start();
    walkToTheEnd();
    QCOMPARE(console().Tag(), u"604"_s);
    QVERIFY(console().txtInfo.Visible());
    QVERIFY(console().txtInfo.Text().contains(u"555-0199"_s));
    QVERIFY(console().cmdQuit.Visible());
}

void tst_Walk::theHelpLeavesTheConsoleInView()
{
    m_walker->start();
    m_walker->walkTo(u"605"_s, console().cmdGoNext);
    QVERIFY(HelpUser::window());
    QVERIFY(!HelpUser::window()->frameGeometry().intersects(console().shell().frameGeometry()));
}

void tst_Walk::aMutedPreviewDoesNotDisturbTheWalk_data()
{
    QTest::addColumn<QString>("tag");
    for (const QString &tag : {u"127"_s, u"201"_s, u"311"_s, u"406"_s, u"511"_s})
        QTest::addRow("%s", qPrintable(tag)) << tag;
}

void tst_Walk::aMutedPreviewDoesNotDisturbTheWalk()
{
    QFETCH(QString, tag);
    m_walker->start();
    m_walker->walkTo(tag, console().cmdGoNext);
    const MDIChild *document = system().active();
    static_cast<QAbstractButton &>(console().cmdPrint.widget()).click(); // it is hidden, and stands ready
    QCOMPARE(system().active()->Name(), u"frmPrint"_s);
    QCOMPARE(console().Tag(), tag);
    m_walker->take(console().cmdGoNext);
    QCOMPARE(Shared().TourStepsMuted, False);
    QCOMPARE(countWindows(u"frmPrint"_s), 0);
    m_walker->take(console().cmdGoBack);
    QCOMPARE(system().active(), document);
    walkToTheEnd();
    QCOMPARE(console().Tag(), u"603"_s);
}

QTEST_MAIN(tst_Walk)
#include "tst_Walk.moc"
