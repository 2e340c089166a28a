// Controls that are pressed, and boxes of plain text.
#include "platform/FormFixture.h"
#include "platform/controls/CommandButton.h"
#include "platform/controls/Frame.h"
#include "platform/controls/Label.h"
#include "platform/controls/SSRibbon.h"
#include "platform/controls/pictures/Image.h"
#include "platform/controls/text/TextBox.h"
#include "platform/text/RichBoxFixture.h"

#include <QMenuBar>

using namespace Qt::Literals::StringLiterals;
using namespace orvane;
using namespace orvane::test;

namespace
{
const QRect Place(0, 0, 40, 20); // pixels

void place(Control &control, int column)
{
    control.Move(750 * column, 0, toTwips(Place.width()), toTwips(Place.height()));
}

void clickOn(const Control &control, Qt::MouseButton button = Qt::LeftButton)
{
    QTest::mouseClick(&control.mouseTarget(), button, {}, Place.center());
}

// Presses inside the control and lets go outside of it.
void dragOff(const Control &control)
{
    QTest::mousePress(&control.mouseTarget(), Qt::LeftButton, {}, Place.center());
    QTest::mouseRelease(&control.mouseTarget(), Qt::LeftButton, {}, QPoint(5, Place.height() + 30));
}

// Two ribbons of one group, the first of which is down.
class RibbonWindow : public NotedWindow
{
public:
    RibbonWindow()
    {
        place(one, 0);
        place(two, 1);
        for (const SSRibbon *ribbon : {&one, &two})
            connect(ribbon, &SSRibbon::ValueClick, this, [this, ribbon](Boolean16 value) {
                reports << ribbon->Name() + (value == True ? u" down"_s : u" up"_s);
            });
    }

    RibbonGroup group;
    SSRibbon one{*this, u"one"_s, group, true};
    SSRibbon two{*this, u"two"_s, group, false};
    QStringList reports;
};
} // namespace

class tst_Buttons : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void aPressedRibbonRaisesTheOtherFirst();
    void aRibbonThatIsDownReportsNothing();
    void ribbonsArePressedByKey_data();
    void ribbonsArePressedByKey();
    void aRibbonIsPressedByItsValue();
    void aRibbonThatIsGoneLeavesTheGroup();
    void aCommandIsPressedByMouseAndKey();
    void aCommandThatDropsAMenuIsPressedByDown();
    void aDisabledCommandIsNotPressed();
    void aCommandTellsOfTheMouse();
    void aCommandWithoutTabStopIsPassedOver();
    void aCommandKeepsItsLooks();
    void aButtonIsPressedByEnterAndSpace_data();
    void aButtonIsPressedByEnterAndSpace();
    void whatIsNoButtonTellsOfAClick_data();
    void whatIsNoButtonTellsOfAClick();
    void aBoxOfOneLineTakesNoEnter();
    void aBoxOfManyLinesTakesEnterAndLeavesTab();
    void aBoxOfManyLinesReadsEveryLineEnd();
    void aLockedBoxRefusesTyping_data();
    void aLockedBoxRefusesTyping();
    void aBoxTellsOfEachChange();
    void aBoxKeepsItsHardBlanks_data();
    void aBoxKeepsItsHardBlanks();
    void aBoxTellsOfItsKeys();
    void aBoxTellsOfWhatIsComposed_data();
    void aBoxTellsOfWhatIsComposed();
    void aBoxTellsOfTheFocus();
    void aBoxKeepsTheFocusWhileTheMenuBarHasIt_data();
    void aBoxKeepsTheFocusWhileTheMenuBarHasIt();
    void aBoxLosesTheFocusByWayOfTheMenuBar();
    void tabGoesFromControlToControlAsSet();

private:
    std::unique_ptr<RibbonWindow> m_window;
};

void tst_Buttons::init()
{
    m_window = std::make_unique<RibbonWindow>();
}

void tst_Buttons::cleanup()
{
    m_window.reset();
}

