// The scrolling container. Lengths are twips; the viewport is a pixel smaller than the control at every edge.
#include "platform/FormFixture.h"
#include "platform/controls/SSScroll.h"
#include "platform/controls/pictures/PictureBox.h"

#include <QAbstractScrollArea>
#include <QScrollBar>
#include <QWheelEvent>
#include <QWindow>

using namespace Qt::Literals::StringLiterals;
using namespace orvane;
using namespace orvane::test;

namespace
{

// A container of 300 by 200 pixels over an area of 1000 by 900, with bars at both edges.
struct ScrolledWindow {
    ScrolledWindow() : scroll(window, u"ssScroll"_s), picture(scroll, u"picture"_s)
    {
        scroll.Move(0, 0, 4500, 3000);
        scroll.setSteps(150, 750);
        picture.Move(0, 0, 15000, 13500);
        scroll.setScrollWidth(15000);
        scroll.setScrollHeight(13500);
        showActive(window);
        scroll.SetFocus();
    }

    QAbstractScrollArea &view() const { return static_cast<QAbstractScrollArea &>(scroll.widget()); }
    void press(Qt::Key key, Qt::KeyboardModifiers modifiers = {}) const { QTest::keyClick(&view(), key, modifiers); }
    QSize viewport() const { return view().viewport()->size(); }
    QPoint shownAt() const { return picture.widget().mapTo(view().viewport(), QPoint(0, 0)); }

    void turnWheel(const QPoint &angle) const
    {
        QWidget &shell = window.shell();
        const QPoint place = view().viewport()->mapTo(&shell, QPoint(20, 20));
        QWheelEvent event(place, shell.mapToGlobal(place), {}, angle, Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase,
                          false);
        QSpontaneKeyEvent::setSpontaneous(&event); // as from a mouse: only such goes up to what can scroll
        qApp->notify(shell.windowHandle(), &event);
    }

    PlainWindow window;
    SSScroll scroll;
    PictureBox picture;
};

} // namespace

class tst_SSScroll : public QObject
{
    Q_OBJECT

private slots:
    void itBeginsAtTheUpperLeft();
    void aPositionMovesWhatStandsOnIt();
    void aPositionBeyondTheAreaEndsAtItsEdge_data();
    void aPositionBeyondTheAreaEndsAtItsEdge();
    void keysGoByTheirSteps_data();
    void keysGoByTheirSteps();
    void homeAndEndLeadToTheEdges_data();
    void homeAndEndLeadToTheEdges();
    void aBarGoesByLineAndPage_data();
    void aBarGoesByLineAndPage();
    void theWheelScrollsOverWhatStandsOnIt();
    void thePositionStaysAsTheSizeChanges();
    void thePositionGivesWayWhereTheAreaEnds();
    void anAreaThatFitsHasNothingToScroll();
    void aShorterAreaScrollsLess();
    void whatStandsBeyondTheAreaCanBeReached();
    void whatIsHiddenTakesNoRoom();
    void anAreaOfNegativeSizeIsRefused();
    void itTakesTheFocusByTabAndByClick();
    void itsFrameShowsTheFocus();
    void itSpeaksItsPurpose();
    void itsGroundIsOfItsColour();
};

void tst_SSScroll::itBeginsAtTheUpperLeft()
{
    const ScrolledWindow shown;
    QCOMPARE(shown.scroll.HorizontalPosition(), 0.0);
    QCOMPARE(shown.scroll.VerticalPosition(), 0.0);
    QCOMPARE(shown.scroll.ScrollWidth(), 15000.0);
    QCOMPARE(shown.scroll.ScrollHeight(), 13500.0);
    QCOMPARE(shown.shownAt(), QPoint(0, 0));
}

void tst_SSScroll::aPositionMovesWhatStandsOnIt()
{
    ScrolledWindow shown;
    shown.scroll.setVerticalPosition(1500);
    shown.scroll.setHorizontalPosition(300);
    QCOMPARE(shown.scroll.VerticalPosition(), 1500.0);
    QCOMPARE(shown.scroll.HorizontalPosition(), 300.0);
    QCOMPARE(shown.shownAt(), QPoint(-20, -100));
    QCOMPARE(shown.picture.Top(), 0.0);
}

void tst_SSScroll::aPositionBeyondTheAreaEndsAtItsEdge_data()
{
    QTest::addColumn<double>("wanted");
    QTest::addColumn<bool>("atEnd");
    QTest::newRow("before") << -150.0 << false;
    QTest::newRow("behind") << 13500.0 << true;
    QTest::newRow("far behind") << 1e9 << true;
    QTest::newRow("far before") << -1e9 << false;
}

void tst_SSScroll::aPositionBeyondTheAreaEndsAtItsEdge()
{
    QFETCH(double, wanted);
    QFETCH(bool, atEnd);
    ScrolledWindow shown;
    shown.scroll.setVerticalPosition(wanted);
    QCOMPARE(shown.scroll.VerticalPosition(), atEnd ? toTwips(900 - shown.viewport().height()) : 0.0);
    shown.scroll.setHorizontalPosition(wanted * 2);
    QCOMPARE(shown.scroll.HorizontalPosition(), atEnd ? toTwips(1000 - shown.viewport().width()) : 0.0);
}

