// Text on its way between a rich-text box and the desktop's other programs.
#include "platform/controls/text/TakenText.h"
#include "platform/forms/Screen.h"
#include "platform/richtext/Rtf.h"
#include "platform/richtext/RtfDocument.h"
#include "platform/text/RichBoxFixture.h"

#include <QImage>
#include <QTemporaryDir>
#include <QTextBlock>
#include <QTextDocument>
#include <QTextList>

using namespace Qt::Literals::StringLiterals;
using namespace orvane;
using namespace orvane::test;

namespace
{
const QString Page = uR"({\rtf1{\fonttbl{\f0 Times New Roman;}{\f1 Arial;}}{\colortbl;\red200\green0\blue0;}\f0\fs24 )"
                     uR"(plain {\b bold} {\i slanted} {\ul lined} {\cf1 red} {\f1\fs40 large} {\up6 raised}\par )"
                     uR"(\pard\li360\fi-360{\*\pn\pnlvlblt\pnf1\pnindent360{\pntxtb\'b7}}first\par second\par)"
                     uR"(\pard\qc\tx1440 in the\tab middle})"_s;

QTextCharFormat formatOf(const QTextDocument &document, const QString &word)
{
    return document.find(word).charFormat();
}

QTextBlock blockOf(const QTextDocument &document, const QString &word)
{
    return document.find(word).block();
}

// What the looks of a word have of this list, in its order.
QString looksOf(const QTextDocument &document, const QString &word)
{
    const QTextCharFormat format = formatOf(document, word);
    const QTextBlock block = blockOf(document, word);
    QStringList looks;
    if (format.fontWeight() >= QFont::Bold) looks << u"bold"_s;
    if (format.fontItalic()) looks << u"italic"_s;
    if (format.fontUnderline()) looks << u"underlined"_s;
    if (format.foreground().color() == QColor(200, 0, 0)) looks << u"red"_s;
    if (format.fontPointSize() == 20) looks << u"20"_s;
    if (format.fontFamilies().toStringList().value(0) == u"Arial") looks << u"Arial"_s;
    if (format.verticalAlignment() == QTextCharFormat::AlignSuperScript) looks << u"raised"_s;
    if (block.blockFormat().alignment() & Qt::AlignHCenter) looks << u"centred"_s;
    if (block.blockFormat().leftMargin() > 0 && !block.textList()) looks << u"indented"_s;
    if (block.textList()) looks << u"bullet"_s;
    return looks.join(u' ');
}
} // namespace

class tst_RichClipboard : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void aCopyIsOfferedInEachForm();
    void aCopyComesBackWithItsLooks_data();
    void aCopyComesBackWithItsLooks();
    void aCopyIsOfWhatWasSelectedThen();
    void aCopiedBulletIsNamed();
    void anyNameOfRichTextIsTaken_data();
    void anyNameOfRichTextIsTaken();
    void theRichestFormIsTaken_data();
    void theRichestFormIsTaken();
    void theLooksOfHypertextAreKept_data();
    void theLooksOfHypertextAreKept();
    void hypertextGivesItsText_data();
    void hypertextGivesItsText();
    void nothingThatHypertextNamesIsLoaded();
    void brokenHypertextIsSurvived_data();
    void brokenHypertextIsSurvived();
    void aPastedPieceReplacesTheSelectionInOneStep();
    void plainTextTakesTheLooksOfTheCaret();
    void charactersThatAreNoTextAreLeftOut();
    void aDroppedPieceKeepsItsLooks();
    void theClipboardHoldsWhatPasteTakes_data();
    void theClipboardHoldsWhatPasteTakes();
    void tenMegabytesArePasted_data();
    void tenMegabytesArePasted();
    void whatWouldBeTooTallToLayOutIsNotPasted_data();
    void whatWouldBeTooTallToLayOutIsNotPasted();

private:
    zelRich &box() const { return m_window->box; }
    QTextEdit &edit() const { return m_window->edit(); }
    const QTextDocument &document() const { return *edit().document(); }
    void paste(const QMap<QString, QByteArray> &contents) const;

    std::unique_ptr<RichBoxWindow> m_window;
};

