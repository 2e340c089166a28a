// The pictures of the records as the program holds them: bitmap files of an exact build, and what is drawn on them.
#include "platform/FormFixture.h"
#include "platform/controls/pictures/PictureBox.h"
#include "tools/RecordBitmaps.h"

#include <QImage>
#include <QSet>

using namespace Qt::Literals::StringLiterals;
using namespace orvane;
using namespace orvane::test;

namespace
{

QByteArray bitmap(const QString &name)
{
    PictureObject::stored(name); // the program's bitmaps are there from the first use on
    return bytesOfFile(u":/records/%1.bmp"_s.arg(name));
}

const QImage &image(const QString &name)
{
    static QHash<QString, QImage> images;
    if (!images.contains(name)) images[name] = PictureObject::stored(name).image();
    return images[name];
}

const QColor Rule(0x6B, 0x84, 0x80);
const QColor Ground(0x17, 0x59, 0x5B);

bool isPen(QRgb colour)
{
    return qBlue(colour) - qGreen(colour) > 30;
}

int penPixels(const QImage &picture)
{
    int count = 0;
    for (int y = 0; y < picture.height(); ++y)
        for (int x = 0; x < picture.width(); ++x)
            if (isPen(picture.pixel(x, y))) ++count;
    return count;
}

// What the printer drew is the same in both, but where the pen went over it.
QPoint firstDifferenceBesidePen(const QImage &completed, const QImage &blank)
{
    for (int y = 0; y < std::min(completed.height(), blank.height()); ++y)
        for (int x = 0; x < completed.width(); ++x) {
            const QRgb filled = completed.pixel(x, y);
            const bool printed = QColor(blank.pixel(x, y)) == Rule || QColor(blank.pixel(x, y)) == Ground;
            if (printed && filled != blank.pixel(x, y) && !isPen(filled)) return {x, y};
        }
    return {-1, -1};
}

// Rows of pixels that are a rule, or a ground, from edge to edge.
QList<int> rulesOf(const QImage &picture)
{
    QList<int> rules;
    for (int y = 0; y < picture.height(); ++y) {
        bool whole = true;
        for (int x = 20; x < 740 && whole; ++x)
            whole = QColor(picture.pixel(x, y)) == Rule || isPen(picture.pixel(x, y));
        if (whole) rules << y;
    }
    return rules;
}

} // namespace

class tst_RecordPictures : public QObject
{
    Q_OBJECT

private slots:
    void theFileHasItsExactSize_data() { addPictures(); }
    void theFileHasItsExactSize();
    void theHeadersTellOfAnUncompressedIndexedBitmap_data() { addPictures(); }
    void theHeadersTellOfAnUncompressedIndexedBitmap();
    void thePaletteFillsWhatIsBesideThePixels_data() { addPictures(); }
    void thePaletteFillsWhatIsBesideThePixels();
    void noColorIsThereTwice_data() { addPictures(); }
    void noColorIsThereTwice();
    void everyPixelIsOfThePalette_data() { addPictures(); }
    void everyPixelIsOfThePalette();
    void twoBytesOfNothingFollowThePixels_data() { addPictures(); }
    void twoBytesOfNothingFollowThePixels();
    void itIsDecodedAsItStands_data() { addPictures(); }
    void itIsDecodedAsItStands();
    void theCompletedFormIsFilledInAndTheBlankIsNot_data() { addPairs(); }
    void theCompletedFormIsFilledInAndTheBlankIsNot();
    void bothAreTheSameForm_data() { addPairs(); }
    void bothAreTheSameForm();
    void theTallPictureHoldsBothPages_data();
    void theTallPictureHoldsBothPages();
    void nothingReachesTheEdge_data() { addPictures(); }
    void nothingReachesTheEdge();
    void eachPictureIsHeldOnce();
    void aPictureThatIsNotThereIsRefused();
    void aBoxTakesTheSizeOfItsPicture();
    void aBoxKeepsItsSizeOtherwise();

private:
    static void addPictures();
    static void addPairs();
};

