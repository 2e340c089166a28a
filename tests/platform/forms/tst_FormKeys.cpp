// A window's measures, its mouse pointer, and the keys that reach its handlers.
#include "platform/FormFixture.h"
#include "platform/controls/CommandButton.h"
#include "platform/controls/text/TextBox.h"

using namespace Qt::Literals::StringLiterals;
using namespace orvane;
using namespace orvane::test;

class tst_FormKeys : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void lengthsAreKeptExactlyAsSet();
    void theUsersOwnSizeReplacesWhatWasSet();
    void theInsideIsMeasuredInTwips();
    void aNegativeSizeIsRefused();
    void aMaximisedWindowRefusesPlaceAndSize();
    void aMinimisedWindowStaysAsItIs();
    void aStateSetBeforehandHoldsOnShow();
    void mousePointersByNumber_data();
    void mousePointersByNumber();
    void keysReachTheWindow_data();
    void keysReachTheWindow();
    void theWindowSeesKeysThatTheControlLeavesOver();
    void enterPressesTheDefaultButtonAndReachesNoHandler();
    void escapePressesTheCancelButton();
    void aKeyHeldDownPressesNothing();
    void aKeyHeldDownIsNotReleased();

private:
    std::unique_ptr<NotedWindow> m_window;
};

void tst_FormKeys::init()
{
    m_window = std::make_unique<NotedWindow>();
    showActive(*m_window);
    eventLog().clear();
}

void tst_FormKeys::cleanup()
{
    m_window.reset();
}

void tst_FormKeys::lengthsAreKeptExactlyAsSet()
{
    m_window->setLeft(1001.25);
    m_window->setTop(707);
    m_window->setWidth(4321.5);
    m_window->setHeight(3217.75);
    QCOMPARE(m_window->Left(), 1001.25);
    QCOMPARE(m_window->Top(), 707.0);
    QCOMPARE(m_window->Width(), 4321.5);
    QCOMPARE(m_window->Height(), 3217.75);
    QCOMPARE(m_window->shell().frameGeometry(), QRect(67, 47, 288, 215));
}

void tst_FormKeys::theUsersOwnSizeReplacesWhatWasSet()
{
    m_window->setWidth(4321.5);
    m_window->shell().resize(m_window->shell().width() + 2, 300);
    QCOMPARE(m_window->Width(), 290 * 15.0);
    m_window->shell().move(30, 40);
    QCOMPARE(m_window->Left(), 450.0);
    QCOMPARE(m_window->Top(), 600.0);
}

void tst_FormKeys::theInsideIsMeasuredInTwips()
{
    QCOMPARE(m_window->ScaleWidth(), 4500.0);
    QCOMPARE(m_window->ScaleHeight(), 3000.0);
    m_window->shell().resize(401, 299);
    QCOMPARE(m_window->ScaleWidth(), 6015.0);
    QCOMPARE(m_window->ScaleHeight(), 4485.0);
}

void tst_FormKeys::aNegativeSizeIsRefused()
{
    const double width = m_window->Width();
    QCOMPARE(errorOf([this] { m_window->setWidth(-1); }), int(InvalidPropertyValue));
    QCOMPARE(errorOf([this] { m_window->setHeight(-0.5); }), int(InvalidPropertyValue));
    QCOMPARE(errorOf([this] { m_window->setLeft(-900); }), 0);
    QCOMPARE(m_window->Width(), width);
    QCOMPARE(m_window->Left(), -900.0);
}

void tst_FormKeys::aMaximisedWindowRefusesPlaceAndSize()
{
    m_window->setWindowState(Maximized);
    QTRY_COMPARE(m_window->WindowState(), int(Maximized));
    const std::function<void()> steps[] = {[this] { m_window->setLeft(0); }, [this] { m_window->setTop(0); },
                                           [this] { m_window->setWidth(3000); }, [this] { m_window->setHeight(-1); }};
    for (const auto &step : steps)
        QCOMPARE(errorOf(step), int(CannotSizeInThisState));
}

