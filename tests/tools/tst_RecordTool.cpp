// The program recordpictures, from outside: it draws the same everywhere, and refuses what it can't draw.
#include "tools/RecordBitmaps.h"

#include <QImage>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::Literals::StringLiterals;
using namespace orvane::test;

class tst_RecordTool : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void theProgramsPicturesAreDrawnAgainToTheByte_data();
    void theProgramsPicturesAreDrawnAgainToTheByte();
    void aFormOfOneRowIsDrawn();
    void aLineGoesOnWithTheOneBefore();
    void whatCannotBeDrawnIsRefused_data();
    void whatCannotBeDrawnIsRefused();
    void aListThatCannotBeReadIsRefused_data();
    void aListThatCannotBeReadIsRefused();
    void aFolderThatIsNotThereIsRefused();
    void wrongUseIsToldOf();

private:
    int run(const QStringList &arguments, const QStringList &environment = {});
    int draw(const QByteArray &form, const QByteArray &list = "one f.form 1 completed 100 60\n");
    void write(const QString &name, const QByteArray &bytes) const;
    QString path(const QString &name) const { return m_folder->filePath(name); }

    std::unique_ptr<QTemporaryDir> m_folder;
    QByteArray m_errors;
};

void tst_RecordTool::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
}

int tst_RecordTool::run(const QStringList &arguments, const QStringList &environment)
{
    QProcess process;
    process.setEnvironment(QProcess::systemEnvironment() + environment);
    process.start(QStringLiteral(ORVANE_TOOLS_DIR "/recordpictures"), arguments);
    if (!process.waitForFinished() || process.exitStatus() != QProcess::NormalExit) return -1;
    m_errors = process.readAllStandardError();
    return process.exitCode();
}

void tst_RecordTool::write(const QString &name, const QByteArray &bytes) const
{
    QFile file(path(name));
    QVERIFY(file.open(QIODevice::WriteOnly));
    QCOMPARE(file.write(bytes), bytes.size());
}

int tst_RecordTool::draw(const QByteArray &form, const QByteArray &list)
{
    write(u"f.form"_s, form);
    write(u"list"_s, list);
    return run({path(u"list"_s), m_folder->path()});
}

void tst_RecordTool::theProgramsPicturesAreDrawnAgainToTheByte_data()
{
    QTest::addColumn<QStringList>("environment");
    QTest::newRow("as it is") << QStringList();
    QTest::newRow("another screen") << QStringList{u"QT_SCALE_FACTOR=2"_s, u"QT_FONT_DPI=144"_s};
    QTest::newRow("another language") << QStringList{u"LC_ALL=tr_TR.UTF-8"_s, u"LANG=tr_TR.UTF-8"_s};
    QTest::newRow("other hash seeds") << QStringList{u"QT_HASH_SEED=4711"_s};
    QTest::newRow("other hinting") << QStringList{u"FREETYPE_PROPERTIES=truetype:interpreter-version=35"_s};
    QTest::newRow("a desktop's wishes for type")
        << QStringList{QStringLiteral("FONTCONFIG_FILE=" ORVANE_TEST_DATA "/records/fonts.conf")};
    QTest::newRow("another platform") << QStringList{u"QT_QPA_PLATFORM=minimal"_s};
}

void tst_RecordTool::theProgramsPicturesAreDrawnAgainToTheByte()
{
    QFETCH(QStringList, environment);
    QCOMPARE(run({QStringLiteral(ORVANE_SOURCE_DIR "/data/records/pictures.list"), m_folder->path()}, environment), 0);
    for (const RecordBitmap &row : recordBitmaps()) {
        const QByteArray drawn = bytesOfFile(path(row.name + u".bmp"_s));
        QCOMPARE(qint64(drawn.size()), row.bytes);
        QVERIFY2(drawn == bytesOfFile(QStringLiteral(ORVANE_TOOLS_DIR "/../data/records/") + row.name + u".bmp"_s),
                 qPrintable(row.name));
    }
}

void tst_RecordTool::aFormOfOneRowIsDrawn()
{
    QCOMPARE(draw("# a comment\n\npage\ncolumns 1 1\nrow 30 | Name ~ T Hallows | [x] yes [ ] no\n"), 0);
    const QImage picture(path(u"one.bmp"_s));
    QCOMPARE(picture.size(), QSize(760, 100));
    const auto rule = qRgb(0x6B, 0x84, 0x80);
    QCOMPARE(picture.pixel(400, 12), rule);
    QCOMPARE(picture.pixel(400, 42), rule);
    QCOMPARE(picture.pixel(12, 20), rule);
    QCOMPARE(picture.pixel(380, 20), rule);
    QCOMPARE(picture.pixel(747, 20), rule);
    QCOMPARE(picture.pixel(400, 60), qRgb(255, 255, 255));
}

