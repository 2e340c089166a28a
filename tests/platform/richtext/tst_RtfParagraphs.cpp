// Indents, tabs, alignment and bullets, as they are kept and as they are laid out.
#include "platform/richtext/RtfDocument.h"

#include <QAbstractTextDocumentLayout>
#include <QTest>
#include <QTextLayout>
#include <QTextList>

using namespace Qt::Literals::StringLiterals;
using namespace orvane;
using namespace orvane::test;

namespace
{

constexpr double Margin = 4; // of the document, on each side

QString bullet(int indent)
{
    return uR"(\pard\li%1\fi-%1{\*\pn\pnlvlblt\pnf1\pnindent%1{\pntxtb\'b7}}\plain\f2\fs24 {\pntext\f1\'b7\tab})"_s.arg(
        indent);
}

const QString LongText = u"so many words that they need more than one line "_s.repeated(4);

} // namespace

class tst_RtfParagraphs : public QObject
{
    Q_OBJECT

private slots:
    void wordsGiveTheParagraphFormat_data();
    void wordsGiveTheParagraphFormat();
    void alignmentIsKept_data();
    void alignmentIsKept();
    void absurdLengthsLeaveRoomForText_data();
    void absurdLengthsLeaveRoomForText();
    void aParagraphKeepsItsFormatUntilPard();
    void aGroupGivesBackTheParagraphFormat();
    void aBulletIsNotInTheText();
    void bulletsGoOnUntilPard();
    void aBulletHangsAtItsIndent_data();
    void aBulletHangsAtItsIndent();
    void aBulletHasRoomWithoutIndents();
    void numbersOfAListStayText();
    void aNumberedActionHangs();
    void aHangingParagraphNeedsNoTabStop();
    void tabStopsCountFromTheMargin();
    void tabTypesAreKept();
    void defaultTabsAreTheDocuments();
    void aPageBreakIsBeforeItsParagraph();
};

void tst_RtfParagraphs::wordsGiveTheParagraphFormat_data()
{
    QTest::addColumn<QString>("words");
    QTest::addColumn<QList<double>>("lengths"); // left, right, first, before, after
    QTest::newRow("none") << u""_s << QList<double>{0, 0, 0, 0, 0};
    QTest::newRow("left") << uR"(\li720)"_s << QList<double>{48, 0, 0, 0, 0};
    QTest::newRow("phase heading") << uR"(\li2160)"_s << QList<double>{144, 0, 0, 0, 0};
    QTest::newRow("right") << uR"(\ri360)"_s << QList<double>{0, 24, 0, 0, 0};
    QTest::newRow("first") << uR"(\fi150)"_s << QList<double>{0, 0, 10, 0, 0};
    QTest::newRow("hanging") << uR"(\li360\fi-360)"_s << QList<double>{24, 0, -24, 0, 0};
    QTest::newRow("space") << uR"(\sb60\sa120)"_s << QList<double>{0, 0, 0, 4, 8};
    QTest::newRow("no whole pixel") << uR"(\li283)"_s << QList<double>{283 / 15.0, 0, 0, 0, 0};
}

void tst_RtfParagraphs::wordsGiveTheParagraphFormat()
{
    QFETCH(QString, words);
    const QTextBlockFormat format = RtfDocument(page(words + u" text"_s)).paragraph(0);
    const QList<double> lengths{format.leftMargin(), format.rightMargin(), format.textIndent(), format.topMargin(),
                                format.bottomMargin()};
    QTEST(lengths, "lengths");
}

void tst_RtfParagraphs::alignmentIsKept_data()
{
    QTest::addColumn<Qt::Alignment>("alignment");
    QTest::newRow("\\ql") << Qt::Alignment(Qt::AlignLeft);
    QTest::newRow("\\qr") << Qt::Alignment(Qt::AlignRight);
    QTest::newRow("\\qc") << Qt::Alignment(Qt::AlignHCenter);
    QTest::newRow("\\qj") << Qt::Alignment(Qt::AlignJustify);
}

