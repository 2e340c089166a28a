// The life of a window: its events, in their order, and who knows of it.
#include "platform/FormFixture.h"
#include "platform/controls/CommandButton.h"
#include "platform/forms/DefaultInstance.h"
#include "platform/forms/WindowList.h"
#include "platform/forms/Wiring.h"

using namespace Qt::Literals::StringLiterals;
using namespace orvane;
using namespace orvane::test;

namespace
{
class DefaultWindow : public NotedWindow
{
public:
    DefaultWindow() : NotedWindow(u"frmDefault"_s) {}
};

class ButtonWindow : public NotedWindow
{
public:
    CommandButton button{*this, u"cmd"_s, u"Go"_s};
};

// Shows the window modal; act runs once it is on show.
void whileModal(Form &form, const std::function<void()> &act)
{
    QTimer::singleShot(0, &form, act);
    form.Show(Modal);
}
} // namespace

class tst_Form : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void aNewWindowIsNeitherLoadedNorListed();
    void loadComesBeforeTheWindowIsShown();
    void loadComesOnce();
    void aFailedLoadLeavesTheWindowUnloadedAndUnlisted();
    void showActivatesOnce();
    void theActiveWindowIsDeactivatedAsAnotherComesUp();
    void setVisibleShowsAndHides();
    void sizingTellsOfAResizeOnceTheInsideHasChanged();
    void minimisingAndRestoringTellOfAResize();
    void unloadAsksFirstAndThenTells();
    void theCloseBoxAsksAsTheUser();
    void queryUnloadMayRefuse();
    void unloadMayRefuseToo();
    void aWindowThatIsNotLoadedUnloadsQuietly();
    void anUnloadWithinUnloadIsIgnored();
    void aFailureOnTheWayOutLetsTheWindowBeUnloadedLater();
    void theListKeepsTheOrderOfLoading();
    void theListLosesAWindowThatIsDeleted();
    void aWindowLivesUntilItsOwnHandlerEnds();
    void anUnloadedWindowHearsNoFurtherKey();
    void modalShowReturnsWhenTheWindowIsHidden();
    void modalShowReturnsWhenTheWindowIsUnloaded();
    void aRefusedUnloadKeepsTheModalWindowUp();
    void aWindowThatWasModalCanBeModelessLater();
    void aWindowThatHidesOnLoadIsStillShown();
    void theFirstReferenceMakesAndLoadsTheDefaultInstance();
    void theReferenceAfterAnUnloadMakesANewOne();

private:
    std::unique_ptr<NotedWindow> m_window;
};

void tst_Form::init()
{
    eventLog().clear();
    m_window = std::make_unique<NotedWindow>();
}

void tst_Form::cleanup()
{
    m_window.reset();
    delete defaultSlot<DefaultWindow>();
    sweep();
    QCOMPARE(Forms().size(), size_t(0));
}

void tst_Form::aNewWindowIsNeitherLoadedNorListed()
{
    QVERIFY(!m_window->Loaded());
    QVERIFY(!m_window->Visible());
    QVERIFY(!windowList().contains(m_window.get()));
    QCOMPARE(eventLog(), QStringList{});
}

void tst_Form::loadComesBeforeTheWindowIsShown()
{
    bool shownAtLoad = true;
    m_window->answers.onLoad = [&] { shownAtLoad = m_window->Visible(); };
    m_window->Show();
    QVERIFY(!shownAtLoad);
    QVERIFY(m_window->Visible());
    QCOMPARE(eventLog().first(), u"frmPlain Load"_s);
}

void tst_Form::loadComesOnce()
{
    m_window->Load();
    m_window->Load();
    m_window->Show();
    m_window->Hide();
    m_window->Show();
    QCOMPARE(eventsOf(u"Load"_s).size(), 1);
}

void tst_Form::aFailedLoadLeavesTheWindowUnloadedAndUnlisted()
{
    m_window->answers.onLoad = [] { throw RunTimeError(FileNotFound, u"Gone."_s); };
    QCOMPARE(errorOf([this] { m_window->Show(); }), int(FileNotFound));
    QVERIFY(!m_window->Loaded());
    QVERIFY(!m_window->Visible());
    QVERIFY(!windowList().contains(m_window.get()));
    m_window->answers.onLoad = {};
    m_window->Load();
    QVERIFY(m_window->Loaded());
}

void tst_Form::showActivatesOnce()
{
    showActive(*m_window);
    m_window->SetFocus();
    m_window->Show();
    QCoreApplication::processEvents();
    QCOMPARE(logWithoutResize(), (QStringList{u"frmPlain Load"_s, u"frmPlain Activate"_s}));
}

