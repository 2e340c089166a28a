// The windows of the manual and the procedures: their pages, fields, links, print jobs and closing.
#include "documents/VersionedFixture.h"
#include "documents/frmEMMain.h"
#include "documents/frmMPMain.h"
#include "platform/system/Dates.h"
#include "printing/PreviewFixture.h"
#include "shell/SharedState.h"

#include <QMdiSubWindow>

using namespace Qt::Literals::StringLiterals;
using namespace orvane;
using namespace orvane::test;

class tst_VersionedWindows : public QObject
{
    Q_OBJECT

private slots:
    void aWindowBearsItsNames_data() { addSisters(); }
    void aWindowBearsItsNames();
    void aPageToolShowsItsPage_data();
    void aPageToolShowsItsPage();
    void aPagingToolBringsTheNoticeAndNoPage_data() { addSisters(); }
    void aPagingToolBringsTheNoticeAndNoPage();
    void theSelectionMovesTheEditTools_data() { addSisters(); }
    void theSelectionMovesTheEditTools();
    void theDateIsShortInItsFieldAndLongOutside_data() { addSisters(); }
    void theDateIsShortInItsFieldAndLongOutside();
    void aDateIsReadAsItIsTyped_data();
    void aDateIsReadAsItIsTyped();
    void whatIsNoDateStaysAsItIs();
    void anEmptyDateIsRepaired();
    void tabGoesThroughTheFields_data() { addSisters(); }
    void tabGoesThroughTheFields();
    void printingHandsOverTheJob_data();
    void printingHandsOverTheJob();
    void anotherPrintGoesIntoTheSamePreview_data() { addSisters(); }
    void anotherPrintGoesIntoTheSamePreview();
    void theWholeManualIsPrintedByNameAlone();
    void theManualIsPrintedByTheNumberOfTheOthersToo();
    void thePagesBearTheVersionsCompanyAndTheDocument_data();
    void thePagesBearTheVersionsCompanyAndTheDocument();
    void aLinkOpensItsModule_data();
    void aLinkOpensItsModule();
    void closeLeadsToTheDiagram_data() { addSisters(); }
    void closeLeadsToTheDiagram();
    void theCloseBoxUnloadsToo_data() { addSisters(); }
    void theCloseBoxUnloadsToo();
    void theBarGoesBeforeOrAfterTheWindow();
    void theBlankBandNeverShows();
};

void tst_VersionedWindows::aWindowBearsItsNames()
{
    QFETCH(Sister, sister);
    const VersionedSystem open(sister);
    const bool manual = sister == Sister::Manual;
    QCOMPARE(open.window->pnlNumber.Caption(), manual ? u"Section 4.4.7"_s : u"C11"_s);
    QCOMPARE(open.window->pnlHeading.Caption(), open.facts.title);
    QCOMPARE(open.window->Tag(),
             (manual ? u"[Environmental Manual] - "_s : u"[Management Procedures] - "_s) + open.facts.title);
    QCOMPARE(open.window->Caption(), open.facts.title);
    QCOMPARE(open.system.frame().Caption(),
             manual ? u"orvane (Environment Manual)"_s : u"orvane (Management Procedures)"_s);
}

void tst_VersionedWindows::aPageToolShowsItsPage_data()
{
    QTest::addColumn<Sister>("sister");
    QTest::addColumn<QString>("tool");
    QTest::addColumn<QString>("tag");
    const auto row = [](Sister sister, const char *tool, const char *tag) {
        QTest::addRow("%s %s", sister == Sister::Manual ? "manual" : "procedures", tool)
            << sister << QString::fromLatin1(tool) << QString::fromLatin1(tag);
    };
    row(Sister::Manual, "Procedures", "202");
    row(Sister::Manual, "References", "203");
    row(Sister::Manual, "Commitment", "219");
    row(Sister::Procedures, "Responsibility", "303");
    row(Sister::Procedures, "Method", "304");
    row(Sister::Procedures, "Records", "305");
    row(Sister::Procedures, "References", "306");
    row(Sister::Procedures, "Aim", "311");
}

void tst_VersionedWindows::aPageToolShowsItsPage()
{
    QFETCH(Sister, sister);
    QFETCH(QString, tool);
    const VersionedSystem open(sister);
    open.pressPage(tool);
    QVERIFY2(open.window->rtfData.Text().startsWith(tool + u'\n'), qPrintable(open.window->rtfData.Text().left(40)));
    QCOMPARE(open.checkedPages(), QStringList(tool));
    QTEST(open.tags->tags().join(u' '), "tag");
}

