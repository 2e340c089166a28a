#include "platform/system/ProfileBytes.h"
#include "platform/system/ProfileFile.h"

#include <QFileInfo>
#include <QTest>

using namespace Qt::Literals::StringLiterals;
using namespace orvane;

namespace
{

bool writeHeader(const ProfileBytes &file, const QString &value)
{
    return writeProfileString(u"127"_s, u"Header"_s, value, file.name());
}

QString readBack(const ProfileBytes &file, const QString &key = u"Header"_s)
{
    return readProfileString(u"127"_s, key, u"(none)"_s, 100'000, file.name());
}

} // namespace

class tst_ProfileWrite : public QObject
{
    Q_OBJECT

private slots:
    void onlyItsOwnLineChanges_data();
    void onlyItsOwnLineChanges();
    void aMissingFileIsMade();
    void aValueIsWrittenAs_data();
    void aValueIsWrittenAs();
    void aBodyOfAnyLengthIsWrittenWhole();
    void allBytesAroundALongWayOffStay_data();
    void allBytesAroundALongWayOffStay();
    void twoKeysOfANewSectionKeepTheirOrder();
    void theScriptsSurviveASave();
    void aNameThatCouldNotBeReadBackIsRefused_data();
    void aNameThatCouldNotBeReadBackIsRefused();
    void aNameOutsideThePageIsFoundAgain();
    void theFilesPermissionsStay();
    void aLinkToTheFileStaysALink();
};

void tst_ProfileWrite::onlyItsOwnLineChanges_data()
{
    QTest::addColumn<QByteArray>("before");
    QTest::addColumn<QByteArray>("after");
    const auto row = [](const char *name, const QByteArray &before, const QByteArray &after) {
        QTest::newRow(name) << before << after;
    };
    row("replaced in place", "[127]\r\nRTF=x\r\nHeader=old\r\nNextRTF=y\r\n",
        "[127]\r\nRTF=x\r\nHeader=new\r\nNextRTF=y\r\n");
    row("replaced with LF", "[127]\nHeader=old\nRTF=x\n", "[127]\nHeader=new\nRTF=x\n");
    row("replaced in the last line without end", "[127]\r\nHeader=old", "[127]\r\nHeader=new");
    row("its name and blanks stay", "[127]\n\t hEADER =  \"old\"  \nRTF=x\n", "[127]\n\t hEADER =  new\nRTF=x\n");
    row("replaced where empty", "[127]\r\nHeader=\r\nRTF=x\r\n", "[127]\r\nHeader=new\r\nRTF=x\r\n");
    row("replaced where blank", "[127]\r\nHeader= \t \r\nRTF=x\r\n", "[127]\r\nHeader=new\r\nRTF=x\r\n");
    row("replaced where empty at the end", "[127]\nHeader=", "[127]\nHeader=new");
    row("only the first of two keys", "[127]\nHeader=a\nHeader=b\n", "[127]\nHeader=new\nHeader=b\n");
    row("only the first of two sections", "[127]\nRTF=a\n[127]\nHeader=b\n",
        "[127]\nRTF=a\nHeader=new\n[127]\nHeader=b\n");
    row("other sections stay", "[126]\nHeader=a\n[127]\nHeader=b\n[128]\nHeader=c\n",
        "[126]\nHeader=a\n[127]\nHeader=new\n[128]\nHeader=c\n");
    row("last of its section", "[127]\r\nRTF=x\r\n[128]\r\n", "[127]\r\nRTF=x\r\nHeader=new\r\n[128]\r\n");
    row("before trailing blank lines", "[127]\nRTF=x\n\n \t\n\n[128]\n", "[127]\nRTF=x\nHeader=new\n\n \t\n\n[128]\n");
    row("behind inner blank lines", "[127]\n\nRTF=x\n\n", "[127]\n\nRTF=x\nHeader=new\n\n");
    row("behind a comment", "[127]\nRTF=x\n; end\n\n[128]\n", "[127]\nRTF=x\n; end\nHeader=new\n\n[128]\n");
    row("in an empty section", "[127]\n\n[128]\n", "[127]\nHeader=new\n\n[128]\n");
    row("behind a line without end", "[127]\r\nRTF=x", "[127]\r\nRTF=x\r\nHeader=new\r\n");
    row("behind a section without end", "[127]", "[127]\r\nHeader=new\r\n");
    row("before blanks without end", "[127]\nRTF=x\n  ", "[127]\nRTF=x\nHeader=new\n  ");
    row("new section", "[126]\r\nRTF=x\r\n", "[126]\r\nRTF=x\r\n[127]\r\nHeader=new\r\n");
    row("new section with LF", "[126]\nRTF=x\n\n", "[126]\nRTF=x\n\n[127]\nHeader=new\n");
    row("new section behind a line without end", "[126]\nRTF=x", "[126]\nRTF=x\n[127]\nHeader=new\n");
    row("new section behind blanks without end", "[126]\n ", "[126]\n \n[127]\nHeader=new\n");
    row("new section in an empty file", "", "[127]\r\nHeader=new\r\n");
    row("leading zero is another section", "[0127]\nHeader=x\n", "[0127]\nHeader=x\n[127]\nHeader=new\n");
    row("key outside of sections", "Header=x\n", "Header=x\n[127]\nHeader=new\n");
    row("bracket never closed", "[127\nHeader=x\n", "[127\nHeader=x\n[127]\nHeader=new\n");
    row("first line end decides", "[127]\nRTF=x\r\n", "[127]\nRTF=x\r\nHeader=new\n");
    row("lone CR kept", "[127]\nRTF=a\rb\nHeader=c\rd\n;\r\r\n", "[127]\nRTF=a\rb\nHeader=new\n;\r\r\n");
    row("odd bytes kept", QByteArray("\0\x81\xFF\x1A[\n[127]\nHeader=x\n\0\0\x80", 25),
        QByteArray("\0\x81\xFF\x1A[\n[127]\nHeader=new\n\0\0\x80", 27));
}

void tst_ProfileWrite::onlyItsOwnLineChanges()
{
    QFETCH(QByteArray, before);
    const ProfileBytes file(before);
    QVERIFY(writeHeader(file, u"new"_s));
    QTEST(file.bytes(), "after");
    QCOMPARE(readBack(file), u"new"_s);
    QCOMPARE(QDir(file.folder()).entryList(QDir::Files | QDir::Hidden), QStringList{u"DemoData.ini"_s});
}

void tst_ProfileWrite::aMissingFileIsMade()
{
    const ProfileBytes file;
    QVERIFY(writeHeader(file, u"Step 17"_s));
    QCOMPARE(file.bytes(), "[127]\r\nHeader=Step 17\r\n"_ba);
}

void tst_ProfileWrite::aValueIsWrittenAs_data()
{
    QTest::addColumn<QString>("value");
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QString>("back");
    QTest::newRow("empty") << QString() << QByteArray() << QString();
    QTest::newRow("line breaks") << u"a\r\nb\nc\rd\n"_s << "abcd"_ba << u"abcd"_s;
    QTest::newRow("a section in it") << u"a\r\n[128]\r\nHeader=b"_s << "a[128]Header=b"_ba << u"a[128]Header=b"_s;
    QTest::newRow("form feed") << u"a\fb"_s << "a\fb"_ba << u"a\fb"_s;
    QTest::newRow("blanks around") << u"  a b  "_s << "  a b  "_ba << u"a b"_s;
    QTest::newRow("quotes around") << u"\"a b\""_s << "\"a b\""_ba << u"a b"_s;
    QTest::newRow("code page") << u"\u201CStra\u00DFe\u201D \u20AC"_s
                               << "\x93Stra\xDF"
                                  "e\x94 \x80"_ba
                               << u"\u201CStra\u00DFe\u201D \u20AC"_s;
    QTest::newRow("outside the page") << u"\u03A9 \U0001F600"_s << "? ??"_ba << u"? ??"_s;
    QTest::newRow("line separators beyond the page") << u"a\u2028b\u0085c"_s << "a?b?c"_ba << u"a?b?c"_s;
    QTest::newRow("rich text") << uR"({\rtf1\ansi \'e9=[x];\par })"_s << R"({\rtf1\ansi \'e9=[x];\par })"_ba
                               << uR"({\rtf1\ansi \'e9=[x];\par })"_s;
}

void tst_ProfileWrite::aValueIsWrittenAs()
{
    QFETCH(QString, value);
    QFETCH(QByteArray, bytes);
    QFETCH(QString, back);
    const ProfileBytes file("[127]\r\nHeader=x\r\nRTF=y\r\n");
    QVERIFY(writeHeader(file, value));
    QCOMPARE(file.bytes(), "[127]\r\nHeader=" + bytes + "\r\nRTF=y\r\n");
    QCOMPARE(readBack(file), back);
}

void tst_ProfileWrite::aBodyOfAnyLengthIsWrittenWhole()
{
    const QString body = uR"({\rtf1 )"_s + QString(9000, u'x') + u'}';
    const ProfileBytes file;
    QVERIFY(writeProfileString(u"127"_s, u"RTF"_s, body, file.name()));
    QCOMPARE(readBack(file, u"RTF"_s), body);
    QCOMPARE(readProfileString(u"127"_s, u"RTF"_s, u"(none)"_s, 8191, file.name()), body.left(8190));
}

void tst_ProfileWrite::allBytesAroundALongWayOffStay_data()
{
    QTest::addColumn<int>("front");
    for (const int front : {0, 1, 65'530, 65'536, 65'537, 1'000'000})
        QTest::addRow("%d", front) << front;
}

void tst_ProfileWrite::allBytesAroundALongWayOffStay()
{
    QFETCH(int, front);
    const QByteArray before = ';' + QByteArray(front, '\xA7') + "\r\n[127]\r\nHeader=";
    const QByteArray after = "\r\nRTF=" + QByteArray(200'000, '\x9D') + "\r\n" + QByteArray(70'000, '\0');
    const ProfileBytes file(before + "old" + after);
    QVERIFY(writeHeader(file, u"Step 17"_s));
    QVERIFY(file.bytes() == before + "Step 17" + after);
}

void tst_ProfileWrite::twoKeysOfANewSectionKeepTheirOrder()
{
    const ProfileBytes file("[126]\r\nHeader=x\r\n");
    QVERIFY(writeProfileString(u"127"_s, u"RTF"_s, u"body"_s, file.name()));
    QVERIFY(writeProfileString(u"127"_s, u"Header"_s, u"heading"_s, file.name()));
    QCOMPARE(file.bytes(), "[126]\r\nHeader=x\r\n[127]\r\nRTF=body\r\nHeader=heading\r\n"_ba);
}

void tst_ProfileWrite::theScriptsSurviveASave()
{
    const ProfileBytes file("[127]\nNextRTF=128/mn/Nav/Tips\nPrevRTF=(none)\n");
    QVERIFY(writeProfileString(u"127"_s, u"RTF"_s, u"body"_s, file.name()));
    QCOMPARE(readBack(file, u"NextRTF"_s), u"128/mn/Nav/Tips"_s);
    QCOMPARE(readBack(file, u"PrevRTF"_s), u"(none)"_s);
}

void tst_ProfileWrite::aNameThatCouldNotBeReadBackIsRefused_data()
{
    QTest::addColumn<QString>("section");
    QTest::addColumn<QString>("key");
    QTest::newRow("bracket in the section") << u"12]7"_s << u"Header"_s;
    QTest::newRow("line break in the section") << u"127\n"_s << u"Header"_s;
    QTest::newRow("CR in the section") << u"1\r27"_s << u"Header"_s;
    QTest::newRow("line break in the key") << u"127"_s << u"Head\ner"_s;
    QTest::newRow("equals sign in the key") << u"127"_s << u"Head=er"_s;
    QTest::newRow("empty key") << u"127"_s << u""_s;
    QTest::newRow("blank key") << u"127"_s << u" \t"_s;
    QTest::newRow("key like a comment") << u"127"_s << u" ;Header"_s;
    QTest::newRow("key like a section") << u"127"_s << u"[128]"_s;
}

void tst_ProfileWrite::aNameThatCouldNotBeReadBackIsRefused()
{
    QFETCH(QString, section);
    QFETCH(QString, key);
    const QByteArray before = "[127]\nHeader=old\n";
    const ProfileBytes file(before);
    QVERIFY(!writeProfileString(section, key, u"new"_s, file.name()));
    QCOMPARE(file.bytes(), before);
}

void tst_ProfileWrite::aNameOutsideThePageIsFoundAgain()
{
    const ProfileBytes file;
    QVERIFY(writeProfileString(u" \u03A9 "_s, u" \u03B1 "_s, u"first"_s, file.name()));
    QVERIFY(writeProfileString(u"\u03A9"_s, u"\u03B1"_s, u"second"_s, file.name()));
    QCOMPARE(readProfileString(u"\u03A9"_s, u"\u03B1"_s, u"(none)"_s, 1023, file.name()), u"second"_s);
    QCOMPARE(file.bytes().count('='), 1);
}

void tst_ProfileWrite::theFilesPermissionsStay()
{
    const ProfileBytes file("[127]\nHeader=old\n");
    const auto permissions = QFile::ReadOwner | QFile::WriteOwner | QFile::ReadGroup;
    QVERIFY(QFile::setPermissions(file.name(), permissions));
    const auto before = QFileInfo(file.name()).permissions();
    QVERIFY(writeHeader(file, u"new"_s));
    QCOMPARE(QFileInfo(file.name()).permissions(), before);
}

void tst_ProfileWrite::aLinkToTheFileStaysALink()
{
    const ProfileBytes file("[127]\nHeader=old\n");
    const QString link = file.folder() + u"/link.ini"_s;
    QVERIFY(QFile::link(file.name(), link));
    QVERIFY(writeProfileString(u"127"_s, u"Header"_s, u"new"_s, link));
    QVERIFY(QFileInfo(link).isSymLink());
    QCOMPARE(file.bytes(), "[127]\nHeader=new\n"_ba);
}

QTEST_GUILESS_MAIN(tst_ProfileWrite)
#include "tst_ProfileWrite.moc"