void tst_Form::theActiveWindowIsDeactivatedAsAnotherComesUp()
{
    NotedWindow other(u"frmOther"_s);
    showActive(*m_window);
    showActive(other);
    QTRY_COMPARE(eventsOf(u"Deactivate"_s), QStringList{u"frmPlain Deactivate"_s});
    m_window->SetFocus();
    QTRY_COMPARE(eventsOf(u"Deactivate"_s).size(), 2);
    QCOMPARE(eventsOf(u"Activate"_s),
             (QStringList{u"frmPlain Activate"_s, u"frmOther Activate"_s, u"frmPlain Activate"_s}));
}

void tst_Form::setVisibleShowsAndHides()
{
    m_window->setVisible(true);
    QVERIFY(m_window->Loaded());
    QVERIFY(m_window->shell().isVisible());
    m_window->setVisible(false);
    QVERIFY(!m_window->Visible());
    QVERIFY(m_window->Loaded());
}

void tst_Form::sizingTellsOfAResizeOnceTheInsideHasChanged()
{
    showActive(*m_window);
    QTRY_VERIFY(!eventsOf(u"Resize"_s).isEmpty());
    eventLog().clear();
    m_window->shell().resize(400, 300); // as a user's pull at the edge does
    QTRY_COMPARE(eventsOf(u"Resize"_s).size(), 1);
    QCOMPARE(m_window->ScaleWidth(), 6000.0);
    m_window->shell().resize(400, 300);
    QCoreApplication::processEvents();
    QCOMPARE(eventsOf(u"Resize"_s).size(), 1);
}

void tst_Form::minimisingAndRestoringTellOfAResize()
{
    showActive(*m_window);
    eventLog().clear();
    m_window->setWindowState(Minimized);
    QTRY_COMPARE(m_window->WindowState(), int(Minimized));
    QTRY_VERIFY(!eventsOf(u"Resize"_s).isEmpty());
    eventLog().clear();
    m_window->setWindowState(Normal);
    QTRY_COMPARE(m_window->WindowState(), int(Normal));
    QTRY_VERIFY(!eventsOf(u"Resize"_s).isEmpty());
}

void tst_Form::unloadAsksFirstAndThenTells()
{
    m_window->Load();
    eventLog().clear();
    QVERIFY(m_window->Unload());
    QCOMPARE(eventLog(), (QStringList{u"frmPlain QueryUnload by code"_s, u"frmPlain Unload"_s}));
    QVERIFY(!m_window->Loaded());
    QVERIFY(m_window->Unloaded());
}

void tst_Form::theCloseBoxAsksAsTheUser()
{
    showActive(*m_window);
    const QPointer<Form> watch(m_window.release());
    watch->shell().close();
    QVERIFY(eventLog().contains(u"frmPlain QueryUnload by user"_s));
    QCOMPARE(eventLog().last(), u"frmPlain Unload"_s);
    sweep();
    QVERIFY(!watch);
}

void tst_Form::queryUnloadMayRefuse()
{
    m_window->answers.onQueryUnload = [](bool &cancel) { cancel = true; };
    showActive(*m_window);
    m_window->shell().close();
    QVERIFY(!m_window->Unload());
    QCOMPARE(eventsOf(u"Unload"_s).size(), 0);
    QVERIFY(m_window->Loaded());
    QVERIFY(m_window->Visible());
    QVERIFY(windowList().contains(m_window.get()));
}

void tst_Form::unloadMayRefuseToo()
{
    bool refuses = true;
    m_window->answers.onUnload = [&](bool &cancel) { cancel = refuses; };
    showActive(*m_window);
    QVERIFY(!m_window->Unload());
    QVERIFY(m_window->Visible());
    QVERIFY(windowList().contains(m_window.get()));
    refuses = false;
    QVERIFY(m_window->Unload());
}

void tst_Form::aWindowThatIsNotLoadedUnloadsQuietly()
{
    QVERIFY(m_window->Unload());
    QCOMPARE(eventLog(), QStringList{});
    QVERIFY(!m_window->Unloaded());
}

void tst_Form::anUnloadWithinUnloadIsIgnored()
{
    m_window->answers.onUnload = [this](bool &) { m_window->Unload(); };
    m_window->Load();
    QVERIFY(m_window->Unload());
    QCOMPARE(eventsOf(u"Unload"_s).size(), 1);
}

void tst_Form::aFailureOnTheWayOutLetsTheWindowBeUnloadedLater()
{
    m_window->answers.onUnload = [](bool &) { throw RunTimeError(PathAccessError, u"Full."_s); };
    m_window->Load();
    QCOMPARE(errorOf([this] { m_window->Unload(); }), int(PathAccessError));
    QVERIFY(m_window->Loaded());
    m_window->answers.onUnload = {};
    QVERIFY(m_window->Unload());
    QVERIFY(m_window->Unloaded());
}