void tst_RichClipboard::init()
{
    m_window = std::make_unique<RichBoxWindow>();
    m_window->showForKeys();
    QGuiApplication::clipboard()->clear();
}

void tst_RichClipboard::cleanup()
{
    m_window.reset();
}

void tst_RichClipboard::paste(const QMap<QString, QByteArray> &contents) const
{
    fillClipboard(contents);
    m_window->press(Qt::CTRL | Qt::Key_V);
}

void tst_RichClipboard::aCopyIsOfferedInEachForm()
{
    box().setTextRTF(Page);
    m_window->press(Qt::CTRL | Qt::Key_A);
    m_window->press(Qt::CTRL | Qt::Key_C);
    const QMimeData &offered = *QGuiApplication::clipboard()->mimeData();
    for (const auto &format : {u"text/rtf"_s, u"application/rtf"_s, u"text/richtext"_s}) {
        QVERIFY(offered.hasFormat(format));
        QTextDocument read;
        readRtf(QString::fromLatin1(offered.data(format)), read);
        QCOMPARE(read.toPlainText(), box().Text());
    }
    QVERIFY(offered.html().contains(u"bold"_s));
    QCOMPARE(offered.text(), box().Text());
}

void tst_RichClipboard::aCopyComesBackWithItsLooks_data()
{
    QTest::addColumn<bool>("cut");
    QTest::newRow("copied") << false;
    QTest::newRow("cut") << true;
}

void tst_RichClipboard::aCopyComesBackWithItsLooks()
{
    QFETCH(bool, cut);
    box().setTextRTF(Page);
    const QString before = box().TextRTF();
    m_window->press(Qt::CTRL | Qt::Key_A);
    m_window->press(Qt::CTRL | (cut ? Qt::Key_X : Qt::Key_C));
    if (!cut) box().setText({});
    QCOMPARE(box().Text(), QString());
    m_window->press(Qt::CTRL | Qt::Key_V);
    QCOMPARE(box().TextRTF(), before);
}

void tst_RichClipboard::aCopyIsOfWhatWasSelectedThen()
{
    box().setTextRTF(Page);
    m_window->select(6, 4);
    m_window->press(Qt::CTRL | Qt::Key_C);
    box().setText(u"other"_s);
    QCOMPARE(QGuiApplication::clipboard()->text(), u"bold"_s);
    QVERIFY(onClipboard(u"text/rtf"_s).contains("\\b"));
    QVERIFY(!onClipboard(u"text/rtf"_s).contains("other"));
}

// Without a sign of its own an office suite shows a bullet as "%".
void tst_RichClipboard::aCopiedBulletIsNamed()
{
    box().setTextRTF(Page);
    m_window->press(Qt::CTRL | Qt::Key_A);
    m_window->press(Qt::CTRL | Qt::Key_C);
    const QByteArray rtf = onClipboard(u"text/rtf"_s);
    QCOMPARE(rtf.count("\\pnlvlblt"), 1);
    QCOMPARE(rtf.count("{\\pntxtb\\'95}"), 1);
}

void tst_RichClipboard::anyNameOfRichTextIsTaken_data()
{
    QTest::addColumn<QString>("format");
    for (const QString &format : richTextFormats())
        QTest::addRow("%s", qPrintable(format)) << format;
}

void tst_RichClipboard::anyNameOfRichTextIsTaken()
{
    QFETCH(QString, format);
    paste({{format, "{\\rtf1 caf\xe9 {\\b bold}}"}, {u"text/plain"_s, "plain"}});
    QCOMPARE(box().Text(), u"caf\u00e9 bold"_s);
    QCOMPARE(looksOf(document(), u"bold"_s), u"bold"_s);
}

