// What the preview's fields and the frame's foot tell while the user works in the view and on the tools.
#include "platform/controls/pictures/PictureBox.h"
#include "platform/print/preview/PreviewLayout.h"
#include "printing/PreviewFixture.h"
#include "shell/modFunctions.h"

#include <QAbstractScrollArea>
#include <QLabel>
#include <QScrollBar>
#include <QWheelEvent>

using namespace Qt::Literals::StringLiterals;
using namespace orvane;
using namespace orvane::test;

namespace
{
constexpr int Notch = 120;
} // namespace

class tst_PreviewFollows : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void thePageFollowsTheKeys();
    void thePageFollowsTheWheel();
    void thePageFollowsTheThumbnailThatIsClicked();
    void thePageFollowsTheArrowsAmongThumbnails();
    void scrollingOnAPageLeavesATypedNumber();
    void theZoomFollowsCtrlAndTheWheel();
    void scrollingPutsTheZoomInPlaceOfATypedOne();
    void aNextJobShowsTheZoomOfItsPages_data();
    void aNextJobShowsTheZoomOfItsPages();
    void otherPaperShowsItsZoom();
    void aToolThatIsPointedAtIsDescribed_data();
    void aToolThatIsPointedAtIsDescribed();
    void aHiddenPreviewDescribesNothing();
    void aPreviewThatComesBackHasTheKeys();

private:
    const PreviewedSystem &open() const { return *m_open; }
    VSPrinter &vs() const { return m_open->vs(); }
    QAbstractScrollArea &view() const { return static_cast<QAbstractScrollArea &>(vs().widget()); }
    QString text(const QString &tool) const { return open().tool(tool).Text(); }
    QString foot() const { return open().system.frame().shell().findChild<QLabel *>(u"status"_s)->text(); }
    void wheel(int delta, Qt::KeyboardModifiers modifiers = {}) const;
    void verifyPage(int page) const;

    std::unique_ptr<PreviewedSystem> m_open;
};

void tst_PreviewFollows::init()
{
    m_open = std::make_unique<PreviewedSystem>();
    open().preview(GuideModule);
    QVERIFY(vs().PageCount() > 2);
}

void tst_PreviewFollows::cleanup()
{
    m_open.reset();
}