void tst_Form::theListKeepsTheOrderOfLoading()
{
    NotedWindow second(u"frmSecond"_s);
    NotedWindow third(u"frmThird"_s);
    third.Load();
    m_window->Load();
    second.Load();
    third.Show();
    QCOMPARE(Forms(), (std::vector<Form *>{&third, m_window.get(), &second}));
}

void tst_Form::theListLosesAWindowThatIsDeleted()
{
    {
        NotedWindow other(u"frmOther"_s);
        other.Load();
        m_window->Load();
        QCOMPARE(Forms().size(), size_t(2));
    }
    QCOMPARE(Forms(), std::vector<Form *>{m_window.get()});
}

void tst_Form::aWindowLivesUntilItsOwnHandlerEnds()
{
    auto *window = new ButtonWindow;
    const QPointer<Form> watch(window);
    bool aliveInside = false;
    wire(window->button, &CommandButton::Click, *window, [&](ButtonWindow &self) {
        self.Unload();
        sweep();
        aliveInside = watch && !self.Loaded() && self.button.Caption() == u"Go"_s;
    });
    showActive(*window);
    window->button.mouseTarget().setFocus();
    QTest::keyClick(&window->button.widget(), Qt::Key_Space);
    QVERIFY(aliveInside);
    sweep();
    QVERIFY(!watch);
}

void tst_Form::anUnloadedWindowHearsNoFurtherKey()
{
    m_window->answers.onKeyDown = [this] { m_window->Unload(); };
    showActive(*m_window);
    QTest::keyClick(&m_window->shell(), Qt::Key_A);
    QCOMPARE(eventsOf(u"KeyDown.*"_s).size(), 1);
    QCOMPARE(eventsOf(u"KeyPress.*"_s).size(), 0);
    QCOMPARE(eventsOf(u"KeyUp.*"_s).size(), 0);
}

void tst_Form::modalShowReturnsWhenTheWindowIsHidden()
{
    bool wasModal = false;
    whileModal(*m_window, [&] {
        wasModal = QApplication::activeModalWidget() == &m_window->shell();
        m_window->Hide();
    });
    QVERIFY(wasModal);
    QVERIFY(!m_window->Visible());
    QVERIFY(m_window->Loaded());
}

void tst_Form::modalShowReturnsWhenTheWindowIsUnloaded()
{
    const QPointer<Form> watch(m_window.release());
    whileModal(*watch, [&] { watch->Unload(); });
    QVERIFY(!watch || watch->Unloaded());
    sweep();
    QVERIFY(!watch);
}

void tst_Form::aRefusedUnloadKeepsTheModalWindowUp()
{
    m_window->answers.onQueryUnload = [](bool &cancel) { cancel = true; };
    bool stayed = false;
    whileModal(*m_window, [&] {
        m_window->shell().close();
        stayed = m_window->Visible();
        m_window->Hide();
    });
    QVERIFY(stayed);
}

void tst_Form::aWindowThatWasModalCanBeModelessLater()
{
    whileModal(*m_window, [&] { m_window->Hide(); });
    m_window->Show();
    QVERIFY(m_window->Visible());
    QVERIFY(!QApplication::activeModalWidget());
}

void tst_Form::aWindowThatHidesOnLoadIsStillShown()
{
    m_window->answers.onLoad = [this] { m_window->Hide(); };
    m_window->Show();
    QVERIFY(m_window->Visible());
}

void tst_Form::theFirstReferenceMakesAndLoadsTheDefaultInstance()
{
    QVERIFY(!defaultSlot<DefaultWindow>());
    DefaultWindow &made = Default<DefaultWindow>();
    QVERIFY(made.Loaded());
    QVERIFY(!made.Visible());
    QCOMPARE(&Default<DefaultWindow>(), &made);
    QCOMPARE(eventLog(), QStringList{u"frmDefault Load"_s});
}

void tst_Form::theReferenceAfterAnUnloadMakesANewOne()
{
    DefaultWindow &first = Default<DefaultWindow>();
    first.setTag(u"first"_s);
    const FormPin pin(first); // as within its own handler
    first.Unload();
    DefaultWindow &second = Default<DefaultWindow>();
    QVERIFY(&second != &first);
    QCOMPARE(second.Tag(), QString());
    QVERIFY(second.Loaded());
    QCOMPARE(Forms(), std::vector<Form *>{&second});
}

QTEST_MAIN(tst_Form)
#include "tst_Form.moc"
