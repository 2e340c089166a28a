// The ways between the states of the two windows with versions: from each state by each thing that can happen there.
#include "documents/VersionStates.h"
#include "platform/text/RichBoxFixture.h"

#include <QLocale>
#include <QMdiSubWindow>
#include <functional>

using namespace Qt::Literals::StringLiterals;
using namespace orvane;
using namespace orvane::test;

namespace
{

using Event = std::function<void(VersionedSystem &open)>;

enum class From { Master, Own, OwnTyped };
enum class Page { First, FirstTyped, Second };

struct Outcome {
    VersionState state;
    Page page = Page::First;
    QStringList fields = masterFields();
};

QStringList repairedShort()
{
    return {u"2b"_s, u"11/21/2026"_s, u"M Serrano"_s};
}

QStringList repairedLong()
{
    return {u"2b"_s, u"November 21, 2026"_s, u"M Serrano"_s};
}

const Outcome Read{MasterClean, Page::First};
const Outcome ReadSecond{MasterClean, Page::Second};
const Outcome Edited{OwnClean, Page::First};
const Outcome EditedSecond{OwnClean, Page::Second};
const Outcome Typed{OwnDirty, Page::FirstTyped, typedFields()};
const Outcome SavedAsTyped{OwnClean, Page::FirstTyped, repairedShort()};

void bring(const VersionedSystem &open, From from)
{
    if (from == From::Master) return;
    open.toOwn();
    if (from == From::OwnTyped) typeEverywhere(open);
}

QString titleOf(const VersionedSystem &open, Page page)
{
    const QString first = open.facts.pages[0] + u'\n';
    if (page == Page::Second) return open.facts.second;
    return page == Page::FirstTyped ? u"typed"_s + first : first;
}

void mode(VersionedSystem &open)
{
    open.pressLink(u"Mode"_s);
}
void save(VersionedSystem &open)
{
    open.pressLink(u"Save"_s);
}
void secondPage(VersionedSystem &open)
{
    open.pressPage(open.facts.pages[1]);
}
void samePage(VersionedSystem &open)
{
    open.pressPage(open.facts.pages[0]);
}
Event paging(const char *tool)
{
    return [name = QString::fromLatin1(tool)](VersionedSystem &open) { open.pressPaging(name); };
}
void printPage(VersionedSystem &open)
{
    QVERIFY(chooseFromFlyout(open.window->mnuLinks, u"Print"_s, {u"prtPartial"_s}));
    QCOMPARE(open.system.active()->Name(), u"frmPrint"_s);
}
void openGuide(VersionedSystem &open)
{
    QVERIFY(chooseFromFlyout(open.window->mnuLinks, u"RelatedTopics"_s, {u"mnuIG"_s, u"IGlinks"_s}));
    QCOMPARE(open.system.active()->Name(), u"frmIGSteps"_s);
}
void closeByTool(VersionedSystem &open)
{
    open.pressLink(u"Close"_s);
}
void closeBox(VersionedSystem &open)
{
    open.window->subWindow().close();
}

} // namespace

Q_DECLARE_METATYPE(Event)
Q_DECLARE_METATYPE(From)
Q_DECLARE_METATYPE(Outcome)

class tst_VersionTransitions : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { QLocale::setDefault(QLocale(QLocale::English, QLocale::UnitedStates)); }
    void anEventLeadsToItsState_data();
    void anEventLeadsToItsState();
    void aKeyMakesItDirty_data();
    void aKeyMakesItDirty();
    void whatIsComposedMakesItDirty_data();
    void whatIsComposedMakesItDirty();
    void aClosedWindowComesBackAsMaster_data();
    void aClosedWindowComesBackAsMaster();

private:
    static void addRows(const char *name, From from, const Event &event, const Outcome &manual,
                        const Outcome &procedures);
    static void addRows(const char *name, From from, const Event &event, const Outcome &both)
    {
        addRows(name, from, event, both, both);
    }
    static void addMasterRows();
    static void addOwnRows();
    static void addTypedRows();
};

void tst_VersionTransitions::addRows(const char *name, From from, const Event &event, const Outcome &manual,
                                     const Outcome &procedures)
{
    static const char *const states[] = {"Master", "Own", "Own, typed"};
    const char *state = states[static_cast<int>(from)];
    QTest::addRow("manual, %s: %s", state, name) << Sister::Manual << from << event << manual;
    QTest::addRow("procedures, %s: %s", state, name) << Sister::Procedures << from << event << procedures;
}

void tst_VersionTransitions::addMasterRows()
{
    addRows("Mode", From::Master, mode, Edited);
    addRows("page tool", From::Master, secondPage, ReadSecond);
    addRows("tool of the page on show", From::Master, samePage, Read);
    addRows("First", From::Master, paging("First"), Read);
    addRows("Prev", From::Master, paging("Prev"), Read);
    addRows("Next", From::Master, paging("Next"), Read);
    addRows("Last", From::Master, paging("Last"), Read);
    addRows("print", From::Master, printPage, Read);
    addRows("link", From::Master, openGuide, Read);
}

void tst_VersionTransitions::addOwnRows()
{
    addRows("Mode", From::Own, mode, Read);
    addRows("page tool", From::Own, secondPage, EditedSecond);
    addRows("First", From::Own, paging("First"), Edited);
    addRows("print", From::Own, printPage, Edited);
    addRows("link", From::Own, openGuide, Edited);
}

