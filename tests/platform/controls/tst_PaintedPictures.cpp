// The pictures that the build has painted, held against the drawings that they are painted from.
#include "platform/controls/pictures/Drawing.h"
#include "platform/controls/pictures/PaintedPicture.h"
#include "platform/controls/pictures/PictureFile.h"

#include <QFile>
#include <QPainter>
#include <QSvgRenderer>
#include <QTest>

using namespace Qt::Literals::StringLiterals;
using namespace orvane;

class tst_PaintedPictures : public QObject
{
    Q_OBJECT

private slots:
    void thePixelsAreThoseOfTheDrawing_data();
    void thePixelsAreThoseOfTheDrawing();
    void anotherSizeIsNotThere_data();
    void anotherSizeIsNotThere();
    void aDrawingIsTheSameByBothWays_data();
    void aDrawingIsTheSameByBothWays();
};

namespace
{
QImage blank(QSize size)
{
    QImage image(size, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    return image;
}

QImage fromDrawing(const QString &name, QSize size)
{
    QSvgRenderer drawing(pictureFile(name));
    drawing.setAspectRatioMode(Qt::KeepAspectRatio);
    QImage image = blank(size);
    QPainter painter(&image);
    drawing.render(&painter);
    return image;
}

void sizesOfTheList()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QSize>("size");
    QFile list(QStringLiteral(ORVANE_SOURCE_DIR "/data/pictures/start.list"));
    QVERIFY(list.open(QIODevice::ReadOnly));
    for (const QString &line : QString::fromUtf8(list.readAll()).split(u'\n')) {
        const QStringList words = line.simplified().split(u' ', Qt::SkipEmptyParts);
        if (words.isEmpty() || line.startsWith(u'#')) continue;
        QTest::addRow("%s", qPrintable(words.join(u' '))) << words[0] << QSize(words[1].toInt(), words[2].toInt());
    }
}
} // namespace

void tst_PaintedPictures::thePixelsAreThoseOfTheDrawing_data()
{
    sizesOfTheList();
}

// The toolkit reads them as whole words from where they lie.
void tst_PaintedPictures::thePixelsAreThoseOfTheDrawing()
{
    QFETCH(QString, name);
    QFETCH(QSize, size);
    const QImage painted = paintedPicture(name, size);
    QCOMPARE(painted, fromDrawing(name, size));
    QCOMPARE(reinterpret_cast<quintptr>(painted.constBits()) % alignof(QRgb), quintptr(0));
}

void tst_PaintedPictures::anotherSizeIsNotThere_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QSize>("size");
    QTest::newRow("double scale") << u"splash"_s << QSize(920, 240);
    QTest::newRow("a pixel less") << u"splash"_s << QSize(460, 119);
    QTest::newRow("nothing") << u"splash"_s << QSize(0, 0);
    QTest::newRow("a drawing that isn't shown at start") << u"notice"_s << QSize(460, 120);
    QTest::newRow("no drawing") << u"none"_s << QSize(460, 120);
    QTest::newRow("no name") << u""_s << QSize(460, 120);
}

void tst_PaintedPictures::anotherSizeIsNotThere()
{
    QFETCH(QString, name);
    QFETCH(QSize, size);
    QVERIFY(paintedPicture(name, size).isNull());
}

void tst_PaintedPictures::aDrawingIsTheSameByBothWays_data()
{
    QTest::addColumn<double>("scale");
    QTest::addColumn<QRectF>("room");
    QTest::newRow("painted by the build") << 1.0 << QRectF(3, 5, 460, 120);
    QTest::newRow("double scale") << 2.0 << QRectF(3, 5, 460, 120);
    QTest::newRow("half the size at double scale") << 2.0 << QRectF(3, 5, 230, 60);
    QTest::newRow("another size") << 1.0 << QRectF(3, 5, 300, 200);
}

// Twice as large is drawn anew and not enlarged.
void tst_PaintedPictures::aDrawingIsTheSameByBothWays()
{
    QFETCH(double, scale);
    QFETCH(QRectF, room);
    const QRect onScreen(room.topLeft().toPoint() * scale, (room.size() * scale).toSize());
    Drawing drawing;
    drawing.set(u"splash"_s);
    QImage screen = blank({960, 480});
    screen.setDevicePixelRatio(scale);
    QPainter painter(&screen);
    drawing.paint(painter, room);
    painter.end();
    screen.setDevicePixelRatio(1);
    QCOMPARE(screen.copy(onScreen), fromDrawing(u"splash"_s, onScreen.size()));
}

QTEST_MAIN(tst_PaintedPictures)
#include "tst_PaintedPictures.moc"
