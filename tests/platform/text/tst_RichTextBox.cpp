// The rich-text control: its text, its selection, and what it lets the user do.
// A connection's context goes before what its handler holds: clazy:excludeall=lambda-in-connect
#include "platform/controls/text/RichEdit.h"
#include "platform/text/BoxWindow.h"

#include <QClipboard>
#include <QDropEvent>
#include <QImage>
#include <QMimeData>
#include <QTemporaryDir>
#include <QTextBlock>
#include <QTextEdit>
#include <QTextLayout>

using namespace Qt::Literals::StringLiterals;
using namespace orvane;
using namespace orvane::test;

namespace
{
// A red picture that lies in the folder.
QString savedPicture(const QTemporaryDir &folder)
{
    QImage picture(40, 40, QImage::Format_RGB32);
    picture.fill(Qt::red);
    const QString file = folder.filePath(u"picture.png"_s);
    if (!picture.save(file)) QTest::qFail("the picture can't be written", __FILE__, __LINE__);
    return file;
}

bool showsRed(QWidget &widget)
{
    const QImage shown = widget.grab().toImage();
    for (int y = 0; y < shown.height(); ++y)
        for (int x = 0; x < shown.width(); ++x)
            if (shown.pixelColor(x, y) == QColor(Qt::red)) return true;
    return false;
}

struct PasteTarget : RichEdit {
    using RichEdit::insertFromMimeData;
};
} // namespace

class tst_RichTextBox : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void putTextIsReadBackAndTheCaretIsAtItsStart();
    void aTextIsLaidOutNoSoonerThanItIsOnShow();
    void theFirstPaintShowsTheText();
    void whatIsNoRichTextIsShownAsItIs();
    void putPlainTextReplacesTheDocument();
    void richTextIsPutInThePlaceOfTheSelection();
    void textAndSelectionCountTheSameCharacters();
    void hardBlanksAreKept();
    void aSelectionIsKeptWithinTheText();
    void lockedRefusesTyping_data();
    void lockedRefusesTyping();
    void lockedRefusesPasteAndCut();
    void lockedRefusesADrop();
    void lockedRefusesUndo();
    void lockedAllowsSelectionAndCopy();
    void unlockedTakesThemAllAgain();
    void aRightMarginBreaksTheLines();
    void aNegativeRightMarginIsRefused();
    void formatsOfTheSelectionAreReadBack();
    void formatsHoldForTheSelectionAlone();
    void alignmentsByNumber_data();
    void alignmentsByNumber();
    void anUnknownAlignmentIsRefused();
    void aFontSizeOfNoneIsRefused();
    void eachChangeIsTold();
    void theCaretsMovesAreTold();
    void nothingThatADocumentNamesIsLoaded();
    void aPictureThatADocumentNamesIsNotShown();
    void tabLeavesTheBox();
    void pastingNothingChangesNothing();
    void aBoxOfOneLineStaysOnOneLine();

private:
    QTextEdit &edit() const { return static_cast<QTextEdit &>(m_window->box.widget()); }
    RichTextBox &box() const { return m_window->box; }
    void show();

    std::unique_ptr<BoxWindow> m_window;
};

void tst_RichTextBox::init()
{
    m_window = std::make_unique<BoxWindow>();
}

void tst_RichTextBox::cleanup()
{
    m_window.reset();
}

void tst_RichTextBox::show()
{
    showActive(*m_window);
    box().SetFocus();
    QTRY_VERIFY(edit().hasFocus());
}

