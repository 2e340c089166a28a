// The preview: pages at a zoom and in four ways of looking, and what mouse and keyboard do to it.
// A connection's context goes before what its handler holds: clazy:excludeall=lambda-in-connect
#include "platform/print/PrintFixture.h"
#include "platform/print/preview/PreviewView.h"

#include <QAbstractScrollArea>
#include <QMouseEvent>
#include <QScrollBar>
#include <QSignalSpy>
#include <QWheelEvent>

using namespace Qt::Literals::StringLiterals;
using namespace orvane;
using namespace orvane::test;

namespace
{
constexpr QSizeF LetterSize{12240, 15840};
} // namespace

class tst_VSPrinterPreview : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void aZoomIsHeldWithinItsLimits_data();
    void aZoomIsHeldWithinItsLimits();
    void aZoomEndsTheMode();
    void aModeGivesItsPercentage();
    void theModeFollowsTheControlsSize();
    void aPageIsHeldWithinTheDocument_data();
    void aPageIsHeldWithinTheDocument();
    void aPageIsShownFromItsTop();
    void scrollBarsAreThereWhereTheyAreNeeded_data();
    void scrollBarsAreThereWhereTheyAreNeeded();
    void aZoomKeepsTheMiddleOfTheView();
    void theKeysScrollAndTurn();
    void homeAndEndGoToTheOutermostPages();
    void theWheelScrollsAndTurnsAtThePagesEnd();
    void aTouchPadTurnsAfterAWholeNotch();
    void aClickOnAScrollBarScrolls_data();
    void aClickOnAScrollBarScrolls();
    void aDraggedScrollBarScrolls();
    void leftAndRightScrollAcross();
    void ctrlAndTheWheelZoom();
    void ctrlAndPlusZoomByKeyboard();
    void aClickOnAThumbnailShowsItsPage();
    void aClickOnTheOtherOfTwoPagesGoesThere();
    void arrowsChooseAThumbnailAndEnterShowsIt();
    void theProgramsOwnChangesRaiseNoEvent();
    void aScreenReaderHearsThePage();
    void theControlTakesTheFocus();

private:
    VSPrinter &vs() const { return m_window->vs; }
    QAbstractScrollArea &view() const { return static_cast<QAbstractScrollArea &>(vs().widget()); }
    QScrollBar &bar() const { return *view().verticalScrollBar(); }
    void show(int pages);
    void showLarge(); // a page from its corner
    void key(Qt::Key key, Qt::KeyboardModifiers modifiers = {}) { QTest::keyClick(&view(), key, modifiers); }
    void wheel(int delta, Qt::KeyboardModifiers modifiers = {}) const;

    std::unique_ptr<TestHost> m_host;
    std::unique_ptr<PrintWindow> m_window;
};

void tst_VSPrinterPreview::init()
{
    m_host = std::make_unique<TestHost>();
    m_window = std::make_unique<PrintWindow>();
}

void tst_VSPrinterPreview::cleanup()
{
    m_window.reset();
    m_host.reset();
}

void tst_VSPrinterPreview::show(int pages)
{
    composePages(vs(), pages);
    showActive(*m_window);
    vs().SetFocus();
}

void tst_VSPrinterPreview::showLarge()
{
    show(1);
    vs().setZoom(400);
    view().horizontalScrollBar()->setValue(0);
    bar().setValue(0);
    QTRY_VERIFY(bar().isVisible());
}

