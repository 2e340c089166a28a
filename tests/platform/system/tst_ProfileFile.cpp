#include "platform/system/ProfileBytes.h"
#include "platform/system/ProfileFile.h"

#include <QTest>

#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

using namespace Qt::Literals::StringLiterals;
using namespace orvane;

namespace
{

constexpr qint64 Megabyte = 1 << 20;
constexpr qint64 Terabyte = Megabyte << 20;
constexpr int PieceSize = 64 * 1024;

QString readHeader(const ProfileBytes &file, int size = 1023)
{
    return readProfileString(u"127"_s, u"Header"_s, u"(none)"_s, size, file.name());
}

// Puts bytes into the file and leaves the rest up to the size a hole, which reads as NULs.
void writeAt(QFile &file, qint64 offset, const QByteArray &bytes)
{
    QVERIFY(file.seek(offset));
    QCOMPARE(file.write(bytes), bytes.size());
}

// Reads in a process of its own, since only a fresh one tells how much memory this takes. Its exit code: 0 well, 1 not
// the value, 2 too much memory.
int readInOwnProcess(const ProfileBytes &file, const QString &expected)
{
    const pid_t child = fork();
    if (child == 0) {
        rusage before{};
        rusage after{};
        getrusage(RUSAGE_SELF, &before);
        const bool well = readHeader(file) == expected;
        getrusage(RUSAGE_SELF, &after);
        const bool small = after.ru_maxrss - before.ru_maxrss < 8 * 1024L;
        _exit(!well ? 1 : small ? 0 : 2);
    }
    int status = 0;
    waitpid(child, &status, 0);
    return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}

} // namespace

class tst_ProfileFile : public QObject
{
    Q_OBJECT

private slots:
    void aValueIsReadAs_data();
    void aValueIsReadAs();
    void aNameIsAskedForAs_data();
    void aNameIsAskedForAs();
    void aValueIsCutToTheSize_data();
    void aValueIsCutToTheSize();
    void theDefaultIsCutToo();
    void anAbsentFileGivesTheDefault();
    void whatIsNoFileGivesTheDefault();
    void anyPlaceInTheFileIsAsGoodAsAnother();
    void randomBytesGiveTheDefault();
    void ofAHugeFileOnlyALittleIsKept_data();
    void ofAHugeFileOnlyALittleIsKept();
    void readingStopsAtTheKey();
};

