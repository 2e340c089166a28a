// The chunks that pages are joined from, and whole pages.
#include "platform/richtext/RtfDocument.h"

#include <QTest>

using namespace Qt::Literals::StringLiterals;
using namespace orvane;
using namespace orvane::test;

class tst_RtfPages : public QObject
{
    Q_OBJECT

private slots:
    void aChunkGivesItsText_data();
    void aChunkGivesItsText();
    void aSizeIsHalfPoints_data();
    void aSizeIsHalfPoints();
    void runCodesGiveTheLook_data();
    void runCodesGiveTheLook();
    void aRunIsReplacedByTheNextPlain();
    void theRedVariantIsRed();
    void blanksBehindTheHeaderAreNoText();
    void theClosingOpensNoParagraph_data();
    void theClosingOpensNoParagraph();
    void actionsReadAsNumberDotTabWordBlank();
    void aSampleReadsAsItsText_data();
    void aSampleReadsAsItsText();
    void fontNamesOfOtherProgramsAreRead();
    void aBodyCutOffKeepsWhatCame();
};

void tst_RtfPages::aChunkGivesItsText_data()
{
    QTest::addColumn<QString>("body");
    QTest::addColumn<QString>("text");
    const QString first = uR"(\plain\f2\fs24 a)"_s;
    QTest::newRow("one paragraph") << first << u"a"_s;
    QTest::newRow("bare break") << first + uR"(\par b)"_s << u"a\nb"_s;
    QTest::newRow("blank paragraph") << first + uR"(\par \plain\f2\fs24 \par b)"_s << u"a\n\nb"_s;
    QTest::newRow("back to the margin") << first + uR"(\par \pard\plain\f2\fs24 b)"_s << u"a\nb"_s;
    QTest::newRow("indented") << first + uR"(\par \pard\li720\plain\f2\fs24 b)"_s << u"a\nb"_s;
    QTest::newRow("spacer") << first + uR"(\par \plain\f2\fs12 \par b)"_s << u"a\n\nb"_s;
    QTest::newRow("tab reset") << first + uR"(\par \pard\tx360\plain\f2\fs24\par b)"_s << u"a\n\nb"_s;
    QTest::newRow("first bullet, 360") << first +
                                              uR"(\par \pard\li360\fi-360\tx360{\*\pn\pnlvlblt\pnf1\pnindent360)"_s +
                                              uR"({\pntxtb\'b7}}\plain\f2\fs24 {\pntext\f1\'b7\tab}b)"_s
                                       << u"a\nb"_s;
    QTest::newRow("first bullet, 283") << first + uR"(\par \pard\li283\fi-283{\*\pn\pnlvlblt\pnf1\pnindent283)"_s +
                                              uR"({\pntxtb\'b7}}\plain\f2\fs24 {\pntext\f1\'b7\tab}b)"_s
                                       << u"a\nb"_s;
    QTest::newRow("further bullet") << first + uR"(\par {\pntext\f1\'b7\tab}b)"_s << u"a\nb"_s;
    QTest::newRow("bold bullet") << first + uR"(\par \plain\f2\fs24\b {\pntext\f1\'b7\tab}b)"_s << u"a\nb"_s;
    QTest::newRow("first action") << uR"(\li360\fi-360\tx360\tx10024\plain\f2\fs24\b 1.\tab Assign \plain\f2\fs24 a)"_s
                                  << u"1.\tAssign a"_s;
    QTest::newRow("further action") << first + uR"(\par \plain\f2\fs24\b 2.\tab Write \plain\f2\fs24 b)"_s
                                    << u"a\n2.\tWrite b"_s;
    QTest::newRow("emphasis") << first + uR"(\plain\f2\fs24\b  Each\plain\f2\fs24  b)"_s << u"a Each b"_s;
    QTest::newRow("step line") << uR"(\plain\f2\fs24\b Step 1\plain\f2\fs24 \tab \tab Action Team )"_s
                               << u"Step 1\t\tAction Team "_s;
    QTest::newRow("step line, tab in the bold run")
        << uR"(\plain\f2\fs24\b Step 21\tab \plain\f2\fs24 Records )"_s << u"Step 21\tRecords "_s;
    QTest::newRow("ellipsis") << uR"(\plain\f2\fs26\b\i Hot tips\'85 )"_s << u"Hot tips\u2026 "_s;
    QTest::newRow("dash in a title") << uR"(\plain\f2\fs32\b ISO \endash  Route )"_s << u"ISO \u2013 Route "_s;
}