void tst_RichClipboard::theRichestFormIsTaken_data()
{
    QTest::addColumn<QByteArray>("rtf");
    QTest::addColumn<QByteArray>("html");
    QTest::addColumn<QString>("expected");
    const QByteArray html = "<p>hypertext</p>";
    QTest::newRow("rich text") << QByteArray("{\\rtf1 rich}") << html << u"rich"_s;
    QTest::newRow("rich text with a picture alone")
        << QByteArray("{\\rtf1{\\pict\\wmetafile8 00ff}}") << html << u"hypertext"_s;
    QTest::newRow("rich text that is none") << QByteArray("rubbish") << html << u"hypertext"_s;
    QTest::newRow("hypertext") << QByteArray() << html << u"hypertext"_s;
    QTest::newRow("hypertext with a picture alone") << QByteArray() << QByteArray("<img src=x.png>") << u"plain"_s;
    QTest::newRow("neither") << QByteArray() << QByteArray() << u"plain"_s;
}

void tst_RichClipboard::theRichestFormIsTaken()
{
    QFETCH(QByteArray, rtf);
    QFETCH(QByteArray, html);
    QMap<QString, QByteArray> contents{{u"text/plain"_s, "plain"}};
    if (!rtf.isEmpty()) contents.insert(u"text/rtf"_s, rtf);
    if (!html.isEmpty()) contents.insert(u"text/html"_s, html);
    paste(contents);
    QTEST(box().Text(), "expected");
}

void tst_RichClipboard::theLooksOfHypertextAreKept_data()
{
    QTest::addColumn<QString>("html");
    QTest::addColumn<QString>("looks");
    const auto row = [](const char *html, const char *looks) {
        QTest::addRow("%s", html) << QString::fromLatin1(html) << QString::fromLatin1(looks);
    };
    row("<b>word</b>", "bold");
    row("<strong><em>word</em></strong>", "bold italic");
    row("<span style=\"font-weight:700; font-style:italic\">word</span>", "bold italic");
    row("<u>word</u>", "underlined");
    row("<span style='color: rgb(200, 0, 0)'>word</span>", "red");
    row("<font color=\"#c80000\" face='Arial'>word</font>", "red Arial");
    row("<span style=\"font-size:20pt;font-family:Arial, sans-serif\">word</span>", "20 Arial");
    row("<sup>word</sup>", "raised");
    row("<p align=center>word</p>", "centred");
    row("<div style='text-align:center'>word</div>", "centred");
    row("<p style=\"margin-left:40px\">word</p>", "indented");
    row("<ul><li>word</ul>", "bullet");
    row("<table><tr><td><b>word</b></td></tr></table>", "bold");
    row("<B>word</B>", "bold");
}

void tst_RichClipboard::theLooksOfHypertextAreKept()
{
    QFETCH(QString, html);
    paste({{u"text/html"_s, html.toUtf8()}, {u"text/plain"_s, "plain"}});
    QCOMPARE(box().Text(), u"word"_s);
    QTEST(looksOf(document(), u"word"_s), "looks");
}

void tst_RichClipboard::hypertextGivesItsText_data()
{
    QTest::addColumn<QString>("html");
    QTest::addColumn<QString>("text");
    const auto row = [](const char *name, const char *html, const QString &text) {
        QTest::newRow(name) << QString::fromUtf8(html) << text;
    };
    row("paragraphs", "<p>one</p><p>two<br>three</p>", u"one\ntwo\nthree"_s);
    row("page of a program",
        "<html><head><title>t</title><style>p{}</style></head><body><!--StartFragment-->one"
        "<!--EndFragment--></body></html>",
        u"one"_s);
    row("declarations", "<?xml version=\"1.0\"?><!DOCTYPE html><p>one<?php two ?></p><![CDATA[three]]>", u"one"_s);
    row("script", "one<script>if (a<b) two()</script>", u"one"_s);
    row("table", "<table><tr><td>a<td>b</tr><tr><th colspan=2000000000>c</table>", u"a\nb\nc"_s);
    row("numbered list", "<ol><li>one<li>two<ol><li>in</ol></li><li>three</ol>", u"1. one\n2. two\n1. in\n3. three"_s);
    row("bullets", "<ul><li>one</li><li>two</li></ul>", u"one\ntwo"_s);
    row("link", "see <a href=\"file:///etc\">there</a>", u"see there"_s);
    row("entities", "&lt;b&gt; &amp; &#233;&hellip;", u"<b> & \u00e9\u2026"_s);
    row("brackets", "1 < 2 <3 > 0", u"1 < 2 <3 > 0"_s);
    row("unknown elements", "<o:p>one</o:p><foo bar='<b>'>two</foo>", u"onetwo"_s);
    row("emoji", "\xF0\x9F\x8C\xB1", u"\U0001F331"_s);
}

