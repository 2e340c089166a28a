// Master and Own: how a switch goes, what saving does, and that nothing changes a Master.
#include "documents/VersionStates.h"
#include "documents/frmMPMain.h"
#include "platform/system/Dates.h"
#include "platform/text/RichBoxFixture.h"
#include "shell/SharedState.h"
#include "shell/ShellProbes.h"
#include "shell/frmProperties.h"

#include <QMenu>
#include <functional>

using namespace Qt::Literals::StringLiterals;
using namespace orvane;
using namespace orvane::test;

namespace
{

using Road = std::function<void(VersionedSystem &open)>;

void pressKeys(const VersionedSystem &open, QKeyCombination keys)
{
    QTest::keyClick(&open.page(), keys.key(), keys.keyboardModifiers());
}

void chooseEdit(const VersionedSystem &open, const QString &tool)
{
    open.system.clickTool(open.system.frame(), u"mnuMain"_s, u"mnuEdit"_s, tool);
}

void typeInDate(const VersionedSystem &open, const QString &text)
{
    open.toOwn();
    open.type(open.window->txtDate, text);
}

// By its keys; nullptr where none comes up.
QMenu *openEditMenu()
{
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_E, Qt::AltModifier);
    return qobject_cast<QMenu *>(QApplication::activePopupWidget());
}

// A tool of the bar that bears this caption and no number.
void pressCaption(const VersionedSystem &open, const QString &caption)
{
    Tool &tool = open.window->mnuLinks.Bands(0).Tools().Add(99, u"loose"_s);
    tool.setCaption(caption);
    open.window->mnuLinks_Click(tool);
}

} // namespace

Q_DECLARE_METATYPE(Road)