void tst_RecordPictures::addPictures()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<int>("height");
    QTest::addColumn<qint64>("bytes");
    for (const RecordBitmap &row : recordBitmaps())
        QTest::newRow(qPrintable(row.name)) << row.name << row.height << row.bytes;
}

void tst_RecordPictures::addPairs()
{
    QTest::addColumn<QString>("completed");
    QTest::addColumn<QString>("blank");
    QTest::newRow("on show") << u"picRCF"_s << u"picRCB"_s;
    QTest::newRow("page 1") << u"picf1"_s << u"picb1"_s;
    QTest::newRow("page 2") << u"picf2"_s << u"picb2"_s;
    QTest::newRow("sample") << u"picf1a"_s << u"picb1a"_s;
}

void tst_RecordPictures::theFileHasItsExactSize()
{
    QFETCH(QString, name);
    QTEST(qint64(bitmap(name).size()), "bytes");
    QCOMPARE(numberAt<quint32>(bitmap(name), 2), quint32(bitmap(name).size()));
}

void tst_RecordPictures::theHeadersTellOfAnUncompressedIndexedBitmap()
{
    QFETCH(QString, name);
    QFETCH(int, height);
    const QByteArray file = bitmap(name);
    QCOMPARE(file.first(2), "BM"_ba);
    QCOMPARE(numberAt<quint32>(file, 14), 40U);
    QCOMPARE(numberAt<qint32>(file, 18), 760);
    QCOMPARE(numberAt<qint32>(file, 22), height);
    QCOMPARE(numberAt<quint16>(file, 26), quint16(1));
    QCOMPARE(numberAt<quint16>(file, 28), quint16(8));
    QCOMPARE(numberAt<quint32>(file, 30), 0U);
    QCOMPARE(numberAt<quint32>(file, 34), quint32(760 * height));
}

void tst_RecordPictures::thePaletteFillsWhatIsBesideThePixels()
{
    QFETCH(QString, name);
    QFETCH(int, height);
    QFETCH(qint64, bytes);
    const auto colours = quint32(bytes - 54 - 2 - qint64(760) * height) / 4;
    QCOMPARE(numberAt<quint32>(bitmap(name), 46), colours);
    QCOMPARE(numberAt<quint32>(bitmap(name), 50), colours);
    QCOMPARE(numberAt<quint32>(bitmap(name), 10), 54 + 4 * colours);
}

void tst_RecordPictures::noColorIsThereTwice()
{
    QFETCH(QString, name);
    const QByteArray file = bitmap(name);
    const auto count = numberAt<quint32>(file, 46);
    QSet<quint32> colours;
    for (quint32 i = 0; i < count; ++i)
        colours << numberAt<quint32>(file, 54 + 4 * qsizetype(i));
    QCOMPARE(colours.size(), qsizetype(count));
}

void tst_RecordPictures::everyPixelIsOfThePalette()
{
    QFETCH(QString, name);
    const QByteArray file = bitmap(name);
    const auto count = numberAt<quint32>(file, 46);
    const auto first = qsizetype(numberAt<quint32>(file, 10));
    QSet<uchar> used;
    for (qsizetype i = first; i < file.size() - 2; ++i)
        used << uchar(file[i]);
    QVERIFY(used.size() > 32); // letters have soft edges
    QVERIFY(*std::max_element(used.begin(), used.end()) < count);
}

void tst_RecordPictures::twoBytesOfNothingFollowThePixels()
{
    QFETCH(QString, name);
    QFETCH(int, height);
    const QByteArray file = bitmap(name);
    QCOMPARE(file.last(2), QByteArray(2, '\0'));
    QCOMPARE(file.size() - 2 - qsizetype(numberAt<quint32>(file, 10)), 760 * height);
}

void tst_RecordPictures::itIsDecodedAsItStands()
{
    QFETCH(QString, name);
    QFETCH(int, height);
    const QByteArray file = bitmap(name);
    QCOMPARE(image(name).size(), QSize(760, height));
    QCOMPARE(image(name).format(), QImage::Format_Indexed8);
    const auto pixels = qsizetype(numberAt<quint32>(file, 10));
    for (const QPoint &place : {QPoint(0, 0), QPoint(100, 60), QPoint(759, height - 1)})
        QCOMPARE(image(name).pixelIndex(place),
                 int(uchar(file[pixels + qsizetype(760) * (height - 1 - place.y()) + place.x()])));
}