void tst_VersionedWindows::aPagingToolBringsTheNoticeAndNoPage()
{
    QFETCH(Sister, sister);
    VersionedSystem open(sister);
    open.pressPage(open.facts.pages[1]);
    const QString text = open.window->rtfData.Text();
    for (const char *tool : {"First", "Prev", "Next", "Last"}) {
        open.pressPaging(QString::fromLatin1(tool));
        QCOMPARE(open.window->rtfData.Text(), text);
        QCOMPARE(open.checkedPages(), QStringList(open.facts.pages[1]));
    }
}

// In Master as in Own: a locked text can be copied, and Cut goes with Copy.
void tst_VersionedWindows::theSelectionMovesTheEditTools()
{
    QFETCH(Sister, sister);
    const VersionedSystem open(sister);
    const ToolList &edit = open.system.frame().mnuMain.Bands(u"mnuEdit"_s).Tools();
    for (int version = 0; version < 2; ++version) {
        open.window->rtfData.SetFocus();
        open.window->rtfData.setSelLength(5);
        QVERIFY(edit.Item(u"miCopy"_s).Enabled() && edit.Item(u"miCut"_s).Enabled());
        open.window->rtfData.setSelLength(0);
        QVERIFY(!edit.Item(u"miCopy"_s).Enabled() && !edit.Item(u"miCut"_s).Enabled());
        open.toOwn();
    }
}

void tst_VersionedWindows::theDateIsShortInItsFieldAndLongOutside()
{
    QFETCH(Sister, sister);
    const VersionedSystem open(sister);
    open.toOwn();
    open.window->txtDate.SetFocus();
    QCOMPARE(open.window->txtDate.Text(), u"1999/03/31"_s);
    open.type(open.window->txtDate, u"2001/4/5"_s);
    open.window->txtIssue.SetFocus();
    QCOMPARE(open.window->txtDate.Text(), u"April 5, 2001"_s);
    open.window->txtDate.SetFocus();
    QCOMPARE(open.window->txtDate.Text(), u"2001/04/05"_s);
}

void tst_VersionedWindows::aDateIsReadAsItIsTyped_data()
{
    QTest::addColumn<QString>("typed");
    for (const char *typed : {"31 March 1999", "3/31/99", "1999-03-31", "99/03/31", "99/3/31", "1999/03/31",
                              "March 31, 1999", "Mar 31 1999"})
        QTest::newRow(typed) << QString::fromLatin1(typed);
}

void tst_VersionedWindows::aDateIsReadAsItIsTyped()
{
    QFETCH(QString, typed);
    const VersionedSystem open(Sister::Procedures);
    open.toOwn();
    open.type(open.window->txtDate, typed);
    open.window->txtIssue.SetFocus();
    QCOMPARE(open.window->txtDate.Text(), u"March 31, 1999"_s);
    open.pressLink(u"Save"_s);
    QCOMPARE(open.window->txtDate.Text(), u"March 31, 1999"_s);
}

void tst_VersionedWindows::whatIsNoDateStaysAsItIs()
{
    const VersionedSystem open(Sister::Procedures);
    open.toOwn();
    open.type(open.window->txtDate, u"next week"_s);
    open.window->txtIssue.SetFocus();
    QCOMPARE(open.window->txtDate.Text(), u"next week"_s);
    open.window->txtDate.SetFocus();
    QCOMPARE(open.window->txtDate.Text(), u"next week"_s);
}

void tst_VersionedWindows::anEmptyDateIsRepaired()
{
    const VersionedSystem open(Sister::Procedures);
    open.toOwn();
    open.window->txtDate.SetFocus();
    QTest::keySequence(&open.window->txtDate.widget(), QKeySequence::SelectAll);
    QTest::keyClick(&open.window->txtDate.widget(), Qt::Key_Delete);
    QCOMPARE(open.window->txtDate.Text(), QString());
    open.pressLink(u"Save"_s);
    QVERIFY(IsDate(open.window->txtDate.Text()));
}

void tst_VersionedWindows::tabGoesThroughTheFields()
{
    QFETCH(Sister, sister);
    const VersionedSystem open(sister);
    open.toOwn();
    open.window->control(open.facts.tabOrder.front())->SetFocus();
    QStringList order;
    for (int field = 0; field < 3; ++field) {
        order << open.window->ActiveControl()->Name();
        QTest::keyClick(&open.window->ActiveControl()->widget(), Qt::Key_Tab);
    }
    QCOMPARE(order, open.facts.tabOrder);
}

void tst_VersionedWindows::printingHandsOverTheJob_data()
{
    QTest::addColumn<Sister>("sister");
    QTest::addColumn<bool>("own");
    QTest::addColumn<QString>("tool");
    QTest::addColumn<QStringList>("tags");
    QTest::addColumn<QString>("document");
    const QString manual = u"Environment Manual"_s;
    const QString procedures = u"Management Procedures"_s;
    QTest::newRow("manual") << Sister::Manual << false << u"prtPartial"_s << QStringList{u"205"_s} << manual;
    QTest::newRow("manual, own") << Sister::Manual << true << u"prtPartial"_s << QStringList{u"205"_s} << manual;
    QTest::newRow("procedures") << Sister::Procedures << false << u"prtPartial"_s << QStringList{u"1"_s, u"310"_s}
                                << procedures;
    QTest::newRow("whole procedure, own")
        << Sister::Procedures << true << u"prtComplete"_s << QStringList{u"2"_s, u"310"_s} << procedures;
}