void tst_Buttons::aPressedRibbonRaisesTheOtherFirst()
{
    showActive(*m_window);
    clickOn(m_window->two);
    QCOMPARE(m_window->reports, (QStringList{u"one up"_s, u"two down"_s}));
    QVERIFY(m_window->two.Value());
    QVERIFY(!m_window->one.Value());
    QCOMPARE(m_window->group.downOne(), &m_window->two);
}

void tst_Buttons::aRibbonThatIsDownReportsNothing()
{
    showActive(*m_window);
    clickOn(m_window->one);
    QTest::keyClick(&m_window->one.widget(), Qt::Key_Space);
    m_window->one.setValue(true);
    QVERIFY(m_window->one.Value());
    QCOMPARE(m_window->reports, QStringList{});
}

void tst_Buttons::ribbonsArePressedByKey_data()
{
    QTest::addColumn<Qt::Key>("key");
    QTest::newRow("Space") << Qt::Key_Space;
    QTest::newRow("Return") << Qt::Key_Return;
    QTest::newRow("Enter") << Qt::Key_Enter;
}

void tst_Buttons::ribbonsArePressedByKey()
{
    QFETCH(Qt::Key, key);
    showActive(*m_window);
    m_window->one.SetFocus();
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    QCOMPARE(m_window->ActiveControl(), &m_window->two);
    QTest::keyClick(QApplication::focusWidget(), key);
    QCOMPARE(m_window->reports, (QStringList{u"one up"_s, u"two down"_s}));
}

void tst_Buttons::aRibbonIsPressedByItsValue()
{
    m_window->two.setValue(true); // needs nothing on show
    QCOMPARE(m_window->reports, (QStringList{u"one up"_s, u"two down"_s}));
    m_window->two.setValue(false);
    QCOMPARE(m_window->reports.last(), u"two up"_s);
    QVERIFY(!m_window->group.downOne());
}

void tst_Buttons::aRibbonThatIsGoneLeavesTheGroup()
{
    auto third = std::make_unique<SSRibbon>(*m_window, u"three"_s, m_window->group, false);
    third->setValue(true);
    third.reset();
    QVERIFY(!m_window->group.downOne());
    m_window->two.setValue(true);
    QCOMPARE(m_window->reports, (QStringList{u"one up"_s, u"two down"_s}));
}

void tst_Buttons::aCommandIsPressedByMouseAndKey()
{
    SSCommand command(*m_window, u"cmd"_s);
    place(command, 2);
    int clicks = 0;
    connect(&command, &SSCommand::Click, this, [&] { ++clicks; });
    showActive(*m_window);
    clickOn(command);
    for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Enter, Qt::Key_Space})
        QTest::keyClick(&command.widget(), key);
    QCOMPARE(clicks, 4);
    clickOn(command, Qt::RightButton);
    dragOff(command);
    QTest::keyClick(&command.widget(), Qt::Key_Down);
    QCOMPARE(clicks, 4);
}

void tst_Buttons::aCommandThatDropsAMenuIsPressedByDown()
{
    SSCommand command(*m_window, u"cmd"_s);
    place(command, 2);
    command.setDropsMenu(true);
    int clicks = 0;
    connect(&command, &SSCommand::Click, this, [&] { ++clicks; });
    showActive(*m_window);
    QTest::keyClick(&command.widget(), Qt::Key_Down);
    QCOMPARE(clicks, 1);
}

void tst_Buttons::aDisabledCommandIsNotPressed()
{
    SSCommand command(*m_window, u"cmd"_s);
    place(command, 2);
    command.setEnabled(false);
    int clicks = 0;
    connect(&command, &SSCommand::Click, this, [&] { ++clicks; });
    showActive(*m_window);
    clickOn(command);
    QTest::keyClick(&command.widget(), Qt::Key_Return);
    QCOMPARE(clicks, 0);
}

void tst_Buttons::aCommandTellsOfTheMouse()
{
    QStringList told;
    connect(&m_window->two, &SSCommand::MouseEnter, this, [&] { told << u"enter"_s; });
    connect(&m_window->two, &SSCommand::MouseLeave, this, [&] { told << u"leave"_s; });
    showActive(*m_window);
    QTest::mouseMove(&m_window->one.widget(), Place.center());
    QTest::mouseMove(&m_window->two.widget(), Place.center());
    QTRY_COMPARE(told, QStringList{u"enter"_s});
    QTest::mouseMove(&m_window->one.widget(), Place.center());
    QTRY_COMPARE(told, (QStringList{u"enter"_s, u"leave"_s}));
}

