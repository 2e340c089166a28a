// Where the record stands in a window of any size. Sizes are pixels, positions twips.
#include "documents/records/RecordWindow.h"

#include <QAbstractScrollArea>

using namespace Qt::Literals::StringLiterals;
using namespace orvane;
using namespace orvane::test;

namespace
{

QPointF placeOf(const PictureBox &box)
{
    return {box.Left(), box.Top()};
}

void scatter(frmRCMain &window)
{
    window.picRCF.Move(33, 55, window.picRCF.Width(), window.picRCF.Height());
    window.picRCB.Move(77, 99, window.picRCB.Width(), window.picRCB.Height());
}

void compareScattered(const frmRCMain &window)
{
    QCOMPARE(placeOf(window.picRCF), QPointF(33, 55));
    QCOMPARE(placeOf(window.picRCB), QPointF(77, 99));
}

} // namespace

class tst_frmRCMainLayout : public QObject
{
    Q_OBJECT

private slots:
    void theRecordHasItsPlace_data();
    void theRecordHasItsPlace();
    void aRecordThatNoCaseFitsStaysWhereItIs_data();
    void aRecordThatNoCaseFitsStaysWhereItIs();
    void theBlankFormGoesByItsOwnSize();
    void theFirstLayoutTakesTheSizeOfTheFrame();
    void theSecondLayoutTakesTheWindowsOwnSize();
    void aMinimizedWindowIsNotLaidOut();
    void theViewportFillsTheRoomBetweenTheBars_data();
    void theViewportFillsTheRoomBetweenTheBars();
    void theViewportFollowsTheBars();
    void nothingOfTheRecordIsOutOfReach_data();
    void nothingOfTheRecordIsOutOfReach();
    void theRecordStandsStillAsTheWindowIsResized();
    void broughtForwardALowRecordStandsAtTheTop();
    void theLayoutIsCalledByName();
};

void tst_frmRCMainLayout::theRecordHasItsPlace_data()
{
    QTest::addColumn<QString>("section");
    QTest::addColumn<QSize>("size"); // of the client area
    QTest::addColumn<QPointF>("place");
    const auto row = [](const char *section, QSize size, QPointF place) {
        QTest::addRow("%s, %d x %d", section, size.width(), size.height())
            << QString::fromLatin1(section) << size << place;
    };
    row("511", {1000, 1300}, {1800, 922.5});
    row("511", {1000, 1178}, {1800, 7.5});
    row("511", {1000, 600}, {1800, 0});
    row("511", {761, 40}, {7.5, 0});
    row("511", {600, 400}, {0, 0});
    row("511", {21, 7}, {0, 0});
    row("519", {1000, 700}, {1800, 885});
    row("519", {1000, 581}, {1800, 0});
    row("519", {200, 100}, {0, 0});
    row("519", {3, 1}, {0, 0});
}

void tst_frmRCMainLayout::theRecordHasItsPlace()
{
    QFETCH(QString, section);
    QFETCH(QSize, size);
    const RecordWindow open(section);
    open.resizeClient(size);
    QCOMPARE(open.window->ScaleWidth(), toTwips(size.width()));
    QCOMPARE(open.window->ScaleHeight(), toTwips(size.height()));
    scatter(*open.window);
    open.window->Form_Resize();
    QTEST(placeOf(open.window->picRCF), "place");
    QTEST(placeOf(open.window->picRCB), "place");
}

void tst_frmRCMainLayout::aRecordThatNoCaseFitsStaysWhereItIs_data()
{
    QTest::addColumn<QString>("section");
    QTest::addColumn<QSize>("size");
    QTest::newRow("wider, but lower") << u"519"_s << QSize(600, 700);
    QTest::newRow("of the same width") << u"511"_s << QSize(760, 600);
    QTest::newRow("of the same height") << u"519"_s << QSize(900, 582);
    QTest::newRow("of the same size") << u"519"_s << QSize(760, 582);
    QTest::newRow("of the same width, but lower") << u"519"_s << QSize(760, 700);
    QTest::newRow("wider, and of the same height") << u"519"_s << QSize(500, 582);
}

void tst_frmRCMainLayout::aRecordThatNoCaseFitsStaysWhereItIs()
{
    QFETCH(QString, section);
    QFETCH(QSize, size);
    const RecordWindow open(section);
    open.resizeClient(size);
    scatter(*open.window);
    open.window->Form_Resize();
    compareScattered(*open.window);
}

void tst_frmRCMainLayout::theBlankFormGoesByItsOwnSize()
{
    const RecordWindow open(u"519"_s);
    open.resizeClient({1000, 700});
    frmRCMain &window = *open.window;
    window.picRCB.Move(0, 0, 6000, 3000);
    window.Form_Resize();
    QCOMPARE(placeOf(window.picRCB), QPointF((15000.0 - 6000.0) / 2, (10500.0 - 3000.0) / 2));
    open.resizeClient({1000, 500});
    QCOMPARE(placeOf(window.picRCB), QPointF((15000.0 - 6000.0) / 2, 0));
}

void tst_frmRCMainLayout::theFirstLayoutTakesTheSizeOfTheFrame()
{
    RunningSystem system;
    system.start();
    Shared().FrameScaleWidth = 20001;
    Shared().FrameScaleHeight = 18003;
    auto *window = new frmRCMain;
    OpenWindowCore(*window, u"Title"_s, u"511"_s);
    QCOMPARE(placeOf(window->picRCF), QPointF((20001 - 11400) / 2.0, (18003 - 17655) / 2.0));
    QCOMPARE(placeOf(window->picRCB), placeOf(window->picRCF));
}

