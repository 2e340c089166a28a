// The tools that change the view of the step: what they check, report and show, and when.
#include "documents/guide/GuideWindow.h"

#include "command_center/frmError.h"

using namespace Qt::Literals::StringLiterals;
using namespace orvane;
using namespace orvane::test;

namespace
{

// As a bar with another view checked at design time would open it.
frmIGSteps &loadWithChecked(const QString &view, const QString &section)
{
    auto *guide = new frmIGSteps;
    guide->mnuNav.Tools(u"Requirement"_s).setChecked(false);
    guide->mnuNav.Tools(view).setChecked(true);
    OpenWindowCore(*guide, u"Title"_s, section);
    return *guide;
}

} // namespace

class tst_GuideViews : public QObject
{
    Q_OBJECT

private slots:
    void aViewToolReportsAndShowsItsPage_data();
    void aViewToolReportsAndShowsItsPage();
    void aViewToolIsCheckedThenReportedThenItsPageShown_data();
    void aViewToolIsCheckedThenReportedThenItsPageShown();
    void thePaneClosesBeforeAnotherPageComes_data();
    void thePaneClosesBeforeAnotherPageComes();
    void aViewToolChecksItselfAlone_data();
    void aViewToolChecksItselfAlone();
    void aViewToolIsPressedByKeys();
    void aPagingToolBringsTheNotice_data();
    void aPagingToolBringsTheNotice();
    void aPagingToolLeavesPageAndCheck_data();
    void aPagingToolLeavesPageAndCheck();
    void aPagingToolClosesThePane_data();
    void aPagingToolClosesThePane();
    void aDisabledViewToolDoesNothing();
    void inAnIntroductionTheCheckMovesBack_data();
    void inAnIntroductionTheCheckMovesBack();
    void theStepKeepsItsCheckWhenItLoads();
    void theTipsStandForAMomentUnderTheirHeading();
    void everyPageStartsAtItsTop_data();
    void everyPageStartsAtItsTop();
};

void tst_GuideViews::aViewToolReportsAndShowsItsPage_data()
{
    QTest::addColumn<QString>("tool");
    QTest::addColumn<QString>("tag");
    QTest::addColumn<QString>("opening");
    QTest::newRow("Requirement") << u"Requirement"_s << u"127"_s << u"ISO 14001  Section 4.4.7\n"_s;
    QTest::newRow("Procedure") << u"Procedure"_s << u"104"_s << u"Yes. "_s;
    QTest::newRow("Implementation") << u"Implementation"_s << u"105"_s << u"1.\tAssign "_s;
    QTest::newRow("Tips") << u"Tips"_s << u"107"_s << u"Include "_s;
}

void tst_GuideViews::aViewToolReportsAndShowsItsPage()
{
    QFETCH(QString, tool);
    QFETCH(QString, tag);
    QFETCH(QString, opening);
    const GuideWindow open;
    open.press(tool == u"Requirement"_s ? u"Procedure"_s : u"Requirement"_s);
    open.tags->clear();
    open.press(tool);
    QCOMPARE(open.tags->tags(), QStringList(tag));
    QVERIFY2(open.guide->rtfData.Text().startsWith(opening), qPrintable(open.guide->rtfData.Text()));
    QCOMPARE(open.guide->pnlNumber.Caption(), u"Phase II"_s);
}

void tst_GuideViews::aViewToolIsCheckedThenReportedThenItsPageShown_data()
{
    aViewToolChecksItselfAlone_data();
}

void tst_GuideViews::aViewToolIsCheckedThenReportedThenItsPageShown()
{
    QFETCH(QString, tool);
    const GuideWindow open;
    open.press(tool == u"Requirement"_s ? u"Procedure"_s : u"Requirement"_s);
    QStringList seen;
    const QObject context;
    const auto note = [&](const QString &what) { seen << what + u' ' + open.checkedTools().join(u'+'); };
    connect(&open.system.console().rtf, &RichTextBox::Change, &context, [&] { note(u"report"_s); });
    connect(&open.guide->rtfData, &RichTextBox::Change, &context, [&] { note(u"page"_s); });
    open.press(tool);
    QVERIFY(seen.size() >= 2);
    QCOMPARE(seen.first(), u"report "_s + tool);
    QCOMPARE(seen.at(1), u"page "_s + tool);
}

void tst_GuideViews::thePaneClosesBeforeAnotherPageComes_data()
{
    QTest::addColumn<QString>("tool");
    for (const char *tool : {"Requirement", "Procedure"})
        QTest::newRow(tool) << QString::fromLatin1(tool);
}

void tst_GuideViews::thePaneClosesBeforeAnotherPageComes()
{
    QFETCH(QString, tool);
    const GuideWindow open;
    open.press(u"Implementation"_s);
    QVERIFY(open.paneShown());
    QList<bool> closed;
    const QObject context;
    connect(&open.guide->rtfData, &RichTextBox::Change, &context, [&] { closed << open.paneHidden(); });
    open.press(tool);
    QCOMPARE(closed, QList<bool>{true});
}

void tst_GuideViews::aViewToolChecksItselfAlone_data()
{
    QTest::addColumn<QString>("tool");
    for (const char *tool : {"Requirement", "Procedure", "Implementation", "Tips"})
        QTest::newRow(tool) << QString::fromLatin1(tool);
}

void tst_GuideViews::aViewToolChecksItselfAlone()
{
    QFETCH(QString, tool);
    const GuideWindow open;
    for (const auto &other : {u"Tips"_s, u"Procedure"_s}) {
        open.press(other);
        open.press(tool);
        QCOMPARE(open.checkedTools(), QStringList(tool));
    }
    QVERIFY(buttonOf(open.guide->mnuNav, tool)->isChecked());
}

