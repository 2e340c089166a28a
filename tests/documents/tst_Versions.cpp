// Master and Own: the states of the two windows that have both, and the ways between them.
#include "documents/VersionedFixture.h"
#include "documents/frmMPMain.h"
#include "platform/system/Dates.h"
#include "printing/frmPrint.h"
#include "shell/SharedState.h"

#include <QMdiSubWindow>

using namespace Qt::Literals::StringLiterals;
using namespace orvane;
using namespace orvane::test;

namespace
{
struct State {
    int ownMode;
    short dirty;
    bool locked;
    bool editing;
    bool fields;
    QString caption;
    bool save;
    bool operator==(const State &) const = default;
};

State stateOf(const VersionedSystem &open)
{
    const VersionedWindow &window = *open.window;
    return {window.OwnMode,
            window.Dirty.value(),
            window.rtfData.Locked(),
            window.rtfData.EditingEnabled(),
            open.fieldsEnabled() == QList<bool>{true, true, true},
            open.mode().Caption(),
            open.saveEnabled()};
}

const State MasterClean{0, 0, true, false, false, u" Go to Own "_s, false};
const State OwnClean{-1, 0, false, true, true, u"Go to Master"_s, false};
const State OwnDirty{-1, -1, false, true, true, u"Go to Master"_s, true};
const State OwnDirtyUnsaveable{-1, -1, false, true, true, u"Go to Master"_s, false};
} // namespace

class tst_Versions : public QObject
{
    Q_OBJECT

private slots:
    void aWindowOpensAsMasterAndClean_data() { addSisters(); }
    void aWindowOpensAsMasterAndClean();
    void modeGoesToOwnOnThePageOnShow_data() { addSisters(); }
    void modeGoesToOwnOnThePageOnShow();
    void modeGoesBackAndDropsTheEdits_data() { addSisters(); }
    void modeGoesBackAndDropsTheEdits();
    void theModeToolNamesTheOther_data() { addSisters(); }
    void theModeToolNamesTheOther();
    void whateverIsTypedMakesItDirty_data();
    void whateverIsTypedMakesItDirty();
    void aKeyWithoutCharacterCountsInTheDateAlone();
    void reloadingThePageIsNoEdit_data() { addSisters(); }
    void reloadingThePageIsNoEdit();
    void saveInTheProcedures();
    void saveInTheManualDoesNothing();
    void aPageChangeInTheProceduresKeepsTheFields();
    void aPageChangeInTheManualResetsTheFields();
    void aPagingToolCountsAsAPageChange_data() { addSisters(); }
    void aPagingToolCountsAsAPageChange();
    void aPageChangeInMasterRepairsNoDate_data() { addSisters(); }
    void aPageChangeInMasterRepairsNoDate();
    void printingCleansAndKeepsTheEditsOnShow_data() { addSisters(); }
    void printingCleansAndKeepsTheEditsOnShow();
    void aLinkChangesNothing_data() { addSisters(); }
    void aLinkChangesNothing();
    void aWindowOpenedAgainIsMaster_data() { addSisters(); }
    void aWindowOpenedAgainIsMaster();
    void eachWindowHasItsOwnState();
    void theNextWindowAfterTheUserDetailsKeepsTheDesign_data() { addSisters(); }
    void theNextWindowAfterTheUserDetailsKeepsTheDesign();
    void quittingSavesInTheProcedures();
    void nothingChangesTheTextInMaster_data() { addSisters(); }
    void nothingChangesTheTextInMaster();
};

void tst_Versions::aWindowOpensAsMasterAndClean()
{
    QFETCH(Sister, sister);
    const VersionedSystem open(sister);
    QVERIFY(stateOf(open) == MasterClean);
    QCOMPARE(open.fields(), masterFields());
    QCOMPARE(open.checkedPages(), QStringList(open.facts.pages.front()));
    QCOMPARE(open.window->WindowState(), int(Maximized));
}

void tst_Versions::modeGoesToOwnOnThePageOnShow()
{
    QFETCH(Sister, sister);
    const VersionedSystem open(sister);
    open.pressPage(open.facts.pages[1]);
    open.tags->clear();
    open.toOwn();
    QVERIFY(stateOf(open) == OwnClean);
    QCOMPARE(open.tags->tags(), QStringList(open.facts.modeTag));
    QVERIFY(open.window->rtfData.Text().startsWith(open.facts.second));
    QCOMPARE(open.fields(), masterFields());
}

void tst_Versions::modeGoesBackAndDropsTheEdits()
{
    QFETCH(Sister, sister);
    const VersionedSystem open(sister);
    const QString text = open.window->rtfData.Text();
    open.toOwn();
    open.typeInPage(u"typed"_s);
    open.type(open.window->txtIssue, u"2"_s);
    open.type(open.window->txtDate, u"soon"_s);
    QVERIFY(stateOf(open) == OwnDirty);
    open.toOwn();
    QVERIFY(stateOf(open) == MasterClean);
    QCOMPARE(open.window->rtfData.Text(), text);
    QCOMPARE(open.fields(), masterFields());
}

