// What comes first in the two windows with versions: a tool's report before its effect, and the window put in order
// before it goes.
#include "documents/VersionStates.h"
#include "platform/system/Dates.h"

using namespace Qt::Literals::StringLiterals;
using namespace orvane;
using namespace orvane::test;

class tst_VersionOrder : public QObject
{
    Q_OBJECT

private slots:
    void aPagingToolIsReportedBeforeAnythingElse_data() { addSisters(); }
    void aPagingToolIsReportedBeforeAnythingElse();
    void aPageToolIsReportedBeforeItsPage_data() { addSisters(); }
    void aPageToolIsReportedBeforeItsPage();
    void modeIsReportedBeforeTheSwitch_data() { addSisters(); }
    void modeIsReportedBeforeTheSwitch();
    void aWindowIsCleanAsItGoes_data() { addSisters(); }
    void aWindowIsCleanAsItGoes();
};

// While the notice is up, the version is as the user left it.
void tst_VersionOrder::aPagingToolIsReportedBeforeAnythingElse()
{
    QFETCH(Sister, sister);
    VersionedSystem open(sister);
    open.toOwn();
    typeEverywhere(open);
    int notices = 0;
    VersionState state;
    QStringList fields;
    open.system.whileModal([&] { open.pressPage(u"First"_s); },
                           [&] {
                               notices = countWindows(u"frmError"_s);
                               state = stateOf(open);
                               fields = open.fields();
                               open.system.host.advance(2000);
                           });
    QCOMPARE(notices, 1);
    QVERIFY(state == OwnDirty);
    QCOMPARE(fields, typedFields());
    QVERIFY(!open.saveEnabled());
}

void tst_VersionOrder::aPageToolIsReportedBeforeItsPage()
{
    QFETCH(Sister, sister);
    const VersionedSystem open(sister);
    open.toOwn();
    typeEverywhere(open);
    QStringList checked;
    QObject context;
    connect(&open.system.console().rtf, &RichTextBox::Change, &context, [&] {
        checked << open.checkedPages();
        QVERIFY(stateOf(open) == OwnDirty);
        QCOMPARE(open.fields(), typedFields());
        QVERIFY(open.window->rtfData.Text().startsWith(u"typed"_s));
    });
    open.pressPage(open.facts.pages[1]);
    QCOMPARE(checked, QStringList(open.facts.pages[0]));
    QCOMPARE(open.checkedPages(), QStringList(open.facts.pages[1]));
}

void tst_VersionOrder::modeIsReportedBeforeTheSwitch()
{
    QFETCH(Sister, sister);
    const VersionedSystem open(sister);
    QList<VersionState> reported;
    QObject context;
    connect(&open.system.console().rtf, &RichTextBox::Change, &context, [&] { reported << stateOf(open); });
    open.toOwn();
    QVERIFY(reported == QList<VersionState>{MasterClean});
    QVERIFY(stateOf(open) == OwnClean);
}

// An unloaded window lives until its handlers are done.
void tst_VersionOrder::aWindowIsCleanAsItGoes()
{
    QFETCH(Sister, sister);
    const VersionedSystem open(sister);
    open.toOwn();
    typeEverywhere(open);
    QVERIFY(stateOf(open) == OwnDirty);
    QCOMPARE(open.window->txtDate.Text(), u"soon"_s);
    open.window->Unload();
    QVERIFY(open.window->Unloaded());
    QCOMPARE(open.window->Dirty, False);
    QVERIFY(!open.saveEnabled());
    QCOMPARE(open.window->txtDate.Text(), Date());
}

QTEST_MAIN(tst_VersionOrder)
#include "tst_VersionOrder.moc"