void tst_GuideViews::aViewToolIsPressedByKeys()
{
    const GuideWindow open;
    QAbstractButton *button = buttonOf(open.guide->mnuNav, u"Procedure"_s);
    button->setFocus();
    QTRY_VERIFY(button->hasFocus());
    QTest::keyClick(button, Qt::Key_Space);
    QCOMPARE(open.checkedTools(), QStringList(u"Procedure"_s));
    QCOMPARE(open.tags->tags(), QStringList(u"104"_s));
}

void tst_GuideViews::aPagingToolBringsTheNotice_data()
{
    QTest::addColumn<QString>("tool");
    for (const char *tool : {"First", "Prev", "Next", "Last"})
        QTest::newRow(tool) << QString::fromLatin1(tool);
}

void tst_GuideViews::aPagingToolBringsTheNotice()
{
    QFETCH(QString, tool);
    GuideWindow open;
    open.pressForNotice(tool);
    QVERIFY(open.noticeShown);
    QCOMPARE(countWindows(u"frmError"_s), 0);
    QCOMPARE(open.tags->tags(), QStringList());
}

void tst_GuideViews::aPagingToolLeavesPageAndCheck_data()
{
    aPagingToolBringsTheNotice_data();
}

void tst_GuideViews::aPagingToolLeavesPageAndCheck()
{
    QFETCH(QString, tool);
    GuideWindow open;
    open.press(u"Implementation"_s);
    open.clickCharacter(open.startOfAction(3) + 4);
    const QString page = open.guide->rtfData.TextRTF();
    open.pressForNotice(tool);
    QCOMPARE(open.guide->rtfData.TextRTF(), page);
    QCOMPARE(open.guide->rtfData.SelStart(), open.startOfAction(3) + 4);
    QCOMPARE(open.checkedTools(), QStringList(u"Implementation"_s));
}

void tst_GuideViews::aPagingToolClosesThePane_data()
{
    aPagingToolBringsTheNotice_data();
}

void tst_GuideViews::aPagingToolClosesThePane()
{
    QFETCH(QString, tool);
    GuideWindow open;
    open.press(u"Implementation"_s);
    const double withPane = open.guide->rtfData.Height();
    bool closedUnderTheNotice = false;
    open.system.whileModal([&] { open.press(tool); },
                           [&] {
                               closedUnderTheNotice = open.paneHidden();
                               open.system.host.advance(2000);
                           });
    QVERIFY(closedUnderTheNotice);
    QVERIFY(open.guide->rtfData.Height() > withPane);
}

void tst_GuideViews::aDisabledViewToolDoesNothing()
{
    const GuideWindow open(u"101"_s);
    const QString page = open.guide->rtfData.Text();
    open.press(u"Implementation"_s);
    QCOMPARE(open.guide->rtfData.Text(), page);
    QCOMPARE(open.tags->tags(), QStringList());
    QVERIFY(open.paneHidden());
}

void tst_GuideViews::inAnIntroductionTheCheckMovesBack_data()
{
    QTest::addColumn<QString>("view");
    for (const char *view : {"Procedure", "Implementation", "Tips"})
        QTest::newRow(view) << QString::fromLatin1(view);
}

void tst_GuideViews::inAnIntroductionTheCheckMovesBack()
{
    QFETCH(QString, view);
    RunningSystem system;
    system.start();
    for (const auto &section : {u"101"_s, u"102"_s, u"103"_s, u"104"_s}) {
        const frmIGSteps &guide = loadWithChecked(view, section);
        QVERIFY(guide.mnuNav.Tools(u"Requirement"_s).Checked());
        QVERIFY(!guide.mnuNav.Tools(view).Checked());
    }
}

void tst_GuideViews::theStepKeepsItsCheckWhenItLoads()
{
    RunningSystem system;
    system.start();
    const frmIGSteps &guide = loadWithChecked(u"Tips"_s, u"127"_s);
    QVERIFY(guide.mnuNav.Tools(u"Tips"_s).Checked());
    QVERIFY(!guide.mnuNav.Tools(u"Requirement"_s).Checked());
}

void tst_GuideViews::theTipsStandForAMomentUnderTheirHeading()
{
    const GuideWindow open;
    open.press(u"Implementation"_s);
    QStringList texts;
    QObject context;
    connect(&open.guide->rtfData, &RichTextBox::Change, &context, [&] {
        texts << open.guide->rtfData.Text();
        if (texts.size() == 1) QVERIFY(open.paneShown());
    });
    open.press(u"Tips"_s);
    QCOMPARE(texts.size(), 2);
    QCOMPARE(texts.first(), u"Hot Tips\nUse orvane's experience for effective implementation.\n\nClick - Close"_s);
    QVERIFY(texts.last().startsWith(u"Include "_s));
    QVERIFY(open.paneHidden());
}

void tst_GuideViews::everyPageStartsAtItsTop_data()
{
    aViewToolChecksItselfAlone_data();
}

void tst_GuideViews::everyPageStartsAtItsTop()
{
    QFETCH(QString, tool);
    const GuideWindow open;
    open.guide->rtfData.setSelStart(200);
    open.press(tool);
    QCOMPARE(open.guide->rtfData.SelStart(), 0);
    QCOMPARE(open.guide->rtfData.SelLength(), 0);
}

QTEST_MAIN(tst_GuideViews)
#include "tst_GuideViews.moc"