void tst_frmRCMainLayout::theSecondLayoutTakesTheWindowsOwnSize()
{
    RunningSystem system;
    system.start();
    Shared().FrameScaleWidth = 20001;
    auto *window = new frmRCMain;
    OpenWindowCore(*window, u"Title"_s, u"511"_s);
    QVERIFY(window->ScaleWidth() != 20001);
    window->picRCF.setLeft(99);
    window->Form_Resize();
    QVERIFY(window->ScaleWidth() < window->picRCF.Width()); // the design's own size
    QCOMPARE(window->picRCF.Left(), 0.0);
}

void tst_frmRCMainLayout::aMinimizedWindowIsNotLaidOut()
{
    const RecordWindow open;
    open.window->setWindowState(Minimized);
    QTRY_COMPARE(open.window->WindowState(), int(Minimized));
    scatter(*open.window);
    open.window->Form_Resize();
    compareScattered(*open.window);
}

void tst_frmRCMainLayout::theViewportFillsTheRoomBetweenTheBars_data()
{
    QTest::addColumn<QSize>("size"); // inside the window
    for (const QSize size : {QSize(1200, 900), QSize(700, 500), QSize(300, 200), QSize(80, 70), QSize(10, 5)})
        QTest::addRow("%d x %d", size.width(), size.height()) << size;
}

void tst_frmRCMainLayout::theViewportFillsTheRoomBetweenTheBars()
{
    QFETCH(QSize, size);
    const RecordWindow open;
    open.resizeInside(size);
    const frmRCMain &window = *open.window;
    const QSize room(size.width(), std::max(0, window.inside().height()));
    QCOMPARE(window.ssScroll.widget().geometry(), QRect(window.inside().topLeft(), room));
    QCOMPARE(window.ssScroll.Height(), toTwips(room.height()));
    if (room.isEmpty()) return;
    QCOMPARE(window.ssScroll.widget().y(), window.mnuNav.widget().geometry().bottom() + 1);
    QCOMPARE(window.ssScroll.widget().geometry().bottom() + 1, window.mnuLinks.widget().y());
    QCOMPARE(window.ssScroll.Width(), window.ScaleWidth());
}

void tst_frmRCMainLayout::theViewportFollowsTheBars()
{
    const RecordWindow open;
    frmRCMain &window = *open.window;
    open.resizeInside({700, 500});
    const double before = window.ssScroll.Height();
    window.mnuNav.Bands(0).setVisible(false);
    window.mnuNav.RecalcLayout();
    QVERIFY(window.ssScroll.Height() > before);
    QCOMPARE(window.ssScroll.widget().geometry(), window.inside());
    QCOMPARE(window.ssScroll.widget().y(), 0);
}

void tst_frmRCMainLayout::nothingOfTheRecordIsOutOfReach_data()
{
    QTest::addColumn<QString>("section");
    QTest::addColumn<QSize>("size");
    for (const char *section : {"511", "519"})
        for (const QSize size :
             {QSize(1000, 700), QSize(785, 500), QSize(762, 600), QSize(760, 582), QSize(400, 700)}) {
            const QString name = QString::fromLatin1(section);
            QTest::newRow(qPrintable(u"%1, %2 x %3"_s.arg(name).arg(size.width()).arg(size.height()))) << name << size;
        }
}

void tst_frmRCMainLayout::nothingOfTheRecordIsOutOfReach()
{
    QFETCH(QString, section);
    QFETCH(QSize, size);
    const RecordWindow open(section);
    open.resizeClient(size);
    frmRCMain &window = *open.window;
    QWidget *viewport = static_cast<QAbstractScrollArea &>(window.ssScroll.widget()).viewport();
    const auto shown = [&] {
        return QRect(window.picRCF.widget().mapTo(viewport, QPoint(0, 0)), window.picRCF.widget().size());
    };
    QVERIFY(shown().left() >= 0);
    QVERIFY(shown().top() >= 0);
    window.ssScroll.setHorizontalPosition(1e6);
    window.ssScroll.setVerticalPosition(1e6);
    QVERIFY(shown().right() < viewport->width());
    QVERIFY(shown().bottom() < viewport->height());
}

void tst_frmRCMainLayout::theRecordStandsStillAsTheWindowIsResized()
{
    const RecordWindow open;
    open.resizeInside({900, 500});
    open.window->ssScroll.setVerticalPosition(3000);
    for (const QSize size : {QSize(700, 450), QSize(1100, 300), QSize(250, 600), QSize(900, 500)}) {
        open.resizeInside(size);
        QCOMPARE(open.window->ssScroll.VerticalPosition(), 3000.0);
    }
}

// The layout puts it into the middle; what comes forward is seen from its top.
void tst_frmRCMainLayout::broughtForwardALowRecordStandsAtTheTop()
{
    const RecordWindow open(u"519"_s);
    const double left = (open.window->ScaleWidth() - 11400) / 2;
    open.window->Form_Resize();
    QVERIFY(open.window->picRCF.Top() > 0);
    open.system.diagram().SetFocus();
    open.window->SetFocus();
    QCOMPARE(placeOf(open.window->picRCF), QPointF(left, 0));
    QCOMPARE(placeOf(open.window->picRCB), QPointF(left, 0));
}

void tst_frmRCMainLayout::theLayoutIsCalledByName()
{
    const RecordWindow open;
    open.resizeClient({1000, 600});
    scatter(*open.window);
    open.window->names().call(u"Form_Resize"_s);
    QCOMPARE(placeOf(open.window->picRCF), QPointF(1800, 0));
}

QTEST_MAIN(tst_frmRCMainLayout)
#include "tst_frmRCMainLayout.moc"
