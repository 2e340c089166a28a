#include "tour/DealerText.h"

#include "platform/system/CodePage1252.h"
#include "platform/system/RunTimeError.h"

#include <QTest>

#include <optional>

using namespace Qt::Literals::StringLiterals;
using namespace orvane;

namespace
{

// The first position whose key is 0.
constexpr qsizetype KeyZero = 127;

QString character(int code)
{
    return CodePage1252::decode(QByteArray(1, static_cast<char>(code)));
}

QString asRead(const QByteArray &bytes)
{
    return CodePage1252::decode(bytes);
}

// The refusal of a text, or nothing where it is taken.
template <typename Call>
std::optional<RunTimeError> refusalOf(Call call)
{
    try {
        call();
    } catch (const RunTimeError &refusal) {
        return refusal;
    }
    return std::nullopt;
}

} // namespace

class tst_DealerText : public QObject
{
    Q_OBJECT

private slots:
    void theKeyIsTriangular_data();
    void theKeyIsTriangular();
    void theKeyDependsOnThePositionAlone();
    void theByte66IsTheCode65();
    void theByte255WithKeyZeroIsTheCode0();
    void aByteBelowItsKeyIsAFailure_data();
    void aByteBelowItsKeyIsAFailure();
    void emptyStaysEmpty();
    void aTextComesBack_data();
    void aTextComesBack();
    void aMegabyteComesBack();
    void everyCodeComesBackOrIsRefused();
    void aRefusalNamesTheCharacter_data();
    void aRefusalNamesTheCharacter();
};

void tst_DealerText::theKeyIsTriangular_data()
{
    QTest::addColumn<int>("position");
    QTest::addColumn<int>("key");
    constexpr std::pair<int, int> Keys[]{{1, 1},   {2, 3},   {3, 6},   {4, 10},  {5, 15},  {6, 21},  {7, 28},
                                         {8, 36},  {9, 45},  {10, 55}, {11, 2},  {12, 14}, {13, 27}, {63, 32},
                                         {64, 32}, {65, 33}, {127, 0}, {128, 0}, {129, 1}};
    for (const auto &[position, key] : Keys)
        QTest::addRow("%d", position) << position << key;
}

void tst_DealerText::theKeyIsTriangular()
{
    QFETCH(int, position);
    QFETCH(int, key);
    const QByteArray scrambled = ScrambleDealerData(QString(200, u'A'));
    QCOMPARE(int(scrambled[position - 1]), 'A' + key);
    QCOMPARE(UnscrambleDealerData(asRead(QByteArray(200, 'z'))).at(position - 1), QChar('z' - key));
}

void tst_DealerText::theKeyDependsOnThePositionAlone()
{
    const QByteArray first = ScrambleDealerData(u"AAAA"_s);
    const QByteArray second = ScrambleDealerData(u"zyAA"_s);
    QCOMPARE(first.right(2), second.right(2));
    QCOMPARE(first, "BDGK"_ba);
}

void tst_DealerText::theByte66IsTheCode65()
{
    QCOMPARE(UnscrambleDealerData(u"B"_s), u"A"_s);
    QCOMPARE(ScrambleDealerData(u"A"_s), "B"_ba);
}

void tst_DealerText::theByte255WithKeyZeroIsTheCode0()
{
    const QString text = UnscrambleDealerData(asRead(QByteArray(KeyZero - 1, 'z') + '\xFF'));
    QCOMPARE(text.back(), QChar(0));
}

void tst_DealerText::aByteBelowItsKeyIsAFailure_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::newRow("0 at the front") << QByteArray(1, '\0');
    QTest::newRow("2 at the second") << "B\x02"_ba;
    QTest::newRow("54 at the tenth") << QByteArray(9, 'z') + char(54);
    QTest::newRow("plain text") << QByteArray(200, ' ');
}

void tst_DealerText::aByteBelowItsKeyIsAFailure()
{
    QFETCH(QByteArray, bytes);
    const auto refusal = refusalOf([&] { UnscrambleDealerData(asRead(bytes)); });
    QVERIFY(refusal);
    QCOMPARE(refusal->Number(), int(InvalidProcedureCall));
    QVERIFY(!refusal->Description().isEmpty());
}

void tst_DealerText::emptyStaysEmpty()
{
    QCOMPARE(ScrambleDealerData(QString()), QByteArray());
    QCOMPARE(UnscrambleDealerData(QString()), QString());
}

void tst_DealerText::aTextComesBack_data()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("two lines") << u"Your dealer: Doe & Daughters\r\n12 Quay Street"_s;
    QTest::newRow("the page's own") << u"\u201CPrice\u201D \u2013 \u20AC 17 \u2022 \u2122"_s;
    QTest::newRow("controls") << QString(u"\0\t\x1F"_s);
    QTest::newRow("all below 192") << asRead([] {
        QByteArray bytes;
        for (int code = 0; code < 192; ++code)
            bytes.append(static_cast<char>(code));
        return bytes;
    }());
}

void tst_DealerText::aTextComesBack()
{
    QFETCH(QString, text);
    QCOMPARE(UnscrambleDealerData(asRead(ScrambleDealerData(text))), text);
}

void tst_DealerText::aMegabyteComesBack()
{
    const QString text = u"0123456789abcdef"_s.repeated(65'536);
    const QByteArray scrambled = ScrambleDealerData(text);
    QCOMPARE(scrambled.size(), text.size());
    QVERIFY(UnscrambleDealerData(asRead(scrambled)) == text);
}

// Refused is what the key would take over the end of the page, and nothing else.
void tst_DealerText::everyCodeComesBackOrIsRefused()
{
    const QByteArray keys = UnscrambleDealerData(asRead(QByteArray(128, 'z'))).toLatin1();
    for (int position = 1; position <= 128; ++position) {
        const int key = 'z' - keys[position - 1];
        for (int code = 0; code < 256; ++code) {
            const QString text = QString(position - 1, u' ') + character(code);
            QString back;
            const auto refusal = refusalOf([&] { back = UnscrambleDealerData(asRead(ScrambleDealerData(text))); });
            QCOMPARE(refusal.has_value(), code + key >= 255);
            if (!refusal) QCOMPARE(back, text);
        }
    }
}

void tst_DealerText::aRefusalNamesTheCharacter_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("position");
    QTest::newRow("no code") << u"ab\u03A9"_s << u"U+03A9"_s << u"position 3 "_s;
    QTest::newRow("two units") << u"\U0001F600"_s << u"U+D83D"_s << u"position 1 "_s;
    QTest::newRow("code 255") << u"a\u00FF"_s << u"U+00FF"_s << u"position 2 "_s;
    QTest::newRow("code 255 with key zero") << QString(126, u' ') + u'\u00FF' << u"U+00FF"_s << u"position 127 "_s;
    QTest::newRow("over the end of the page") << u"123456789\u00E9"_s << u"U+00E9"_s << u"position 10 "_s;
}

void tst_DealerText::aRefusalNamesTheCharacter()
{
    QFETCH(QString, text);
    QFETCH(QString, name);
    QFETCH(QString, position);
    const auto refusal = refusalOf([&] { ScrambleDealerData(text); });
    QVERIFY(refusal);
    QCOMPARE(refusal->Number(), int(InvalidProcedureCall));
    QVERIFY2(refusal->Description().contains(name), qPrintable(refusal->Description()));
    QVERIFY2(refusal->Description().contains(position), qPrintable(refusal->Description()));
}

QTEST_GUILESS_MAIN(tst_DealerText)
#include "tst_DealerText.moc"