void tst_ProfileFile::aValueIsReadAs_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QString>("value");
    const auto row = [](const char *name, const QByteArray &bytes, const QString &value) {
        QTest::newRow(name) << bytes << value;
    };
    row("CR LF", "[127]\r\nHeader=Step 17\r\nRTF=x\r\n", u"Step 17"_s);
    row("LF", "[127]\nHeader=Step 17\nRTF=x\n", u"Step 17"_s);
    row("both kinds of line ends", "[127]\nRTF=x\r\nHeader=Step 17\r\n", u"Step 17"_s);
    row("last line without end", "[127]\r\nHeader=Step 17", u"Step 17"_s);
    row("last line with CR alone", "[127]\r\nHeader=Step 17\r", u"Step 17"_s);
    row("blanks around", "[127]\nHeader= \t Step 17 \t \n", u"Step 17"_s);
    row("double quotes", "[127]\nHeader=\"Step 17\"\n", u"Step 17"_s);
    row("single quotes", "[127]\nHeader='Step 17'\n", u"Step 17"_s);
    row("blanks inside quotes", "[127]\nHeader=  \"  Step 17 \"  \r\n", u"  Step 17 "_s);
    row("one pair only", "[127]\nHeader=\"\"Step\"\"\n", u"\"Step\""_s);
    row("single within double", "[127]\nHeader=\"'Step'\"\n", u"'Step'"_s);
    row("quotes inside", "[127]\nHeader=a \"b\" c\n", u"a \"b\" c"_s);
    row("opening quote only", "[127]\nHeader=\"Step\n", u"\"Step"_s);
    row("closing quote only", "[127]\nHeader=Step\"\n", u"Step\""_s);
    row("two kinds of quote", "[127]\nHeader=\"Step'\n", u"\"Step'"_s);
    row("one quote", "[127]\nHeader=\"\n", u"\""_s);
    row("pair of quotes", "[127]\nHeader=\"\"\n", u""_s);
    row("empty", "[127]\nHeader=\nRTF=x\n", u""_s);
    row("empty at the end", "[127]\nHeader=", u""_s);
    row("blanks alone", "[127]\nHeader= \t \r\n", u""_s);
    row("equals sign inside", "[127]\nHeader=a=b=\n", u"a=b="_s);
    row("semicolon inside", "[127]\nHeader=a;b ; c\n", u"a;b ; c"_s);
    row("brackets inside", "[127]\nHeader=[128]\n", u"[128]"_s);
    row("percent signs", "[127]\nHeader=100%20 %\n", u"100%20 %"_s);
    row("NUL inside", QByteArray("[127]\nHeader=a\0b\n", 18), QString(u"a\0b"_s));
    row("code page",
        "[127]\nHeader=\x93Stra\xDF"
        "e\x94 \x80 \x95\n",
        u"\u201CStra\u00DFe\u201D \u20AC \u2022"_s);
    row("undefined codes", "[127]\nHeader=\x81\x8D\x8F\x90\x9D\n", u"\u0081\u008D\u008F\u0090\u009D"_s);
    row("line break of the page's own", "[127]\nHeader=a\fb\vc\n", u"a\fb\vc"_s);
    row("no file content", "", u"(none)"_s);
    row("no section", "Header=Step 17\n", u"(none)"_s);
    row("other section", "[128]\nHeader=Step 17\n", u"(none)"_s);
    row("no key", "[127]\nRTF=x\n", u"(none)"_s);
    row("key of a later section", "[127]\nRTF=x\n[128]\nHeader=Step 18\n", u"(none)"_s);
    row("leading zero", "[0127]\nHeader=wrong\n[127]\nHeader=right\n", u"right"_s);
    row("longer section name", "[1270]\nHeader=wrong\n[127]\nHeader=right\n", u"right"_s);
    row("shorter section name", "[12]\nHeader=wrong\n[127]\nHeader=right\n", u"right"_s);
    row("longer key", "[127]\nHeader2=wrong\nHeade=wrong\nHeader=right\n", u"right"_s);
    row("first section wins", "[127]\nHeader=first\n[127]\nHeader=second\n", u"first"_s);
    row("only the first section", "[127]\nRTF=x\n[127]\nHeader=second\n", u"(none)"_s);
    row("first key wins", "[127]\nHeader=first\nHeader=second\n", u"first"_s);
    row("key in other case", "[127]\nhEADER=Step 17\n", u"Step 17"_s);
    row("blanks around the key", "[127]\n \tHeader \t =Step 17\n", u"Step 17"_s);
    row("blanks inside the key", "[127]\nHea der=wrong\n", u"(none)"_s);
    row("blanks around the section", " \t[ 127\t] \nHeader=Step 17\n", u"Step 17"_s);
    row("text behind the section", "[127] first step\nHeader=Step 17\n", u"Step 17"_s);
    row("section never closed", "[127\nHeader=wrong\n", u"(none)"_s);
    row("bracket not closed inside a section", "[127]\n[128\nHeader=Step 17\n", u"Step 17"_s);
    row("comments", ";[127]\n[127]\n;Header=no\n  ; Header=no\nHeader=yes\n", u"yes"_s);
    row("comment sign behind a name", "[127]\nHeader;=no\nHeader=yes\n", u"yes"_s);
    row("blank lines", "\n\r\n  \n[127]\n\n \t\r\n\nHeader=Step 17\n", u"Step 17"_s);
    row("lines without a sign", "[127]\nHeader\nHeader Step\nHeader=Step 17\n", u"Step 17"_s);
    row("key without a name", "[127]\n=wrong\nHeader=Step 17\n", u"Step 17"_s);
    row("rich text", R"([127]
Header={\rtf1\ansi {\b Step\'2017}\par }
)",
        uR"({\rtf1\ansi {\b Step\'2017}\par })"_s);
}