void tst_PreviewFollows::wheel(int delta, Qt::KeyboardModifiers modifiers) const
{
    const QPointF at(200, 200);
    QWheelEvent event(at, view().viewport()->mapToGlobal(at), {}, {0, delta}, Qt::NoButton, modifiers,
                      Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(view().viewport(), &event);
}

// The page on show, and what the tools make of it.
void tst_PreviewFollows::verifyPage(int page) const
{
    QCOMPARE(vs().PreviewPage(), page);
    QCOMPARE(text(u"PageNumber"_s), QString::number(page));
    QCOMPARE(open().tool(u"Prev"_s).Enabled(), page > 1);
    QCOMPARE(open().tool(u"Next"_s).Enabled(), page < vs().PageCount());
}

void tst_PreviewFollows::thePageFollowsTheKeys()
{
    QTest::keyClick(&view(), Qt::Key_End);
    verifyPage(vs().PageCount());
    QTest::keyClick(&view(), Qt::Key_Home);
    verifyPage(1);
    view().verticalScrollBar()->setValue(view().verticalScrollBar()->maximum());
    QTest::keyClick(&view(), Qt::Key_PageDown);
    verifyPage(2);
}

void tst_PreviewFollows::thePageFollowsTheWheel()
{
    open().pick(u"Whole Page"_s);
    wheel(-Notch);
    verifyPage(2);
    wheel(Notch);
    verifyPage(1);
}

void tst_PreviewFollows::thePageFollowsTheThumbnailThatIsClicked()
{
    constexpr int InFirstRow = 40;
    open().pick(u"Thumbnails"_s);
    for (int x = view().viewport()->width(); x > 0 && vs().ZoomMode() == ZoomThumbnails; x -= 20)
        QTest::mouseClick(view().viewport(), Qt::LeftButton, {}, {x, InFirstRow});
    verifyPage(vs().PageCount());
}

void tst_PreviewFollows::thePageFollowsTheArrowsAmongThumbnails()
{
    open().pick(u"Thumbnails"_s);
    QTest::keyClick(&view(), Qt::Key_Right);
    verifyPage(2);
    QTest::keyClick(&view(), Qt::Key_Left);
    verifyPage(1);
}

void tst_PreviewFollows::scrollingOnAPageLeavesATypedNumber()
{
    open().pick(u"100%"_s);
    open().tool(u"PageNumber"_s).setText(u"3"_s);
    view().verticalScrollBar()->setValue(0);
    wheel(-Notch);
    QVERIFY(view().verticalScrollBar()->value() > 0);
    QCOMPARE(text(u"PageNumber"_s), u"3"_s);
}

void tst_PreviewFollows::theZoomFollowsCtrlAndTheWheel()
{
    wheel(Notch, Qt::ControlModifier);
    QVERIFY(vs().Zoom() > 75);
    QCOMPARE(text(u"miZoom"_s), u"%1%"_s.arg(int(vs().Zoom())));
}

void tst_PreviewFollows::scrollingPutsTheZoomInPlaceOfATypedOne()
{
    open().pick(u"100%"_s);
    view().verticalScrollBar()->setValue(0);
    open().tool(u"miZoom"_s).setText(u"200"_s);
    wheel(-Notch);
    QVERIFY(view().verticalScrollBar()->value() > 0);
    QCOMPARE(text(u"miZoom"_s), u"100%"_s);
}

void tst_PreviewFollows::aNextJobShowsTheZoomOfItsPages_data()
{
    QTest::addColumn<QString>("mode");
    for (const QString &mode : {u"Page Width"_s, u"Whole Page"_s, u"Two Pages"_s, u"Thumbnails"_s})
        QTest::addRow("%s", qPrintable(mode)) << mode;
}

// The window was hidden with pages that lie across.
void tst_PreviewFollows::aNextJobShowsTheZoomOfItsPages()
{
    QFETCH(QString, mode);
    PictureBox front(open().window(), u"front"_s);
    open().window().PrintRecord(front, &front);
    open().pick(mode);
    open().press(u"close"_s);
    open().preview(ManualModule);
    QCOMPARE(text(u"miZoom"_s), u"%1%"_s.arg(int(vs().Zoom())));
}

void tst_PreviewFollows::otherPaperShowsItsZoom()
{
    constexpr int A3Paper = 8;
    open().pick(u"Whole Page"_s);
    const double before = vs().Zoom();
    m_open->system.host.answerPageSetup([](PageChoice &choice) {
        choice.setup.paperSize = A3Paper;
        return true;
    });
    open().press(u"pagesetup"_s);
    QVERIFY(vs().Zoom() < before - 1);
    QCOMPARE(text(u"miZoom"_s), u"%1%"_s.arg(int(vs().Zoom())));
}

void tst_PreviewFollows::aToolThatIsPointedAtIsDescribed_data()
{
    QTest::addColumn<QString>("tool");
    QTest::addColumn<QString>("description");
    QTest::newRow("pagesetup") << u"pagesetup"_s << u"Set up page properties"_s;
    QTest::newRow("print") << u"print"_s << u"Print current file"_s;
    QTest::newRow("PageNumber") << u"PageNumber"_s << u"Changes the current page"_s;
    QTest::newRow("Next") << u"Next"_s << QString();
    QTest::newRow("miZoom") << u"miZoom"_s << u"Zoom level"_s;
    QTest::newRow("close") << u"close"_s << u"Closes active file"_s;
}

void tst_PreviewFollows::aToolThatIsPointedAtIsDescribed()
{
    QFETCH(QString, tool);
    QFETCH(QString, description);
    auto *button = open().window().mnuPrintPreview.widget().findChild<QWidget *>(tool);
    QTest::mouseMove(button);
    QTRY_COMPARE(foot(), description);
    QTest::mouseMove(view().viewport());
    QTRY_COMPARE(foot(), QString());
}

void tst_PreviewFollows::aHiddenPreviewDescribesNothing()
{
    auto *button = open().window().mnuPrintPreview.widget().findChild<QWidget *>(u"close"_s);
    QTest::mouseMove(button);
    QTRY_COMPARE(foot(), u"Closes active file"_s);
    open().press(u"close"_s);
    QTRY_COMPARE(foot(), QString());
}

void tst_PreviewFollows::aPreviewThatComesBackHasTheKeys()
{
    OpenGuide(u"STEP 17 - Emergency Preparedness and Response"_s, u"127"_s);
    open().preview(GuideModule);
    vs().SetFocus();
    open().press(u"close"_s);
    open().preview(ManualModule);
    QTRY_COMPARE(open().window().ActiveControl(), &vs());
}

QTEST_MAIN(tst_PreviewFollows)
#include "tst_PreviewFollows.moc"
