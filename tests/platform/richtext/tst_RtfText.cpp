// Characters: what stands for itself, what has a word, a byte or a number; looks; plain text.
#include "platform/richtext/DocumentDifference.h"
#include "platform/richtext/RtfDocument.h"

#include <QTest>

using namespace Qt::Literals::StringLiterals;
using namespace orvane;
using namespace orvane::test;

namespace
{

QString textOf(const QString &body)
{
    return RtfDocument(u"{\\rtf1\\ansi "_s + body + u'}').toPlainText();
}

} // namespace

class tst_RtfText : public QObject
{
    Q_OBJECT

private slots:
    void aBodyReadsAs_data();
    void aBodyReadsAs();
    void aByteIsOfTheFontsCharset_data();
    void aByteIsOfTheFontsCharset();
    void whatIsNoTextIsLeftOut_data();
    void whatIsNoTextIsLeftOut();
    void onlyTextThatBeginsSoIsRtf_data();
    void onlyTextThatBeginsSoIsRtf();
    void otherTextIsPutAsItIs_data();
    void otherTextIsPutAsItIs();
    void plainTextIsInTheDocumentsFont();
    void aWordWithZeroSwitchesOff();
    void aColourThatIsNotThereIsTheViews();
    void raisedTextKeepsItsSize();
    void superscriptIsTheToolkits();
    void aFontByNumberIsOfTheTable_data();
    void aFontByNumberIsOfTheTable();
    void equalRunsAreOne();
    void aReadReplacesTheDocument();
    void aReadIsOneChangeWithoutUndo();
};

void tst_RtfText::aBodyReadsAs_data()
{
    QTest::addColumn<QString>("body");
    QTest::addColumn<QString>("text");
    QTest::newRow("braces and backslash") << uR"(\{a\}\\)"_s << uR"({a}\)"_s;
    QTest::newRow("single quotes") << uR"(\lquote a\rquote b)"_s << u"\u2018a\u2019b"_s;
    QTest::newRow("double quotes") << uR"(\ldblquote a\rdblquote )"_s << u"\u201Ca\u201D"_s;
    QTest::newRow("dashes") << uR"(a\endash\emdash  b)"_s << u"a\u2013\u2014 b"_s;
    QTest::newRow("bullet") << uR"(\bullet)"_s << u"\u2022"_s;
    QTest::newRow("spaces") << uR"(\emspace\enspace\qmspace a)"_s << u"\u2003\u2002\u2005a"_s;
    QTest::newRow("tab") << uR"(a\tab b)"_s << u"a\tb"_s;
    QTest::newRow("raw tab") << u"a\tb\\\tc"_s << u"a\tb\tc"_s;
    QTest::newRow("line") << uR"(a\line b)"_s << u"a\nb"_s;
    QTest::newRow("escaped line end") << u"a\\\nb\\\rc"_s << u"a\nb\nc"_s;
    QTest::newRow("section") << uR"(a\sect b)"_s << u"a\nb"_s;
    QTest::newRow("raw line ends") << u"a\r\nb\nc"_s << u"abc"_s;
    QTest::newRow("soft and hard hyphens") << uR"(a\-b\_c)"_s << u"a\u00ADb\u2011c"_s;
    QTest::newRow("bytes") << uR"(\'41\'e9\'80\'9F)"_s << u"A\u00E9\u20AC\u0178"_s;
    QTest::newRow("raw characters") << u"\u00E9\u20AC"_s << u"\u00E9\u20AC"_s;
    QTest::newRow("unicode") << uR"(\u8364?\u-3913 x.)"_s << u"\u20AC\uF0B7."_s;
    QTest::newRow("two surrogates") << uR"(\u-10179?\u-8704?)"_s << u"\U0001F600"_s;
    QTest::newRow("beyond 16 bits") << uR"(\u128512?)"_s << u"\U0001F600"_s;
    QTest::newRow("as text of several characters") << uR"(\uc3\u8364EUR.)"_s << u"\u20AC."_s;
    QTest::newRow("skipped across tokens") << uR"(\uc4\u8364a\'e9\b\~b)"_s << u"\u20ACb"_s;
    QTest::newRow("a brace ends the skipping") << uR"({\uc5\u8364 a}b)"_s << u"\u20ACb"_s;
    QTest::newRow("none to skip") << uR"(\uc0\u8364 a)"_s << u"\u20ACa"_s;
    QTest::newRow("a group keeps its count") << uR"({\uc0\u8364}\u8364?a)"_s << u"\u20AC\u20ACa"_s;
    QTest::newRow("one blank parts a word") << uR"(\b  a\b0  b)"_s << u" a b"_s;
    QTest::newRow("a number parts a word") << uR"(\fs24a\b1-2)"_s << u"a-2"_s;
    QTest::newRow("table") << uR"(\trowd a\cell b\cell\row c)"_s << u"a\tb\t\nc"_s;
}

