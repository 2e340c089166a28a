// Which action a click on the Implementation page means, and the mouse cursor over it.
#include "documents/guide/ImplementationPage.h"

#include "shell/SharedState.h"

#include <QScrollBar>

using namespace Qt::Literals::StringLiterals;
using namespace orvane;
using namespace orvane::test;

namespace
{

// By paragraphs: each begins with a number, a dot and a tab, and its action is meant from behind the dot.
int actionOfCaret(const QTextDocument &document, int caret)
{
    const QTextBlock block = document.findBlock(caret);
    const bool behindDot = caret - block.position() >= 2;
    return std::max(1, block.blockNumber() + (behindDot ? 1 : 0));
}

int pointerAt(const GuideWindow &open, float x)
{
    open.guide->rtfData_MouseMove(0, 0, x, 100);
    return open.guide->rtfData.MousePointer();
}

} // namespace

class tst_GuideHitTest : public QObject
{
    Q_OBJECT

private slots:
    void aClickOnAPlainWordCountsToo();
    void everyCaretPositionMeansItsAction();
    void anActionBeginsBehindItsDot();
    void aClickAtTheVeryStartShowsTheFirstAction_data();
    void aClickAtTheVeryStartShowsTheFirstAction();
    void aClickBehindTheLastWordShowsTheLastAction();
    void aClickBelowTheTextShowsTheLastAction();
    void aSelectionCountsFromItsStart();
    void aCommaBehindTheKeyWordIsNotShown();
    void aWordWithoutABlankKeepsTheWordBefore();
    void anEighthActionHasATitleButNoAdvice();
    void anEmptyPageEmptiesTheTitle();
    void theCursorAsksOverTheKeyWords_data();
    void theCursorAsksOverTheKeyWords();
    void theCursorFollowsTheMouse();
    void theCursorIsPlainInOtherViews_data();
    void theCursorIsPlainInOtherViews();
    void withoutACheckedViewTheCursorIsPlain();
    void theHitTestIsCalledByName();
    void textAndCaretCountTheSame();
    void everyCharacterIsFoundWhereItIsShown();
};

void tst_GuideHitTest::aClickOnAPlainWordCountsToo()
{
    const ImplementationPage open;
    const int plain = int(open.guide->rtfData.Text().indexOf(u"emergency plan"_s, open.startOfAction(3)));
    open.clickCharacter(plain + 2);
    QCOMPARE(open.shown(), 3);
}

void tst_GuideHitTest::everyCaretPositionMeansItsAction()
{
    const ImplementationPage open;
    Shared().TourStepsMuted = True;
    for (int caret = 0; caret <= open.end(); ++caret) {
        open.guide->ssPanel.setCaption({});
        open.guide->rtfTips.setText({});
        open.releaseAt(caret);
        const int expected = actionOfCaret(*open.page().document(), caret);
        QVERIFY2(open.title() == keyWord(expected), qPrintable(u"%1: %2"_s.arg(caret).arg(open.title())));
        QVERIFY(open.guide->rtfTips.Text().startsWith(u"%1.\t"_s.arg(expected)));
    }
}

void tst_GuideHitTest::anActionBeginsBehindItsDot()
{
    const ImplementationPage open;
    for (int action = 2; action <= Actions; ++action) {
        open.releaseAt(open.startOfAction(action) + 1);
        QCOMPARE(open.shown(), action - 1);
        open.releaseAt(open.startOfAction(action) + 2);
        QCOMPARE(open.shown(), action);
    }
}

void tst_GuideHitTest::aClickAtTheVeryStartShowsTheFirstAction_data()
{
    QTest::addColumn<int>("caret");
    QTest::addColumn<int>("moved");
    QTest::newRow("before the number") << 0 << 2;
    QTest::newRow("behind the number") << 1 << 2;
    QTest::newRow("behind the dot") << 2 << 2;
    QTest::newRow("behind the tab") << 3 << 3;
}

