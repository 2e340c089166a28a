// The notice: two seconds in which nothing else can be done, and no way to shorten them.
#include "command_center/DiagramUser.h"
#include "support/ReportedTags.h"
#include "tour/modDemo.h"

#include <QImage>
#include <QWindow>

using namespace Qt::Literals::StringLiterals;
using namespace orvane;
using namespace orvane::test;

namespace
{
frmError &notice()
{
    return Default<frmError>();
}

bool noticeIsUp()
{
    return countWindows(u"frmError"_s) == 1 && notice().Visible();
}

QRectF placeOf(const Control &control)
{
    return {control.Left(), control.Top(), control.Width(), control.Height()};
}

// As the window system tells of a click, so that what blocks a window takes effect.
void clickOnScreen(QWidget &widget)
{
    QWidget *window = widget.window();
    QTest::mouseClick(window->windowHandle(), Qt::LeftButton, {}, widget.mapTo(window, widget.rect().center()));
}
} // namespace

class tst_frmError : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void theWindowAndItsControlsHaveTheirPlaces();
    void theSentenceSaysWhatToDo();
    void itHasItsColours();
    void itsSentenceIsToBeSeenWhole();
    void itsTimerRunsFromLoadToUnload();

    void theCallReturnsAfterTwoSeconds();
    void nothingElseCanBeDoneMeanwhile();
    void theUserCannotCloseIt_data();
    void theUserCannotCloseIt();
    void itStandsAboveTheConsole();
    void itComesUpWithTheConsoleHidden();
    void itComesUpAfterTheEndOfTheTour();
    void itLeavesTheStepAlone();
    void aMutedTourBringsNoNotice();
    void itComesUpEachTime();
    void theFocusInTheFrameStaysWhereItWas();

private:
    void showThen(const std::function<void()> &act); // act runs while it is up; then its time passes

    std::optional<RunningSystem> m_system;
    bool m_returned = false;
};

void tst_frmError::init()
{
    m_system.emplace();
    m_returned = false;
}

void tst_frmError::cleanup()
{
    m_system.reset();
}

void tst_frmError::showThen(const std::function<void()> &act)
{
    bool wasUp = false;
    m_system->whileModal(
        [this] {
            ShowTourStep(u"900"_s);
            m_returned = true;
        },
        [&] {
            wasUp = noticeIsUp();
            act();
            m_system->host.advance(2000);
        });
    QVERIFY(wasUp);
    QVERIFY(m_returned);
    QCOMPARE(countWindows(u"frmError"_s), 0);
}

void tst_frmError::theWindowAndItsControlsHaveTheirPlaces()
{
    QCOMPARE(notice().ScaleWidth(), 9240.0);
    QCOMPARE(notice().ScaleHeight(), 495.0);
    QCOMPARE(placeOf(notice().Label1), QRectF(480, 120, 7215, 375));
    QCOMPARE(notice().Timer1.Interval(), 2000);
    const QRectF picture = placeOf(notice().Image1);
    QVERIFY(QRectF(0, 0, 480, 495).contains(picture)); // left of the sentence
}

void tst_frmError::theSentenceSaysWhatToDo()
{
    const QString sentence = notice().Label1.Caption();
    QVERIFY(sentence.endsWith(u"click red dot for live example"));
    QVERIFY(sentence.size() > 2 * u"click red dot for live example"_s.size() - 10); // and what is missing
}

void tst_frmError::itHasItsColours()
{
    const QImage drawing = notice().shell().grab().toImage();
    const QColor ground(0x00, 0x80, 0x80); // 0x808000, stored as blue, green, red
    const QColor words(0xFF, 0xFF, 0xC0);
    QCOMPARE(drawing.pixelColor(2, 2), ground);
    QCOMPARE(drawing.pixelColor(drawing.width() - 3, drawing.height() - 3), ground);
    int inWords = 0;
    for (int y = 8; y < drawing.height(); ++y)
        for (int x = 32; x < drawing.width(); ++x)
            if (drawing.pixelColor(x, y) == words) ++inWords;
    QVERIFY(inWords > 100);
}

void tst_frmError::itsSentenceIsToBeSeenWhole()
{
    const QWidget &label = notice().Label1.widget();
    const QRect needed = label.fontMetrics().boundingRect(label.rect(), Qt::TextWordWrap, notice().Label1.Caption());
    QVERIFY(label.rect().contains(needed));
}

void tst_frmError::itsTimerRunsFromLoadToUnload()
{
    QCOMPARE(m_system->host.runningTimers(), 0);
    notice();
    QVERIFY(notice().Timer1.Enabled());
    QCOMPARE(m_system->host.runningTimers(), 1);
    QVERIFY(notice().Unload());
    QCOMPARE(m_system->host.runningTimers(), 0);
}