void tst_RtfText::aBodyReadsAs()
{
    QFETCH(QString, body);
    QFETCH(QString, text);
    QCOMPARE(textOf(body), text);
}

void tst_RtfText::aByteIsOfTheFontsCharset_data()
{
    QTest::addColumn<QString>("head");
    QTest::addColumn<QString>("text");
    QTest::newRow("western") << uR"({\fonttbl{\f0\fcharset0 A;}})"_s << u"\u00B7\u00E9"_s;
    QTest::newRow("no charset") << uR"({\fonttbl{\f0 A;}})"_s << u"\u00B7\u00E9"_s;
    QTest::newRow("symbol") << uR"({\fonttbl{\f0\fcharset2 A;}})"_s << u"\u2022\u00E9"_s;
    QTest::newRow("cyrillic") << uR"({\fonttbl{\f0\fcharset204 A;}})"_s << u"\u00B7\u0439"_s;
    QTest::newRow("the document's") << uR"(\ansicpg1251{\fonttbl{\f0 A;}})"_s << u"\u00B7\u0439"_s;
    QTest::newRow("the document's, no fonts") << uR"(\ansicpg1251)"_s << u"\u00B7\u0439"_s;
    QTest::newRow("unknown page") << uR"(\ansicpg932)"_s << u"\u00B7\u00E9"_s;
}

void tst_RtfText::aByteIsOfTheFontsCharset()
{
    QFETCH(QString, head);
    QFETCH(QString, text);
    QCOMPARE(textOf(head + uR"(\'b7\'e9)"_s), text);
}

void tst_RtfText::whatIsNoTextIsLeftOut_data()
{
    QTest::addColumn<QString>("body");
    QTest::newRow("unknown word") << uR"(ab\wonderful12 c)"_s;
    QTest::newRow("starred group") << uR"(a{\*\wonderful x{y}z}bc)"_s;
    QTest::newRow("starred group of a known word") << uR"(a{\*\b x}bc)"_s;
    QTest::newRow("information") << uR"({\info{\title x}}abc)"_s;
    QTest::newRow("styles") << uR"({\stylesheet{\s1\b x;}}abc)"_s;
    QTest::newRow("header") << uR"({\header x\par}abc)"_s;
    QTest::newRow("footnote") << uR"(abc{\footnote x})"_s;
    QTest::newRow("picture") << uR"(a{\pict\wmetafile8 00ff}bc)"_s;
    QTest::newRow("instruction of a field") << uR"({\field{\*\fldinst HYPERLINK "x"}{\fldrslt abc}})"_s;
    QTest::newRow("bookmark") << uR"(a{\*\bkmkstart x}bc)"_s;
    QTest::newRow("text of a bullet") << uR"({\pntext\f1\'b7\tab}abc)"_s;
    QTest::newRow("text of a bullet's definition") << uR"({\*\pn\pnlvlblt{\pntxtb x}y}abc)"_s;
    QTest::newRow("colour names") << uR"({\colortbl x;\red1 y;}abc)"_s;
    QTest::newRow("other symbols") << uR"(a\|b\:c)"_s;
    QTest::newRow("control characters") << u"a\u0001b\u001Fc"_s;
    QTest::newRow("control characters as bytes") << uR"(a\'00\'01\'0d\'0ab\'1fc)"_s;
    QTest::newRow("control characters by number") << uR"(a\u0?\u10?b\u13?c)"_s;
    QTest::newRow("object and frame marks") << u"a\uFFFCb\uFDD0\uFDD1\\u-4?c\\u8233?"_s;
    QTest::newRow("raw paragraph separator") << u"ab\u2029c"_s;
    QTest::newRow("numbers that are no character") << uR"(a\u1114112?b\u-99999?c\u99999999999?)"_s;
}