void tst_SSScroll::keysGoByTheirSteps_data()
{
    QTest::addColumn<Qt::Key>("key");
    QTest::addColumn<QPoint>("from"); // twips
    QTest::addColumn<QPoint>("to");
    QTest::newRow("down") << Qt::Key_Down << QPoint(0, 0) << QPoint(0, 150);
    QTest::newRow("up") << Qt::Key_Up << QPoint(0, 300) << QPoint(0, 150);
    QTest::newRow("right") << Qt::Key_Right << QPoint(0, 0) << QPoint(150, 0);
    QTest::newRow("left") << Qt::Key_Left << QPoint(300, 0) << QPoint(150, 0);
    QTest::newRow("page down") << Qt::Key_PageDown << QPoint(0, 0) << QPoint(0, 750);
    QTest::newRow("page up") << Qt::Key_PageUp << QPoint(0, 1500) << QPoint(0, 750);
    QTest::newRow("up from the top") << Qt::Key_Up << QPoint(0, 75) << QPoint(0, 0);
}

void tst_SSScroll::keysGoByTheirSteps()
{
    QFETCH(Qt::Key, key);
    QFETCH(QPoint, from);
    ScrolledWindow shown;
    shown.scroll.setHorizontalPosition(from.x());
    shown.scroll.setVerticalPosition(from.y());
    shown.press(key);
    QTEST(QPoint(int(shown.scroll.HorizontalPosition()), int(shown.scroll.VerticalPosition())), "to");
}

void tst_SSScroll::homeAndEndLeadToTheEdges_data()
{
    QTest::addColumn<Qt::Key>("key");
    QTest::addColumn<Qt::KeyboardModifiers>("modifiers");
    QTest::addColumn<QPoint>("edges"); // 0 the near one, 1 in the middle, 2 the far one
    QTest::newRow("home") << Qt::Key_Home << Qt::KeyboardModifiers(Qt::NoModifier) << QPoint(0, 1);
    QTest::newRow("end") << Qt::Key_End << Qt::KeyboardModifiers(Qt::NoModifier) << QPoint(2, 1);
    QTest::newRow("ctrl+home") << Qt::Key_Home << Qt::KeyboardModifiers(Qt::ControlModifier) << QPoint(0, 0);
    QTest::newRow("ctrl+end") << Qt::Key_End << Qt::KeyboardModifiers(Qt::ControlModifier) << QPoint(2, 2);
}

void tst_SSScroll::homeAndEndLeadToTheEdges()
{
    QFETCH(Qt::Key, key);
    QFETCH(Qt::KeyboardModifiers, modifiers);
    ScrolledWindow shown;
    shown.scroll.setHorizontalPosition(1500);
    shown.scroll.setVerticalPosition(1500);
    shown.press(key, modifiers);
    const auto edge = [](const QScrollBar &bar) {
        return bar.value() == bar.minimum() ? 0 : bar.value() == bar.maximum() ? 2 : 1;
    };
    QTEST(QPoint(edge(*shown.view().horizontalScrollBar()), edge(*shown.view().verticalScrollBar())), "edges");
}

void tst_SSScroll::aBarGoesByLineAndPage_data()
{
    QTest::addColumn<Qt::Orientation>("axis");
    QTest::newRow("horizontal") << Qt::Horizontal;
    QTest::newRow("vertical") << Qt::Vertical;
}

void tst_SSScroll::aBarGoesByLineAndPage()
{
    QFETCH(Qt::Orientation, axis);
    const ScrolledWindow shown;
    QScrollBar *bar = axis == Qt::Horizontal ? shown.view().horizontalScrollBar() : shown.view().verticalScrollBar();
    const auto position = [&] {
        return axis == Qt::Horizontal ? shown.scroll.HorizontalPosition() : shown.scroll.VerticalPosition();
    };
    QVERIFY(bar->isVisible());
    bar->triggerAction(QAbstractSlider::SliderPageStepAdd);
    QCOMPARE(position(), 750.0);
    bar->triggerAction(QAbstractSlider::SliderSingleStepSub);
    QCOMPARE(position(), 600.0);
}

void tst_SSScroll::theWheelScrollsOverWhatStandsOnIt()
{
    const ScrolledWindow shown;
    shown.turnWheel({0, -120});
    const double step = shown.scroll.VerticalPosition();
    QVERIFY(step > 0);
    QCOMPARE(std::fmod(step, 150), 0.0);
    QCOMPARE(shown.scroll.HorizontalPosition(), 0.0);
    shown.turnWheel({-120, 0});
    QCOMPARE(shown.scroll.HorizontalPosition(), step);
    shown.turnWheel({0, 120});
    QCOMPARE(shown.scroll.VerticalPosition(), 0.0);
}