void tst_FormKeys::aMinimisedWindowStaysAsItIs()
{
    m_window->setWindowState(Minimized);
    QTRY_COMPARE(m_window->WindowState(), int(Minimized));
    const QSize before = m_window->shell().size();
    m_window->setWidth(9000);
    m_window->setHeight(9000);
    QCOMPARE(m_window->shell().size(), before);
    QCOMPARE(m_window->WindowState(), int(Minimized));
}

void tst_FormKeys::aStateSetBeforehandHoldsOnShow()
{
    NotedWindow other(u"frmOther"_s);
    other.setWindowState(Maximized);
    QVERIFY(!other.Visible());
    QCOMPARE(other.WindowState(), int(Maximized));
    other.Show();
    QCOMPARE(other.WindowState(), int(Maximized));
}

void tst_FormKeys::mousePointersByNumber_data()
{
    QTest::addColumn<int>("pointer");
    QTest::addColumn<Qt::CursorShape>("shape");
    QTest::addColumn<int>("error");
    QTest::newRow("default") << 0 << Qt::ArrowCursor << 0;
    QTest::newRow("arrow") << 1 << Qt::ArrowCursor << 0;
    QTest::newRow("hourglass") << 11 << Qt::WaitCursor << 0;
    QTest::newRow("arrow and question mark") << 14 << Qt::WhatsThisCursor << 0;
    QTest::newRow("none of them") << 77 << Qt::WaitCursor << int(InvalidPropertyValue);
    QTest::newRow("negative") << -1 << Qt::WaitCursor << int(InvalidPropertyValue);
}

void tst_FormKeys::mousePointersByNumber()
{
    QFETCH(int, pointer);
    QFETCH(Qt::CursorShape, shape);
    QFETCH(int, error);
    m_window->setMousePointer(HourglassPointer);
    QCOMPARE(errorOf([&] { m_window->setMousePointer(pointer); }), error);
    QCOMPARE(m_window->shell().cursor().shape(), shape);
    QCOMPARE(m_window->MousePointer(), error == 0 ? pointer : int(HourglassPointer));
}

void tst_FormKeys::keysReachTheWindow_data()
{
    QTest::addColumn<Qt::Key>("key");
    QTest::addColumn<Qt::KeyboardModifiers>("modifiers");
    QTest::addColumn<QString>("down");
    QTest::addColumn<QString>("press");
    using M = Qt::KeyboardModifiers;
    QTest::newRow("letter") << Qt::Key_A << M() << u"65 0"_s << u"97"_s;
    QTest::newRow("capital") << Qt::Key_A << M(Qt::ShiftModifier) << u"65 1"_s << u"65"_s;
    QTest::newRow("digit") << Qt::Key_7 << M() << u"55 0"_s << u"55"_s;
    QTest::newRow("blank") << Qt::Key_Space << M() << u"32 0"_s << u"32"_s;
    QTest::newRow("Ctrl and a letter") << Qt::Key_A << M(Qt::ControlModifier) << u"65 2"_s << u"1"_s;
    QTest::newRow("all three") << Qt::Key_A << M(Qt::ShiftModifier | Qt::ControlModifier | Qt::AltModifier) << u"65 7"_s
                               << QString();
    QTest::newRow("F1") << Qt::Key_F1 << M() << u"112 0"_s << QString();
    QTest::newRow("F6") << Qt::Key_F6 << M() << u"117 0"_s << QString();
    QTest::newRow("F12") << Qt::Key_F12 << M(Qt::ControlModifier) << u"123 2"_s << QString();
}