void tst_GuideHitTest::aClickAtTheVeryStartShowsTheFirstAction()
{
    QFETCH(int, caret);
    const ImplementationPage open;
    open.clickCharacter(caret);
    QCOMPARE(open.shown(), 1);
    QTEST(open.guide->rtfData.SelStart(), "moved");
    QCOMPARE(open.guide->rtfData.SelLength(), 0);
}

void tst_GuideHitTest::aClickBehindTheLastWordShowsTheLastAction()
{
    const ImplementationPage open;
    open.clickCharacter(open.end());
    QCOMPARE(open.guide->rtfData.SelStart(), open.end());
    QCOMPARE(open.shown(), 7);
}

void tst_GuideHitTest::aClickBelowTheTextShowsTheLastAction()
{
    const ImplementationPage open;
    open.page().verticalScrollBar()->setValue(open.page().verticalScrollBar()->maximum());
    open.clickPage(open.page().viewport()->rect().bottomRight() - QPoint(2, 2));
    QCOMPARE(open.guide->rtfData.SelStart(), open.end());
    QCOMPARE(open.shown(), 7);
}

void tst_GuideHitTest::aSelectionCountsFromItsStart()
{
    const ImplementationPage open;
    open.clickCharacter(open.startOfAction(2) + 10);
    const auto placeOf = [&](int position) {
        QTextCursor cursor(open.page().document());
        cursor.setPosition(position);
        return open.page().cursorRect(cursor).center();
    };
    QWidget *viewport = open.page().viewport();
    QTest::mousePress(viewport, Qt::LeftButton, {}, placeOf(open.startOfAction(4) + 10));
    QTest::mouseMove(viewport, placeOf(open.startOfAction(3) + 10));
    QTest::mouseRelease(viewport, Qt::LeftButton, {}, placeOf(open.startOfAction(3) + 10));
    QVERIFY(open.guide->rtfData.SelLength() > 0);
    QCOMPARE(open.guide->rtfData.SelStart(), open.startOfAction(3) + 10);
    QCOMPARE(open.shown(), 3);
}

void tst_GuideHitTest::aCommaBehindTheKeyWordIsNotShown()
{
    const ImplementationPage open;
    open.guide->rtfData.setText(u"1.\tAssign, one, manager"_s);
    open.releaseAt(3);
    QCOMPARE(open.title(), u"Assign"_s);
    open.guide->rtfData.setText(u"1.\tAssign,one,two manager"_s);
    open.releaseAt(3);
    QCOMPARE(open.title(), u"Assignonetwo"_s);
}

void tst_GuideHitTest::aWordWithoutABlankKeepsTheWordBefore()
{
    const ImplementationPage open;
    open.guide->rtfData.setText(u"1.\tOne of two\n2.\tTwo"_s);
    open.releaseAt(100);
    QCOMPARE(open.title(), u"One"_s);
    QCOMPARE(open.guide->rtfTips.Text(), adviceText(2));
}

void tst_GuideHitTest::anEighthActionHasATitleButNoAdvice()
{
    const ImplementationPage open;
    open.releaseAt(open.startOfAction(2) + 5);
    QString text;
    for (int number = 1; number <= 8; ++number)
        text += u"%1.\tWord%1 and more\n"_s.arg(number);
    open.guide->rtfData.setText(text);
    open.releaseAt(int(text.size()));
    QCOMPARE(open.title(), u"Word8"_s);
    QCOMPARE(open.guide->rtfTips.Text(), adviceText(2));
}

void tst_GuideHitTest::anEmptyPageEmptiesTheTitle()
{
    const ImplementationPage open;
    open.releaseAt(open.startOfAction(2) + 5);
    open.guide->rtfData.setText({});
    open.releaseAt(0);
    QCOMPARE(open.title(), QString());
    QCOMPARE(open.guide->rtfTips.Text(), adviceText(2));
    QCOMPARE(open.guide->rtfData.SelStart(), 0);
}