void tst_ProfileFile::aValueIsReadAs()
{
    QFETCH(QByteArray, bytes);
    QFETCH(QString, value);
    const ProfileBytes file(bytes);
    QCOMPARE(readHeader(file), value);
    QCOMPARE(file.bytes(), bytes);
}

void tst_ProfileFile::aNameIsAskedForAs_data()
{
    QTest::addColumn<QString>("section");
    QTest::addColumn<QString>("key");
    QTest::addColumn<QString>("value");
    QTest::newRow("as it stands") << u"Straße"_s << u"Größe"_s << u"yes"_s;
    QTest::newRow("other case") << u"STRAßE"_s << u"gRÖßE"_s << u"yes"_s;
    QTest::newRow("blanks around") << u" Straße "_s << u"\tGröße "_s << u"yes"_s;
    QTest::newRow("no pattern") << u"Stra.e"_s << u"Größe"_s << u"(none)"_s;
    QTest::newRow("substitute of the page") << u"Stra\u03B2e"_s << u"Größe"_s << u"(none)"_s;
    QTest::newRow("empty section") << u""_s << u"Größe"_s << u"(none)"_s;
    QTest::newRow("empty key") << u"Straße"_s << u""_s << u"(none)"_s;
    QTest::newRow("comment") << u"Straße"_s << u";note"_s << u"(none)"_s;
    QTest::newRow("bracket never closed") << u"Straße"_s << u"[note"_s << u"(none)"_s;
    QTest::newRow("line break in it") << u"Straße]\nGröße"_s << u"Größe"_s << u"(none)"_s;
}

void tst_ProfileFile::aNameIsAskedForAs()
{
    QFETCH(QString, section);
    QFETCH(QString, key);
    const ProfileBytes file("[Stra\xDF"
                            "e]\n;note=no\n[note=no\nGr\xF6\xDF"
                            "e=yes\n");
    QTEST(readProfileString(section, key, u"(none)"_s, 1023, file.name()), "value");
}

void tst_ProfileFile::aValueIsCutToTheSize_data()
{
    QTest::addColumn<int>("length");
    QTest::addColumn<int>("size");
    QTest::addColumn<int>("kept");
    QTest::newRow("1021") << 1021 << 1023 << 1021;
    QTest::newRow("1022 arrive whole") << 1022 << 1023 << 1022;
    QTest::newRow("of 1023 the last is lost") << 1023 << 1023 << 1022;
    QTest::newRow("8189") << 8189 << 8191 << 8189;
    QTest::newRow("8190 arrive whole") << 8190 << 8191 << 8190;
    QTest::newRow("of 8191 the last is lost") << 8191 << 8191 << 8190;
    QTest::newRow("far too long") << 300'000 << 8191 << 8190;
    QTest::newRow("no room") << 10 << 1 << 0;
    QTest::newRow("no buffer") << 10 << 0 << 0;
    QTest::newRow("less than none") << 10 << std::numeric_limits<int>::min() << 0;
    QTest::newRow("all the room there is") << 10 << std::numeric_limits<int>::max() << 10;
}

void tst_ProfileFile::aValueIsCutToTheSize()
{
    QFETCH(int, length);
    QFETCH(int, size);
    QFETCH(int, kept);
    const QByteArray value = QByteArray(length - 1, 'x') + 'z';
    const QString expected = QString::fromLatin1(value).left(kept);
    for (const QByteArray &quote : {QByteArray(), QByteArray("\""), QByteArray("'")}) {
        const ProfileBytes file("[127]\r\nHeader= " + quote + value + quote + " \r\n");
        QCOMPARE(readHeader(file, size), expected);
    }
}

void tst_ProfileFile::theDefaultIsCutToo()
{
    const ProfileBytes file;
    QCOMPARE(readHeader(file, 5), u"(non"_s);
    QCOMPARE(readHeader(file, 7), u"(none)"_s);
    QCOMPARE(readHeader(file, 0), QString());
}

