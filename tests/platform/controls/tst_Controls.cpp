// What all controls have: a place, a state, texts for the eye and the ear; arrays of them, and timers.
#include "platform/FormFixture.h"
#include "platform/controls/CommandButton.h"
#include "platform/controls/ControlArray.h"
#include "platform/controls/Label.h"
#include "platform/controls/SSPanel.h"
#include "platform/controls/TimerControl.h"
#include "platform/controls/pictures/Image.h"
#include "platform/controls/pictures/PictureBox.h"
#include "platform/controls/pictures/PictureView.h"
#include "platform/controls/text/TextBox.h"

using namespace Qt::Literals::StringLiterals;
using namespace orvane;
using namespace orvane::test;

namespace
{
// The pixels of that colour, from the first column to the last.
QPair<int, int> columnsOf(const QImage &shown, const QColor &colour)
{
    QPair<int, int> columns(-1, -1);
    for (int x = 0; x < shown.width(); ++x)
        for (int y = 0; y < shown.height(); ++y) {
            if (shown.pixelColor(x, y) != colour) continue;
            columns = {columns.first < 0 ? x : columns.first, x};
        }
    return columns;
}
} // namespace

class tst_Controls : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void lengthsAreKeptExactlyAndShownRounded_data();
    void lengthsAreKeptExactlyAndShownRounded();
    void eachLengthIsSetByItself();
    void aNegativeSizeIsRefusedAndChangesNothing();
    void visibleIsTheControlsOwnFlag();
    void enabledIsTheControlsOwnFlag();
    void aTagIsKeptAsItIs();
    void aControlSpeaksItsCaptionOrElseItsTipOrElseItsPurpose();
    void theSpokenNameHasNoMarkOfAnAccessKey();
    void aControlAtTheFootKeepsItsHeight();
    void aControlAllOverFollowsItsContainer();
    void anUnalignedControlStaysWhereItIs();
    void theFocusGoesToAControlOnShow();
    void theFocusLeavesTheOthersForAControlThatIsNotOnShow();
    void tabPassesOverTheRest();
    void aWidgetFindsItsControl();
    void aWindowFindsItsControlsByName();
    void anUnknownPointerIsRefused();
    void aPictureOfPixelsFillsItsBox();
    void aLabelOfOneLineFitsItsWidth();
    void aPictureDrawnAheadLooksTheSame();
    void aPictureDrawnAheadGivesWayToANewOne();
    void wordsStandAtTheirAnchor_data();
    void wordsStandAtTheirAnchor();
    void anArrayKnowsItsElementsByIndex();
    void aMissingElementIsRefused();
    void aTimerTicksWhileItIsEnabled();
    void aTimerWithoutIntervalNeverTicks();
    void aDeletedTimerTicksNoMore();
    void aTimerMayStopItselfInItsTick();

private:
    std::unique_ptr<NotedWindow> m_window;
};

void tst_Controls::init()
{
    m_window = std::make_unique<NotedWindow>();
}

void tst_Controls::cleanup()
{
    m_window.reset();
}

void tst_Controls::lengthsAreKeptExactlyAndShownRounded_data()
{
    QTest::addColumn<double>("twips");
    QTest::addColumn<int>("pixels");
    QTest::newRow("none") << 0.0 << 0;
    QTest::newRow("one pixel") << 15.0 << 1;
    QTest::newRow("less than half a pixel") << 7.4 << 0;
    QTest::newRow("half a pixel") << 7.5 << 1;
    QTest::newRow("odd") << 1001.3 << 67;
    QTest::newRow("large") << 30000.0 << 2000;
}

void tst_Controls::lengthsAreKeptExactlyAndShownRounded()
{
    QFETCH(double, twips);
    QFETCH(int, pixels);
    PictureBox box(*m_window, u"pic"_s);
    box.Move(-twips, twips, twips, twips);
    QCOMPARE(box.Left(), -twips);
    QCOMPARE(box.Top(), twips);
    QCOMPARE(box.Width(), twips);
    QCOMPARE(box.Height(), twips);
    QCOMPARE(box.widget().geometry(), QRect(-pixels, pixels, pixels, pixels));
}