void tst_FormKeys::keysReachTheWindow()
{
    QFETCH(Qt::Key, key);
    QFETCH(Qt::KeyboardModifiers, modifiers);
    QFETCH(QString, down);
    QFETCH(QString, press);
    for (const auto type : {QEvent::KeyPress, QEvent::KeyRelease}) {
        QKeyEvent event(type, key, modifiers, press.isEmpty() ? QString() : QString(QChar(press.toInt())));
        QCoreApplication::sendEvent(&m_window->shell(), &event);
    }
    QStringList expected{u"frmPlain KeyDown "_s + down};
    if (!press.isEmpty()) expected << u"frmPlain KeyPress "_s + press;
    QCOMPARE(eventLog(), expected << u"frmPlain KeyUp "_s + down);
}

void tst_FormKeys::theWindowSeesKeysThatTheControlLeavesOver()
{
    TextBox box(*m_window, u"txt"_s);
    box.setVisible(true);
    box.SetFocus();
    QTest::keyClick(&box.widget(), Qt::Key_A);
    QCOMPARE(box.Text(), u"a"_s);
    QCOMPARE(eventsOf(u"KeyPress.*"_s), QStringList{});
    QTest::keyClick(&box.widget(), Qt::Key_F6);
    QCOMPARE(eventsOf(u"KeyDown.*"_s), QStringList{u"frmPlain KeyDown 117 0"_s});
}

void tst_FormKeys::enterPressesTheDefaultButtonAndReachesNoHandler()
{
    CommandButton ok(*m_window, u"cmdOK"_s, u"OK"_s);
    m_window->setDefaultButton(ok);
    int clicks = 0;
    connect(&ok, &CommandButton::Click, this, [&] { ++clicks; });
    for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Enter})
        QTest::keyClick(&m_window->shell(), key);
    QCOMPARE(clicks, 2);
    QCOMPARE(eventLog(), QStringList{});
}

void tst_FormKeys::escapePressesTheCancelButton()
{
    CommandButton cancel(*m_window, u"cmdCancel"_s, u"Cancel"_s);
    m_window->setCancelButton(cancel);
    int clicks = 0;
    connect(&cancel, &CommandButton::Click, this, [&] { ++clicks; });
    QTest::keyClick(&m_window->shell(), Qt::Key_Escape);
    QCOMPARE(clicks, 1);
    cancel.setEnabled(false);
    QTest::keyClick(&m_window->shell(), Qt::Key_Escape);
    QCOMPARE(clicks, 1);
}

void tst_FormKeys::aKeyHeldDownPressesNothing()
{
    CommandButton ok(*m_window, u"cmdOK"_s, u"OK"_s);
    m_window->setDefaultButton(ok);
    int clicks = 0;
    connect(&ok, &CommandButton::Click, this, [&] { ++clicks; });
    QKeyEvent held(QEvent::KeyPress, Qt::Key_Return, {}, u"\r"_s, true);
    QCoreApplication::sendEvent(&m_window->shell(), &held);
    QCOMPARE(clicks, 0);
}

// While it is down the window system tells of a release before each of its repeats.
void tst_FormKeys::aKeyHeldDownIsNotReleased()
{
    const auto send = [this](QEvent::Type type, bool repeated) {
        QKeyEvent event(type, Qt::Key_A, {}, u"a"_s, repeated);
        QCoreApplication::sendEvent(&m_window->shell(), &event);
    };
    send(QEvent::KeyPress, false);
    for (const auto type : {QEvent::KeyRelease, QEvent::KeyPress})
        send(type, true);
    const QStringList held{u"frmPlain KeyDown 65 0"_s, u"frmPlain KeyPress 97"_s, u"frmPlain KeyDown 65 0"_s,
                           u"frmPlain KeyPress 97"_s};
    QCOMPARE(eventLog(), held);
    send(QEvent::KeyRelease, false);
    QCOMPARE(eventLog(), held + QStringList(u"frmPlain KeyUp 65 0"_s));
}

QTEST_MAIN(tst_FormKeys)
#include "tst_FormKeys.moc"
