// The real program on a real display, met from outside as a screen reader meets it, on the accessibility bus.
#include "access/bus/SpokenDesktop.h"

#include <QTest>
#include <functional>

using namespace Qt::Literals::StringLiterals;
using namespace orvane::test;

namespace
{

constexpr int MillisecondsToShow = 20000;
constexpr int EnterKey = 0xFF0D; // as the display names it

// How a window is reached: by the names of what is pressed one after the other, and what then is on show, where.
struct Way {
    const char *name;
    QStringList presses; // a name that begins with a slash is that of a menu's entry
    QString role;
    QString shown;
};

const std::vector<Way> &ways()
{
    static const std::vector<Way> all{
        {"guide tab", {}, u"push button"_s, u"Welcome to orvane"_s},
        {"manual tab", {u"Environment Manual"_s}, u"push button"_s, u"Definitions"_s},
        {"procedures tab", {u"Management Procedures"_s}, u"panel"_s, u"Management Procedures"_s},
        {"tools tab", {u"Action Tools"_s}, u"push button"_s, u"Audit Questions"_s},
        {"records tab", {u"Records"_s}, u"panel"_s, u"Records"_s},
        {"guide section", {u"Using this Guide"_s}, u"text"_s, u"Page of the guide"_s},
        {"step",
         {u"3 Phase Plan"_s, u"/PHASE II Implementation and Operation"_s,
          u"/STEP 17 - Emergency Preparedness and Response"_s, u"Implementation action..."_s},
         u"text"_s,
         u"Advice"_s},
        {"manual",
         {u"/Command"_s, u"/Environment Manual"_s, u"/ISO 14001 Management System Requirements"_s,
          u"/Implementation and Operation"_s, u"/Emergency Preparedness and Response"_s},
         u"check box"_s,
         u"Commitment"_s},
        {"own procedure",
         {u"/Command"_s, u"/Procedures"_s, u"/Core Procedures"_s, u"/Emergency Planning"_s, u"Go to Own"_s},
         u"push button"_s,
         u"Go to Master"_s},
        {"action tool", {u"Action Tools"_s, u"Emergency Plan Ideas"_s}, u"text"_s, u"Page of the Action Tool"_s},
        {"print preview",
         {u"Action Tools"_s, u"Emergency Plan Ideas"_s, u"Print Options"_s, u"/Print Current Page"_s},
         u"document"_s,
         u"Print preview"_s},
        {"record",
         {u"/Command"_s, u"/Records"_s, u"/Core Records"_s, u"/Emergency Plan"_s},
         u"graphic"_s,
         u"Completed record"_s},
        {"properties", {u"/Tools"_s, u"/Properties"_s}, u"dialog"_s, u"orvane Properties"_s},
        {"about", {u"/Help"_s, u"/About"_s}, u"dialog"_s, u"About orvane Quillmark CD"_s},
        {"help", {u"/Help"_s, u"/Contents"_s}, u"frame"_s, u"orvane Help"_s},
    };
    return all;
}

void addWays()
{
    QTest::addColumn<int>("way");
    for (int i = 0; i < std::ssize(ways()); ++i)
        QTest::newRow(ways()[static_cast<size_t>(i)].name) << i;
}

} // namespace

class tst_AccessBus : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanupTestCase() { m_desktop.reset(); }

    void eachWindowIsSpokenOf_data() { addWays(); }
    void eachWindowIsSpokenOf();
    void theIntroIsSpokenOfAndLeftByItsSpot();
    void theNoticeIsSpokenOf();
    void pressingATabDoesWhatAClickDoes();
    void textsAreRead();
    void theConsoleIsWorkedOverTheBus();

private:
    Spoken read() const { return m_desktop->program(); }
    bool waitFor(const std::function<bool(const Spoken &)> &condition) const;
    bool waitForName(const QString &name, const QString &role = {}) const;
    void press(const QString &name);
    void leaveIntro();
    QString faults(const Spoken &program) const;

    std::unique_ptr<SpokenDesktop> m_desktop;
};

void tst_AccessBus::initTestCase()
{
    const QString missing = SpokenDesktop::missingProgram();
    if (!missing.isEmpty()) QSKIP(qPrintable(missing + u" is not installed; test.sh installs it"_s));
    m_desktop = std::make_unique<SpokenDesktop>();
    QVERIFY2(m_desktop->start(), qPrintable(m_desktop->problem()));
}

void tst_AccessBus::init()
{
    QVERIFY(m_desktop->startProgram());
}

bool tst_AccessBus::waitFor(const std::function<bool(const Spoken &)> &condition) const
{
    return QTest::qWaitFor([&] { return condition(read()); }, MillisecondsToShow);
}

bool tst_AccessBus::waitForName(const QString &name, const QString &role) const
{
    return waitFor([&](const Spoken &program) { return program.find(name, role); });
}

// Of a menu's entry, only once its menu is open; the bar's own titles are there from the start.
void tst_AccessBus::press(const QString &name)
{
    const bool inMenu = name.startsWith(u'/');
    const QString wanted = inMenu ? name.sliced(1) : name;
    const auto find = [&](const Spoken &program) -> const Spoken * {
        for (const Spoken *each : program.showing())
            if (each->name == wanted && (each->role == u"menu item") == inMenu && each->can(u"Action"_s) &&
                !m_desktop->bus().actions(*each).isEmpty())
                return each;
        return nullptr;
    };
    QVERIFY2(waitFor([&](const Spoken &program) { return find(program); }), qPrintable(wanted));
    const Spoken program = read();
    const Spoken *spoken = find(program);
    QVERIFY2(spoken, qPrintable(wanted));
    m_desktop->bus().act(*spoken, m_desktop->bus().actions(*spoken).constFirst());
}