void tst_Buttons::aCommandWithoutTabStopIsPassedOver()
{
    SSCommand last(*m_window, u"cmd"_s);
    place(last, 2);
    m_window->two.setTabStop(false);
    showActive(*m_window);
    m_window->one.SetFocus();
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    QCOMPARE(m_window->ActiveControl(), &last);
}

void tst_Buttons::aCommandKeepsItsLooks()
{
    SSCommand command(*m_window, u"cmd"_s);
    command.setCaption(u"Aspects\nand impacts"_s);
    command.setForeColor(0x1234AB);
    command.setFontBold(true);
    QCOMPARE(command.Caption(), u"Aspects\nand impacts"_s);
    QCOMPARE(command.ForeColor(), 0x1234AB);
    QVERIFY(command.FontBold());
    command.setFontBold(false);
    QVERIFY(!command.FontBold());
}

void tst_Buttons::aButtonIsPressedByEnterAndSpace_data()
{
    ribbonsArePressedByKey_data();
}

void tst_Buttons::aButtonIsPressedByEnterAndSpace()
{
    QFETCH(Qt::Key, key);
    CommandButton button(*m_window, u"cmd"_s, u"&Go"_s);
    place(button, 2);
    int clicks = 0;
    connect(&button, &CommandButton::Click, this, [&] { ++clicks; });
    showActive(*m_window);
    button.SetFocus();
    QTest::keyClick(QApplication::focusWidget(), key);
    QCOMPARE(clicks, 1);
    clickOn(button);
    QCOMPARE(clicks, 2);
}

void tst_Buttons::whatIsNoButtonTellsOfAClick_data()
{
    QTest::addColumn<QString>("kind");
    for (const auto &kind : {u"Label"_s, u"Frame"_s, u"Image"_s})
        QTest::newRow(qPrintable(kind)) << kind;
}

void tst_Buttons::whatIsNoButtonTellsOfAClick()
{
    QFETCH(QString, kind);
    Label label(*m_window, u"Label"_s);
    Frame frame(*m_window, u"Frame"_s);
    Image image(*m_window, u"Image"_s);
    int clicks = 0;
    connect(&label, &Label::Click, this, [&] { clicks += kind == u"Label" ? 1 : 100; });
    connect(&frame, &Frame::Click, this, [&] { clicks += kind == u"Frame" ? 1 : 100; });
    connect(&image, &Image::Click, this, [&] { clicks += kind == u"Image" ? 1 : 100; });
    Control &control = *m_window->control(kind);
    place(control, 3);
    showActive(*m_window);
    clickOn(control);
    QCOMPARE(clicks, 1);
    clickOn(control, Qt::RightButton);
    dragOff(control);
    QCOMPARE(clicks, 1);
    QCOMPARE(control.widget().focusPolicy(), Qt::NoFocus);
}

void tst_Buttons::aBoxOfOneLineTakesNoEnter()
{
    TextBox box(*m_window, u"txt"_s);
    showActive(*m_window);
    box.SetFocus();
    QTest::keyClicks(&box.widget(), u"ab"_s);
    QTest::keyClick(&box.widget(), Qt::Key_Return);
    QCOMPARE(box.Text(), u"ab"_s);
}

void tst_Buttons::aBoxOfManyLinesTakesEnterAndLeavesTab()
{
    TextBox box(*m_window, u"txt"_s, TextBox::ManyLines);
    showActive(*m_window);
    box.SetFocus();
    QTest::keyClicks(&box.widget(), u"a"_s);
    QTest::keyClick(&box.widget(), Qt::Key_Return);
    QTest::keyClicks(&box.widget(), u"b"_s);
    QCOMPARE(box.Text().split(u'\n').size(), 2);
    QTest::keyClick(&box.widget(), Qt::Key_Tab);
    QVERIFY(m_window->ActiveControl() != &box);
}

