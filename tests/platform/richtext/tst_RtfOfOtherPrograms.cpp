// Documents that other programs have written: the samples say what these programs themselves tell of them.
#include "platform/richtext/DocumentDifference.h"
#include "platform/richtext/FactsComparison.h"
#include "platform/richtext/FactsFile.h"
#include "platform/richtext/RtfDocument.h"

#include <QDir>
#include <QTest>

using namespace Qt::Literals::StringLiterals;
using namespace orvane;
using namespace orvane::test;

namespace
{

void addSamples()
{
    QTest::addColumn<QString>("name");
    for (const QString &program : {u"libreoffice"_s, u"abiword"_s, u"pandoc"_s}) {
        const QDir folder(QStringLiteral(ORVANE_TEST_DATA "/rtf/") + program);
        for (const QString &file : folder.entryList({u"*.rtf"_s})) {
            const QString name = program + u'/' + file.chopped(4);
            QTest::newRow(qPrintable(name)) << name;
        }
    }
}

} // namespace

class tst_RtfOfOtherPrograms : public QObject
{
    Q_OBJECT

private slots:
    void aSampleSaysTheSameAsItsProgram_data();
    void aSampleSaysTheSameAsItsProgram();
    void aSampleReadsBackTheSame_data();
    void aSampleReadsBackTheSame();
    void aListsLabelIsItsBullet_data();
    void aListsLabelIsItsBullet();
    void aListsNumberIsText_data();
    void aListsNumberIsText();
    void aLabelIsOfOneParagraph();
    void aLabelWithoutTextIsNone();
    void bulletsAreWrittenForThemToo();
    void aTextWithoutBulletsHasNoLists();
    void charactersAreWrittenWithoutStandIns();
    void aBlankIsBetweenEachWordAndItsText();
    void looksAreSwitchedOffOneByOne();
    void theResultOfAFieldIsText_data();
    void theResultOfAFieldIsText();
};

void tst_RtfOfOtherPrograms::aSampleSaysTheSameAsItsProgram_data()
{
    addSamples();
}

void tst_RtfOfOtherPrograms::aSampleSaysTheSameAsItsProgram()
{
    QFETCH(QString, name);
    const Letters ours = lettersOf(RtfDocument(QString::fromLatin1(sampleBytes(name + u".rtf"_s))));
    const Letters theirs = fromLines(QString::fromUtf8(sampleBytes(name + u".facts"_s)));
    const Figures figures = FactsComparison().compare(ours, theirs, wordsOf(theirs));
    QVERIFY(figures.words.all > 20);
    QCOMPARE(figures.words.amiss, 0);
    // It closes the paragraph of a cell before it ends the cell, so that a cell comes as a paragraph.
    QCOMPARE(figures.paragraphs.amiss, name == u"pandoc/table"_s ? 6 : 0);
    QCOMPARE(figures.bold.amiss, 0);
    QCOMPARE(figures.italic.amiss, 0);
    QCOMPARE(figures.sizes.amiss, 0);
    QCOMPARE(figures.items.amiss, 0);
}

void tst_RtfOfOtherPrograms::aSampleReadsBackTheSame_data()
{
    addSamples();
}

void tst_RtfOfOtherPrograms::aSampleReadsBackTheSame()
{
    QFETCH(QString, name);
    const RtfDocument document(QString::fromLatin1(sampleBytes(name + u".rtf"_s)));
    QCOMPARE(difference(document, RtfDocument(writeRtf(document))), QString());
}

void tst_RtfOfOtherPrograms::aListsLabelIsItsBullet_data()
{
    QTest::addColumn<QString>("body");
    QTest::newRow("behind the paragraph's words")
        << uR"(\pard\s18{\listtext\pard\plain\u8226\'95\tab}\ls1\li709\fi-283 one)"_s;
    QTest::newRow("before them") << uR"({\listtext\pard\plain\f1\'b7\tab}\pard\plain\ls1\fi-360\li720 one)"_s;
    QTest::newRow("beside a definition")
        << uR"({\listtext\bullet	}\pard{\*\pn\pnlvlblt{\pntxtb\bullet}}\ls1 one)"_s;
    QTest::newRow("another of the symbols") << uR"({\listtext\f1\'a7\tab}one)"_s;
    QTest::newRow("a letter of the symbol font") << uR"({\listtext\f1 v\tab}one)"_s;
    QTest::newRow("of the private area") << uR"({\listtext\u-3913 ?\tab}one)"_s;
    QTest::newRow("a ring") << uR"({\listtext\f2 o\tab}one)"_s;
}

void tst_RtfOfOtherPrograms::aListsLabelIsItsBullet()
{
    QFETCH(QString, body);
    const RtfDocument document(page(body));
    QCOMPARE(document.toPlainText(), u"one"_s);
    QVERIFY(document.block(0).textList());
}

