// Whatever comes, the read ends soon and gives the text that could be read.
#include "platform/richtext/RtfDocument.h"

#include <QTest>

using namespace Qt::Literals::StringLiterals;
using namespace orvane;
using namespace orvane::test;

namespace
{

QString rtf(const QString &body)
{
    return u"{\\rtf1 "_s + body + u'}';
}

QString withoutLast(const QString &text)
{
    return text.left(text.size() - 1);
}

} // namespace

class tst_RtfSurvival : public QObject
{
    Q_OBJECT

private slots:
    void badInputGivesTheTextThatCouldBeRead_data();
    void badInputGivesTheTextThatCouldBeRead();
    void anEndAnywhereIsTaken_data();
    void anEndAnywhereIsTaken();
    void groupsDeeperThan512AreLeftOut();
    void aWordHasAtMost32Letters();
    void fontsAndColoursEndAt1024();
    void aSizeIsClamped_data();
    void aSizeIsClamped();
    void muchOfItStaysWithinBounds_data();
    void muchOfItStaysWithinBounds();
    void aStretchWithoutBlanksIsBrokenIntoLines();
    void noPictureIsLoaded();
    void lookingAtAnyDocumentEnds();
};

void tst_RtfSurvival::badInputGivesTheTextThatCouldBeRead_data()
{
    QTest::addColumn<QString>("input");
    QTest::addColumn<QString>("text");
    QTest::newRow("closed too early") << rtf(u"a}b"_s) << u"a"_s;
    QTest::newRow("never closed") << uR"({\rtf1 a{\b b{\i c)"_s << u"abc"_s;
    QTest::newRow("NULs") << u"{\\rtf1 a"_s + QString(3, QChar(0)) + u"b}"_s << u"ab"_s;
    QTest::newRow("NUL in a word") << u"{\\rtf1 a\\b"_s + QChar(0) + u"0b}"_s << u"a0b"_s;
    QTest::newRow("bad digits") << rtf(uR"(a\'g1\'1\'zz\'{b})"_s) << u"ag1zzb"_s;
    QTest::newRow("byte cut by a brace") << rtf(uR"({a\'4}b)"_s) << u"ab"_s;
    QTest::newRow("minus without a number") << rtf(uR"(a\b-b)"_s) << u"a-b"_s;
    QTest::newRow("binary data with braces") << rtf(u"a\\bin4 }}{\\b"_s) << u"ab"_s;
    QTest::newRow("binary data, skipped") << rtf(u"a{\\*\\x\\bin3 }}}}b"_s) << u"ab"_s;
    QTest::newRow("binary data in a picture") << rtf(u"a{\\pict\\bin3 {{{}b"_s) << u"ab"_s;
    QTest::newRow("binary data beyond the end") << rtf(u"a\\bin99999999 b"_s) << u"a"_s;
    QTest::newRow("binary data of no length") << rtf(u"a\\bin0 b\\bin-5 c\\bin d"_s) << u"abcd"_s;
    QTest::newRow("huge numbers") << rtf(uR"(\li99999999999999999999\fs-99999999999999999999 a)"_s) << u"a"_s;
    QTest::newRow("huge count to skip") << rtf(u"\\uc4294967297\\u65 "_s + QString(255, u'x') + u'b') << u"Ab"_s;
    QTest::newRow("negative count to skip") << rtf(uR"(\uc-1\u65 b)"_s) << u"Ab"_s;
    QTest::newRow("star alone") << rtf(uR"(a{\*}b{\* c}d\*\e f)"_s) << u"ab cdf"_s;
    QTest::newRow("destination in the middle") << rtf(uR"(a\info b\fonttbl c)"_s) << u"abc"_s;
    QTest::newRow("bullet definition, never closed") << uR"({\rtf1 a\par{\*\pn\pnlvlblt)"_s << u"a"_s;
    QTest::newRow("font table, never closed") << uR"({\rtf1{\fonttbl{\f0 a)"_s << u""_s;
    QTest::newRow("empty groups") << rtf(u"{}{{}}a{}"_s) << u"a"_s;
    QTest::newRow("a second document") << rtf(u"a"_s) + rtf(u"b"_s) << u"a"_s;
    QTest::newRow("a document inside") << rtf(u"a"_s + rtf(u"b"_s)) << u"ab"_s;
}