void tst_RtfParagraphs::alignmentIsKept()
{
    const QString word = QString::fromLatin1(QTest::currentDataTag());
    const RtfDocument document(page(u"\\qr one\\par\\pard"_s + word + u" two"_s));
    QTEST(document.paragraph(1).alignment() & Qt::AlignHorizontal_Mask, "alignment");
}

void tst_RtfParagraphs::absurdLengthsLeaveRoomForText_data()
{
    QTest::addColumn<QString>("words");
    QTest::newRow("left") << uR"(\li2147483647)"_s;
    QTest::newRow("both") << uR"(\li31680\ri31680)"_s;
    QTest::newRow("first") << uR"(\fi99999999999999999999)"_s;
    QTest::newRow("before the page") << uR"(\li-5000\fi-5000)"_s;
    QTest::newRow("bullet far out") << uR"({\*\pn\pnlvlblt\pnindent999999}\li99999\fi99999)"_s;
    QTest::newRow("bullet before the page") << uR"({\*\pn\pnlvlblt\pnindent-999999}\li-99999\fi-99999)"_s;
}

void tst_RtfParagraphs::absurdLengthsLeaveRoomForText()
{
    QFETCH(QString, words);
    const QTextBlockFormat format = RtfDocument(page(words + u" text"_s)).paragraph(0);
    QVERIFY(format.leftMargin() >= 0 && format.leftMargin() + format.textIndent() >= 0);
    QVERIFY(format.rightMargin() >= 0);
    QVERIFY(format.leftMargin() + format.rightMargin() <= 480);
    QVERIFY(format.leftMargin() + format.textIndent() <= 480);
}

void tst_RtfParagraphs::aParagraphKeepsItsFormatUntilPard()
{
    const RtfDocument document(page(uR"(\li720\qc one\par two\par\pard three)"_s));
    QCOMPARE(document.paragraph(1), document.paragraph(0));
    QCOMPARE(document.paragraph(2), QTextBlockFormat());
}

void tst_RtfParagraphs::aGroupGivesBackTheParagraphFormat()
{
    const RtfDocument document(page(uR"(\li720 one\par{\pard\qr two\par}three)"_s));
    QCOMPARE(document.paragraph(1).alignment(), Qt::AlignRight);
    QCOMPARE(document.paragraph(2), document.paragraph(0));
}

void tst_RtfParagraphs::aBulletIsNotInTheText()
{
    const RtfDocument document(page(bullet(360) + uR"(one\par {\pntext\f1\'b7\tab}two)"_s));
    QCOMPARE(document.toPlainText(), u"one\ntwo"_s);
    QVERIFY(document.block(0).textList());
    QCOMPARE(document.block(0).textList()->format().style(), QTextListFormat::ListDisc);
}

void tst_RtfParagraphs::bulletsGoOnUntilPard()
{
    const RtfDocument document(page(u"zero\\par "_s + bullet(360) +
                                    uR"(one\par two\par \plain\f2\fs24\b {\pntext\f1\'b7\tab}three\par\pard four)"_s));
    QList<bool> bullets;
    for (int i = 0; i < document.blockCount(); ++i)
        bullets.append(document.block(i).textList() != nullptr);
    QCOMPARE(bullets, (QList<bool>{false, true, true, true, false}));
}

void tst_RtfParagraphs::aBulletHangsAtItsIndent_data()
{
    QTest::addColumn<int>("twips");
    QTest::newRow("360") << 360;
    QTest::newRow("283") << 283;
}

void tst_RtfParagraphs::aBulletHangsAtItsIndent()
{
    QFETCH(int, twips);
    RtfDocument document(page(bullet(twips) + LongText));
    document.setTextWidth(400);
    QVERIFY(document.size().height() > 0);
    const QTextLayout *layout = document.block(0).layout();
    QVERIFY(layout->lineCount() > 1);
    for (int i = 0; i < layout->lineCount(); ++i)
        QVERIFY(std::abs(layout->lineAt(i).x() - twips / 15.0) < 0.1);
}