void tst_Buttons::aBoxOfManyLinesReadsEveryLineEnd()
{
    TextBox box(*m_window, u"txt"_s, TextBox::ManyLines);
    box.setText(u"one\r\ntwo\nthree\rfour"_s);
    QCOMPARE(box.Text(), u"one\r\ntwo\r\nthree\r\nfour"_s);
    box.setText(box.Text());
    QCOMPARE(box.Text(), u"one\r\ntwo\r\nthree\r\nfour"_s);
}

void tst_Buttons::aBoxKeepsItsHardBlanks_data()
{
    aLockedBoxRefusesTyping_data();
}

void tst_Buttons::aBoxKeepsItsHardBlanks()
{
    QFETCH(int, lines);
    TextBox box(*m_window, u"txt"_s, static_cast<TextBox::Lines>(lines));
    box.setText(u"5\u00A0m \uFFFC"_s);
    QCOMPARE(box.Text(), u"5\u00A0m \uFFFC"_s);
}

void tst_Buttons::aLockedBoxRefusesTyping_data()
{
    QTest::addColumn<int>("lines");
    QTest::newRow("one line") << int(TextBox::OneLine);
    QTest::newRow("many lines") << int(TextBox::ManyLines);
}

void tst_Buttons::aLockedBoxRefusesTyping()
{
    QFETCH(int, lines);
    TextBox box(*m_window, u"txt"_s, static_cast<TextBox::Lines>(lines));
    box.setText(u"kept"_s);
    box.setLocked(true);
    showActive(*m_window);
    box.SetFocus();
    QTest::keyClicks(&box.widget(), u"abc"_s);
    QTest::keyClick(&box.widget(), Qt::Key_Delete);
    QCOMPARE(box.Text(), u"kept"_s);
    box.setText(u"by code"_s);
    QCOMPARE(box.Text(), u"by code"_s);
}

void tst_Buttons::aBoxTellsOfEachChange()
{
    for (const auto lines : {TextBox::OneLine, TextBox::ManyLines}) {
        TextBox box(*m_window, u"txt"_s, lines);
        int changes = 0;
        connect(&box, &TextBox::Change, this, [&] { ++changes; });
        box.setText(u"a"_s);
        QTest::keyClicks(&box.widget(), u"bc"_s);
        QCOMPARE(changes, 3);
    }
}

void tst_Buttons::aBoxTellsOfItsKeys()
{
    TextBox box(*m_window, u"txtIssue"_s);
    QStringList events;
    connect(&box, &TextBox::KeyPress, this,
            [&](int keyAscii) { events += u"press %1 %2"_s.arg(keyAscii).arg(box.Text()); });
    connect(&box, &TextBox::KeyUp, this, [&] { events += u"up %1"_s.arg(box.Text()); });
    QTest::keyClicks(&box.widget(), u"a"_s);
    QTest::keyClick(&box.widget(), Qt::Key_Backspace);
    QTest::keyClick(&box.widget(), Qt::Key_Left);
    QCOMPARE(events, (QStringList{u"press 97 "_s, u"up a"_s, u"press 8 a"_s, u"up "_s, u"up "_s}));
}

void tst_Buttons::aBoxTellsOfWhatIsComposed_data()
{
    aLockedBoxRefusesTyping_data();
}

// A composition that goes on stands for no character yet.
void tst_Buttons::aBoxTellsOfWhatIsComposed()
{
    QFETCH(int, lines);
    TextBox box(*m_window, u"txt"_s, static_cast<TextBox::Lines>(lines));
    QStringList events;
    connect(&box, &TextBox::KeyPress, this,
            [&](int keyAscii) { events += u"press %1 %2"_s.arg(keyAscii).arg(box.Text()); });
    QInputMethodEvent composing(u"n"_s, {});
    QCoreApplication::sendEvent(&box.widget(), &composing);
    QCOMPARE(events, QStringList());
    compose(box.widget(), u"n\u00E9"_s);
    QCOMPARE(events, (QStringList{u"press 110 "_s, u"press 233 "_s}));
    QCOMPARE(box.Text(), u"n\u00E9"_s);
}

