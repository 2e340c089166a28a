// What the preview paints of a page.
#include "platform/print/CountingDevice.h"
#include "platform/print/PrintFixture.h"
#include "platform/print/preview/PreviewView.h"

#include <QAbstractScrollArea>
#include <QScrollBar>

using namespace Qt::Literals::StringLiterals;
using namespace orvane;
using namespace orvane::test;

class tst_PreviewDrawing : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void aPageIsWhiteAndItsTextBlack();
    void textIsDrawnAtTheZoomAndNotEnlarged();
    void onlyWhatIsInSightIsDrawn();

private:
    VSPrinter &vs() const { return m_window->vs; }
    QAbstractScrollArea &view() const { return static_cast<QAbstractScrollArea &>(vs().widget()); }

    void show(int pages);

    std::unique_ptr<TestHost> m_host;
    std::unique_ptr<PrintWindow> m_window;
};

void tst_PreviewDrawing::init()
{
    m_host = std::make_unique<TestHost>();
    m_window = std::make_unique<PrintWindow>();
}

void tst_PreviewDrawing::cleanup()
{
    m_window.reset();
    m_host.reset();
}

void tst_PreviewDrawing::show(int pages)
{
    composePages(vs(), pages);
    showActive(*m_window);
}

void tst_PreviewDrawing::aPageIsWhiteAndItsTextBlack()
{
    QPalette dark = QApplication::palette();
    const QPalette before = dark;
    dark.setColor(QPalette::Text, Qt::white);
    dark.setColor(QPalette::WindowText, Qt::white);
    dark.setColor(QPalette::Base, Qt::black);
    QApplication::setPalette(dark);
    vs().setZoomMode(ZoomPageWidth);
    show(1);
    const QImage shown = view().viewport()->grab().toImage();
    QCOMPARE(shown.pixelColor(shown.width() / 2, 40), QColor(Qt::white));
    int darkest = 255;
    for (int y = 20; y < shown.height(); ++y)
        for (int x = 30; x < shown.width() / 2; ++x)
            darkest = std::min(darkest, qGray(shown.pixel(x, y)));
    QVERIFY(darkest < 60);
    QApplication::setPalette(before);
}

// Large letters have sharp edges: hardly a pixel is neither black nor white.
void tst_PreviewDrawing::textIsDrawnAtTheZoomAndNotEnlarged()
{
    vs().setMarginLeft(0);
    vs().setMarginTop(0);
    compose(vs(), uR"({\rtf1{\fonttbl{\f0 Arial;}}\f0\fs96 HHHHHH})"_s);
    showActive(*m_window);
    vs().setZoom(400);
    view().horizontalScrollBar()->setValue(0);
    view().verticalScrollBar()->setValue(0);
    const QImage shown = view().viewport()->grab().toImage();
    int black = 0;
    int grey = 0;
    for (int y = 40; y < shown.height() - 40; ++y)
        for (int x = 40; x < shown.width() - 40; ++x) {
            const int value = qGray(shown.pixel(x, y));
            black += value < 20;
            grey += value >= 20 && value < 235;
        }
    QVERIFY(black > 5000);
    QVERIFY(grey < black / 10);
}

// Counts the texts that are drawn for a view of one page, however many the document has.
void tst_PreviewDrawing::onlyWhatIsInSightIsDrawn()
{
    const auto textsDrawn = [this](int pages, int mode) {
        show(pages);
        vs().setZoomMode(mode);
        CountingDevice device;
        view().viewport()->render(&device);
        return device.texts();
    };
    const int one = textsDrawn(1, ZoomWholePage);
    QVERIFY(one > 0);
    QCOMPARE(textsDrawn(200, ZoomWholePage), one);
    const int thumbnails = textsDrawn(200, ZoomThumbnails);
    QVERIFY(thumbnails > one && thumbnails < 30 * one);
}

QTEST_MAIN(tst_PreviewDrawing)
#include "tst_PreviewDrawing.moc"