void tst_RecordTool::aLineGoesOnWithTheOneBefore()
{
    QCOMPARE(draw("page\nrow 30 | Name ~ T Hallows\n"), 0);
    const QByteArray oneLine = bytesOfFile(path(u"one.bmp"_s));
    QCOMPARE(draw("page\nrow 30 | Name ~\n   T\n   Hallows\n"), 0);
    QCOMPARE(bytesOfFile(path(u"one.bmp"_s)), oneLine);
}

void tst_RecordTool::whatCannotBeDrawnIsRefused_data()
{
    QTest::addColumn<QByteArray>("form");
    QTest::addColumn<QByteArray>("complaint");
    const auto row = [](const char *name, const char *form, const char *complaint) {
        QTest::newRow(name) << QByteArray(form) << QByteArray(complaint);
    };
    row("empty", "", "f.form:1: There is no page.");
    row("no page yet", "row 20 | a\n", "f.form:1: A page has to come first.");
    row("unknown entry", "page\nline 20\n", "f.form:2: \"line\" is no entry.");
    row("no height", "page\nrow | a\n", "f.form:2: \"\" is no length.");
    row("negative gap", "page\ngap -4\n", "f.form:2: \"-4\" is no length.");
    row("no cells", "page\nrow 20\n", "f.form:2: The row has no cells.");
    row("too few cells", "page\ncolumns 1 1 1\nrow 20 | a | b\n", "f.form:3: The row has 2 cells for 3 columns.");
    row("too many words", "page\ncolumns 1 20\nrow 20 | a b c d e f g h i j k | b\n", "f.form:3: The cell needs");
    row("too wide a word", "page\ncolumns 1 20\nrow 20 | Mississippi | b\n", "f.form:3: The word is wider");
    row("too low a row for the hand", "page\nrow 12 | a ~ b\n", "f.form:2: The cell needs");
    row("too low a picture", "page\nrow 40 | a\nrow 60 | b\n", "f.form:3: The row ends at 113 of 100 pixels.");
}

void tst_RecordTool::whatCannotBeDrawnIsRefused()
{
    QFETCH(QByteArray, form);
    QFETCH(QByteArray, complaint);
    QCOMPARE(draw(form), 1);
    QVERIFY2(m_errors.contains(complaint), m_errors);
    QVERIFY(!QFile::exists(path(u"one.bmp"_s)));
}

void tst_RecordTool::aListThatCannotBeReadIsRefused_data()
{
    QTest::addColumn<QByteArray>("list");
    QTest::addColumn<QByteArray>("complaint");
    const auto row = [](const char *name, const char *list, const char *complaint) {
        QTest::newRow(name) << QByteArray(list) << QByteArray(complaint);
    };
    row("a field too few", "one f.form 1 blank 100\n", "list:1: A picture has six fields.");
    row("unknown state", "\none f.form 1 empty 100 60\n", "list:2: The state");
    row("no height", "one f.form 1 blank tall 60\n", "list:1: The state");
    row("no colors", "one f.form 1 blank 100 0\n", "list:1: The state");
    row("a page too many", "one f.form 1,2 blank 100 60\n", "has no page 2.");
    row("no such form", "one g.form 1 blank 100 60\n", "g.form: No such file");
}

void tst_RecordTool::aListThatCannotBeReadIsRefused()
{
    QFETCH(QByteArray, list);
    QFETCH(QByteArray, complaint);
    QCOMPARE(draw("page\nrow 20 | a\n", list), 1);
    QVERIFY2(m_errors.contains(complaint), m_errors);
}

void tst_RecordTool::aFolderThatIsNotThereIsRefused()
{
    write(u"f.form"_s, "page\nrow 20 | a\n");
    write(u"list"_s, "one f.form 1 blank 100 60\n");
    QCOMPARE(run({path(u"list"_s), path(u"nowhere"_s)}), 1);
    QVERIFY2(m_errors.contains("one.bmp"), m_errors);
}

void tst_RecordTool::wrongUseIsToldOf()
{
    QCOMPARE(run({}), 2);
    QVERIFY2(m_errors.contains("Usage: recordpictures LIST FOLDER"), m_errors);
}

QTEST_GUILESS_MAIN(tst_RecordTool)
#include "tst_RecordTool.moc"