void tst_Buttons::aBoxTellsOfTheFocus()
{
    TextBox date(*m_window, u"txtDate"_s);
    TextBox other(*m_window, u"txtIssue"_s);
    QStringList events;
    connect(&date, &TextBox::GotFocus, this, [&] { events += u"got"_s; });
    connect(&date, &TextBox::LostFocus, this, [&] { events += u"lost"_s; });
    showActive(*m_window);
    other.SetFocus();
    events.clear();
    date.SetFocus();
    other.SetFocus();
    date.SetFocus();
    QFocusEvent away(QEvent::FocusOut, Qt::ActiveWindowFocusReason); // another window comes to the front
    QCoreApplication::sendEvent(&date.widget(), &away);
    for (const auto type : {QEvent::FocusOut, QEvent::FocusIn}) { // a menu is opened by keys and closed
        QFocusEvent menu(type, Qt::MenuBarFocusReason);
        QCoreApplication::sendEvent(&date.widget(), &menu);
    }
    QCOMPARE(events, (QStringList{u"got"_s, u"lost"_s, u"got"_s}));
}

void tst_Buttons::aBoxKeepsTheFocusWhileTheMenuBarHasIt_data()
{
    QTest::addColumn<Qt::FocusReason>("back");
    QTest::newRow("Escape") << Qt::MenuBarFocusReason;
    QTest::newRow("a click into the box") << Qt::MouseFocusReason;
}

void tst_Buttons::aBoxKeepsTheFocusWhileTheMenuBarHasIt()
{
    QFETCH(Qt::FocusReason, back);
    TextBox date(*m_window, u"txtDate"_s);
    QMenuBar bar(&m_window->surface());
    showActive(*m_window);
    date.SetFocus();
    QStringList events;
    connect(&date, &TextBox::GotFocus, this, [&] { events += u"got"_s; });
    connect(&date, &TextBox::LostFocus, this, [&] { events += u"lost"_s; });
    bar.setFocus(Qt::MenuBarFocusReason);
    QVERIFY(bar.hasFocus());
    date.widget().setFocus(back);
    QCOMPARE(events, QStringList());
    m_window->one.SetFocus();
    QCOMPARE(events, QStringList(u"lost"_s));
}

// Not while the focus is in another window: the box gets it back from there.
void tst_Buttons::aBoxLosesTheFocusByWayOfTheMenuBar()
{
    TextBox date(*m_window, u"txtDate"_s);
    QMenuBar bar(&m_window->surface());
    NotedWindow other(u"frmOther"_s);
    const SSCommand command(other, u"cmd"_s);
    showActive(*m_window);
    date.SetFocus();
    int lost = 0;
    connect(&date, &TextBox::LostFocus, this, [&] { ++lost; });
    bar.setFocus(Qt::MenuBarFocusReason);
    showActive(other);
    command.widget().setFocus();
    QVERIFY(command.widget().hasFocus());
    showActive(*m_window);
    m_window->SetFocus();
    QTRY_VERIFY(bar.hasFocus());
    QCOMPARE(lost, 0);
    m_window->one.widget().setFocus(Qt::MouseFocusReason);
    QCOMPARE(lost, 1);
    date.SetFocus();
    m_window->one.SetFocus();
    QCOMPARE(lost, 2);
}

void tst_Buttons::tabGoesFromControlToControlAsSet()
{
    TextBox first(*m_window, u"txtAuthorized"_s);
    TextBox second(*m_window, u"txtDate"_s);
    TextBox third(*m_window, u"txtIssue"_s);
    second.setTabAfter(third);
    first.setTabAfter(second);
    showActive(*m_window);
    third.SetFocus();
    QTest::keyClick(&third.widget(), Qt::Key_Tab);
    QCOMPARE(m_window->ActiveControl(), &second);
    QTest::keyClick(&second.widget(), Qt::Key_Tab);
    QCOMPARE(m_window->ActiveControl(), &first);
}

QTEST_MAIN(tst_Buttons)
#include "tst_Buttons.moc"