void tst_RtfText::whatIsNoTextIsLeftOut()
{
    QFETCH(QString, body);
    QCOMPARE(textOf(body), u"abc"_s);
}

void tst_RtfText::onlyTextThatBeginsSoIsRtf_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<bool>("rtf");
    QTest::newRow("usual") << uR"({\rtf1 a})"_s << true;
    QTest::newRow("no version") << uR"({\rtf})"_s << true;
    QTest::newRow("cut off") << uR"({\rtf)"_s << true;
    QTest::newRow("blanks before") << u" \r\n\t{\\rtf1 a}"_s << true;
    QTest::newRow("empty") << u""_s << false;
    QTest::newRow("blanks") << u"   "_s << false;
    QTest::newRow("no entry") << u"(none)"_s << false;
    QTest::newRow("other word") << uR"({\rtfx a})"_s << false;
    QTest::newRow("shorter word") << uR"({\rt)"_s << false;
    QTest::newRow("text before") << uR"(a{\rtf1 a})"_s << false;
    QTest::newRow("capitals") << uR"({\RTF1 a})"_s << false;
}

void tst_RtfText::onlyTextThatBeginsSoIsRtf()
{
    QFETCH(QString, text);
    QTEST(isRtf(text), "rtf");
}

void tst_RtfText::otherTextIsPutAsItIs_data()
{
    QTest::addColumn<QString>("put");
    QTest::addColumn<QString>("text");
    QTest::newRow("no entry") << u"(none)"_s << u"(none)"_s;
    QTest::newRow("empty") << u""_s << u""_s;
    QTest::newRow("braces") << uR"(a {\b b})"_s << uR"(a {\b b})"_s;
    QTest::newRow("lines") << u"a\r\nb\nc\rd\n"_s << u"a\nb\nc\nd\n"_s;
    QTest::newRow("tab") << u" a\tb"_s << u" a\tb"_s;
    QTest::newRow("no text") << u"a\u0001b\uFFFC\uFDD0"_s << u"ab"_s;
}

void tst_RtfText::otherTextIsPutAsItIs()
{
    QFETCH(QString, put);
    QFETCH(QString, text);
    QCOMPARE(RtfDocument(put).toPlainText(), text);
}

void tst_RtfText::plainTextIsInTheDocumentsFont()
{
    QTextDocument document;
    QFont font(u"Arial"_s);
    font.setPointSizeF(9.75);
    font.setBold(true);
    document.setDefaultFont(font);
    readRtf(u"(none)"_s, document);
    const QTextCharFormat look = document.begin().begin().fragment().charFormat();
    QCOMPARE(look.fontFamilies().toStringList(), QStringList{u"Arial"_s});
    QCOMPARE(look.fontPointSize(), 10.0);
    QCOMPARE(look.fontWeight(), int(QFont::Bold));
}

void tst_RtfText::aWordWithZeroSwitchesOff()
{
    const RtfDocument document(page(uR"(\b\i\ul one\b0\i0\ul0 two\ul three\ulnone four)"_s));
    const QTextCharFormat look = document.look(u"two"_s);
    QVERIFY(look.fontWeight() == QFont::Normal && !look.fontItalic() && !look.fontUnderline());
    QVERIFY(document.look(u"three"_s).fontUnderline());
    QVERIFY(!document.look(u"four"_s).fontUnderline());
}

