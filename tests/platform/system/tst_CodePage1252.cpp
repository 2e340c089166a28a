#include "platform/system/CodePage1252.h"

#include <QStringDecoder>
#include <QTest>

#include <utility>

using namespace Qt::Literals::StringLiterals;
using namespace orvane;

namespace
{

QByteArray allBytes()
{
    QByteArray bytes;
    for (int code = 0; code < 256; ++code)
        bytes.append(static_cast<char>(code));
    return bytes;
}

} // namespace

class tst_CodePage1252 : public QObject
{
    Q_OBJECT

private slots:
    void aByteHasItsCharacter_data();
    void aByteHasItsCharacter();
    void everyByteComesBack();
    void thePageIsTheSystemsOwn();
    void aCharacterOutsideIsTheSubstitute_data();
    void aCharacterOutsideIsTheSubstitute();
    void exactlyThePagesCharactersHaveACode();
    void emptyStaysEmpty();
};

void tst_CodePage1252::aByteHasItsCharacter_data()
{
    QTest::addColumn<int>("byte");
    QTest::addColumn<int>("unit");
    constexpr std::pair<int, int> Pairs[]{
        {0x00, 0x0000}, {0x41, 0x0041}, {0x7F, 0x007F}, {0x80, 0x20AC}, {0x81, 0x0081}, {0x82, 0x201A}, {0x83, 0x0192},
        {0x84, 0x201E}, {0x85, 0x2026}, {0x86, 0x2020}, {0x87, 0x2021}, {0x88, 0x02C6}, {0x89, 0x2030}, {0x8A, 0x0160},
        {0x8B, 0x2039}, {0x8C, 0x0152}, {0x8D, 0x008D}, {0x8E, 0x017D}, {0x8F, 0x008F}, {0x90, 0x0090}, {0x91, 0x2018},
        {0x92, 0x2019}, {0x93, 0x201C}, {0x94, 0x201D}, {0x95, 0x2022}, {0x96, 0x2013}, {0x97, 0x2014}, {0x98, 0x02DC},
        {0x99, 0x2122}, {0x9A, 0x0161}, {0x9B, 0x203A}, {0x9C, 0x0153}, {0x9D, 0x009D}, {0x9E, 0x017E}, {0x9F, 0x0178},
        {0xA0, 0x00A0}, {0xE9, 0x00E9}, {0xFF, 0x00FF},
    };
    for (const auto &[byte, unit] : Pairs)
        QTest::addRow("%02x", unsigned(byte)) << byte << unit;
}

void tst_CodePage1252::aByteHasItsCharacter()
{
    QFETCH(int, byte);
    QFETCH(int, unit);
    const QByteArray bytes(1, static_cast<char>(byte));
    const QString text(1, QChar(unit));
    QCOMPARE(CodePage1252::decode(bytes), text);
    QCOMPARE(CodePage1252::encode(text), bytes);
    QVERIFY(CodePage1252::hasCode(QChar(unit)));
}

void tst_CodePage1252::everyByteComesBack()
{
    QCOMPARE(CodePage1252::encode(CodePage1252::decode(allBytes())), allBytes());
}

void tst_CodePage1252::thePageIsTheSystemsOwn()
{
    QStringDecoder decoder("windows-1252");
    if (!decoder.isValid()) QSKIP("this toolkit was built without the page");
    const QString theirs = decoder(allBytes());
    QCOMPARE(CodePage1252::decode(allBytes()), theirs);
}

void tst_CodePage1252::aCharacterOutsideIsTheSubstitute_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QByteArray>("bytes");
    QTest::newRow("Greek") << u"\u03A9"_s << "?"_ba;
    QTest::newRow("full-width letter") << u"\uFF21"_s << "?"_ba;
    QTest::newRow("a control whose code the page uses") << u"\u0080"_s << "?"_ba;
    QTest::newRow("next line") << u"\u0085"_s << "?"_ba;
    QTest::newRow("first beyond the page") << u"\u0100"_s << "?"_ba;
    QTest::newRow("two units") << u"a\U0001F600b"_s << "a??b"_ba;
    QTest::newRow("half of a pair") << QString(QChar(0xD800)) << "?"_ba;
}

void tst_CodePage1252::aCharacterOutsideIsTheSubstitute()
{
    QFETCH(QString, text);
    QFETCH(QByteArray, bytes);
    QCOMPARE(CodePage1252::encode(text), bytes);
}

void tst_CodePage1252::exactlyThePagesCharactersHaveACode()
{
    const QString page = CodePage1252::decode(allBytes());
    for (int unit = 0; unit <= 0xFFFF; ++unit)
        QCOMPARE(CodePage1252::hasCode(QChar(unit)), page.contains(QChar(unit)));
}

void tst_CodePage1252::emptyStaysEmpty()
{
    QCOMPARE(CodePage1252::decode(QByteArray()), QString());
    QCOMPARE(CodePage1252::encode(QString()), QByteArray());
}

QTEST_GUILESS_MAIN(tst_CodePage1252)
#include "tst_CodePage1252.moc"