// Laying a page out costs more than all else of opening its window, and a window that opens changes its size.
void tst_RichTextBox::aTextIsLaidOutNoSoonerThanItIsOnShow()
{
    const QTextDocument &document = *static_cast<QTextEdit &>(box().widget()).document();
    box().setText(u"a page that is as wide as its right margin lets it be"_s);
    for (const double margin : {1500.0, 4500.0, 3000.0}) {
        box().setRightMargin(margin);
        QCOMPARE(document.firstBlock().layout()->lineCount(), 0);
    }
    show();
    QTRY_VERIFY(document.firstBlock().layout()->lineCount() > 1);
    QCOMPARE(document.pageSize().width(), 200.0);
    box().setRightMargin(30000);
    QCOMPARE(document.firstBlock().layout()->lineCount(), 1);
}

void tst_RichTextBox::theFirstPaintShowsTheText()
{
    box().setTextRTF(uR"({\rtf1{\colortbl;\red255\green0\blue0;}\cf1\fs96 HHHH})"_s);
    m_window->Show();
    QVERIFY(showsRed(box().widget()));
}

void tst_RichTextBox::putTextIsReadBackAndTheCaretIsAtItsStart()
{
    box().setText(u"before"_s);
    box().setSelStart(4);
    box().setTextRTF(u"{\\rtf1 Plain and {\\b bold}\\par second}"_s);
    QCOMPARE(box().Text(), u"Plain and bold\nsecond"_s);
    QCOMPARE(box().SelStart(), 0);
    QCOMPARE(box().SelLength(), 0);
    const QString written = box().TextRTF();
    QVERIFY(written.startsWith(u"{\\rtf"_s));
    box().setTextRTF(written);
    QCOMPARE(box().TextRTF(), written);
    QCOMPARE(box().Text(), u"Plain and bold\nsecond"_s);
}

void tst_RichTextBox::whatIsNoRichTextIsShownAsItIs()
{
    box().setTextRTF(u"<b>no markup</b> {here}"_s);
    QCOMPARE(box().Text(), u"<b>no markup</b> {here}"_s);
}

void tst_RichTextBox::putPlainTextReplacesTheDocument()
{
    box().setTextRTF(u"{\\rtf1 one\\par two}"_s);
    box().setText(u"three"_s);
    QCOMPARE(box().Text(), u"three"_s);
    QCOMPARE(box().SelStart(), 0);
}

void tst_RichTextBox::richTextIsPutInThePlaceOfTheSelection()
{
    box().setText(u"one two three"_s);
    box().setSelStart(4);
    box().setSelLength(3);
    box().setSelRTF(u"{\\rtf1 {\\b X}}"_s);
    QCOMPARE(box().Text(), u"one X three"_s);
    QCOMPARE(box().SelStart(), 5);
    QCOMPARE(box().SelLength(), 0);
    box().setSelRTF(u"{\\rtf1 Y}"_s);
    QCOMPARE(box().Text(), u"one XY three"_s);
    box().setSelStart(4);
    box().setSelLength(1);
    QVERIFY(box().SelBold());
}

void tst_RichTextBox::textAndSelectionCountTheSameCharacters()
{
    box().setTextRTF(u"{\\rtf1 one\\par t\\'e9o\\tab x\\line y\\par{\\i three}}"_s);
    const QString text = box().Text();
    for (const QString &word : {u"one"_s, u"t\u00e9o"_s, u"x"_s, u"y"_s, u"three"_s}) {
        const int start = static_cast<int>(text.indexOf(word));
        QVERIFY2(start >= 0, qPrintable(word));
        box().setSelStart(start);
        box().setSelLength(static_cast<int>(word.size()));
        QCOMPARE(edit().textCursor().selectedText(), word);
        QCOMPARE(box().SelStart(), start);
        QCOMPARE(box().SelLength(), int(word.size()));
    }
}

void tst_RichTextBox::hardBlanksAreKept()
{
    box().setTextRTF(u"{\\rtf1 5\\~m\\line x\\par y}"_s);
    QCOMPARE(box().Text(), u"5\u00A0m\nx\ny"_s);
    box().setText(u"5\u00A0m \uFFFC\u2028\u2029\uFDD0z"_s);
    QCOMPARE(box().Text(), u"5\u00A0m \uFFFC\n\n\nz"_s);
}

