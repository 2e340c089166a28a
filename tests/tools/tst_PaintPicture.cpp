// The program paintpicture, from outside.
#include <QFile>
#include <QImage>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::Literals::StringLiterals;

class tst_PaintPicture : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void aPngHasTheSizeThatIsAskedFor();
    void anyOtherFileHoldsThePixels();
    void wrongUseIsRefused_data();
    void wrongUseIsRefused();
    void whatCannotBePaintedIsAFailure_data();
    void whatCannotBePaintedIsAFailure();

private:
    int run(const QStringList &arguments);
    QString path(const QString &name) const { return m_folder->filePath(name); }

    std::unique_ptr<QTemporaryDir> m_folder;
    QString m_picture;
    QByteArray m_errors;
};

// Red, and a little wider than high.
void tst_PaintPicture::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    m_picture = path(u"red.svg"_s);
    QFile file(m_picture);
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(R"(<svg xmlns="http://www.w3.org/2000/svg" width="4" height="2" viewBox="0 0 4 2">)"
               R"(<rect width="4" height="2" fill="#FF0000"/></svg>)");
}

int tst_PaintPicture::run(const QStringList &arguments)
{
    QProcess process;
    process.start(QStringLiteral(ORVANE_TOOLS_DIR "/paintpicture"), arguments);
    if (!process.waitForFinished() || process.exitStatus() != QProcess::NormalExit) return -1;
    m_errors = process.readAllStandardError();
    return process.exitCode();
}

// The drawing keeps its proportions, in the middle.
void tst_PaintPicture::aPngHasTheSizeThatIsAskedFor()
{
    QCOMPARE(run({m_picture, u"8"_s, u"8"_s, path(u"red.png"_s)}), 0);
    const QImage painted(path(u"red.png"_s));
    QCOMPARE(painted.size(), QSize(8, 8));
    QCOMPARE(painted.pixelColor(4, 1).alpha(), 0);
    QCOMPARE(painted.pixelColor(4, 2), QColor(Qt::red));
    QCOMPARE(painted.pixelColor(4, 5), QColor(Qt::red));
    QCOMPARE(painted.pixelColor(4, 6).alpha(), 0);
}

void tst_PaintPicture::anyOtherFileHoldsThePixels()
{
    QCOMPARE(run({m_picture, u"4"_s, u"2"_s, path(u"red.pixels"_s)}), 0);
    QFile file(path(u"red.pixels"_s));
    QVERIFY(file.open(QIODevice::ReadOnly));
    const QRgb red = qRgb(255, 0, 0);
    QCOMPARE(file.readAll(), QByteArray(reinterpret_cast<const char *>(&red), sizeof red).repeated(8));
}

void tst_PaintPicture::wrongUseIsRefused_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::newRow("nothing") << QStringList();
    QTest::newRow("no file") << QStringList{u"red.svg"_s, u"4"_s, u"2"_s};
    QTest::newRow("too many") << QStringList{u"red.svg"_s, u"4"_s, u"2"_s, u"a.png"_s, u"b.png"_s};
}

void tst_PaintPicture::wrongUseIsRefused()
{
    QFETCH(QStringList, arguments);
    QCOMPARE(run(arguments), 2);
    QVERIFY(m_errors.startsWith("Usage: paintpicture "));
}

void tst_PaintPicture::whatCannotBePaintedIsAFailure_data()
{
    QTest::addColumn<QString>("picture");
    QTest::addColumn<QString>("width");
    QTest::addColumn<QString>("file");
    QTest::newRow("no picture") << u"none.svg"_s << u"4"_s << u"a.pixels"_s;
    QTest::newRow("no width") << u"red.svg"_s << u"0"_s << u"a.pixels"_s;
    QTest::newRow("a width that is no number") << u"red.svg"_s << u"wide"_s << u"a.pixels"_s;
    QTest::newRow("no folder") << u"red.svg"_s << u"4"_s << u"none/a.pixels"_s;
    QTest::newRow("no folder for a PNG") << u"red.svg"_s << u"4"_s << u"none/a.png"_s;
}

void tst_PaintPicture::whatCannotBePaintedIsAFailure()
{
    QFETCH(QString, picture);
    QFETCH(QString, width);
    QFETCH(QString, file);
    QCOMPARE(run({path(picture), width, u"2"_s, path(file)}), 1);
    QVERIFY(m_errors.contains("can't be painted"));
    QVERIFY(!QFile::exists(path(file)));
}

QTEST_GUILESS_MAIN(tst_PaintPicture)
#include "tst_PaintPicture.moc"