void tst_Versions::theModeToolNamesTheOther()
{
    QFETCH(Sister, sister);
    const VersionedSystem open(sister);
    QCOMPARE(open.mode().Description(), u"Go to Own Version"_s);
    open.toOwn();
    QCOMPARE(open.mode().Description(), u"Go to Master Version"_s);
    QVERIFY(!buttonOf(open.window->mnuLinks, u"Mode"_s)->text().contains(u"Own"_s));
    open.toOwn();
    QCOMPARE(open.mode().Description(), u"Go to Own Version"_s);
}

void tst_Versions::whateverIsTypedMakesItDirty_data()
{
    QTest::addColumn<Sister>("sister");
    QTest::addColumn<QString>("where");
    for (const auto &[name, sister] : {std::pair("manual", Sister::Manual), {"procedures", Sister::Procedures}})
        for (const char *where : {"txtIssue", "txtDate", "txtAuthorized", "rtfData"})
            QTest::addRow("%s, %s", name, where) << sister << QString::fromLatin1(where);
}

void tst_Versions::whateverIsTypedMakesItDirty()
{
    QFETCH(Sister, sister);
    QFETCH(QString, where);
    const VersionedSystem open(sister);
    open.toOwn();
    Control &control = *open.window->control(where);
    control.SetFocus();
    QVERIFY(stateOf(open) == OwnClean);
    QTest::keyClicks(&control.widget(), u"x"_s);
    QVERIFY(stateOf(open) == OwnDirty);
}

void tst_Versions::aKeyWithoutCharacterCountsInTheDateAlone()
{
    const VersionedSystem open(Sister::Procedures);
    open.toOwn();
    open.window->txtIssue.SetFocus();
    QTest::keyClick(&open.window->txtIssue.widget(), Qt::Key_Left);
    QVERIFY(stateOf(open) == OwnClean);
    open.window->txtDate.SetFocus();
    QTest::keyClick(&open.window->txtDate.widget(), Qt::Key_Left);
    QVERIFY(stateOf(open) == OwnDirty);
}

void tst_Versions::reloadingThePageIsNoEdit()
{
    QFETCH(Sister, sister);
    const VersionedSystem open(sister);
    open.pressPage(open.facts.pages[1]);
    QVERIFY(stateOf(open) == MasterClean);
    open.toOwn();
    open.pressPage(open.facts.pages[0]);
    QVERIFY(stateOf(open) == OwnClean);
}

void tst_Versions::saveInTheProcedures()
{
    const VersionedSystem open(Sister::Procedures);
    open.toOwn();
    open.type(open.window->txtIssue, u"2b"_s);
    open.type(open.window->txtDate, u"soon"_s);
    open.pressLink(u"Save"_s);
    QVERIFY(stateOf(open) == OwnClean);
    QCOMPARE(open.window->txtIssue.Text(), u"2b"_s);
    QCOMPARE(open.window->txtDate.Text(), Date());
    open.window->txtDate.SetFocus();
    open.window->txtIssue.SetFocus();
    QCOMPARE(open.window->txtDate.Text(), u"November 21, 2026"_s);
}

void tst_Versions::saveInTheManualDoesNothing()
{
    const VersionedSystem open(Sister::Manual);
    open.toOwn();
    open.type(open.window->txtIssue, u"2b"_s);
    open.pressLink(u"Save"_s);
    QVERIFY(stateOf(open) == OwnDirty);
    QCOMPARE(open.window->txtIssue.Text(), u"2b"_s);
}

void tst_Versions::aPageChangeInTheProceduresKeepsTheFields()
{
    const VersionedSystem open(Sister::Procedures);
    open.toOwn();
    open.typeInPage(u"typed"_s);
    open.type(open.window->txtIssue, u"2b"_s);
    open.type(open.window->txtDate, u"soon"_s);
    open.type(open.window->txtAuthorized, u"M Serrano"_s);
    open.pressPage(u"Method"_s);
    QVERIFY(stateOf(open) == OwnClean);
    QCOMPARE(open.fields(), (QStringList{u"2b"_s, u"November 21, 2026"_s, u"M Serrano"_s}));
    QVERIFY(open.window->rtfData.Text().startsWith(u"Method\n"_s));
}

void tst_Versions::aPageChangeInTheManualResetsTheFields()
{
    const VersionedSystem open(Sister::Manual);
    open.toOwn();
    open.type(open.window->txtIssue, u"2b"_s);
    open.pressPage(u"References"_s);
    QVERIFY(stateOf(open) == OwnDirtyUnsaveable);
    QCOMPARE(open.fields(), masterFields());
}