void tst_RichClipboard::hypertextGivesItsText()
{
    QFETCH(QString, html);
    paste({{u"text/html"_s, html.toUtf8()}});
    QTEST(box().Text(), "text");
}

void tst_RichClipboard::nothingThatHypertextNamesIsLoaded()
{
    const QTemporaryDir folder;
    QImage picture(9, 9, QImage::Format_RGB32);
    picture.fill(Qt::red);
    QVERIFY(picture.save(folder.filePath(u"a.png"_s)));
    QFile style(folder.filePath(u"a.css"_s));
    QVERIFY(style.open(QIODevice::WriteOnly) && style.write("p { font-weight: bold }") > 0);
    style.close();
    const QString html =
        u"<link rel=stylesheet type=text/css href=\"%1/a.css\"><style>@import url(%1/a.css);</style>"
        u"<p style=\"background-image:url(%1/a.png)\">one<img src=\"%1/a.png\"></p>"_s.arg(folder.path());
    paste({{u"text/html"_s, html.toUtf8()}});
    QCOMPARE(box().Text(), u"one"_s);
    QCOMPARE(looksOf(document(), u"one"_s), QString());
    for (const QTextFormat &format : document().allFormats())
        QVERIFY(!format.isImageFormat() && !format.hasProperty(QTextFormat::BackgroundImageUrl));
}

void tst_RichClipboard::brokenHypertextIsSurvived_data()
{
    QTest::addColumn<QString>("html");
    for (const auto &piece : {u"<div>"_s, u"<b>"_s, u"<ul><li>"_s, u"<ol>"_s, u"<table><tr><td>"_s, u"</div>"_s, u"<"_s,
                              u"<!--"_s, u"<a b='"_s, u"<p =\"<td"_s, u"<style>"_s, u"&"_s, u"<li>x"_s, u"<p>x"_s,
                              u"<span style='font-size:9e9pt;margin:9e9px'>x"_s, u"<div>x</div>"_s})
        QTest::addRow("%s", qPrintable(piece)) << piece.repeated(250000 / piece.size());
}

void tst_RichClipboard::brokenHypertextIsSurvived()
{
    QFETCH(QString, html);
    paste({{u"text/html"_s, html.toUtf8()}, {u"text/plain"_s, "plain"}});
    QVERIFY(!box().Text().isEmpty());
}

void tst_RichClipboard::aPastedPieceReplacesTheSelectionInOneStep()
{
    box().setText(u"one two three"_s);
    const QString before = box().TextRTF();
    m_window->select(4, 3);
    paste({{u"text/rtf"_s, "{\\rtf1 {\\b A}\\par B}"}});
    QCOMPARE(box().Text(), u"one A\nB three"_s);
    QCOMPARE(box().SelStart(), 7);
    m_window->press(Qt::CTRL | Qt::Key_Z);
    QCOMPARE(box().TextRTF(), before);
}

void tst_RichClipboard::plainTextTakesTheLooksOfTheCaret()
{
    box().setTextRTF(Page);
    box().setSelStart(8);
    paste({{u"text/plain"_s, "x\r\ny"}});
    QCOMPARE(box().Text().left(12), u"plain box\nyl"_s);
    QCOMPARE(looksOf(document(), u"yld"_s), u"bold"_s);
}

void tst_RichClipboard::charactersThatAreNoTextAreLeftOut()
{
    const QString text = u"a"_s + QChar(0) + QChar(7) + u"b\uFFFC\tc\uFDD0"_s;
    paste({{u"text/plain"_s, text.toUtf8()}});
    QCOMPARE(box().Text(), u"ab\tc"_s);
}