void tst_frmError::theCallReturnsAfterTwoSeconds()
{
    m_system->start();
    m_system->whileModal(
        [this] {
            ShowTourStep(u"900"_s);
            m_returned = true;
        },
        [this] {
            m_system->host.advance(1999);
            QVERIFY(noticeIsUp());
            QVERIFY(!m_returned);
            m_system->host.advance(1);
            QCOMPARE(countWindows(u"frmError"_s), 0);
            QVERIFY(!m_returned); // this runs inside of it
        });
    QVERIFY(m_returned);
    QCOMPARE(m_system->host.runningTimers(), 0);
}

void tst_frmError::nothingElseCanBeDoneMeanwhile()
{
    m_system->start();
    showThen([this] {
        QCOMPARE(notice().shell().windowModality(), Qt::ApplicationModal);
        QCOMPARE(QApplication::activeModalWidget(), &notice().shell());
        clickOnScreen(m_system->diagram().SSRibbon1(3).widget());
        clickOnScreen(m_system->console().cmdGoNext.widget());
        QVERIFY(!m_system->diagram().SSRibbon1(3).Value());
        QCOMPARE(m_system->console().Tag(), u"101"_s);
    });
    clickOnScreen(m_system->diagram().SSRibbon1(3).widget());
    QVERIFY(m_system->diagram().SSRibbon1(3).Value());
}

void tst_frmError::theUserCannotCloseIt_data()
{
    QTest::addColumn<QString>("way");
    for (const char *way : {"its close box", "Escape", "Enter", "Space", "a click on the sentence"})
        QTest::newRow(way) << QString::fromLatin1(way);
}

void tst_frmError::theUserCannotCloseIt()
{
    QFETCH(QString, way);
    m_system->start();
    showThen([&] {
        QWidget &shell = notice().shell();
        if (way == u"its close box") QVERIFY(!shell.close());
        if (way == u"Escape") QTest::keyClick(&shell, Qt::Key_Escape);
        if (way == u"Enter") QTest::keyClick(&shell, Qt::Key_Return);
        if (way == u"Space") QTest::keyClick(&shell, Qt::Key_Space);
        if (way == u"a click on the sentence") QTest::mouseClick(&notice().Label1.widget(), Qt::LeftButton);
        QVERIFY(noticeIsUp());
        QVERIFY(notice().Timer1.Enabled());
    });
}

void tst_frmError::itStandsAboveTheConsole()
{
    m_system->start();
    QVERIFY(m_system->console().shell().windowFlags().testFlag(Qt::WindowStaysOnTopHint));
    showThen([] {
        QVERIFY(notice().shell().windowFlags().testFlag(Qt::WindowStaysOnTopHint));
        QVERIFY(notice().shell().windowFlags().testFlag(Qt::FramelessWindowHint));
    });
}

void tst_frmError::itComesUpWithTheConsoleHidden()
{
    m_system->start();
    m_system->console().setVisible(false);
    showThen([this] { QVERIFY(!m_system->console().Visible()); });
    QVERIFY(!m_system->console().Visible());
}

void tst_frmError::itComesUpAfterTheEndOfTheTour()
{
    m_system->start();
    ShowTourStep(u"603"_s);
    showThen([] {});
    QVERIFY(m_system->console().cmdGoNext.Enabled()); // the second lock isn't reached
    QCOMPARE(m_system->console().Tag(), u"603"_s);
}

void tst_frmError::itLeavesTheStepAlone()
{
    m_system->start();
    const ReportedTags reported(m_system->console());
    showThen([] {});
    QCOMPARE(reported.tags(), QStringList());
    QCOMPARE(m_system->console().Tag(), u"101"_s);
    QCOMPARE(m_system->console().Header.Text(), u"Step 101"_s);
}

void tst_frmError::aMutedTourBringsNoNotice()
{
    m_system->start();
    Shared().TourStepsMuted = True;
    QCOMPARE(noticesDuring(*m_system, [] { ShowTourStep(u"900"_s); }), 0);
    QCOMPARE(countWindows(u"frmError"_s), 0);
}

void tst_frmError::itComesUpEachTime()
{
    m_system->start();
    for (int i = 0; i < 3; ++i) {
        m_returned = false;
        showThen([] {});
    }
    QCOMPARE(m_system->host.runningTimers(), 0);
}

void tst_frmError::theFocusInTheFrameStaysWhereItWas()
{
    m_system->start();
    giveFocus(*m_system, m_system->diagram().cmdImp(0));
    showThen([] {});
    QCOMPARE(m_system->frame().shell().focusWidget(), &m_system->diagram().cmdImp(0).widget());
}

QTEST_MAIN(tst_frmError)
#include "tst_frmError.moc"