void tst_RtfPages::aChunkGivesItsText()
{
    QFETCH(QString, body);
    QFETCH(QString, text);
    QCOMPARE(RtfDocument(page(body)).toPlainText(), text);
}

void tst_RtfPages::aSizeIsHalfPoints_data()
{
    QTest::addColumn<int>("halfPoints");
    for (const int halfPoints : {34, 32, 30, 28, 26, 24, 20, 19, 18, 17, 12})
        QTest::addRow("%d", halfPoints) << halfPoints;
}

void tst_RtfPages::aSizeIsHalfPoints()
{
    QFETCH(int, halfPoints);
    const RtfDocument document(page(uR"(\plain\f2\fs%1 word)"_s.arg(halfPoints)));
    QCOMPARE(document.look(u"word"_s).fontPointSize(), halfPoints / 2.0);
}

void tst_RtfPages::runCodesGiveTheLook_data()
{
    QTest::addColumn<QString>("codes");
    QTest::addColumn<bool>("bold");
    QTest::addColumn<bool>("italic");
    QTest::addColumn<bool>("underline");
    QTest::newRow("body") << uR"(\plain\f2\fs24 )"_s << false << false << false;
    QTest::newRow("key word") << uR"(\plain\f2\fs24\b )"_s << true << false << false;
    QTest::newRow("bold italic heading") << uR"(\plain\f2\fs26\b\i )"_s << true << true << false;
    QTest::newRow("underlined heading") << uR"(\plain\f2\fs28\b\ul )"_s << true << false << true;
}

void tst_RtfPages::runCodesGiveTheLook()
{
    QFETCH(QString, codes);
    const RtfDocument document(page(codes + u"word"_s));
    const QTextCharFormat look = document.look(u"word"_s);
    QCOMPARE(look.fontFamilies().toStringList(), QStringList{u"Times New Roman"_s});
    QTEST(look.fontWeight() == QFont::Bold, "bold");
    QTEST(look.fontItalic(), "italic");
    QTEST(look.fontUnderline(), "underline");
}

void tst_RtfPages::aRunIsReplacedByTheNextPlain()
{
    const RtfDocument document(page(uR"(\plain\f2\fs28\b\i\ul\up6 one\plain two)"_s));
    const QTextCharFormat look = document.look(u"two"_s);
    QCOMPARE(look.fontFamilies().toStringList(), QStringList{u"MS Sans Serif"_s});
    QCOMPARE(look.fontPointSize(), 12.0);
    QCOMPARE(look.fontWeight(), int(QFont::Normal));
    QVERIFY(!look.fontItalic() && !look.fontUnderline());
    QCOMPARE(look.baselineOffset(), 0.0);
}

void tst_RtfPages::theRedVariantIsRed()
{
    const RtfDocument document(QString::fromLatin1(sampleBytes(u"tips_heading.rtf"_s)));
    QCOMPARE(document.look(u"Click"_s).foreground().color(), QColor(Qt::red));
    QVERIFY(!document.look(u"Hot Tips"_s).hasProperty(QTextFormat::ForegroundBrush));
}

void tst_RtfPages::blanksBehindTheHeaderAreNoText()
{
    const RtfDocument document(PageFonts + u' ' + PageColours + u' ' + PageStart + uR"(\plain\f2\fs32\b Using }})"_s);
    QCOMPARE(document.toPlainText(), u"Using "_s);
    QCOMPARE(RtfDocument(uR"({\rtf1\pard  a})"_s).toPlainText(), u" a"_s);
}