void tst_RtfSurvival::badInputGivesTheTextThatCouldBeRead()
{
    QFETCH(QString, input);
    QTEST(RtfDocument(input).toPlainText(), "text");
}

void tst_RtfSurvival::anEndAnywhereIsTaken_data()
{
    QTest::addColumn<QString>("name");
    for (const char *name :
         {"procedure.rtf", "tips_heading.rtf", "word_processor.rtf", "unicode.rtf", "binary_picture.rtf"})
        QTest::newRow(name) << QString::fromLatin1(name);
}

void tst_RtfSurvival::anEndAnywhereIsTaken()
{
    QFETCH(QString, name);
    const QString whole = QString::fromLatin1(sampleBytes(name));
    QVERIFY(whole.size() > 100);
    QTextDocument document;
    const QString text = RtfDocument(whole).toPlainText();
    for (qsizetype length = 5; length < whole.size(); ++length) {
        readRtf(QStringView(whole).left(length), document);
        // A word or number that is cut may read as another: one character at most.
        QVERIFY2(text.startsWith(withoutLast(document.toPlainText())), qPrintable(whole.left(length)));
    }
}

void tst_RtfSurvival::groupsDeeperThan512AreLeftOut()
{
    const auto nested = [](int depth) { return rtf(u"{"_s.repeated(depth) + u'a' + u"}"_s.repeated(depth) + u'b'); };
    QCOMPARE(RtfDocument(nested(511)).toPlainText(), u"ab"_s);
    QCOMPARE(RtfDocument(nested(512)).toPlainText(), u"b"_s);
    QCOMPARE(RtfDocument(nested(100000)).toPlainText(), u"b"_s);
}

void tst_RtfSurvival::aWordHasAtMost32Letters()
{
    QCOMPARE(RtfDocument(rtf(u"a\\"_s + u"x"_s.repeated(32) + u" b"_s)).toPlainText(), u"ab"_s);
    QCOMPARE(RtfDocument(rtf(u"a\\"_s + u"x"_s.repeated(1000000) + u"5 b"_s)).toPlainText(), u"ab"_s);
}

void tst_RtfSurvival::fontsAndColoursEndAt1024()
{
    QString fonts;
    QString colours;
    for (int i = 0; i < 1030; ++i) {
        fonts += u"{\\f%1 F%1;}"_s.arg(i);
        colours += u"\\red%1\\green%2\\blue1;"_s.arg(i / 256).arg(i % 256);
    }
    const RtfDocument document(
        rtf(u"{\\fonttbl"_s + fonts + u"}{\\colortbl"_s + colours + u"}\\f1023\\cf1023 last\\f1024\\cf1024 beyond"_s));
    QCOMPARE(document.look(u"last"_s).fontFamilies().toStringList(), QStringList{u"F1023"_s});
    QCOMPARE(document.look(u"last"_s).foreground().color(), QColor(3, 255, 1));
    QCOMPARE(document.look(u"beyond"_s).fontFamilies().toStringList(), QStringList{u"F0"_s});
    QVERIFY(!document.look(u"beyond"_s).hasProperty(QTextFormat::ForegroundBrush));
}

void tst_RtfSurvival::aSizeIsClamped_data()
{
    QTest::addColumn<QString>("word");
    QTest::addColumn<double>("points");
    QTest::newRow("none") << u"\\fs"_s << 12.0;
    QTest::newRow("zero") << u"\\fs0"_s << 12.0;
    QTest::newRow("negative") << u"\\fs-8"_s << 12.0;
    QTest::newRow("tiny") << u"\\fs1"_s << 1.0;
    QTest::newRow("large") << u"\\fs800"_s << 400.0;
    QTest::newRow("huge") << u"\\fs2147483647"_s << 400.0;
    QTest::newRow("beyond 64 bits") << u"\\fs99999999999999999999999999"_s << 400.0;
}

void tst_RtfSurvival::aSizeIsClamped()
{
    QFETCH(QString, word);
    QTEST(RtfDocument(rtf(word + u" a"_s)).look(u"a"_s).fontPointSize(), "points");
}