void tst_RichTextBox::aSelectionIsKeptWithinTheText()
{
    box().setText(u"abc"_s);
    box().setSelStart(99);
    QCOMPARE(box().SelStart(), 3);
    box().setSelStart(-1);
    QCOMPARE(box().SelStart(), 0);
    box().setSelStart(1);
    box().setSelLength(99);
    QCOMPARE(box().SelLength(), 2);
    box().setSelLength(-1);
    QCOMPARE(box().SelLength(), 0);
    QCOMPARE(box().SelStart(), 1);
}

void tst_RichTextBox::lockedRefusesTyping_data()
{
    QTest::addColumn<Qt::Key>("key");
    QTest::newRow("letter") << Qt::Key_A;
    QTest::newRow("Return") << Qt::Key_Return;
    QTest::newRow("Delete") << Qt::Key_Delete;
    QTest::newRow("Backspace") << Qt::Key_Backspace;
    QTest::newRow("Space") << Qt::Key_Space;
}

void tst_RichTextBox::lockedRefusesTyping()
{
    QFETCH(Qt::Key, key);
    box().setText(u"kept"_s);
    box().setLocked(true);
    QVERIFY(box().Locked());
    show();
    box().setSelStart(2);
    QTest::keyClick(&edit(), key);
    QCOMPARE(box().Text(), u"kept"_s);
}

void tst_RichTextBox::lockedRefusesPasteAndCut()
{
    QApplication::clipboard()->setText(u"pasted"_s);
    box().setText(u"kept"_s);
    box().setLocked(true);
    show();
    QTest::keySequence(&edit(), QKeySequence::Paste);
    QTest::keySequence(&edit(), QKeySequence::SelectAll);
    QTest::keySequence(&edit(), QKeySequence::Paste);
    QTest::keySequence(&edit(), QKeySequence::Cut);
    QCOMPARE(box().Text(), u"kept"_s);
}

void tst_RichTextBox::lockedRefusesADrop()
{
    box().setText(u"kept"_s);
    show();
    QMimeData dragged;
    dragged.setText(u"dropped"_s);
    for (const bool locked : {true, false}) {
        box().setLocked(locked);
        QDragEnterEvent enter(QPoint(5, 5), Qt::CopyAction, &dragged, Qt::LeftButton, {});
        QCoreApplication::sendEvent(edit().viewport(), &enter);
        QCOMPARE(enter.isAccepted(), !locked);
        QDropEvent drop(QPointF(5, 5), Qt::CopyAction, &dragged, Qt::LeftButton, {});
        QCoreApplication::sendEvent(edit().viewport(), &drop);
        QCOMPARE(box().Text().contains(u"dropped"_s), !locked);
    }
}

void tst_RichTextBox::lockedRefusesUndo()
{
    show();
    QTest::keyClicks(&edit(), u"typed"_s);
    box().setLocked(true);
    QTest::keySequence(&edit(), QKeySequence::Undo);
    QCOMPARE(box().Text(), u"typed"_s);
}

void tst_RichTextBox::lockedAllowsSelectionAndCopy()
{
    box().setText(u"one two"_s);
    box().setLocked(true);
    show();
    for (int i = 0; i < 3; ++i)
        QTest::keyClick(&edit(), Qt::Key_Right, Qt::ShiftModifier);
    QCOMPARE(box().SelLength(), 3);
    QTest::keySequence(&edit(), QKeySequence::Copy);
    QCOMPARE(QApplication::clipboard()->text(), u"one"_s);
}

void tst_RichTextBox::unlockedTakesThemAllAgain()
{
    box().setLocked(true);
    box().setLocked(false);
    QVERIFY(!box().Locked());
    show();
    QTest::keyClicks(&edit(), u"ab"_s);
    QCOMPARE(box().Text(), u"ab"_s);
    QTest::keySequence(&edit(), QKeySequence::Undo);
    QCOMPARE(box().Text(), QString());
}