void tst_RtfPages::theClosingOpensNoParagraph_data()
{
    QTest::addColumn<QString>("rtf");
    QTest::addColumn<int>("paragraphs");
    QTest::newRow("mark and brace") << uR"({\rtf1 a\par })"_s << 1;
    QTest::newRow("blank behind the brace") << uR"({\rtf1 a\par } )"_s << 1;
    QTest::newRow("no mark") << uR"({\rtf1 a})"_s << 1;
    QTest::newRow("no brace") << uR"({\rtf1 a\par)"_s << 1;
    QTest::newRow("look behind the text") << uR"({\rtf1 a\plain\f0\fs17\par })"_s << 1;
    QTest::newRow("two marks") << uR"({\rtf1 a\par\par })"_s << 2;
    QTest::newRow("a mark alone") << uR"({\rtf1\par })"_s << 1;
    QTest::newRow("nothing") << uR"({\rtf1})"_s << 1;
}

void tst_RtfPages::theClosingOpensNoParagraph()
{
    QFETCH(QString, rtf);
    QTEST(RtfDocument(rtf).blockCount(), "paragraphs");
}

void tst_RtfPages::actionsReadAsNumberDotTabWordBlank()
{
    const RtfDocument document(QString::fromLatin1(sampleBytes(u"implementation.rtf"_s)));
    const QStringList lines = document.toPlainText().split(u'\n');
    const QStringList words{u"Assign"_s,  u"Write"_s,    u"Design"_s, u"Identify"_s,
                            u"Prepare"_s, u"Document"_s, u"Test"_s};
    QCOMPARE(lines.size(), words.size());
    for (int i = 0; i < words.size(); ++i)
        QVERIFY2(lines[i].startsWith(u"%1.\t%2 "_s.arg(i + 1).arg(words[i])), qPrintable(lines[i]));
    QCOMPARE(document.toPlainText().count(u".\t"_s), words.size());
}

void tst_RtfPages::aSampleReadsAsItsText_data()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("section1.rtf") << u"Welcome to orvane\n\n\u201CSmall steps\u201D is how it\u2019s done \u2013 one "
                                     u"at a time.\n\nCommand Center "
                                     u"\n\nFrom here every part of the system is a click away."_s;
    QTest::newRow("section2.rtf")
        << u"Using this Guide \n\nPHASE I\t\tPolicy and Planning \nPHASE II\t\tImplementation "
           u"\nImplementation action\u2026 \n\nThe actions are numbered.\norvane(R) "
           u"advice\u2026 "_s;
    QTest::newRow("print_heading.rtf") << u"The Requirement in brief\u2026\u2026."_s;
    QTest::newRow("word_processor.rtf") << u"Bold and italic text.\na link and a place.\none\ttwo\t\nMueller\nlast"_s;
    QTest::newRow("binary_picture.rtf") << u"before betweenafter"_s;
    QTest::newRow("unicode.rtf")
        << u"\u041F\u0440\u0438\u0432\u0435\u0442 \u20AC\U0001F600 caf\u00E9 na\u00EFve day so\u00ADso well\u2011known"_s;
    QTest::newRow("eastern_code_page.rtf") << u"\u0105\u0107 \u041F\u0440 \u00E9"_s;
    QTest::newRow("deep_groups.rtf") << u"top back"_s;
}

void tst_RtfPages::aSampleReadsAsItsText()
{
    const QByteArray bytes = sampleBytes(QString::fromLatin1(QTest::currentDataTag()));
    QVERIFY(!bytes.isEmpty());
    QTEST(RtfDocument(QString::fromLatin1(bytes)).toPlainText(), "text");
}

void tst_RtfPages::fontNamesOfOtherProgramsAreRead()
{
    const RtfDocument document(QString::fromLatin1(sampleBytes(u"word_processor.rtf"_s)));
    QCOMPARE(document.look(u"Bold"_s).fontFamilies().toStringList(), QStringList{u"Cambria"_s});
    QCOMPARE(document.look(u"last"_s).fontFamilies().toStringList(), QStringList{u"Times New Roman"_s});
}

void tst_RtfPages::aBodyCutOffKeepsWhatCame()
{
    const QString rtf = page(uR"(\plain\f2\fs24 )"_s + u"All of it is wanted. "_s.repeated(500));
    const RtfDocument document(rtf.left(8190));
    QVERIFY(document.toPlainText().startsWith(u"All of it is wanted. All"_s));
    QVERIFY(document.characterCount() > 7900);
}

QTEST_MAIN(tst_RtfPages)
#include "tst_RtfPages.moc"