void tst_RecordPictures::theCompletedFormIsFilledInAndTheBlankIsNot()
{
    QFETCH(QString, completed);
    QFETCH(QString, blank);
    QVERIFY(penPixels(image(completed)) > 5000);
    QCOMPARE(penPixels(image(blank)), 0);
}

void tst_RecordPictures::bothAreTheSameForm()
{
    QFETCH(QString, completed);
    QFETCH(QString, blank);
    QVERIFY(rulesOf(image(blank)).size() >= 10);
    QCOMPARE(rulesOf(image(completed)), rulesOf(image(blank)));
    QCOMPARE(firstDifferenceBesidePen(image(completed), image(blank)), QPoint(-1, -1));
}

void tst_RecordPictures::theTallPictureHoldsBothPages_data()
{
    QTest::addColumn<QString>("tall");
    QTest::addColumn<QString>("page1");
    QTest::addColumn<QString>("page2");
    QTest::newRow("completed") << u"picRCF"_s << u"picf1"_s << u"picf2"_s;
    QTest::newRow("blank") << u"picRCB"_s << u"picb1"_s << u"picb2"_s;
}

void tst_RecordPictures::theTallPictureHoldsBothPages()
{
    QFETCH(QString, tall);
    QFETCH(QString, page1);
    QFETCH(QString, page2);
    const QList<int> rules = rulesOf(image(tall));
    const QList<int> first = rulesOf(image(page1));
    QList<int> second = rulesOf(image(page2));
    QCOMPARE(rules.size(), first.size() + second.size());
    QCOMPARE(rules.first(first.size()), first);
    const int offset = rules.last() - second.last();
    for (int &rule : second)
        rule += offset;
    QCOMPARE(rules.last(second.size()), second);
}

void tst_RecordPictures::nothingReachesTheEdge()
{
    QFETCH(QString, name);
    const QImage &picture = image(name);
    for (int y = 0; y < picture.height(); ++y)
        for (int x = 0; x < picture.width(); ++x) {
            const bool edge = x < 8 || y < 8 || x >= picture.width() - 8 || y >= picture.height() - 8;
            if (edge && picture.pixel(x, y) != qRgb(255, 255, 255)) QFAIL(qPrintable(u"%1, %2"_s.arg(x).arg(y)));
        }
}

void tst_RecordPictures::eachPictureIsHeldOnce()
{
    const PictureObject one = PictureObject::stored(u"picf1"_s);
    const PictureObject other = PictureObject::stored(u"picf1"_s);
    QCOMPARE(one.image().constBits(), other.image().constBits());
}

void tst_RecordPictures::aPictureThatIsNotThereIsRefused()
{
    QCOMPARE(errorOf([] { PictureObject::stored(u"picf3"_s); }), int(FileNotFound));
    QVERIFY(PictureObject().image().isNull());
}

void tst_RecordPictures::aBoxTakesTheSizeOfItsPicture()
{
    PlainWindow window;
    PictureBox box(window, u"box"_s);
    box.Move(150, 300, 15, 15);
    box.setAutoSize(true);
    box.setPicture(PictureObject::stored(u"picf1a"_s));
    QCOMPARE(box.Width(), 11400.0);
    QCOMPARE(box.Height(), 8730.0);
    QCOMPARE(box.Left(), 150.0);
    QCOMPARE(box.Top(), 300.0);
}

void tst_RecordPictures::aBoxKeepsItsSizeOtherwise()
{
    PlainWindow window;
    PictureBox box(window, u"box"_s);
    box.Move(150, 300, 1500, 750);
    box.setPicture(PictureObject::stored(u"picf1a"_s));
    QCOMPARE(box.Width(), 1500.0);
    QCOMPARE(box.Height(), 750.0);
}

QTEST_MAIN(tst_RecordPictures)
#include "tst_RecordPictures.moc"