void tst_Controls::eachLengthIsSetByItself()
{
    PictureBox box(*m_window, u"pic"_s);
    box.Move(150, 300, 450, 600);
    box.setLeft(15);
    QCOMPARE(box.widget().geometry(), QRect(1, 20, 30, 40));
    box.setTop(30);
    box.setWidth(45);
    box.setHeight(60);
    QCOMPARE(box.widget().geometry(), QRect(1, 2, 3, 4));
}

void tst_Controls::aNegativeSizeIsRefusedAndChangesNothing()
{
    PictureBox box(*m_window, u"pic"_s);
    box.Move(150, 300, 450, 600);
    const std::function<void()> steps[] = {[&] { box.setWidth(-1); }, [&] { box.setHeight(-0.1); },
                                           [&] { box.Move(0, 0, -1, 600); }, [&] { box.Move(0, 0, 450, -1); }};
    for (const auto &step : steps) {
        QCOMPARE(errorOf(step), int(InvalidPropertyValue));
        QCOMPARE(box.widget().geometry(), QRect(10, 20, 30, 40));
        QCOMPARE(box.Left(), 150.0);
    }
}

void tst_Controls::visibleIsTheControlsOwnFlag()
{
    SSPanel panel(*m_window, u"pnl"_s);
    Label label(panel, u"lbl"_s);
    QVERIFY(label.Visible()); // though nothing is on show yet
    panel.setVisible(false);
    QVERIFY(label.Visible());
    label.setVisible(false);
    panel.setVisible(true);
    QVERIFY(!label.Visible());
    label.setVisible(true);
    m_window->Show();
    QVERIFY(label.Visible() && label.widget().isVisible());
}

void tst_Controls::enabledIsTheControlsOwnFlag()
{
    SSPanel panel(*m_window, u"pnl"_s);
    CommandButton button(panel, u"cmd"_s, u"Go"_s);
    panel.setEnabled(false);
    QVERIFY(button.Enabled());
    QVERIFY(!button.widget().isEnabled());
    button.setEnabled(false);
    panel.setEnabled(true);
    QVERIFY(!button.Enabled());
    QVERIFY(panel.Enabled());
}

void tst_Controls::aTagIsKeptAsItIs()
{
    Label label(*m_window, u"lbl"_s);
    QCOMPARE(label.Tag(), QString());
    label.setTag(u" [Guide] - 4.4.7 "_s);
    QCOMPARE(label.Tag(), u" [Guide] - 4.4.7 "_s);
    QCOMPARE(label.Name(), u"lbl"_s);
}

void tst_Controls::aControlSpeaksItsCaptionOrElseItsTipOrElseItsPurpose()
{
    Label label(*m_window, u"lbl"_s);
    label.setPurpose(u"Issue number"_s);
    QCOMPARE(label.widget().accessibleName(), u"Issue number"_s);
    label.setToolTipText(u"Which issue"_s);
    QCOMPARE(label.widget().accessibleName(), u"Which issue"_s);
    label.setCaption(u"Issue"_s);
    QCOMPARE(label.widget().accessibleName(), u"Issue"_s);
    label.setCaption(u"  "_s);
    QCOMPARE(label.widget().accessibleName(), u"Which issue"_s);
    label.setToolTipText({});
    QCOMPARE(label.widget().accessibleName(), u"Issue number"_s);
}

void tst_Controls::theSpokenNameHasNoMarkOfAnAccessKey()
{
    const CommandButton button(*m_window, u"cmd"_s, u"&Close"_s);
    QCOMPARE(button.Caption(), u"&Close"_s);
    QCOMPARE(button.widget().accessibleName(), u"Close"_s);
}