void tst_SSScroll::thePositionStaysAsTheSizeChanges()
{
    ScrolledWindow shown;
    shown.scroll.setVerticalPosition(3000);
    shown.scroll.setHorizontalPosition(1500);
    for (const QSizeF size : {QSizeF(3000, 2000), QSizeF(300, 150), QSizeF(4000, 6000)}) {
        shown.scroll.Move(0, 0, size.width(), size.height());
        QCOMPARE(shown.scroll.VerticalPosition(), 3000.0);
        QCOMPARE(shown.scroll.HorizontalPosition(), 1500.0);
    }
}

void tst_SSScroll::thePositionGivesWayWhereTheAreaEnds()
{
    ScrolledWindow shown;
    shown.scroll.setVerticalPosition(10500);
    shown.scroll.setHeight(7500);
    QCOMPARE(shown.scroll.VerticalPosition(), toTwips(900 - shown.viewport().height()));
    QVERIFY(shown.scroll.VerticalPosition() < 10500);
    QCOMPARE(shown.shownAt().y() + 900, shown.viewport().height());
}

void tst_SSScroll::anAreaThatFitsHasNothingToScroll()
{
    ScrolledWindow shown;
    shown.scroll.setVerticalPosition(1500);
    shown.picture.Move(0, 0, 1500, 1500);
    shown.scroll.setScrollWidth(1500);
    shown.scroll.setScrollHeight(1500);
    QCOMPARE(shown.scroll.VerticalPosition(), 0.0);
    QTRY_VERIFY(!shown.view().verticalScrollBar()->isVisible());
    QVERIFY(!shown.view().horizontalScrollBar()->isVisible());
    shown.press(Qt::Key_PageDown);
    QCOMPARE(shown.shownAt(), QPoint(0, 0));
}

void tst_SSScroll::aShorterAreaScrollsLess()
{
    ScrolledWindow shown;
    shown.picture.Move(0, 0, 1500, 1500);
    shown.scroll.setScrollHeight(6000);
    shown.scroll.setVerticalPosition(1e6);
    QCOMPARE(shown.scroll.VerticalPosition(), toTwips(400 - shown.viewport().height()));
}

void tst_SSScroll::whatStandsBeyondTheAreaCanBeReached()
{
    ScrolledWindow shown;
    shown.picture.setLeft(3000);
    shown.scroll.setHorizontalPosition(1e6);
    QCOMPARE(shown.shownAt().x() + 1000, shown.viewport().width());
}

void tst_SSScroll::whatIsHiddenTakesNoRoom()
{
    ScrolledWindow shown;
    PictureBox hidden(shown.scroll, u"hidden"_s);
    hidden.Move(30000, 30000, 1500, 1500);
    hidden.setVisible(true);
    const int with = shown.view().verticalScrollBar()->maximum();
    hidden.setVisible(false);
    QCOMPARE(shown.view().verticalScrollBar()->maximum(), 900 - shown.viewport().height());
    QVERIFY(with > shown.view().verticalScrollBar()->maximum());
}

void tst_SSScroll::anAreaOfNegativeSizeIsRefused()
{
    ScrolledWindow shown;
    QCOMPARE(errorOf([&] { shown.scroll.setScrollWidth(-1); }), int(InvalidPropertyValue));
    QCOMPARE(errorOf([&] { shown.scroll.setScrollHeight(-1); }), int(InvalidPropertyValue));
    QCOMPARE(shown.scroll.ScrollHeight(), 13500.0);
}

void tst_SSScroll::itTakesTheFocusByTabAndByClick()
{
    const ScrolledWindow shown;
    QVERIFY(shown.view().focusPolicy() & Qt::TabFocus);
    shown.view().clearFocus();
    QTest::mouseClick(shown.window.shell().windowHandle(), Qt::LeftButton, {}, QPoint(50, 50));
    QVERIFY(shown.view().hasFocus());
    QCOMPARE(shown.window.ActiveControl(), &shown.scroll);
}

void tst_SSScroll::itsFrameShowsTheFocus()
{
    const ScrolledWindow shown;
    const auto corner = [&] { return shown.view().grab().toImage().pixelColor(0, 0); };
    QVERIFY(shown.view().hasFocus());
    const QColor with = corner();
    shown.view().clearFocus();
    QVERIFY(corner() != with);
}

void tst_SSScroll::itSpeaksItsPurpose()
{
    ScrolledWindow shown;
    shown.scroll.setPurpose(u"Record"_s);
    QCOMPARE(shown.view().accessibleName(), u"Record"_s);
}

void tst_SSScroll::itsGroundIsOfItsColour()
{
    ScrolledWindow shown;
    shown.scroll.setBackColor(0x3366CC); // blue, green, red
    shown.picture.setVisible(false);
    QCOMPARE(shown.view().grab().toImage().pixelColor(100, 100), QColor(0xCC, 0x66, 0x33));
}

QTEST_MAIN(tst_SSScroll)
#include "tst_SSScroll.moc"