void tst_RichClipboard::aDroppedPieceKeepsItsLooks()
{
    QMimeData dragged;
    dragged.setData(u"text/rtf"_s, "{\\rtf1 {\\b dropped}}");
    QDragEnterEvent enter(QPoint(5, 5), Qt::CopyAction, &dragged, Qt::LeftButton, {});
    QCoreApplication::sendEvent(edit().viewport(), &enter);
    QVERIFY(enter.isAccepted());
    QDropEvent drop(QPointF(5, 5), Qt::CopyAction, &dragged, Qt::LeftButton, {});
    QCoreApplication::sendEvent(edit().viewport(), &drop);
    QCOMPARE(box().Text(), u"dropped"_s);
    QCOMPARE(looksOf(document(), u"dropped"_s), u"bold"_s);
}

void tst_RichClipboard::theClipboardHoldsWhatPasteTakes_data()
{
    QTest::addColumn<QString>("format");
    QTest::addColumn<bool>("rich");
    QTest::addColumn<bool>("plain");
    QTest::newRow("nothing") << u""_s << false << false;
    QTest::newRow("plain text") << u"text/plain"_s << false << true;
    for (const QString &format : richTextFormats())
        QTest::addRow("%s", qPrintable(format)) << format << true << false;
    QTest::newRow("hypertext") << u"text/html"_s << true << false;
    QTest::newRow("picture") << u"image/png"_s << false << false;
    QTest::newRow("other") << u"application/x-other"_s << false << false;
}

void tst_RichClipboard::theClipboardHoldsWhatPasteTakes()
{
    QFETCH(QString, format);
    QFETCH(bool, rich);
    QFETCH(bool, plain);
    if (!format.isEmpty()) paste({{format, "{\\rtf1 text}"}});
    QCOMPARE(clipboardHolds(RichTextFormat), rich);
    QCOMPARE(clipboardHolds(PlainTextFormat), plain);
    QCOMPARE(edit().canPaste(), rich || plain);
    QCOMPARE(!box().Text().isEmpty(), rich || plain);
}

void tst_RichClipboard::tenMegabytesArePasted_data()
{
    QTest::addColumn<QString>("format");
    QTest::addColumn<QByteArray>("piece");
    QTest::newRow("plain text") << u"text/plain"_s << QByteArray("nine and ten\n");
    QTest::newRow("one line of plain text") << u"text/plain"_s << QByteArray("nine and ten ");
    QTest::newRow("rich text") << u"text/rtf"_s << QByteArray("\\b nine\\b0  and ten\\par ");
    QTest::newRow("rich text in one paragraph") << u"text/rtf"_s << QByteArray("\\b nine\\b0  and ten ");
    QTest::newRow("hypertext") << u"text/html"_s << QByteArray("<p><b>nine</b> and ten</p>");
}

void tst_RichClipboard::tenMegabytesArePasted()
{
    QFETCH(QString, format);
    QFETCH(QByteArray, piece);
    const QByteArray contents = piece.repeated(10'000'000 / piece.size());
    const bool rtf = format == u"text/rtf";
    paste({{format, rtf ? "{\\rtf1 " + contents + "}" : contents}});
    QVERIFY(box().Text().isEmpty() == (format == u"text/html"));
}

void tst_RichClipboard::whatWouldBeTooTallToLayOutIsNotPasted_data()
{
    QTest::addColumn<QString>("format");
    QTest::newRow("rich text") << u"text/rtf"_s;
    QTest::newRow("plain text in large letters") << u"text/plain"_s;
}

void tst_RichClipboard::whatWouldBeTooTallToLayOutIsNotPasted()
{
    QFETCH(QString, format);
    const QByteArray tall = "{\\rtf1\\fs800 " + QByteArray("x\\par ").repeated(5000) + "}";
    paste({{u"text/rtf"_s, tall}});
    const int paragraphs = document().blockCount();
    QVERIFY(paragraphs > 4000);
    paste({{format, format == u"text/rtf" ? tall : QByteArray("x\n").repeated(8000)}});
    QCOMPARE(document().blockCount(), paragraphs);
    paste({{u"text/rtf"_s, "{\\rtf1\\fs24 small}"}});
    QVERIFY(box().Text().endsWith(u"small"_s));
}

QTEST_MAIN(tst_RichClipboard)
#include "tst_RichClipboard.moc"
