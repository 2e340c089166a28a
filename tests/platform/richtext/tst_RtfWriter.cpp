// What is written reads back the same, and is written again the same.
#include "platform/richtext/DocumentDifference.h"
#include "platform/richtext/RtfDocument.h"

#include <QDir>
#include <QRandomGenerator>
#include <QTest>

using namespace Qt::Literals::StringLiterals;
using namespace orvane;
using namespace orvane::test;

namespace
{

constexpr int RandomDocuments = 400;

// A text of many codes in no order: what a careless program might write.
QString randomRtf(quint32 seed)
{
    static const QStringList pieces{u"\\b "_s,
                                    u"\\b0 "_s,
                                    u"\\i "_s,
                                    u"\\i0 "_s,
                                    u"\\ul "_s,
                                    u"\\ulnone "_s,
                                    u"\\f0 "_s,
                                    u"\\f2 "_s,
                                    u"\\fs17 "_s,
                                    u"\\fs48 "_s,
                                    u"\\cf1 "_s,
                                    u"\\cf0 "_s,
                                    u"\\plain "_s,
                                    u"\\pard "_s,
                                    u"\\par "_s,
                                    u"\\par\\par "_s,
                                    u"\\tab "_s,
                                    u"\\line "_s,
                                    u"\\page "_s,
                                    u"\\qc "_s,
                                    u"\\qr "_s,
                                    u"\\qj "_s,
                                    u"\\ql "_s,
                                    u"\\li360 "_s,
                                    u"\\fi-360 "_s,
                                    u"\\ri200 "_s,
                                    u"\\sb60 "_s,
                                    u"\\sa120 "_s,
                                    u"\\tx720 "_s,
                                    u"\\tqr\\tx4000 "_s,
                                    u"\\super "_s,
                                    u"\\sub "_s,
                                    u"\\nosupersub "_s,
                                    u"\\up6 "_s,
                                    u"\\dn4 "_s,
                                    u"{\\b "_s,
                                    u"{\\fs30 "_s,
                                    u"}"_s,
                                    u"plain words "_s,
                                    u"x"_s,
                                    u"  "_s,
                                    u"\\'92"_s,
                                    u"\\u8364?"_s,
                                    u"\\{\\}\\\\"_s,
                                    u"\\~"_s,
                                    u"\\emdash "_s,
                                    u"{\\pn\\pnlvlblt\\pnf1\\pnindent0{\\pntxtb\\'b7}}"_s};
    QRandomGenerator random(seed);
    QString body;
    for (int count = random.bounded(2, 60); count > 0; --count)
        body += pieces[random.bounded(pieces.size())];
    return page(body);
}

} // namespace

class tst_RtfWriter : public QObject
{
    Q_OBJECT

private slots:
    void aSampleReadsBackTheSame_data();
    void aSampleReadsBackTheSame();
    void anyDocumentReadsBackTheSame();
    void oddInputReadsBackTheSame_data();
    void oddInputReadsBackTheSame();
    void plainTextReadsBackTheSame_data();
    void plainTextReadsBackTheSame();
    void aSelectionReadsBackAsItsText();
    void anEmptySelectionIsAnEmptyDocument();
    void itIsOneLineOfAscii();
    void aLookIsWrittenOnceForItsRun();
    void aSizeInPixelsIsWrittenInHalfPoints();
    void theDocumentsOwnFontMayBeInPixels();
};

void tst_RtfWriter::aSampleReadsBackTheSame_data()
{
    QTest::addColumn<QString>("name");
    for (const QString &name : QDir(QStringLiteral(ORVANE_TEST_DATA "/rtf")).entryList(QDir::Files))
        QTest::newRow(qPrintable(name)) << name;
}

void tst_RtfWriter::aSampleReadsBackTheSame()
{
    QFETCH(QString, name);
    const RtfDocument document(QString::fromLatin1(sampleBytes(name)));
    QVERIFY(document.characterCount() > 1);
    const QString written = writeRtf(document);
    const RtfDocument again(written);
    QCOMPARE(difference(document, again), QString());
    QCOMPARE(writeRtf(again), written);
}

void tst_RtfWriter::anyDocumentReadsBackTheSame()
{
    for (quint32 seed = 0; seed < RandomDocuments; ++seed) {
        const QString source = randomRtf(seed);
        const RtfDocument document(source);
        const QString written = writeRtf(document);
        const RtfDocument again(written);
        QVERIFY2(difference(document, again).isEmpty(),
                 qPrintable(difference(document, again) + u'\n' + source + u'\n' + written));
        QCOMPARE(writeRtf(again), written);
    }
}