void tst_RtfOfOtherPrograms::aListsNumberIsText_data()
{
    QTest::addColumn<QString>("label");
    for (const char *label : {"1.", "12)", "a.", "iv)", "\u0411."})
        QTest::newRow(label) << QString::fromUtf8(label);
}

void tst_RtfOfOtherPrograms::aListsNumberIsText()
{
    QFETCH(QString, label);
    const RtfDocument document(page(uR"({\listtext\pard\plain\b )"_s + label + uR"(\tab}\ls2\li709\fi-283 one)"_s));
    QCOMPARE(document.toPlainText(), label + u"\tone"_s);
    QCOMPARE(document.look(label).fontWeight(), int(QFont::Bold));
    QCOMPARE(document.look(u"one"_s).fontWeight(), int(QFont::Normal));
    QVERIFY(!document.block(0).textList());
}

void tst_RtfOfOtherPrograms::aLabelIsOfOneParagraph()
{
    const RtfDocument document(page(uR"({\listtext\bullet\tab}one\par two\page{\listtext\bullet\tab}three)"_s));
    QCOMPARE(document.toPlainText(), u"one\ntwo\nthree"_s);
    QVERIFY(document.block(0).textList());
    QVERIFY(!document.block(1).textList());
    QVERIFY(document.block(2).textList());
}

void tst_RtfOfOtherPrograms::aLabelWithoutTextIsNone()
{
    const RtfDocument document(page(uR"({\listtext  \tab}one)"_s));
    QCOMPARE(document.toPlainText(), u"one"_s);
    QVERIFY(!document.block(0).textList());
}

void tst_RtfOfOtherPrograms::theResultOfAFieldIsText_data()
{
    QTest::addColumn<QString>("body");
    QTest::newRow("plain") << uR"( a{\field{\*\fldinst HYPERLINK "x"}{\fldrslt{\ul b}}}c)"_s;
    QTest::newRow("starred") << uR"( a{\field{\*\fldinst{ HYPERLINK "x"}}{\*\fldrslt{\f2 b}}}c)"_s;
}

void tst_RtfOfOtherPrograms::theResultOfAFieldIsText()
{
    QFETCH(QString, body);
    QCOMPARE(RtfDocument(page(body)).toPlainText(), u"abc"_s);
}

// One of them knows a bullet by its definition, the others by the number of its list.
void tst_RtfOfOtherPrograms::bulletsAreWrittenForThemToo()
{
    const RtfDocument document(page(uR"(\pard{\*\pn\pnlvlblt}1 one\par 2 two\par\pard three)"_s));
    const QString written = writeRtf(document);
    QCOMPARE(written.count(u"{\\*\\pn\\pnlvlblt}\\ls1 1 one"_s), 1);
    QCOMPARE(written.count(u"\\ls1"_s), 2); // the other is in the table of overrides
    QVERIFY(written.contains(u"{\\*\\listtable{\\list"_s));
    QCOMPARE(difference(document, RtfDocument(written)), QString());
}

void tst_RtfOfOtherPrograms::aTextWithoutBulletsHasNoLists()
{
    QVERIFY(!writeRtf(RtfDocument(page(u" one"_s))).contains(u"list"_s));
}

// One of them leaves out a letter more behind a stand-in.
void tst_RtfOfOtherPrograms::charactersAreWrittenWithoutStandIns()
{
    const QString written = writeRtf(RtfDocument(u"\u0141\u00F3d\u017A, \u041F\u0440 1\u04102"_s));
    QVERIFY2(written.contains(u"\\uc0"_s), qPrintable(written));
    QVERIFY2(written.contains(u"\\u321\\'f3d\\u378 , \\u1055\\u1088  1\\u1040 2"_s), qPrintable(written));
    QVERIFY(!writeRtf(RtfDocument(u"caf\u00E9"_s)).contains(u"\\uc0"_s));
}

// One of them takes any character right behind a word for its end.
void tst_RtfOfOtherPrograms::aBlankIsBetweenEachWordAndItsText()
{
    const QString written = writeRtf(RtfDocument(page(uR"(\b one\b0 , \i two\i0 .)"_s)));
    QVERIFY2(written.contains(u"one\\b0 , \\i two\\i0 .}"_s), qPrintable(written));
}

// One of them takes a reset for the text before it as well, and one for the end of a list.
void tst_RtfOfOtherPrograms::looksAreSwitchedOffOneByOne()
{
    const QString written = writeRtf(RtfDocument(page(uR"(\plain\fs32\b\i one\plain\par two)"_s)));
    QVERIFY2(!written.contains(u"\\plain"_s), qPrintable(written));
    QVERIFY2(written.contains(u"\\b0\\i0"_s), qPrintable(written));
}

QTEST_MAIN(tst_RtfOfOtherPrograms)
#include "tst_RtfOfOtherPrograms.moc"