void tst_VersionedWindows::printingHandsOverTheJob()
{
    QFETCH(Sister, sister);
    QFETCH(bool, own);
    QFETCH(QString, tool);
    const VersionedSystem open(sister);
    if (own) open.toOwn();
    open.tags->clear();
    QVERIFY(chooseFromFlyout(open.window->mnuLinks, u"Print"_s, {tool}));
    QTEST(open.tags->tags(), "tags");
    QTEST(Default<frmPrint>().vs.DocName(), "document");
    QVERIFY(Default<frmPrint>().vs.PageCount() > 0);
}

// The preview reports 206 or 311 as it goes; here it stays.
void tst_VersionedWindows::anotherPrintGoesIntoTheSamePreview()
{
    QFETCH(Sister, sister);
    const VersionedSystem open(sister);
    QVERIFY(chooseFromFlyout(open.window->mnuLinks, u"Print"_s, {u"prtPartial"_s}));
    const frmPrint &first = Default<frmPrint>();
    open.window->SetFocus();
    open.tags->clear();
    QVERIFY(chooseFromFlyout(open.window->mnuLinks, u"Print"_s, {u"prtPartial"_s}));
    QCOMPARE(open.tags->tags(), sister == Sister::Manual ? QStringList({u"205"_s}) : QStringList({u"1"_s, u"310"_s}));
    QCOMPARE(&Default<frmPrint>(), &first);
    QCOMPARE(open.system.active(), &first);
}

void tst_VersionedWindows::theWholeManualIsPrintedByNameAlone()
{
    const VersionedSystem open(Sister::Manual);
    QVERIFY(!chooseFromFlyout(open.window->mnuLinks, u"Print"_s, {u"prtComplete"_s}));
    Tool &whole = open.window->mnuLinks.Tools(u"prtComplete"_s);
    open.window->names().call(u"mnuLinks_Click"_s, {.tool = &whole});
    QCOMPARE(open.tags->tags(), QStringList(u"2"_s));
    QCOMPARE(Default<frmPrint>().vs.DocName(), u"Environment Manual"_s);
}

// Its own print tool bears 205; 1 prints as in the other modules.
void tst_VersionedWindows::theManualIsPrintedByTheNumberOfTheOthersToo()
{
    const VersionedSystem open(Sister::Manual);
    open.window->mnuLinks.Tools(u"prtPartial"_s).setToolTag(1);
    QVERIFY(chooseFromFlyout(open.window->mnuLinks, u"Print"_s, {u"prtPartial"_s}));
    QCOMPARE(open.tags->tags(), QStringList(u"1"_s));
    QCOMPARE(Default<frmPrint>().vs.DocName(), u"Environment Manual"_s);
}

void tst_VersionedWindows::thePagesBearTheVersionsCompanyAndTheDocument_data()
{
    QTest::addColumn<Sister>("sister");
    QTest::addColumn<bool>("own");
    QTest::addColumn<QString>("head");
    const QString manual = u"%1 Environment Manual Section 4.4.7 Emergency Preparedness and Response "_s;
    const QString procedures = u"%1 Management Procedures C11 Emergency Planning "_s;
    QTest::newRow("manual") << Sister::Manual << false << manual.arg(u"Global Inc"_s);
    QTest::newRow("manual, own") << Sister::Manual << true << manual.arg(u"Fairwater Works"_s);
    QTest::newRow("procedures") << Sister::Procedures << false << procedures.arg(u"Global Inc"_s);
    QTest::newRow("procedures, own") << Sister::Procedures << true << procedures.arg(u"Fairwater Works"_s);
}

void tst_VersionedWindows::thePagesBearTheVersionsCompanyAndTheDocument()
{
    QFETCH(Sister, sister);
    QFETCH(bool, own);
    QFETCH(QString, head);
    VersionedSystem open(sister);
    open.system.host.setPrintQueues({{u"LASER"_s, u"Fast"_s, {}, true, LetterPaper}});
    SaveSetting(App().Title(), u"UserDetails"_s, u"Company"_s, u"Fairwater Works"_s);
    if (own) open.toOwn();
    QVERIFY(chooseFromFlyout(open.window->mnuLinks, u"Print"_s, {u"prtPartial"_s}));
    VSPrinter &vs = Default<frmPrint>().vs;
    vs.setDevice(u"LASER"_s);
    vs.PrintDoc(1, vs.PageCount());
    const QString words = wordsOf(readPdf(open.system.host.printedFile(u"LASER"_s)).front());
    QVERIFY2(words.startsWith(head), qPrintable(words.left(120)));
}