void tst_ProfileFile::anAbsentFileGivesTheDefault()
{
    const ProfileBytes file;
    QCOMPARE(readHeader(file), u"(none)"_s);
    QVERIFY(!QFile::exists(file.name()));
}

void tst_ProfileFile::whatIsNoFileGivesTheDefault()
{
    const ProfileBytes file;
    QCOMPARE(readProfileString(u"127"_s, u"Header"_s, u"(none)"_s, 1023, file.folder()), u"(none)"_s);
    QCOMPARE(readProfileString(u"127"_s, u"Header"_s, u"(none)"_s, 1023, QString()), u"(none)"_s);
    QCOMPARE(mkfifo(qPrintable(file.name()), 0600), 0);
    QCOMPARE(readHeader(file), u"(none)"_s);
}

// The file is read in pieces: wherever one ends, in a name, a quote or a line end, the value is the same.
void tst_ProfileFile::anyPlaceInTheFileIsAsGoodAsAnother()
{
    const QByteArray text = "\r\n[127]\r\nRTF=x\r\n Header = 'Step 17' \r\n[128]\r\n";
    const ProfileBytes file;
    for (qsizetype filler = PieceSize - text.size() - 2; filler < PieceSize + 2; ++filler) {
        file.setBytes(';' + QByteArray(filler, '-') + text);
        QCOMPARE(readHeader(file), u"Step 17"_s);
    }
}

void tst_ProfileFile::randomBytesGiveTheDefault()
{
    QByteArray bytes;
    quint32 state = 1;
    for (int i = 0; i < 1'000'000; ++i) {
        state = state * 1664525U + 1013904223U;
        bytes.append(static_cast<char>(state >> 24U));
    }
    QCOMPARE(readHeader(ProfileBytes(bytes)), u"(none)"_s);
}

void tst_ProfileFile::ofAHugeFileOnlyALittleIsKept_data()
{
    QTest::addColumn<QByteArray>("front");
    QTest::addColumn<QByteArray>("back");
    QTest::addColumn<QString>("value");
    const QByteArray step = "\n[127]\nHeader=Step 17\n";
    QTest::newRow("comment") << ";"_ba << step << u"Step 17"_s;
    QTest::newRow("section name") << "["_ba
                                  << "]" + step << u"Step 17"_s;
    QTest::newRow("key name") << "[127]\nHeader"_ba
                              << "=x\nHeader=Step 17\n"_ba << u"Step 17"_s;
    QTest::newRow("value of another key") << "[127]\nRTF="_ba
                                          << "\nHeader=Step 17\n"_ba << u"Step 17"_s;
    QTest::newRow("value") << "[127]\nHeader='Step 17"_ba
                           << "'\n"_ba << u"Step 17"_s + QString(1015, QChar(0));
    QTest::newRow("nothing of it") << QByteArray() << QByteArray() << u"(none)"_s;
}

// One line of 50 megabytes, and as much again behind it.
void tst_ProfileFile::ofAHugeFileOnlyALittleIsKept()
{
    QFETCH(QByteArray, front);
    QFETCH(QByteArray, back);
    QFETCH(QString, value);
    const ProfileBytes profile(front);
    QFile file(profile.name());
    QVERIFY(file.open(QIODevice::ReadWrite));
    writeAt(file, 50 * Megabyte, back);
    QVERIFY(file.resize(100 * Megabyte));
    file.close();
    QCOMPARE(readInOwnProcess(profile, value), 0);
}

// Reading on to the end of a terabyte would outlast the test.
void tst_ProfileFile::readingStopsAtTheKey()
{
    const ProfileBytes profile("[127]\nHeader=Step 17\n");
    QVERIFY(QFile::resize(profile.name(), Terabyte));
    QCOMPARE(readHeader(profile), u"Step 17"_s);
    QVERIFY(QFile::resize(profile.name(), 0));

    profile.setBytes("[127]\nRTF=x\n[128]\n");
    QVERIFY(QFile::resize(profile.name(), Terabyte));
    QCOMPARE(readHeader(profile), u"(none)"_s);
}

QTEST_GUILESS_MAIN(tst_ProfileFile)
#include "tst_ProfileFile.moc"