void tst_AccessBus::leaveIntro()
{
    const QString intro = u"The five modules round the Command Center. Press Enter to go on."_s;
    QVERIFY(waitFor([&](const Spoken &program) {
        const Spoken *focused = program.focused();
        return program.find(intro) && focused && focused->name.contains(intro);
    }));
    m_desktop->bus().press(EnterKey);
    QVERIFY(waitForName(u"Text of the step"_s));
    QVERIFY(waitForName(u"Welcome to orvane"_s));
}

// What a listener would miss, of all that is on show.
QString tst_AccessBus::faults(const Spoken &program) const
{
    QStringList found;
    for (const Spoken *each : program.showing()) {
        const QStringList actions = m_desktop->bus().actions(*each);
        const bool worked = each->is(SpokenState::Focusable) || !actions.isEmpty();
        const bool picture = each->role == u"graphic";
        if (each->role.isEmpty() || each->role == u"unknown" || each->role == u"invalid")
            found << u"no role: "_s + each->told();
        if ((worked || picture) && each->name.trimmed().isEmpty()) found << u"no name: "_s + each->told();
        if (worked && each->is(SpokenState::Enabled) && m_desktop->bus().place(*each).isEmpty())
            found << u"no place: "_s + each->told();
    }
    return found.join(u"; "_s);
}

void tst_AccessBus::eachWindowIsSpokenOf()
{
    QFETCH(int, way);
    const Way &taken = ways()[static_cast<size_t>(way)];
    leaveIntro();
    for (const QString &name : taken.presses) {
        if (QTest::currentTestFailed()) return;
        press(name);
    }
    QVERIFY(!QTest::currentTestFailed());
    QVERIFY2(waitForName(taken.shown, taken.role), qPrintable(taken.shown));
    QVERIFY(waitFor([](const Spoken &program) { return program.focused(); }));
    QCOMPARE(faults(read()), QString());
    QVERIFY(m_desktop->programRuns());
}

void tst_AccessBus::theIntroIsSpokenOfAndLeftByItsSpot()
{
    // The splash goes when the intro has come, and nothing can be asked of it on its way.
    QVERIFY(waitFor([](const Spoken &program) {
        return program.find(u"Go on"_s, u"push button"_s) && program.children.size() == 1;
    }));
    QCOMPARE(faults(read()), QString());
    press(u"Go on"_s);
    QVERIFY(waitForName(u"Welcome to orvane"_s, u"push button"_s));
}

void tst_AccessBus::theNoticeIsSpokenOf()
{
    leaveIntro();
    press(u"Environment Manual"_s);
    press(u"Scope"_s);
    QVERIFY(waitFor([](const Spoken &program) {
        for (const Spoken &window : program.children)
            if (window.role == u"dialog" && window.name.contains(u"click red dot for live example")) return true;
        return false;
    }));
    QVERIFY(waitFor([](const Spoken &program) { return program.focused() && program.focused()->name != u""; }));
}

void tst_AccessBus::pressingATabDoesWhatAClickDoes()
{
    leaveIntro();
    press(u"Records"_s);
    QVERIFY(waitForName(u"Core Records"_s));
    const Spoken program = read();
    QVERIFY(program.find(u"Records"_s, u"radio button"_s)->is(SpokenState::Checked));
    QVERIFY(!program.find(u"Implementation Guide"_s, u"radio button"_s)->is(SpokenState::Checked));
    QVERIFY(!program.find(u"Using this Guide"_s));
}

void tst_AccessBus::textsAreRead()
{
    leaveIntro();
    press(u"Using this Guide"_s);
    QVERIFY(waitForName(u"Page of the guide"_s, u"text"_s));
    const Spoken program = read();
    const Spoken *page = program.find(u"Page of the guide"_s, u"text"_s);
    QVERIFY(page->can(u"Text"_s) && page->is(SpokenState::ReadOnly) && page->is(SpokenState::MultiLine));
    QVERIFY(m_desktop->bus().text(*page).contains(u"Three Phase Plan"_s));
    const Spoken *step = program.find(u"Text of the step"_s, u"text"_s);
    QVERIFY(m_desktop->bus().text(*step).size() > 50);
}

void tst_AccessBus::theConsoleIsWorkedOverTheBus()
{
    leaveIntro();
    const auto heading = [this](const Spoken &program) {
        const Spoken *box = program.find(u"Heading of the step"_s, u"text"_s);
        return box ? m_desktop->bus().text(*box) : QString();
    };
    const QString first = heading(read());
    QVERIFY(!first.isEmpty());
    press(u"Next"_s);
    QVERIFY(waitFor([&](const Spoken &program) { return heading(program) != first; }));
    press(u"Back"_s);
    QVERIFY(waitFor([&](const Spoken &program) { return heading(program) == first; }));
    QVERIFY(!read().find(u"Save"_s)); // beyond the window's edge
}

QTEST_GUILESS_MAIN(tst_AccessBus)
#include "tst_AccessBus.moc"