void tst_Controls::aControlAtTheFootKeepsItsHeight()
{
    SSPanel panel(*m_window, u"pnl"_s);
    panel.setHeight(450);
    panel.setAlign(AlignedBottom);
    QCOMPARE(panel.widget().geometry(), QRect(0, 170, 300, 30));
    m_window->Show();
    m_window->shell().resize(400, 300);
    QTRY_COMPARE(panel.widget().geometry(), QRect(0, 270, 400, 30));
    QCOMPARE(panel.Top(), 4050.0);
    QCOMPARE(panel.Width(), 6000.0);
    QCOMPARE(panel.Height(), 450.0);
}

void tst_Controls::aControlAllOverFollowsItsContainer()
{
    SSPanel panel(*m_window, u"pnl"_s);
    SSPanel inner(panel, u"pnlInner"_s);
    panel.Move(150, 150, 3000, 1500);
    inner.setAlign(AlignedAllOver);
    QCOMPARE(inner.widget().geometry(), QRect(0, 0, 200, 100));
    m_window->Show();
    panel.Move(0, 0, 1500, 750);
    QCOMPARE(inner.widget().geometry(), QRect(0, 0, 100, 50));
}

void tst_Controls::anUnalignedControlStaysWhereItIs()
{
    SSPanel panel(*m_window, u"pnl"_s);
    panel.setAlign(AlignedAllOver);
    panel.setAlign(NotAligned);
    panel.Move(150, 150, 300, 300);
    panel.setAlign(NotAligned);
    QCOMPARE(panel.widget().geometry(), QRect(10, 10, 20, 20));
    m_window->Show();
    m_window->shell().resize(400, 300);
    QTRY_COMPARE(m_window->ScaleWidth(), 6000.0);
    QCOMPARE(panel.widget().geometry(), QRect(10, 10, 20, 20));
}

void tst_Controls::theFocusGoesToAControlOnShow()
{
    TextBox one(*m_window, u"txtOne"_s);
    TextBox two(*m_window, u"txtTwo"_s);
    showActive(*m_window);
    two.SetFocus();
    QCOMPARE(m_window->ActiveControl(), &two);
    one.SetFocus();
    QCOMPARE(m_window->ActiveControl(), &one);
}

void tst_Controls::theFocusLeavesTheOthersForAControlThatIsNotOnShow()
{
    TextBox one(*m_window, u"txtOne"_s);
    SSPanel panel(*m_window, u"pnl"_s);
    TextBox hidden(panel, u"txtHidden"_s);
    panel.setVisible(false);
    showActive(*m_window);
    one.SetFocus();
    hidden.SetFocus();
    QVERIFY(!m_window->ActiveControl());
    QTest::keyClicks(QApplication::focusWidget(), u"abc"_s);
    QCOMPARE(one.Text(), QString());
    QCOMPARE(hidden.Text(), QString());
}

void tst_Controls::tabPassesOverTheRest()
{
    TextBox one(*m_window, u"txtOne"_s);
    TextBox hidden(*m_window, u"txtHidden"_s);
    TextBox two(*m_window, u"txtTwo"_s);
    hidden.setVisible(false);
    showActive(*m_window);
    hidden.SetFocus();
    QVERIFY(!m_window->ActiveControl());
    two.SetFocus();
    for (TextBox *expected : {&one, &two, &one}) {
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        QCOMPARE(m_window->ActiveControl(), expected);
    }
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Backtab);
    QCOMPARE(m_window->ActiveControl(), &two);
}

void tst_Controls::aWidgetFindsItsControl()
{
    TextBox box(*m_window, u"txt"_s, TextBox::ManyLines);
    QWidget deep(box.widget().findChild<QWidget *>());
    QCOMPARE(Control::of(&deep), &box);
    QCOMPARE(Control::of(&m_window->shell()), nullptr);
    QCOMPARE(Control::of(nullptr), nullptr);
}