void tst_RichTextBox::aRightMarginBreaksTheLines()
{
    box().setText(u"word "_s.repeated(20).trimmed());
    show();
    const auto lines = [this] { return edit().document()->firstBlock().layout()->lineCount(); };
    box().setRightMargin(30000);
    QCOMPARE(box().RightMargin(), 30000.0);
    QCOMPARE(lines(), 1);
    box().setRightMargin(900);
    QVERIFY(lines() >= 10);
    box().setRightMargin(0); // the box's own edge
    QVERIFY(lines() > 1 && lines() < 10);
}

void tst_RichTextBox::aNegativeRightMarginIsRefused()
{
    box().setRightMargin(1234.5);
    QCOMPARE(errorOf([this] { box().setRightMargin(-1); }), int(InvalidPropertyValue));
    QCOMPARE(box().RightMargin(), 1234.5);
}

void tst_RichTextBox::formatsOfTheSelectionAreReadBack()
{
    box().setText(u"some text"_s);
    box().setSelLength(4);
    box().setSelBold(true);
    box().setSelItalic(true);
    box().setSelUnderline(true);
    box().setSelFontName(u"Liberation Serif"_s);
    box().setSelFontSize(14.5);
    box().setTextRTF(box().TextRTF());
    box().setSelStart(1);
    QVERIFY(box().SelBold() && box().SelItalic() && box().SelUnderline());
    QCOMPARE(box().SelFontName(), u"Liberation Serif"_s);
    QCOMPARE(box().SelFontSize(), 14.5);
}

void tst_RichTextBox::formatsHoldForTheSelectionAlone()
{
    box().setText(u"some text"_s);
    box().setSelLength(4);
    box().setSelBold(true);
    box().setSelStart(7);
    QVERIFY(!box().SelBold());
    box().setSelStart(2);
    QVERIFY(box().SelBold());
    box().setSelBold(false); // of what is typed next
    QTest::keyClicks(&edit(), u"x"_s);
    QVERIFY(!box().SelBold());
    box().setSelStart(1);
    QVERIFY(box().SelBold());
}

void tst_RichTextBox::alignmentsByNumber_data()
{
    QTest::addColumn<int>("alignment");
    QTest::addColumn<int>("shown");
    QTest::newRow("left") << int(AlignLeft) << int(Qt::AlignLeft);
    QTest::newRow("right") << int(AlignRight) << int(Qt::AlignRight);
    QTest::newRow("centre") << int(AlignCenter) << int(Qt::AlignHCenter);
}

void tst_RichTextBox::alignmentsByNumber()
{
    QFETCH(int, alignment);
    QFETCH(int, shown);
    box().setText(u"one\ntwo"_s);
    box().setSelAlignment(alignment);
    QCOMPARE(box().SelAlignment(), alignment);
    QCOMPARE(int(edit().alignment() & Qt::AlignHorizontal_Mask), shown);
    box().setSelStart(5);
    QCOMPARE(box().SelAlignment(), int(AlignLeft));
}

void tst_RichTextBox::anUnknownAlignmentIsRefused()
{
    box().setSelAlignment(AlignRight);
    for (const int alignment : {3, -1})
        QCOMPARE(errorOf([&] { box().setSelAlignment(alignment); }), int(InvalidPropertyValue));
    QCOMPARE(box().SelAlignment(), int(AlignRight));
}

void tst_RichTextBox::aFontSizeOfNoneIsRefused()
{
    box().setSelFontSize(12);
    for (const double points : {0.0, -8.0})
        QCOMPARE(errorOf([&] { box().setSelFontSize(points); }), int(InvalidPropertyValue));
    QCOMPARE(box().SelFontSize(), 12.0);
}