void tst_RtfParagraphs::aBulletHasRoomWithoutIndents()
{
    const RtfDocument document(page(uR"({\*\pn\pnlvlblt}one)"_s));
    QCOMPARE(document.paragraph(0).leftMargin(), 24.0);
    const RtfDocument wide(page(uR"({\*\pn\pnlvlblt\pnindent600}\li300 one)"_s));
    QCOMPARE(wide.paragraph(0).leftMargin(), 60.0);
}

void tst_RtfParagraphs::numbersOfAListStayText()
{
    const RtfDocument document(page(uR"({\*\pn\pnlvlbody\pndec{\pntxta .}}{\pntext\f2 1.\tab}one)"_s));
    QCOMPARE(document.toPlainText(), u"1.\tone"_s);
    QVERIFY(!document.block(0).textList());
}

void tst_RtfParagraphs::aNumberedActionHangs()
{
    RtfDocument document(
        page(uR"(\li360\fi-360\tx360\tx10024\plain\f2\fs24\b 1.\tab Assign \plain\f2\fs24 )"_s + LongText));
    document.setTextWidth(400);
    QVERIFY(document.size().height() > 0);
    const QTextLayout *layout = document.block(0).layout();
    QCOMPARE(layout->lineAt(0).cursorToX(0), 0.0);
    QCOMPARE(layout->lineAt(0).cursorToX(3), 24.0);
    QCOMPARE(layout->lineAt(1).x(), 24.0);
}

void tst_RtfParagraphs::aHangingParagraphNeedsNoTabStop()
{
    RtfDocument document(page(uR"(\li720\fi-360\plain\f2\fs24 1.\tab one)"_s));
    document.setTextWidth(400);
    QVERIFY(document.size().height() > 0);
    const QTextLine line = document.block(0).layout()->lineAt(0);
    QCOMPARE(line.cursorToX(0), 24.0);
    QCOMPARE(line.cursorToX(3), 48.0);
}

void tst_RtfParagraphs::tabStopsCountFromTheMargin()
{
    RtfDocument document(page(uR"(\li720\tx1500\tx3000\plain\f2\fs24 a\tab b\tab c)"_s));
    document.setTextWidth(400);
    QVERIFY(document.size().height() > 0);
    const QTextLine line = document.block(0).layout()->lineAt(0);
    QCOMPARE(line.cursorToX(2), 100.0);
    QCOMPARE(line.cursorToX(4), 200.0);
}

void tst_RtfParagraphs::tabTypesAreKept()
{
    const RtfDocument document(page(uR"(\tqdec\tx4500\tqr\tx3000\tqc\tx1500\tx150\tx150 a)"_s));
    const QList<QTextOption::Tab> expected{{10, QTextOption::LeftTab, u'.'},
                                           {100, QTextOption::CenterTab, u'.'},
                                           {200, QTextOption::RightTab, u'.'},
                                           {300, QTextOption::DelimiterTab, u'.'}};
    QCOMPARE(document.paragraph(0).tabPositions(), expected);
}

void tst_RtfParagraphs::defaultTabsAreTheDocuments()
{
    QTextDocument document;
    readRtf(uR"({\rtf1\deftab300 a\tab b})"_s, document);
    QCOMPARE(document.defaultTextOption().tabStopDistance(), 20.0);
    readRtf(page(u" a"_s), document);
    QCOMPARE(document.defaultTextOption().tabStopDistance(), 48.0);
}

void tst_RtfParagraphs::aPageBreakIsBeforeItsParagraph()
{
    const RtfDocument document(uR"({\rtf1 one\page two\par\page\par three\page})"_s);
    QCOMPARE(document.toPlainText(), u"one\ntwo\n\nthree"_s);
    QList<bool> breaks;
    for (int i = 0; i < document.blockCount(); ++i)
        breaks.append(document.paragraph(i).pageBreakPolicy() == QTextFormat::PageBreak_AlwaysBefore);
    QCOMPARE(breaks, (QList<bool>{false, true, true, false}));
}

QTEST_MAIN(tst_RtfParagraphs)
#include "tst_RtfParagraphs.moc"