void tst_VersionTransitions::addTypedRows()
{
    const Outcome pagedInManual{OwnDirtyUnsaveable, Page::FirstTyped};
    const Outcome pagedInProcedures{OwnClean, Page::FirstTyped, repairedLong()};
    addRows("Mode", From::OwnTyped, mode, Read);
    addRows("Save", From::OwnTyped, save, Typed, SavedAsTyped);
    addRows("page tool", From::OwnTyped, secondPage, {OwnDirtyUnsaveable, Page::Second},
            {OwnClean, Page::Second, repairedLong()});
    addRows("tool of the page on show", From::OwnTyped, samePage, {OwnDirtyUnsaveable, Page::First},
            {OwnClean, Page::First, repairedLong()});
    addRows("First", From::OwnTyped, paging("First"), pagedInManual, pagedInProcedures);
    addRows("Prev", From::OwnTyped, paging("Prev"), pagedInManual, pagedInProcedures);
    addRows("Next", From::OwnTyped, paging("Next"), pagedInManual, pagedInProcedures);
    addRows("Last", From::OwnTyped, paging("Last"), pagedInManual, pagedInProcedures);
    addRows("print", From::OwnTyped, printPage, SavedAsTyped);
    addRows("link", From::OwnTyped, openGuide, Typed);
}

void tst_VersionTransitions::anEventLeadsToItsState_data()
{
    QTest::addColumn<Sister>("sister");
    QTest::addColumn<From>("from");
    QTest::addColumn<Event>("event");
    QTest::addColumn<Outcome>("outcome");
    addMasterRows();
    addOwnRows();
    addTypedRows();
}

void tst_VersionTransitions::anEventLeadsToItsState()
{
    QFETCH(Sister, sister);
    QFETCH(From, from);
    QFETCH(Event, event);
    QFETCH(Outcome, outcome);
    VersionedSystem open(sister);
    bring(open, from);
    event(open);
    QVERIFY(stateOf(open) == outcome.state);
    QCOMPARE(open.fields(), outcome.fields);
    const QString text = open.window->rtfData.Text();
    QVERIFY2(text.startsWith(titleOf(open, outcome.page)), qPrintable(text.left(40)));
    QCOMPARE(open.checkedPages(), QStringList(open.facts.pages[outcome.page == Page::Second ? 1 : 0]));
}

void tst_VersionTransitions::aKeyMakesItDirty_data()
{
    QTest::addColumn<Sister>("sister");
    QTest::addColumn<From>("from");
    QTest::addColumn<QString>("where");
    for (const auto &[name, sister] : {std::pair("manual", Sister::Manual), {"procedures", Sister::Procedures}})
        for (const auto &[state, from] : {std::pair("Own", From::Own), {"Own, typed", From::OwnTyped}})
            for (const char *where : {"txtIssue", "txtDate", "txtAuthorized", "rtfData"})
                QTest::addRow("%s, %s: %s", name, state, where) << sister << from << QString::fromLatin1(where);
}

void tst_VersionTransitions::aKeyMakesItDirty()
{
    QFETCH(Sister, sister);
    QFETCH(From, from);
    QFETCH(QString, where);
    const VersionedSystem open(sister);
    bring(open, from);
    Control &control = *open.window->control(where);
    control.SetFocus();
    QVERIFY(stateOf(open) == (from == From::Own ? OwnClean : OwnDirty));
    QTest::keyClicks(&control.widget(), u"x"_s);
    QVERIFY(stateOf(open) == OwnDirty);
}

void tst_VersionTransitions::whatIsComposedMakesItDirty_data()
{
    addSisters();
}

// By an input method, or by a dead key and a letter.
void tst_VersionTransitions::whatIsComposedMakesItDirty()
{
    QFETCH(Sister, sister);
    const VersionedSystem open(sister);
    for (const QString &where : {u"txtIssue"_s, u"txtDate"_s, u"txtAuthorized"_s, u"rtfData"_s}) {
        open.toOwn();
        QVERIFY(stateOf(open) == OwnClean);
        Control &control = *open.window->control(where);
        control.SetFocus();
        compose(control.widget(), u"\u00E9"_s);
        QVERIFY2(stateOf(open) == OwnDirty, qPrintable(where));
        open.toOwn();
    }
}

void tst_VersionTransitions::aClosedWindowComesBackAsMaster_data()
{
    QTest::addColumn<Sister>("sister");
    QTest::addColumn<From>("from");
    QTest::addColumn<Event>("event");
    for (const auto &[name, sister] : {std::pair("manual", Sister::Manual), {"procedures", Sister::Procedures}})
        for (const auto &[state, from] :
             {std::pair("Master", From::Master), {"Own", From::Own}, {"Own, typed", From::OwnTyped}}) {
            QTest::addRow("%s, %s: Close", name, state) << sister << from << Event(closeByTool);
            QTest::addRow("%s, %s: close box", name, state) << sister << from << Event(closeBox);
        }
}

void tst_VersionTransitions::aClosedWindowComesBackAsMaster()
{
    QFETCH(Sister, sister);
    QFETCH(From, from);
    QFETCH(Event, event);
    VersionedSystem open(sister);
    secondPage(open);
    bring(open, from);
    event(open);
    QCOMPARE(countWindows(open.facts.shellName), 0);
    QVERIFY(open.system.host.messages().empty());
    open.open();
    QVERIFY(stateOf(open) == MasterClean);
    QCOMPARE(open.fields(), masterFields());
    QCOMPARE(open.checkedPages(), QStringList(open.facts.pages.front()));
}

QTEST_MAIN(tst_VersionTransitions)
#include "tst_VersionTransitions.moc"