void tst_VersionedWindows::aLinkOpensItsModule_data()
{
    QTest::addColumn<Sister>("sister");
    QTest::addColumn<QStringList>("path");
    QTest::addColumn<QString>("tag");
    QTest::addColumn<QString>("key");
    const auto row = [](Sister sister, const char *module, const char *link, const char *tag, const char *key) {
        QTest::addRow("%s %s", sister == Sister::Manual ? "manual" : "procedures", link)
            << sister << QStringList{QString::fromLatin1(module), QString::fromLatin1(link)} << QString::fromLatin1(tag)
            << QString::fromLatin1(key);
    };
    const char *guide = "[Implementation Guide] - STEP 17 - Emergency Preparedness and Response";
    row(Sister::Manual, "mnuIG", "IGlinks", "127", guide);
    row(Sister::Manual, "mnuMP", "btnemp", "311", "[Management Procedures] - Emergency Planning");
    row(Sister::Manual, "mnuAT", "btnat", "406", "[Action Tools] - Emergency Plan Ideas");
    row(Sister::Manual, "mnuRC", "btnRC", "511", "[Records] - Emergency Plan");
    row(Sister::Procedures, "mnuIG", "IGlinks", "127", guide);
    row(Sister::Procedures, "mnuEM", "btnEM", "219", "[Environmental Manual] - Emergency Preparedness and Response");
    row(Sister::Procedures, "mnuAT", "btnepi", "406", "[Action Tools] - Emergency Plan Ideas");
    row(Sister::Procedures, "mnuRC", "btnRC", "511", "[Records] - Emergency Plan");
}

void tst_VersionedWindows::aLinkOpensItsModule()
{
    QFETCH(Sister, sister);
    QFETCH(QStringList, path);
    QFETCH(QString, tag);
    QFETCH(QString, key);
    const VersionedSystem open(sister);
    for (int round = 0; round < 2; ++round) {
        open.window->SetFocus();
        open.tags->clear();
        QVERIFY(chooseFromFlyout(open.window->mnuLinks, u"RelatedTopics"_s, path));
        QCOMPARE(open.system.active()->Tag(), key);
        QCOMPARE(open.tags->tags(), QStringList(tag));
    }
}

void tst_VersionedWindows::closeLeadsToTheDiagram()
{
    QFETCH(Sister, sister);
    const VersionedSystem open(sister);
    Shared().DiagramLayoutHeld = True;
    open.pressLink(u"Close"_s);
    QCOMPARE(open.tags->tags(), QStringList(sister == Sister::Manual ? u"207"_s : u"307"_s));
    QCOMPARE(open.system.active(), &open.system.diagram());
    QCOMPARE(open.system.diagram().WindowState(), int(Maximized));
    QCOMPARE(countWindows(open.facts.shellName), 0);
}

void tst_VersionedWindows::theCloseBoxUnloadsToo()
{
    QFETCH(Sister, sister);
    const VersionedSystem open(sister);
    open.toOwn();
    open.typeInPage(u"typed"_s);
    open.window->subWindow().close();
    QCOMPARE(countWindows(open.facts.shellName), 0);
    for (const auto &entry : open.system.frame().mnuMain.Bands(u"mnuWindow"_s).Tools())
        QVERIFY(!entry->Name().contains(open.facts.title));
}

// The procedures take their bar away and hide then, the manual the other way round.
void tst_VersionedWindows::theBarGoesBeforeOrAfterTheWindow()
{
    for (const Sister sister : {Sister::Manual, Sister::Procedures}) {
        const VersionedSystem open(sister);
        class Order : public QObject
        {
        public:
            QStringList events;
            bool eventFilter(QObject *watched, QEvent *event) override
            {
                if (event->type() == QEvent::HideToParent) events << watched->objectName();
                return false;
            }
        } order;
        open.window->shell().installEventFilter(&order);
        open.window->mnuLinks.widget().installEventFilter(&order);
        open.window->Unload();
        QVERIFY(order.events.size() >= 2);
        QCOMPARE(order.events.front(), sister == Sister::Manual ? u"frmEMMain"_s : u"mnuLinks"_s);
    }
}

void tst_VersionedWindows::theBlankBandNeverShows()
{
    const VersionedSystem open(Sister::Manual);
    QCOMPARE(open.window->mnuNav.Bands(1).Name(), u"Blank"_s);
    QVERIFY(!open.window->mnuNav.Bands(1).Visible());
    open.pressPage(u"References"_s);
    QVERIFY(!open.window->mnuNav.Bands(1).Visible());
}

QTEST_MAIN(tst_VersionedWindows)
#include "tst_VersionedWindows.moc"