void tst_VSPrinterPreview::wheel(int delta, Qt::KeyboardModifiers modifiers) const
{
    const QPointF at(200, 200);
    QWheelEvent event(at, view().viewport()->mapToGlobal(at), {}, {0, delta}, Qt::NoButton, modifiers,
                      Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(view().viewport(), &event);
}

void tst_VSPrinterPreview::aZoomIsHeldWithinItsLimits_data()
{
    QTest::addColumn<double>("set");
    QTest::addColumn<double>("held");
    QTest::newRow("whole") << 200.0 << 200.0;
    QTest::newRow("with a fraction") << 75.6 << 75.6;
    QTest::newRow("none") << 0.0 << 10.0;
    QTest::newRow("negative") << -50.0 << 10.0;
    QTest::newRow("too small") << 9.9 << 10.0;
    QTest::newRow("largest") << 500.0 << 500.0;
    QTest::newRow("too large") << 1e9 << 500.0;
}

void tst_VSPrinterPreview::aZoomIsHeldWithinItsLimits()
{
    QFETCH(double, set);
    vs().setZoom(set);
    QTEST(vs().Zoom(), "held");
}

void tst_VSPrinterPreview::aZoomEndsTheMode()
{
    show(1);
    vs().setZoomMode(ZoomWholePage);
    QCOMPARE(vs().ZoomMode(), int(ZoomWholePage));
    vs().setZoom(100);
    QCOMPARE(vs().ZoomMode(), int(ZoomByPercent));
    QCOMPARE(vs().Zoom(), 100.0);
}

void tst_VSPrinterPreview::aModeGivesItsPercentage()
{
    show(3);
    QList<double> zooms;
    for (const int mode : {ZoomThumbnails, ZoomTwoPages, ZoomWholePage, ZoomPageWidth}) {
        vs().setZoomMode(mode);
        zooms << vs().Zoom();
    }
    QVERIFY(zooms[0] >= 10 && zooms[0] < zooms[1]);
    QVERIFY(zooms[1] < zooms[2] && zooms[2] < zooms[3]);
}

void tst_VSPrinterPreview::theModeFollowsTheControlsSize()
{
    show(1);
    vs().setZoomMode(ZoomWholePage);
    const double before = vs().Zoom();
    vs().Move(0, 0, 4500, 4500);
    QTRY_VERIFY(vs().Zoom() < before / 1.8);
    vs().Move(0, 0, 0, 0);
    QTRY_COMPARE(vs().Zoom(), SmallestZoom);
    vs().setZoom(100);
    vs().Move(0, 0, 9000, 9000);
    QCOMPARE(vs().Zoom(), 100.0);
}

void tst_VSPrinterPreview::aPageIsHeldWithinTheDocument_data()
{
    QTest::addColumn<int>("set");
    QTest::addColumn<int>("held");
    QTest::newRow("inside") << 2 << 2;
    QTest::newRow("none") << 0 << 1;
    QTest::newRow("negative") << -7 << 1;
    QTest::newRow("last") << 3 << 3;
    QTest::newRow("behind the last") << 4 << 3;
}

void tst_VSPrinterPreview::aPageIsHeldWithinTheDocument()
{
    QFETCH(int, set);
    show(3);
    vs().setPreviewPage(set);
    QTEST(vs().PreviewPage(), "held");
}

void tst_VSPrinterPreview::aPageIsShownFromItsTop()
{
    show(3);
    vs().setZoom(200);
    bar().setValue(bar().maximum());
    vs().setPreviewPage(2);
    QCOMPARE(bar().value(), 0);
}

void tst_VSPrinterPreview::scrollBarsAreThereWhereTheyAreNeeded_data()
{
    QTest::addColumn<int>("mode");
    QTest::addColumn<double>("zoom");
    QTest::addColumn<bool>("across");
    QTest::addColumn<bool>("down");
    QTest::newRow("all in view") << int(ZoomByPercent) << 25.0 << false << false;
    QTest::newRow("taller than the view") << int(ZoomByPercent) << 65.0 << false << true;
    QTest::newRow("larger than the view") << int(ZoomByPercent) << 200.0 << true << true;
    QTest::newRow("as wide as the view but for the bar") << int(ZoomByPercent) << 69.0 << true << true;
    QTest::newRow("whole page") << int(ZoomWholePage) << 0.0 << false << false;
    QTest::newRow("two pages") << int(ZoomTwoPages) << 0.0 << false << false;
    QTest::newRow("page width") << int(ZoomPageWidth) << 0.0 << false << true;
    QTest::newRow("thumbnails") << int(ZoomThumbnails) << 0.0 << false << false;
}

// The view is 600 pixels square.
void tst_VSPrinterPreview::scrollBarsAreThereWhereTheyAreNeeded()
{
    QFETCH(int, mode);
    QFETCH(double, zoom);
    show(3);
    if (mode == ZoomByPercent)
        vs().setZoom(zoom);
    else
        vs().setZoomMode(mode);
    QTEST(view().horizontalScrollBar()->maximum() > 0, "across");
    QTEST(bar().maximum() > 0, "down");
    QTRY_COMPARE(view().viewport()->width(), bar().maximum() > 0 ? 600 - bar().sizeHint().width() : 600);
}

// The middle, as a share of the page.
void tst_VSPrinterPreview::aZoomKeepsTheMiddleOfTheView()
{
    show(1);
    vs().setZoom(200);
    QScrollBar &across = *view().horizontalScrollBar();
    const auto middle = [](const QScrollBar &bar) {
        return (bar.value() + bar.pageStep() / 2.0) / (bar.maximum() + bar.pageStep());
    };
    across.setValue(across.maximum() / 4);
    bar().setValue(bar().maximum() / 3);
    const double beforeAcross = middle(across);
    const double beforeDown = middle(bar());
    vs().setZoom(450);
    QVERIFY(std::abs(middle(across) - beforeAcross) < 0.01);
    QVERIFY(std::abs(middle(bar()) - beforeDown) < 0.01);
}

void tst_VSPrinterPreview::theKeysScrollAndTurn()
{
    show(3);
    vs().setZoom(100);
    bar().setValue(0);
    key(Qt::Key_PageDown);
    QVERIFY(bar().value() > 0);
    QCOMPARE(vs().PreviewPage(), 1);
    bar().setValue(bar().maximum());
    key(Qt::Key_PageDown);
    QCOMPARE(vs().PreviewPage(), 2);
    QCOMPARE(bar().value(), 0);
    key(Qt::Key_PageUp);
    QCOMPARE(vs().PreviewPage(), 1);
    QCOMPARE(bar().value(), bar().maximum());
    key(Qt::Key_Up);
    QVERIFY(bar().value() < bar().maximum());
    key(Qt::Key_Down);
    key(Qt::Key_Down);
    QCOMPARE(vs().PreviewPage(), 2);
}

void tst_VSPrinterPreview::homeAndEndGoToTheOutermostPages()
{
    show(4);
    QSignalSpy scrolled(&vs(), &VSPrinter::ViewScrolled);
    key(Qt::Key_End);
    QCOMPARE(vs().PreviewPage(), 4);
    key(Qt::Key_End);
    QCOMPARE(vs().PreviewPage(), 4);
    QCOMPARE(scrolled.count(), 1);
    key(Qt::Key_Home);
    QCOMPARE(vs().PreviewPage(), 1);
}

void tst_VSPrinterPreview::theWheelScrollsAndTurnsAtThePagesEnd()
{
    show(2);
    vs().setZoom(100);
    bar().setValue(0);
    QSignalSpy scrolled(&vs(), &VSPrinter::ViewScrolled);
    wheel(-120);
    QVERIFY(bar().value() > 0);
    QCOMPARE(scrolled.count(), 1);
    bar().setValue(bar().maximum());
    wheel(-120);
    QCOMPARE(vs().PreviewPage(), 2);
    QCOMPARE(bar().value(), 0);
    QCOMPARE(scrolled.count(), 2);
    wheel(120);
    QCOMPARE(vs().PreviewPage(), 1);
    QCOMPARE(bar().value(), bar().maximum());
    QCOMPARE(scrolled.count(), 3);
}

void tst_VSPrinterPreview::aTouchPadTurnsAfterAWholeNotch()
{
    show(2);
    vs().setZoomMode(ZoomWholePage);
    for (int turned = 0; turned < 110; turned += 10)
        wheel(-10);
    QCOMPARE(vs().PreviewPage(), 1);
    wheel(-10);
    QCOMPARE(vs().PreviewPage(), 2);
    wheel(-120);
    QCOMPARE(vs().PreviewPage(), 2);
}

void tst_VSPrinterPreview::aClickOnAScrollBarScrolls_data()
{
    QTest::addColumn<int>("aboveEnd"); // of the bar, pixels
    QTest::newRow("trough") << 150;
    QTest::newRow("arrow") << 5;
}

// The event finds the view where the user has brought it.
void tst_VSPrinterPreview::aClickOnAScrollBarScrolls()
{
    QFETCH(int, aboveEnd);
    showLarge();
    QList<int> places;
    const QObject context;
    connect(&vs(), &VSPrinter::ViewScrolled, &context, [&] { places << bar().value(); });
    QTest::mouseClick(&bar(), Qt::LeftButton, {}, {bar().width() / 2, bar().height() - aboveEnd});
    QVERIFY(bar().value() > 0);
    QCOMPARE(places, QList<int>{bar().value()});
}

void tst_VSPrinterPreview::aDraggedScrollBarScrolls()
{
    constexpr int OnHandle = 40; // pixels below the bar's upper end
    showLarge();
    QSignalSpy scrolled(&vs(), &VSPrinter::ViewScrolled);
    const QPoint from(bar().width() / 2, OnHandle);
    const QPoint to = from + QPoint(0, 100);
    QTest::mousePress(&bar(), Qt::LeftButton, {}, from);
    QCOMPARE(scrolled.count(), 0);
    QMouseEvent drag(QEvent::MouseMove, to, bar().mapToGlobal(to), Qt::NoButton, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(&bar(), &drag);
    QTest::mouseRelease(&bar(), Qt::LeftButton, {}, to);
    QVERIFY(bar().value() > 0);
    QCOMPARE(scrolled.count(), 1);
}

void tst_VSPrinterPreview::leftAndRightScrollAcross()
{
    showLarge();
    QSignalSpy scrolled(&vs(), &VSPrinter::ViewScrolled);
    key(Qt::Key_Right);
    QVERIFY(view().horizontalScrollBar()->value() > 0);
    QCOMPARE(scrolled.count(), 1);
    key(Qt::Key_Left);
    QCOMPARE(view().horizontalScrollBar()->value(), 0);
    QCOMPARE(scrolled.count(), 2);
    key(Qt::Key_Left);
    QCOMPARE(scrolled.count(), 2);
}

void tst_VSPrinterPreview::ctrlAndTheWheelZoom()
{
    show(1);
    vs().setZoomMode(ZoomWholePage);
    const double before = vs().Zoom();
    QSignalSpy zoomed(&vs(), &VSPrinter::ViewZoomed);
    wheel(120, Qt::ControlModifier);
    QVERIFY(vs().Zoom() > before);
    QCOMPARE(zoomed.count(), 1);
    for (int notch = 0; notch < 60; ++notch)
        wheel(-120, Qt::ControlModifier);
    QCOMPARE(vs().Zoom(), SmallestZoom);
}

void tst_VSPrinterPreview::ctrlAndPlusZoomByKeyboard()
{
    show(1);
    vs().setZoom(100);
    QSignalSpy zoomed(&vs(), &VSPrinter::ViewZoomed);
    key(Qt::Key_Plus, Qt::ControlModifier);
    QCOMPARE(vs().Zoom(), 125.0);
    key(Qt::Key_Minus, Qt::ControlModifier);
    QCOMPARE(vs().Zoom(), 100.0);
    QCOMPARE(zoomed.count(), 2);
}

void tst_VSPrinterPreview::aClickOnAThumbnailShowsItsPage()
{
    show(6);
    vs().setZoom(80);
    vs().setZoomMode(ZoomThumbnails);
    QSignalSpy zoomed(&vs(), &VSPrinter::ViewZoomed);
    QSizeF room = view().maximumViewportSize();
    room.rwidth() -= bar().sizeHint().width();
    const auto layout = layOutPreview({ZoomThumbnails, 80, 1, room}, std::vector<QSizeF>(6, LetterSize), LetterSize);
    QTest::mouseClick(view().viewport(), Qt::LeftButton, {}, layout.pages[2].place.center().toPoint());
    QCOMPARE(vs().PreviewPage(), 3);
    QCOMPARE(vs().ZoomMode(), int(ZoomByPercent));
    QCOMPARE(vs().Zoom(), 80.0);
    QCOMPARE(zoomed.count(), 1);
}

void tst_VSPrinterPreview::aClickOnTheOtherOfTwoPagesGoesThere()
{
    show(4);
    vs().setZoomMode(ZoomTwoPages);
    const auto layout = layOutPreview({ZoomTwoPages, vs().Zoom(), 1, view().maximumViewportSize()},
                                      std::vector<QSizeF>(4, LetterSize), LetterSize);
    QTest::mouseClick(view().viewport(), Qt::LeftButton, {}, layout.pages[1].place.center().toPoint());
    QCOMPARE(vs().PreviewPage(), 2);
    QCOMPARE(vs().ZoomMode(), int(ZoomTwoPages));
}

void tst_VSPrinterPreview::arrowsChooseAThumbnailAndEnterShowsIt()
{
    show(6);
    vs().setZoomMode(ZoomWholePage);
    vs().setZoomMode(ZoomThumbnails);
    key(Qt::Key_Right);
    QCOMPARE(vs().PreviewPage(), 2);
    key(Qt::Key_Down);
    QVERIFY(vs().PreviewPage() > 3);
    key(Qt::Key_Up);
    key(Qt::Key_Left);
    QCOMPARE(vs().PreviewPage(), 1);
    QCOMPARE(vs().ZoomMode(), int(ZoomThumbnails));
    key(Qt::Key_Return);
    QCOMPARE(vs().ZoomMode(), int(ZoomWholePage));
}

void tst_VSPrinterPreview::theProgramsOwnChangesRaiseNoEvent()
{
    show(3);
    QSignalSpy zoomed(&vs(), &VSPrinter::ViewZoomed);
    QSignalSpy scrolled(&vs(), &VSPrinter::ViewScrolled);
    vs().setPreviewPage(2);
    vs().setZoom(200);
    bar().setValue(bar().maximum());
    vs().setPreviewPage(3);
    QCOMPARE(bar().value(), 0);
    vs().setZoomMode(ZoomThumbnails);
    QCOMPARE(zoomed.count() + scrolled.count(), 0);
}

void tst_VSPrinterPreview::aScreenReaderHearsThePage()
{
    show(3);
    QCOMPARE(view().accessibleName(), u"Print preview"_s);
    QCOMPARE(view().viewport()->accessibleName(), u"Print preview"_s);
    QCOMPARE(view().objectName(), u"vs"_s);
    QCOMPARE(view().accessibleDescription(), u"Page 1 of 3\nPage 1"_s);
    vs().setPreviewPage(2);
    QCOMPARE(view().accessibleDescription(), u"Page 2 of 3\nPage 2"_s);
    vs().StartDoc();
    QCOMPARE(view().accessibleDescription(), u"No pages"_s);
}

void tst_VSPrinterPreview::theControlTakesTheFocus()
{
    show(1);
    QTRY_VERIFY(view().hasFocus());
    QCOMPARE(m_window->ActiveControl(), &vs());
}

QTEST_MAIN(tst_VSPrinterPreview)
#include "tst_VSPrinterPreview.moc"