void tst_GuideHitTest::theCursorAsksOverTheKeyWords_data()
{
    QTest::addColumn<float>("x");
    QTest::addColumn<int>("pointer");
    QTest::newRow("left of the page") << -15.F << int(ArrowQuestionPointer);
    QTest::newRow("0") << 0.F << int(ArrowQuestionPointer);
    QTest::newRow("1999") << 1999.F << int(ArrowQuestionPointer);
    QTest::newRow("1999.9") << 1999.9F << int(ArrowQuestionPointer);
    QTest::newRow("2000") << 2000.F << int(ArrowPointer);
    QTest::newRow("9000") << 9000.F << int(ArrowPointer);
}

void tst_GuideHitTest::theCursorAsksOverTheKeyWords()
{
    QFETCH(float, x);
    const ImplementationPage open;
    QTEST(pointerAt(open, x), "pointer");
}

void tst_GuideHitTest::theCursorFollowsTheMouse()
{
    const ImplementationPage open;
    QWidget *viewport = open.page().viewport();
    QTest::mouseMove(viewport, QPoint(300, 20));
    QCOMPARE(viewport->cursor().shape(), Qt::ArrowCursor);
    QTest::mouseMove(viewport, QPoint(133, 20)); // 1995 twips
    QCOMPARE(viewport->cursor().shape(), Qt::WhatsThisCursor);
    QTest::mouseMove(viewport, QPoint(134, 20)); // 2010 twips
    QCOMPARE(viewport->cursor().shape(), Qt::ArrowCursor);
}

void tst_GuideHitTest::theCursorIsPlainInOtherViews_data()
{
    QTest::addColumn<QString>("view");
    for (const char *view : {"Requirement", "Procedure", "Tips"})
        QTest::newRow(view) << QString::fromLatin1(view);
}

void tst_GuideHitTest::theCursorIsPlainInOtherViews()
{
    QFETCH(QString, view);
    const ImplementationPage open;
    QCOMPARE(pointerAt(open, 600), int(ArrowQuestionPointer));
    open.press(view);
    QCOMPARE(pointerAt(open, 600), int(ArrowPointer));
}

void tst_GuideHitTest::withoutACheckedViewTheCursorIsPlain()
{
    const ImplementationPage open;
    open.guide->mnuNav.Tools(u"Implementation"_s).setChecked(false);
    QCOMPARE(pointerAt(open, 600), int(ArrowPointer));
    open.guide->mnuNav.Tools(u"Implementation"_s).setChecked(true);
    open.guide->mnuNav.Tools(u"Last"_s).setChecked(true); // the last checked tool counts
    QCOMPARE(pointerAt(open, 600), int(ArrowPointer));
}

void tst_GuideHitTest::theHitTestIsCalledByName()
{
    const ImplementationPage open;
    open.guide->rtfData.setSelStart(open.startOfAction(4) + 9);
    open.guide->names().call(u"rtfData_MouseUp"_s, {.button = 1, .shift = 5, .x = 600, .y = 225});
    QCOMPARE(open.shown(), 4);
    open.guide->names().call(u"cmdTipsClose_Click"_s);
    QVERIFY(open.paneHidden());
}

void tst_GuideHitTest::textAndCaretCountTheSame()
{
    const ImplementationPage open;
    const QString text = open.guide->rtfData.Text();
    QCOMPARE(text.size(), open.end());
    for (int i = 0; i < text.size(); ++i) {
        const QChar shown = open.page().document()->characterAt(i);
        QCOMPARE(text.at(i), shown == QChar::ParagraphSeparator ? u'\n' : shown);
    }
}

void tst_GuideHitTest::everyCharacterIsFoundWhereItIsShown()
{
    const ImplementationPage open;
    QTextCursor cursor(open.page().document());
    for (int position = 0; position <= open.end(); ++position) {
        cursor.setPosition(position);
        const QPoint place = open.page().cursorRect(cursor).center();
        QCOMPARE(open.page().cursorForPosition(place).position(), position);
    }
}

QTEST_MAIN(tst_GuideHitTest)
#include "tst_GuideHitTest.moc"