void tst_Controls::aWindowFindsItsControlsByName()
{
    auto box = std::make_unique<TextBox>(*m_window, u"txt"_s);
    QCOMPARE(m_window->control(u"txt"_s), box.get());
    QCOMPARE(m_window->control(u"TXT"_s), nullptr);
    box.reset();
    QCOMPARE(m_window->control(u"txt"_s), nullptr);
}

void tst_Controls::anUnknownPointerIsRefused()
{
    Label label(*m_window, u"lbl"_s);
    label.setMousePointer(ArrowQuestionPointer);
    QCOMPARE(label.widget().cursor().shape(), Qt::WhatsThisCursor);
    QCOMPARE(errorOf([&] { label.setMousePointer(2); }), int(InvalidPropertyValue));
    QCOMPARE(label.MousePointer(), int(ArrowQuestionPointer));
    QCOMPARE(label.widget().cursor().shape(), Qt::WhatsThisCursor);
}

void tst_Controls::aLabelOfOneLineFitsItsWidth()
{
    Label label(*m_window, u"lblAuthorized"_s);
    label.Move(0, 0, 1005, 195);
    label.setFont(u"MS Sans Serif"_s, 8.25, false);
    label.setCaption(u"Authorized by:"_s);
    label.setOneLine();
    const auto advance = [&] { return label.widget().fontMetrics().horizontalAdvance(label.Caption()); };
    QVERIFY(advance() <= label.widget().width());
    label.setWidth(3000);
    QCOMPARE(label.widget().font().stretch(), int(QFont::Unstretched));
    label.setWidth(60);
    QCOMPARE(label.widget().font().stretch(), 80);
}

void tst_Controls::aPictureOfPixelsFillsItsBox()
{
    PictureBox box(*m_window, u"picf1"_s);
    QVERIFY(box.Picture().image().isNull());
    QImage pixels(4, 2, QImage::Format_RGB32);
    pixels.fill(Qt::blue);
    box.Move(0, 0, 600, 300);
    box.setPicture(PictureObject(pixels));
    QCOMPARE(box.Picture().image(), pixels);
    const QImage shown = box.widget().grab().toImage();
    QCOMPARE(shown.pixelColor(0, 0), QColor(Qt::blue));
    QCOMPARE(shown.pixelColor(shown.width() - 1, shown.height() - 1), QColor(Qt::blue));
}

void tst_Controls::aPictureDrawnAheadLooksTheSame()
{
    Image image(*m_window, u"imgLogo"_s);
    image.Move(0, 0, 1500, 420);
    image.setPicture(u"logo"_s);
    m_window->Show();
    auto &view = static_cast<PictureView &>(image.widget());
    const QImage painted = view.grab().toImage();
    view.drawAhead();
    QCOMPARE(view.grab().toImage(), painted);
    view.drawAhead();
    image.setWidth(3000);
    QVERIFY(view.grab().toImage().copy(painted.rect()) != painted); // in the middle of the new room
}

void tst_Controls::aPictureDrawnAheadGivesWayToANewOne()
{
    Image image(*m_window, u"imgLogo"_s);
    image.Move(0, 0, 1500, 420);
    image.setPicture(u"logo"_s);
    m_window->Show();
    auto &view = static_cast<PictureView &>(image.widget());
    const QImage logo = view.grab().toImage();
    view.drawAhead();
    image.setPicture(u"mark"_s);
    QVERIFY(view.grab().toImage() != logo);
}

void tst_Controls::wordsStandAtTheirAnchor_data()
{
    QTest::addColumn<int>("anchor");
    QTest::addColumn<double>("twipsWide");
    QTest::addColumn<int>("place");
    QTest::newRow("middle") << int(PictureWords::Middle) << 960.0 << 32;
    QTest::newRow("middle, twice as large") << int(PictureWords::Middle) << 1920.0 << 64;
    QTest::newRow("end") << int(PictureWords::End) << 960.0 << 29;
}