void tst_RtfWriter::oddInputReadsBackTheSame_data()
{
    QTest::addColumn<QString>("input");
    QTest::newRow("tab in a font's name") << u"{\\rtf1{\\fonttbl\\f0 o\t5;\\f1 p\\u8232?q;}\\f0 a\\f1 b}"_s;
}

void tst_RtfWriter::oddInputReadsBackTheSame()
{
    QFETCH(QString, input);
    const RtfDocument document(input);
    const QString written = writeRtf(document);
    QCOMPARE(difference(document, RtfDocument(written)), QString());
    QCOMPARE(writeRtf(RtfDocument(written)), written);
}

void tst_RtfWriter::plainTextReadsBackTheSame_data()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("nothing") << u""_s;
    QTest::newRow("braces and backslash") << u"a{b}c\\d"_s;
    QTest::newRow("blanks at the ends") << u"  a  "_s;
    QTest::newRow("paragraphs") << u"a\n\nb\n"_s;
    QTest::newRow("tabs") << u"\ta\tb\t"_s;
    QTest::newRow("code page") << u"caf\u00E9 \u20AC \u2018\u2019 \u00A9"_s;
    QTest::newRow("beyond the code page") << u"\u041F\u0440 \U0001F600"_s;
    QTest::newRow("digits after a character") << u"\u04101 \u20AC5 7"_s;
}

void tst_RtfWriter::plainTextReadsBackTheSame()
{
    QFETCH(QString, text);
    const RtfDocument document(text);
    QCOMPARE(document.toPlainText(), text);
    const RtfDocument again(writeRtf(document));
    QCOMPARE(again.toPlainText(), text);
    QCOMPARE(difference(document, again), QString());
}

void tst_RtfWriter::aSelectionReadsBackAsItsText()
{
    RtfDocument document(page(u"\\fs24 one {\\b two} three\\par \\qc four"_s));
    QTextCursor selection(&document);
    selection.setPosition(4);
    selection.setPosition(16, QTextCursor::KeepAnchor);
    const RtfDocument part(writeRtf(selection));
    QCOMPARE(part.toPlainText(), u"two three\nfo"_s);
    QCOMPARE(part.look(u"two"_s).fontWeight(), int(QFont::Bold));
    QCOMPARE(part.look(u"three"_s).fontPointSize(), 12.0);
}

void tst_RtfWriter::anEmptySelectionIsAnEmptyDocument()
{
    RtfDocument document(u"words"_s);
    const RtfDocument part(writeRtf(QTextCursor(&document)));
    QVERIFY(part.isEmpty());
}

void tst_RtfWriter::itIsOneLineOfAscii()
{
    const QString written = writeRtf(RtfDocument(u"caf\u00E9 \u041F\nnext\ttab"_s));
    QVERIFY(isRtf(written));
    for (const QChar c : written)
        QVERIFY2(c >= u' ' && c <= u'~', qPrintable(written));
}

void tst_RtfWriter::aLookIsWrittenOnceForItsRun()
{
    const QString written = writeRtf(RtfDocument(page(u"\\b one\\par\\b two\\par {\\b three}\\b0 four"_s)));
    QCOMPARE(written.count(u"\\b "_s) + written.count(u"\\b\\"_s), 1);
    QCOMPARE(written.count(u"\\b0"_s), 1);
}

// As in text that comes from a page of hypertext: a pixel is three quarters of a point.
void tst_RtfWriter::aSizeInPixelsIsWrittenInHalfPoints()
{
    QTextDocument document;
    document.setHtml(u"<p style=\"font-size:20px\">sized</p>"_s);
    QVERIFY2(writeRtf(document).contains(u"\\fs30"_s), qPrintable(writeRtf(document)));
}

void tst_RtfWriter::theDocumentsOwnFontMayBeInPixels()
{
    QTextDocument document;
    QFont font(u"Arial"_s);
    font.setPixelSize(20);
    document.setDefaultFont(font);
    document.setPlainText(u"plain"_s);
    QVERIFY2(writeRtf(document).contains(u"\\fs30"_s), qPrintable(writeRtf(document)));
}

QTEST_MAIN(tst_RtfWriter)
#include "tst_RtfWriter.moc"