void tst_Versions::aPagingToolCountsAsAPageChange()
{
    QFETCH(Sister, sister);
    VersionedSystem open(sister);
    open.toOwn();
    open.typeInPage(u"typed"_s);
    open.pressPaging(u"First"_s);
    QCOMPARE(open.checkedPages(), QStringList(open.facts.pages.front()));
    QVERIFY(open.window->rtfData.Text().startsWith(u"typed"_s));
    QVERIFY(stateOf(open) == (sister == Sister::Manual ? OwnDirtyUnsaveable : OwnClean));
}

void tst_Versions::aPageChangeInMasterRepairsNoDate()
{
    QFETCH(Sister, sister);
    VersionedSystem open(sister);
    open.window->txtDate.setText(u"soon"_s);
    open.pressPaging(u"Next"_s);
    QCOMPARE(open.window->txtDate.Text(), sister == Sister::Manual ? u"March 31, 1999"_s : u"soon"_s);
}

void tst_Versions::printingCleansAndKeepsTheEditsOnShow()
{
    QFETCH(Sister, sister);
    const VersionedSystem open(sister);
    open.toOwn();
    open.typeInPage(u"typed"_s);
    QVERIFY(chooseFromFlyout(open.window->mnuLinks, u"Print"_s, {u"prtPartial"_s}));
    QCOMPARE(open.system.active()->Name(), u"frmPrint"_s);
    QVERIFY(stateOf(open) == OwnClean);
    QVERIFY(open.window->rtfData.Text().startsWith(u"typed"_s));
}

void tst_Versions::aLinkChangesNothing()
{
    QFETCH(Sister, sister);
    const VersionedSystem open(sister);
    open.toOwn();
    open.typeInPage(u"typed"_s);
    QVERIFY(chooseFromFlyout(open.window->mnuLinks, u"RelatedTopics"_s, {u"mnuIG"_s, u"IGlinks"_s}));
    QCOMPARE(open.system.active()->Name(), u"frmIGSteps"_s);
    QVERIFY(stateOf(open) == OwnDirty);
}

void tst_Versions::aWindowOpenedAgainIsMaster()
{
    QFETCH(Sister, sister);
    VersionedSystem open(sister);
    open.pressPage(open.facts.pages[1]);
    open.toOwn();
    open.typeInPage(u"typed"_s);
    open.pressLink(u"Close"_s);
    QCOMPARE(open.system.active(), &open.system.diagram());
    QCOMPARE(countWindows(open.facts.shellName), 0);
    open.open();
    QVERIFY(stateOf(open) == MasterClean);
    QCOMPARE(open.checkedPages(), QStringList(open.facts.pages.front()));
}

void tst_Versions::eachWindowHasItsOwnState()
{
    const VersionedSystem open(Sister::Procedures);
    open.toOwn();
    OpenManual(u"Emergency Preparedness and Response"_s, u"219"_s);
    const auto &manual = dynamic_cast<VersionedWindow &>(*open.system.active());
    QCOMPARE(manual.OwnMode, 0);
    QVERIFY(manual.rtfData.Locked());
    QVERIFY(stateOf(open) == OwnClean);
}

void tst_Versions::theNextWindowAfterTheUserDetailsKeepsTheDesign()
{
    QFETCH(Sister, sister);
    VersionedSystem open(sister);
    open.pressLink(u"Close"_s);
    Shared().UserDetailsSaved = True;
    open.open();
    QCOMPARE(open.mode().Caption(), u" Go to Own "_s);
    QCOMPARE(open.mode().Description(), u"Mode"_s);
    QVERIFY(Shared().UserDetailsSaved == False);
    open.pressLink(u"Close"_s);
    open.open();
    QCOMPARE(open.mode().Description(), u"Go to Own Version"_s);
}

void tst_Versions::quittingSavesInTheProcedures()
{
    const VersionedSystem open(Sister::Procedures);
    open.toOwn();
    open.type(open.window->txtDate, u"soon"_s);
    dynamic_cast<frmMPMain &>(*open.window).QuitSaveData();
    QVERIFY(stateOf(open) == OwnClean);
    QCOMPARE(open.window->txtDate.Text(), Date());
}

void tst_Versions::nothingChangesTheTextInMaster()
{
    QFETCH(Sister, sister);
    const VersionedSystem open(sister);
    const QString text = open.window->rtfData.Text();
    open.typeInPage(u"typed"_s);
    QTest::keyClick(&open.page(), Qt::Key_Delete);
    QTest::keyClick(&open.page(), Qt::Key_V, Qt::ControlModifier);
    QTest::keyClick(&open.page(), Qt::Key_Z, Qt::ControlModifier);
    QCOMPARE(open.window->rtfData.Text(), text);
    QVERIFY(stateOf(open) == MasterClean);
}

QTEST_MAIN(tst_Versions)
#include "tst_Versions.moc"