// The mark is 64 pixels large, and the letter has a little room on both sides.
void tst_Controls::wordsStandAtTheirAnchor()
{
    QFETCH(int, anchor);
    QFETCH(double, twipsWide);
    QFETCH(int, place);
    Image image(*m_window, u"imgLogo"_s);
    image.Move(0, 0, twipsWide, twipsWide);
    image.setPicture(u"mark"_s);
    image.setWords(QSizeF(64, 64),
                   {{u"H"_s, 32, 40, 22, true, QColor(Qt::red), static_cast<PictureWords::Anchors>(anchor)}});
    m_window->Show();
    const auto [first, last] = columnsOf(image.widget().grab().toImage(), QColor(Qt::red));
    QVERIFY(first >= 0);
    QVERIFY(last > first + 8);
    const int found = anchor == PictureWords::Middle ? (first + last) / 2 : last;
    QVERIFY2(std::abs(found - place) <= 1, qPrintable(QString::number(found)));
}

void tst_Controls::anArrayKnowsItsElementsByIndex()
{
    ControlArray<Label> labels(u"lbl"_s);
    Label &third = labels.add(3, *m_window);
    labels.add(1, *m_window);
    QCOMPARE(labels.Count(), 2);
    QCOMPARE(&labels(3), &third);
    QCOMPARE(labels(1).Name(), u"lbl(1)"_s);
    QCOMPARE(m_window->control(u"lbl(3)"_s), &third);
    QList<int> indices;
    for (const auto &[index, label] : labels)
        indices << index;
    QCOMPARE(indices, (QList<int>{1, 3}));
}

void tst_Controls::aMissingElementIsRefused()
{
    ControlArray<Label> labels(u"lbl"_s);
    labels.add(1, *m_window);
    for (const int index : {0, 2, -1})
        QCOMPARE(errorOf([&] { labels(index).setTag({}); }), int(NoSuchControlArrayElement));
}

void tst_Controls::aTimerTicksWhileItIsEnabled()
{
    TestHost host;
    TimerControl timer(u"Timer1"_s, 500);
    int ticks = 0;
    connect(&timer, &TimerControl::Timer, this, [&] { ++ticks; });
    host.advance(500);
    QCOMPARE(ticks, 0);
    timer.setEnabled(true);
    timer.setEnabled(true);
    QCOMPARE(host.runningTimers(), 1);
    host.advance(499);
    QCOMPARE(ticks, 0);
    host.advance(1);
    host.advance(500);
    QCOMPARE(ticks, 2);
    timer.setEnabled(false);
    host.advance(500);
    QCOMPARE(ticks, 2);
}

void tst_Controls::aTimerWithoutIntervalNeverTicks()
{
    TestHost host;
    TimerControl timer(u"Timer1"_s, 0);
    timer.setEnabled(true);
    QVERIFY(timer.Enabled());
    QCOMPARE(host.runningTimers(), 0);
    timer.setEnabled(false);
    QVERIFY(!timer.Enabled());
}

void tst_Controls::aDeletedTimerTicksNoMore()
{
    TestHost host;
    {
        TimerControl timer(u"Timer1"_s, 500);
        timer.setEnabled(true);
        QCOMPARE(host.runningTimers(), 1);
    }
    QCOMPARE(host.runningTimers(), 0);
}

void tst_Controls::aTimerMayStopItselfInItsTick()
{
    TimerControl timer(u"Timer1"_s, 1); // by the machine's own clock
    int ticks = 0;
    connect(&timer, &TimerControl::Timer, this, [&] {
        if (++ticks == 3) timer.setEnabled(false);
    });
    timer.setEnabled(true);
    QTRY_VERIFY(!timer.Enabled());
    QCoreApplication::processEvents();
    QCOMPARE(ticks, 3);
}

QTEST_MAIN(tst_Controls)
#include "tst_Controls.moc"