void tst_RtfSurvival::muchOfItStaysWithinBounds_data()
{
    QTest::addColumn<QString>("body");
    QTest::addColumn<int>("mostCharacters");
    const qsizetype many = 1000000;
    QTest::newRow("one line") << u"word "_s.repeated(many / 5) << int(many) + 1;
    QTest::newRow("opening braces") << u"{"_s.repeated(many) << 1;
    QTest::newRow("closing braces") << u"}"_s.repeated(many) << 1;
    QTest::newRow("empty groups") << u"{}"_s.repeated(many / 2) << 1;
    QTest::newRow("words") << u"\\b\\b0"_s.repeated(many / 5) << 1;
    QTest::newRow("tab stops") << u"\\tx5"_s.repeated(many / 4) << 1;
    QTest::newRow("colours") << u"{\\colortbl"_s + u";"_s.repeated(many) + u'}' << 1;
    QTest::newRow("fonts") << u"{\\fonttbl"_s + u"\\f1 a;"_s.repeated(many / 6) + u'}' << 1;
    QTest::newRow("a font's name") << u"{\\fonttbl{\\f1 "_s + u"a"_s.repeated(many) + u";}}\\f1 b"_s << 2;
    QTest::newRow("runs") << u"\\b x\\b0 y"_s.repeated(50000) << 110000;
    QTest::newRow("bullets") << u"{\\*\\pn\\pnlvlblt}"_s + u"a\\par "_s.repeated(20000) << 40001;
    QTest::newRow("lines far beyond any page") << u"\\line"_s.repeated(4 * many) << 400000;
    QTest::newRow("paragraphs far beyond any page") << u"\\par"_s.repeated(4 * many) << 400000;
    QTest::newRow("large lines") << u"\\fs800\\line"_s.repeated(many / 10) << 20000;
    QTest::newRow("large space") << u"\\sb31680\\par"_s.repeated(many / 10) << 20000;
}

void tst_RtfSurvival::muchOfItStaysWithinBounds()
{
    QFETCH(QString, body);
    QFETCH(int, mostCharacters);
    RtfDocument document(rtf(body));
    QVERIFY2(document.characterCount() <= mostCharacters, qPrintable(QString::number(document.characterCount())));
    document.setTextWidth(600);
    QVERIFY(document.size().height() < 8388607);
}

void tst_RtfSurvival::aStretchWithoutBlanksIsBrokenIntoLines()
{
    const QString word = u"a"_s.repeated(100000);
    const QString text = RtfDocument(rtf(word)).toPlainText();
    for (const QString &line : text.split(u'\n'))
        QVERIFY(line.size() <= 1025);
    QCOMPARE(QString(text).remove(u'\n'), word);
    QCOMPARE(RtfDocument(rtf(u"\U0001F600"_s.repeated(1000))).toPlainText().count(u"\U0001F600"_s), 1000);
}

void tst_RtfSurvival::noPictureIsLoaded()
{
    struct Watched : QTextDocument {
        int loads = 0;
        QVariant loadResource(int, const QUrl &) override
        {
            ++loads;
            return {};
        }
    } document;
    readRtf(rtf(uR"({\field{\*\fldinst INCLUDEPICTURE "file:///etc/hostname"}{\fldrslt a}}<img src="x">)"_s), document);
    document.setTextWidth(100);
    QVERIFY(document.size().height() > 0);
    QCOMPARE(document.loads, 0);
    QCOMPARE(document.toPlainText(), u"a<img src=\"x\">"_s);
}

void tst_RtfSurvival::lookingAtAnyDocumentEnds()
{
    QString body = u"{\\fonttbl"_s;
    for (int i = 0; i < 1000; ++i)
        body += u"{\\f%1 F%1;}"_s.arg(i);
    body += u'}';
    for (int i = 0; i < 20000; ++i)
        body += u"\\f%1\\fs%2\\up%3 a\u05D0\\tx31680\\tab"_s.arg(i % 1000).arg(i % 30 + 2).arg(i % 7);
    RtfDocument document(rtf(body));
    document.setTextWidth(600);
    QVERIFY(document.size().height() > 0);
    QVERIFY(document.characterCount() > 30000);
}

QTEST_MAIN(tst_RtfSurvival)
#include "tst_RtfSurvival.moc"