void tst_RichTextBox::eachChangeIsTold()
{
    int changes = 0;
    const QObject context;
    connect(&box(), &RichTextBox::Change, &context, [&] { ++changes; });
    box().setText(u"a"_s);
    QCOMPARE(changes, 1);
    box().setTextRTF(u"{\\rtf1 b}"_s);
    QCOMPARE(changes, 2);
    QTest::keyClicks(&edit(), u"c"_s);
    QCOMPARE(changes, 3);
}

void tst_RichTextBox::theCaretsMovesAreTold()
{
    box().setText(u"abc"_s);
    QList<int> lengths;
    const QObject context;
    connect(&box(), &RichTextBox::SelChange, &context, [&] { lengths << box().SelLength(); });
    box().setSelStart(1);
    QVERIFY(!lengths.isEmpty());
    box().setSelLength(2);
    QCOMPARE(lengths.last(), 2);
    lengths.clear();
    box().setSelStart(1);
    QCOMPARE(lengths.last(), 0);
}

void tst_RichTextBox::nothingThatADocumentNamesIsLoaded()
{
    const QTemporaryDir folder;
    const QString file = savedPicture(folder);
    const QUrl inside(u"data:text/plain;base64,c2VjcmV0"_s);
    for (const QUrl &url : {QUrl::fromLocalFile(file), QUrl(file), QUrl(u"qrc:/pictures/logo.svg"_s), inside}) {
        for (const int type :
             {QTextDocument::StyleSheetResource, QTextDocument::HtmlResource, QTextDocument::MarkdownResource})
            QCOMPARE(edit().document()->resource(type, url).toByteArray(), QByteArray());
        const auto picture = edit().document()->resource(QTextDocument::ImageResource, url).value<QImage>();
        QVERIFY(picture.width() <= 1);
    }
}

void tst_RichTextBox::aPictureThatADocumentNamesIsNotShown()
{
    const QTemporaryDir folder;
    const QString file = savedPicture(folder);
    show();
    edit().setHtml(u"<p>text <img src=\"%1\"> <img src=\"file://%1\"></p>"_s.arg(file));
    QCOMPARE(box().Text(), u"text \uFFFC \uFFFC"_s);
    QVERIFY(!showsRed(edit()));
    QTextDocument &document = *edit().document(); // the same picture handed over is shown
    document.addResource(QTextDocument::ImageResource, QUrl::fromLocalFile(file), QImage(file));
    document.markContentsDirty(0, document.characterCount());
    QVERIFY(showsRed(edit()));
}

void tst_RichTextBox::tabLeavesTheBox()
{
    RichTextBox other(*m_window, u"rtfOther"_s);
    show();
    QTest::keyClick(&edit(), Qt::Key_Tab);
    QCOMPARE(m_window->ActiveControl(), &other);
    QCOMPARE(box().Text(), QString());
}

// What a middle click pastes where nothing is selected anywhere.
void tst_RichTextBox::pastingNothingChangesNothing()
{
    PasteTarget target;
    target.setPlainText(u"kept"_s);
    target.insertFromMimeData(nullptr);
    QCOMPARE(target.toPlainText(), u"kept"_s);
    QVERIFY(!target.document()->isUndoAvailable());
}

void tst_RichTextBox::aBoxOfOneLineStaysOnOneLine()
{
    box().setOneLine();
    show();
    QTest::keyClicks(&box().widget(), u"ab"_s);
    QTest::keyClick(&box().widget(), Qt::Key_Return);
    QTest::keyClick(&box().widget(), Qt::Key_Enter, Qt::ShiftModifier);
    QCOMPARE(box().Text(), u"ab"_s);
    QGuiApplication::clipboard()->setText(u"c\nd\r\n e"_s);
    QTest::keyClick(&box().widget(), Qt::Key_V, Qt::ControlModifier);
    QCOMPARE(box().Text(), u"abc d e"_s);
}

QTEST_MAIN(tst_RichTextBox)
#include "tst_RichTextBox.moc"