class tst_Versions : public QObject
{
    Q_OBJECT

private slots:
    void aWindowOpensAsMasterAndClean_data() { addSisters(); }
    void aWindowOpensAsMasterAndClean();
    void modeGoesToOwnOnThePageOnShow_data() { addSisters(); }
    void modeGoesToOwnOnThePageOnShow();
    void theModeToolNamesTheOther_data() { addSisters(); }
    void theModeToolNamesTheOther();
    void theLastOfTheCheckedPagesIsReloaded_data() { addSisters(); }
    void theLastOfTheCheckedPagesIsReloaded();
    void aCheckedToolWithoutPageLeavesTheText_data() { addSisters(); }
    void aCheckedToolWithoutPageLeavesTheText();
    void aToolWithoutNumberActsByItsCaption_data();
    void aToolWithoutNumberActsByItsCaption();
    void aCloseToolThatReportsNothingUnloadsAlone_data() { addSisters(); }
    void aCloseToolThatReportsNothingUnloadsAlone();
    void aKeyWithoutCharacterCountsInTheDateAlone();
    void undoFromTheMenuMakesItDirty();
    void theDateStaysAsTypedUnderAnOpenMenu_data() { addSisters(); }
    void theDateStaysAsTypedUnderAnOpenMenu();
    void undoByTheMenusKeysTakesTheTypedDateBack_data() { addSisters(); }
    void undoByTheMenusKeysTakesTheTypedDateBack();
    void theDateGetsLongByWayOfTheMenuBar_data() { addSisters(); }
    void theDateGetsLongByWayOfTheMenuBar();
    void whatWasSavedIsLostAtTheSwitch();
    void aPageChangeInMasterResetsTheFieldsOfTheManual_data() { addSisters(); }
    void aPageChangeInMasterResetsTheFieldsOfTheManual();
    void eachWindowHasItsOwnState();
    void theNextWindowAfterTheUserDetailsKeepsTheDesign_data() { addSisters(); }
    void theNextWindowAfterTheUserDetailsKeepsTheDesign();
    void quittingSavesInTheProcedures();
    void nothingChangesTheTextInMaster_data();
    void nothingChangesTheTextInMaster();
    void nothingChangesTheFieldsInMaster_data() { addSisters(); }
    void nothingChangesTheFieldsInMaster();
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

void tst_Versions::theLastOfTheCheckedPagesIsReloaded()
{
    QFETCH(Sister, sister);
    const VersionedSystem open(sister);
    open.window->mnuNav.Bands(0).Tools(1).setChecked(true);
    open.toOwn();
    QVERIFY(open.window->rtfData.Text().startsWith(open.facts.second));
}

void tst_Versions::aCheckedToolWithoutPageLeavesTheText()
{
    QFETCH(Sister, sister);
    const VersionedSystem open(sister);
    open.toOwn();
    open.typeInPage(u"typed"_s);
    open.window->mnuNav.Bands(0).Tools(u"Last"_s).setChecked(true);
    open.toOwn();
    QVERIFY(stateOf(open) == MasterClean);
    QVERIFY(open.window->rtfData.Text().startsWith(u"typed"_s));
    QCOMPARE(open.fields(), masterFields());
}

void tst_Versions::aToolWithoutNumberActsByItsCaption_data()
{
    QTest::addColumn<Sister>("sister");
    QTest::addColumn<QString>("caption");
    QTest::addColumn<VersionState>("state");
    for (const auto &[name, sister] : {std::pair("manual", Sister::Manual), {"procedures", Sister::Procedures}}) {
        for (const char *caption : {"Go to Master", " Go to Own "})
            QTest::addRow("%s, '%s'", name, caption) << sister << QString::fromLatin1(caption) << MasterClean;
        for (const char *caption : {"Go to Own", "go to master", "save", "Print Options", ""})
            QTest::addRow("%s, '%s'", name, caption) << sister << QString::fromLatin1(caption) << OwnDirty;
        QTest::addRow("%s, 'Save'", name) << sister << u"Save"_s << (sister == Sister::Manual ? OwnDirty : OwnClean);
    }
}

// Which way a switch goes is told by the version on show, not by the caption.
void tst_Versions::aToolWithoutNumberActsByItsCaption()
{
    QFETCH(Sister, sister);
    QFETCH(QString, caption);
    QFETCH(VersionState, state);
    const VersionedSystem open(sister);
    open.toOwn();
    open.typeInPage(u"typed"_s);
    pressCaption(open, caption);
    QVERIFY(stateOf(open) == state);
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

void tst_Versions::undoFromTheMenuMakesItDirty()
{
    const VersionedSystem open(Sister::Procedures);
    open.toOwn();
    for (TextBox *box : {&open.window->txtIssue, &open.window->txtAuthorized}) {
        const QString before = box->Text();
        open.type(*box, u"2b"_s);
        open.pressLink(u"Save"_s);
        QVERIFY(stateOf(open) == OwnClean);
        QVERIFY(box->widget().hasFocus());
        chooseEdit(open, u"miUndo"_s);
        QCOMPARE(box->Text(), before);
        QVERIFY(stateOf(open) == OwnDirty);
        open.pressLink(u"Save"_s);
    }
}

void tst_Versions::theDateStaysAsTypedUnderAnOpenMenu()
{
    QFETCH(Sister, sister);
    const VersionedSystem open(sister);
    typeInDate(open, u"2001/02/03"_s);
    QMenu *edit = openEditMenu();
    QVERIFY(edit);
    QCOMPARE(open.window->txtDate.Text(), u"2001/02/03"_s);
    QTest::keyClick(edit, Qt::Key_Escape);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Escape); // leaves the bar too
    QVERIFY(open.window->txtDate.widget().hasFocus());
    QCOMPARE(open.window->txtDate.Text(), u"2001/02/03"_s);
    open.window->txtIssue.SetFocus();
    QCOMPARE(open.window->txtDate.Text(), u"February 3, 2001"_s);
}

void tst_Versions::undoByTheMenusKeysTakesTheTypedDateBack()
{
    QFETCH(Sister, sister);
    const VersionedSystem open(sister);
    typeInDate(open, u"2001/02/03"_s);
    QMenu *edit = openEditMenu();
    QVERIFY(edit && edit->activeAction());
    QCOMPARE(edit->activeAction()->objectName(), u"miUndo"_s);
    QTest::keyClick(edit, Qt::Key_Return);
    QVERIFY(open.window->txtDate.widget().hasFocus());
    QCOMPARE(open.window->txtDate.Text(), u"1999/03/31"_s);
}

// From the menu the user goes straight to another field.
void tst_Versions::theDateGetsLongByWayOfTheMenuBar()
{
    QFETCH(Sister, sister);
    const VersionedSystem open(sister);
    typeInDate(open, u"2001/02/03"_s);
    QMenu *edit = openEditMenu();
    QVERIFY(edit);
    QTest::keyClick(edit, Qt::Key_Escape);
    QVERIFY(!open.window->txtDate.widget().hasFocus());
    open.system.click(open.window->txtAuthorized);
    QVERIFY(open.window->txtAuthorized.widget().hasFocus());
    QCOMPARE(open.window->txtDate.Text(), u"February 3, 2001"_s);
    open.system.click(open.window->txtDate);
    QCOMPARE(open.window->txtDate.Text(), u"2001/02/03"_s);
}

void tst_Versions::whatWasSavedIsLostAtTheSwitch()
{
    const VersionedSystem open(Sister::Procedures);
    open.toOwn();
    open.type(open.window->txtIssue, u"2b"_s);
    open.type(open.window->txtDate, u"soon"_s);
    open.pressLink(u"Save"_s);
    QVERIFY(stateOf(open) == OwnClean);
    QCOMPARE(open.window->txtDate.Text(), Date());
    open.window->txtDate.SetFocus();
    open.window->txtIssue.SetFocus();
    QCOMPARE(open.fields(), (QStringList{u"2b"_s, u"November 21, 2026"_s, u"T Hallows"_s}));
    open.toOwn();
    QCOMPARE(open.fields(), masterFields());
}

// In the procedures nothing is put right there, not even a date.
void tst_Versions::aPageChangeInMasterResetsTheFieldsOfTheManual()
{
    QFETCH(Sister, sister);
    VersionedSystem open(sister);
    open.window->txtIssue.setText(typedFields().at(0));
    open.window->txtDate.setText(typedFields().at(1));
    open.window->txtAuthorized.setText(typedFields().at(2));
    open.pressPaging(u"First"_s);
    QCOMPARE(open.fields(), sister == Sister::Manual ? masterFields() : typedFields());
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
    open.system.clickTool(open.system.frame(), u"mnuMain"_s, u"mnuTools"_s, u"properties"_s);
    open.system.click(Default<frmProperties>().cmdOK);
    OpenTools(u"Emergency Plan Ideas"_s, u"406"_s);
    QVERIFY(Shared().UserDetailsSaved == True);
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

// Without its number the tool is known by its caption, and the diagram isn't called forward.
void tst_Versions::aCloseToolThatReportsNothingUnloadsAlone()
{
    QFETCH(Sister, sister);
    const VersionedSystem open(sister);
    OpenGuide(u"Scope"_s, u"101"_s);
    const MDIChild *guide = open.system.active();
    open.window->SetFocus();
    open.link(u"Close"_s).setToolTag(0);
    open.pressLink(u"Close"_s);
    QCOMPARE(countWindows(open.facts.shellName), 0);
    QCOMPARE(open.system.active(), guide);
    for (const auto &entry : open.system.frame().mnuMain.Bands(u"mnuWindow"_s).Tools())
        QVERIFY(!entry->Name().endsWith(open.facts.title));
}

void tst_Versions::nothingChangesTheTextInMaster_data()
{
    QTest::addColumn<Sister>("sister");
    QTest::addColumn<Road>("road");
    const auto row = [](const char *name, const Road &road) {
        QTest::addRow("manual, %s", name) << Sister::Manual << road;
        QTest::addRow("procedures, %s", name) << Sister::Procedures << road;
    };
    for (const QKeyCombination keys :
         {QKeyCombination(Qt::Key_X), QKeyCombination(Qt::Key_Return), QKeyCombination(Qt::Key_Delete),
          QKeyCombination(Qt::Key_Backspace), Qt::CTRL | Qt::Key_V, Qt::CTRL | Qt::Key_X, Qt::CTRL | Qt::Key_Z,
          Qt::CTRL | Qt::Key_Y, Qt::SHIFT | Qt::Key_Insert, Qt::SHIFT | Qt::Key_Delete})
        row(qPrintable(QKeySequence(keys).toString()), [keys](VersionedSystem &open) { pressKeys(open, keys); });
    for (const char *tool : {"miUndo", "miCut", "miPaste"})
        row(tool, [tool](VersionedSystem &open) { chooseEdit(open, QString::fromLatin1(tool)); });
    row("clear", [](VersionedSystem &open) {
        LooseTool clear(u"clear"_s);
        open.system.frame().mnuMain_Click(clear.tool);
    });
    row("drop", [](VersionedSystem &open) { drop(open.page(), u"dropped"_s); });
    row("input method", [](VersionedSystem &open) { compose(open.page(), u"composed"_s); });
    row("middle click",
        [](VersionedSystem &open) { QTest::mouseClick(open.page().viewport(), Qt::MiddleButton, {}, QPoint(9, 9)); });
}

// Nor does it bring back what was typed in Own.
void tst_Versions::nothingChangesTheTextInMaster()
{
    QFETCH(Sister, sister);
    QFETCH(Road, road);
    VersionedSystem open(sister);
    const QString text = open.window->rtfData.TextRTF();
    open.toOwn();
    open.typeInPage(u"ab"_s);
    QTest::keyClick(&open.page(), Qt::Key_Z, Qt::ControlModifier);
    open.toOwn();
    fillClipboard({{u"text/plain"_s, "pasted"}, {u"text/rtf"_s, "{\\rtf1 pasted}"}});
    open.window->rtfData.SetFocus();
    open.window->rtfData.setSelStart(0);
    open.window->rtfData.setSelLength(5);
    road(open);
    QCOMPARE(open.window->rtfData.TextRTF(), text);
    QVERIFY(stateOf(open) == MasterClean);
}

void tst_Versions::nothingChangesTheFieldsInMaster()
{
    QFETCH(Sister, sister);
    const VersionedSystem open(sister);
    QMimeData dragged;
    dragged.setText(u"dropped"_s);
    for (const TextBox *box : {&open.window->txtIssue, &open.window->txtDate, &open.window->txtAuthorized}) {
        QTest::mouseClick(&box->widget(), Qt::LeftButton);
        QVERIFY(!box->widget().hasFocus());
        QTest::keyClicks(QApplication::focusWidget(), u"x"_s);
        QDragEnterEvent enter(QPoint(5, 5), Qt::CopyAction, &dragged, Qt::LeftButton, {});
        QCoreApplication::sendEvent(&box->widget(), &enter);
        QVERIFY(!enter.isAccepted());
    }
    QCOMPARE(open.fields(), masterFields());
    QVERIFY(stateOf(open) == MasterClean);
}

QTEST_MAIN(tst_Versions)
#include "tst_Versions.moc"