void tst_RtfText::aColourThatIsNotThereIsTheViews()
{
    const RtfDocument document(
        u"{\\rtf1{\\colortbl;\\red300\\green-5\\blue7;}\\cf1 one\\cf0 two\\cf2 three\\cf-1 four}"_s);
    QCOMPARE(document.look(u"one"_s).foreground().color(), QColor(255, 0, 7));
    QVERIFY(!document.look(u"two"_s).hasProperty(QTextFormat::ForegroundBrush));
    QVERIFY(!document.look(u"three"_s).hasProperty(QTextFormat::ForegroundBrush));
    QVERIFY(!document.look(u"four"_s).hasProperty(QTextFormat::ForegroundBrush));
}

void tst_RtfText::raisedTextKeepsItsSize()
{
    const RtfDocument document(page(uR"(\plain\f2\fs19\b\up14 up\dn4 down\up0 level)"_s));
    QCOMPARE(document.look(u"up"_s).fontPointSize(), 9.5);
    QVERIFY(document.look(u"up"_s).baselineOffset() > 50);
    QVERIFY(document.look(u"down"_s).baselineOffset() < 0);
    QCOMPARE(document.look(u"level"_s).baselineOffset(), 0.0);
}

void tst_RtfText::superscriptIsTheToolkits()
{
    const RtfDocument document(page(uR"(\super one\nosupersub two\sub three)"_s));
    QCOMPARE(document.look(u"one"_s).verticalAlignment(), QTextCharFormat::AlignSuperScript);
    QCOMPARE(document.look(u"two"_s).verticalAlignment(), QTextCharFormat::AlignNormal);
    QCOMPARE(document.look(u"three"_s).verticalAlignment(), QTextCharFormat::AlignSubScript);
}

void tst_RtfText::aFontByNumberIsOfTheTable_data()
{
    QTest::addColumn<QString>("body");
    QTest::addColumn<QString>("family");
    const QString fonts =
        uR"(\deff3{\fonttbl{\f0\fnil One;}{\f3{\*\panose 01}Th\'72ee{\*\falt Four};}{\f-7 Minus;}})"_s;
    QTest::newRow("default") << fonts + u" word"_s << u"Three"_s;
    QTest::newRow("number") << fonts + u"\\f0 word"_s << u"One"_s;
    QTest::newRow("negative") << fonts + u"\\f-7 word"_s << u"Minus"_s;
    QTest::newRow("not there") << fonts + u"\\f9999999 word"_s << u"Three"_s;
    QTest::newRow("back by plain") << fonts + u"\\f0\\plain word"_s << u"Three"_s;
    QTest::newRow("without groups") << u"{\\fonttbl\\f0\\fswiss One;\\f1 Two;}\\f1 word"_s << u"Two"_s;
    QTest::newRow("no table") << u" word"_s << QTextDocument().defaultFont().families().value(0);
}

void tst_RtfText::aFontByNumberIsOfTheTable()
{
    QFETCH(QString, body);
    const RtfDocument document(u"{\\rtf1"_s + body + u'}');
    QTEST(document.look(u"word"_s).fontFamilies().toStringList().value(0), "family");
}

void tst_RtfText::equalRunsAreOne()
{
    const RtfDocument document(page(uR"(\plain\f2\fs24 a\plain\f2\fs24 b{\b0 c}\'e9\u8364?\i\i0 d)"_s));
    QCOMPARE(document.toPlainText(), u"abc\u00E9\u20ACd"_s);
    QCOMPARE(document.runs(), 1);
}

void tst_RtfText::aReadReplacesTheDocument()
{
    QTextDocument document;
    readRtf(page(u"\\qc\\b one\\par two"_s), document);
    readRtf(page(u" three"_s), document);
    QCOMPARE(difference(document, RtfDocument(page(u" three"_s))), QString());
}

void tst_RtfText::aReadIsOneChangeWithoutUndo()
{
    QTextDocument document(u"before"_s);
    int changes = 0;
    connect(&document, &QTextDocument::contentsChanged, this, [&] { ++changes; });
    readRtf(page(u" one\\par two\\b  three"_s), document);
    QCOMPARE(changes, 1);
    QVERIFY(document.isUndoRedoEnabled());
    QVERIFY(!document.isUndoAvailable());
    QVERIFY(!document.isModified());
}

QTEST_MAIN(tst_RtfText)
#include "tst_RtfText.moc"
