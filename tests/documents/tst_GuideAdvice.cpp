// The advice pane: which action a click means, what the pane then shows, and when it comes and goes.
#include "documents/GuideWindow.h"
#include "documents/pages/Advice.h"

#include "platform/richtext/Rtf.h"
#include "shell/SharedState.h"

#include <QScrollBar>
#include <QTextDocument>

using namespace Qt::Literals::StringLiterals;
using namespace orvane;
using namespace orvane::test;

namespace
{

constexpr int Actions = 7;

const QString Prompt = u"Click on the Bold Text above to get detailed advice"_s;

QString keyWord(int action)
{
    static const QStringList words{u"Assign"_s,  u"Write"_s,    u"Design"_s, u"Identify"_s,
                                   u"Prepare"_s, u"Document"_s, u"Test"_s};
    return words.at(action - 1);
}

QString adviceText(int action)
{
    QTextDocument document;
    readRtf(pages::advice(action), document);
    return document.toPlainText();
}

struct ImplementationPage : GuideWindow {
    ImplementationPage() { press(u"Implementation"_s); }

    int end() const { return page().document()->characterCount() - 1; }
    QString title() const { return guide->ssPanel.Caption(); }

    // Which action the pane shows, by title and text: 0 for none of them.
    int shown() const
    {
        for (int action = 1; action <= Actions; ++action)
            if (title() == keyWord(action) && guide->rtfTips.Text() == adviceText(action)) return action;
        return 0;
    }

    // As a mouse button released over the page with the caret here.
    void releaseAt(int caret, int button = 1) const
    {
        guide->rtfData.setSelStart(caret);
        guide->rtfData_MouseUp(button, 0, 0, 0);
    }
};

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

class tst_GuideAdvice : public QObject
{
    Q_OBJECT

private slots:
    void theFirstTimeThePanePrompts();
    void thePaneKeepsItsPromptUntilAnActionIsChosen();
    void theHeadingStandsWhileThePaneComes();
    void aClickShowsTheAdviceOnItsAction_data();
    void aClickShowsTheAdviceOnItsAction();
    void aClickOnAPlainWordCountsToo();
    void everyCaretPositionMeansItsAction();
    void anActionBeginsBehindItsDot();
    void aClickAtTheVeryStartShowsTheFirstAction_data();
    void aClickAtTheVeryStartShowsTheFirstAction();
    void aClickBehindTheLastWordShowsTheLastAction();
    void aClickBelowTheTextShowsTheLastAction();
    void aSelectionCountsFromItsStart();
    void everyReleaseIsReported_data();
    void everyReleaseIsReported();
    void anIntroductionHearsNoClick_data();
    void anIntroductionHearsNoClick();
    void otherButtonsChangeNothing_data();
    void otherButtonsChangeNothing();
    void anotherViewShowsNoPane_data();
    void anotherViewShowsNoPane();
    void comingBackStartsFromTheFirstAction_data();
    void comingBackStartsFromTheFirstAction();
    void leavingKeepsWhatThePaneShowed();
    void theCloseButtonHidesThePane_data();
    void theCloseButtonHidesThePane();
    void aClickBringsAClosedPaneBack();
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

void tst_GuideAdvice::theFirstTimeThePanePrompts()
{
    const GuideWindow open;
    QVERIFY(open.paneHidden());
    QVERIFY(open.guide->rtfTips.Text().isEmpty());
    open.press(u"Implementation"_s);
    QVERIFY(open.paneShown());
    QCOMPARE(open.guide->ssPanel.Caption(), u"orvane Advice"_s);
    QCOMPARE(open.guide->rtfTips.Text(), Prompt);
    QCOMPARE(open.guide->rtfData.SelStart(), 0);
    QCOMPARE(open.tags->tags(), QStringList(u"105"_s));
}

void tst_GuideAdvice::thePaneKeepsItsPromptUntilAnActionIsChosen()
{
    const ImplementationPage open;
    QTest::mouseClick(&open.guide->cmdTipsClose.widget(), Qt::LeftButton);
    open.press(u"Tips"_s);
    open.press(u"Implementation"_s);
    QVERIFY(open.paneShown());
    QCOMPARE(open.title(), u"orvane Advice"_s);
    QCOMPARE(open.guide->rtfTips.Text(), Prompt);
    QCOMPARE(open.guide->rtfData.SelStart(), 0);
}

void tst_GuideAdvice::theHeadingStandsWhileThePaneComes()
{
    const GuideWindow open;
    QStringList texts;
    QObject context;
    connect(&open.guide->rtfData, &RichTextBox::Change, &context, [&] {
        texts << open.guide->rtfData.Text();
        QCOMPARE(open.paneHidden(), texts.size() == 1);
        QCOMPARE(open.paneShown(), texts.size() == 2);
    });
    open.press(u"Implementation"_s);
    QCOMPARE(texts.size(), 2);
    QCOMPARE(texts.first(),
             u"Implementation action\nKey Action Points to implement each ISO 14001 requirement is provided.\n\n"
             u"Click - Any of the bolded words"_s);
}

void tst_GuideAdvice::aClickShowsTheAdviceOnItsAction_data()
{
    QTest::addColumn<int>("action");
    for (int action = 1; action <= Actions; ++action)
        QTest::addRow("%s", qPrintable(keyWord(action))) << action;
}

void tst_GuideAdvice::aClickShowsTheAdviceOnItsAction()
{
    QFETCH(int, action);
    const ImplementationPage open;
    open.clickCharacter(open.startOfAction(action) + 4);
    QVERIFY(open.paneShown());
    QCOMPARE(open.title(), keyWord(action));
    QCOMPARE(open.guide->rtfTips.Text(), adviceText(action));
    QCOMPARE(open.guide->rtfTips.SelStart(), 0);
    QCOMPARE(open.advice().verticalScrollBar()->value(), 0);
}

void tst_GuideAdvice::aClickOnAPlainWordCountsToo()
{
    const ImplementationPage open;
    const int plain = int(open.guide->rtfData.Text().indexOf(u"emergency plan"_s, open.startOfAction(3)));
    open.clickCharacter(plain + 2);
    QCOMPARE(open.shown(), 3);
}

void tst_GuideAdvice::everyCaretPositionMeansItsAction()
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

void tst_GuideAdvice::anActionBeginsBehindItsDot()
{
    const ImplementationPage open;
    for (int action = 2; action <= Actions; ++action) {
        open.releaseAt(open.startOfAction(action) + 1);
        QCOMPARE(open.shown(), action - 1);
        open.releaseAt(open.startOfAction(action) + 2);
        QCOMPARE(open.shown(), action);
    }
}

void tst_GuideAdvice::aClickAtTheVeryStartShowsTheFirstAction_data()
{
    QTest::addColumn<int>("caret");
    QTest::addColumn<int>("moved");
    QTest::newRow("before the number") << 0 << 2;
    QTest::newRow("behind the number") << 1 << 2;
    QTest::newRow("behind the dot") << 2 << 2;
    QTest::newRow("behind the tab") << 3 << 3;
}

void tst_GuideAdvice::aClickAtTheVeryStartShowsTheFirstAction()
{
    QFETCH(int, caret);
    const ImplementationPage open;
    open.clickCharacter(caret);
    QCOMPARE(open.shown(), 1);
    QTEST(open.guide->rtfData.SelStart(), "moved");
    QCOMPARE(open.guide->rtfData.SelLength(), 0);
}

void tst_GuideAdvice::aClickBehindTheLastWordShowsTheLastAction()
{
    const ImplementationPage open;
    open.clickCharacter(open.end());
    QCOMPARE(open.guide->rtfData.SelStart(), open.end());
    QCOMPARE(open.shown(), 7);
}

void tst_GuideAdvice::aClickBelowTheTextShowsTheLastAction()
{
    const ImplementationPage open;
    open.page().verticalScrollBar()->setValue(open.page().verticalScrollBar()->maximum());
    open.clickPage(open.page().viewport()->rect().bottomRight() - QPoint(2, 2));
    QCOMPARE(open.guide->rtfData.SelStart(), open.end());
    QCOMPARE(open.shown(), 7);
}

void tst_GuideAdvice::aSelectionCountsFromItsStart()
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

void tst_GuideAdvice::everyReleaseIsReported_data()
{
    QTest::addColumn<QString>("view");
    QTest::addColumn<Qt::MouseButton>("button");
    for (const char *view : {"Requirement", "Procedure", "Implementation", "Tips"})
        for (const auto button : {Qt::LeftButton, Qt::RightButton, Qt::MiddleButton})
            QTest::addRow("%s, button %d", view, int(button)) << QString::fromLatin1(view) << button;
}

void tst_GuideAdvice::everyReleaseIsReported()
{
    QFETCH(QString, view);
    QFETCH(Qt::MouseButton, button);
    const GuideWindow open;
    open.press(view);
    open.tags->clear();
    open.clickCharacter(30, button);
    QCOMPARE(open.tags->tags(), QStringList(u"106"_s));
}

void tst_GuideAdvice::anIntroductionHearsNoClick_data()
{
    QTest::addColumn<QString>("section");
    QTest::addColumn<bool>("hears");
    for (const char *section : {"101", "102", "103", "104", "0"})
        QTest::newRow(section) << QString::fromLatin1(section) << false;
    for (const char *section : {"105", "127", "999"})
        QTest::newRow(section) << QString::fromLatin1(section) << true;
}

void tst_GuideAdvice::anIntroductionHearsNoClick()
{
    QFETCH(QString, section);
    QFETCH(bool, hears);
    const GuideWindow open(section);
    open.clickCharacter(8);
    QCOMPARE(open.tags->tags().isEmpty(), !hears);
    QVERIFY(open.paneHidden());
}

void tst_GuideAdvice::otherButtonsChangeNothing_data()
{
    QTest::addColumn<Qt::MouseButton>("button");
    QTest::newRow("right") << Qt::RightButton;
    QTest::newRow("middle") << Qt::MiddleButton;
}

void tst_GuideAdvice::otherButtonsChangeNothing()
{
    QFETCH(Qt::MouseButton, button);
    const ImplementationPage open;
    open.clickCharacter(open.startOfAction(2) + 4);
    QTest::mouseClick(&open.guide->cmdTipsClose.widget(), Qt::LeftButton);
    const QString page = open.guide->rtfData.TextRTF();
    open.clickCharacter(open.startOfAction(5) + 4, button);
    QCOMPARE(open.shown(), 2);
    QVERIFY(open.paneHidden());
    QCOMPARE(open.guide->rtfData.TextRTF(), page);
    QCOMPARE(open.checkedTools(), QStringList(u"Implementation"_s));
}

void tst_GuideAdvice::anotherViewShowsNoPane_data()
{
    QTest::addColumn<QString>("view");
    for (const char *view : {"Requirement", "Procedure", "Tips"})
        QTest::newRow(view) << QString::fromLatin1(view);
}

void tst_GuideAdvice::anotherViewShowsNoPane()
{
    QFETCH(QString, view);
    const GuideWindow open;
    open.press(view);
    open.clickCharacter(1);
    QVERIFY(open.paneHidden());
    QVERIFY(open.guide->ssPanel.Caption().isEmpty());
    QCOMPARE(open.guide->rtfData.SelStart(), 1);
}

void tst_GuideAdvice::comingBackStartsFromTheFirstAction_data()
{
    QTest::addColumn<QString>("view");
    for (const char *view : {"Requirement", "Procedure", "Implementation", "Tips"})
        QTest::newRow(view) << QString::fromLatin1(view);
}

void tst_GuideAdvice::comingBackStartsFromTheFirstAction()
{
    QFETCH(QString, view);
    const ImplementationPage open;
    open.clickCharacter(open.startOfAction(5) + 4);
    QCOMPARE(open.shown(), 5);
    open.press(view);
    open.tags->clear();
    open.press(u"Implementation"_s);
    QVERIFY(open.paneShown());
    QCOMPARE(open.shown(), 1);
    QCOMPARE(open.guide->rtfData.SelStart(), 2);
    QCOMPARE(open.tags->tags(), QStringList({u"105"_s, u"106"_s}));
}

void tst_GuideAdvice::leavingKeepsWhatThePaneShowed()
{
    const ImplementationPage open;
    open.clickCharacter(open.startOfAction(6) + 4);
    open.press(u"Tips"_s);
    QVERIFY(open.paneHidden());
    QCOMPARE(open.shown(), 6);
}

void tst_GuideAdvice::theCloseButtonHidesThePane_data()
{
    QTest::addColumn<bool>("byKeys");
    QTest::newRow("by the mouse") << false;
    QTest::newRow("by keys") << true;
}

void tst_GuideAdvice::theCloseButtonHidesThePane()
{
    QFETCH(bool, byKeys);
    const ImplementationPage open;
    open.clickCharacter(open.startOfAction(4) + 4);
    open.tags->clear();
    if (byKeys) {
        open.guide->cmdTipsClose.SetFocus();
        QTest::keyClick(&open.guide->cmdTipsClose.widget(), Qt::Key_Space);
    } else {
        QTest::mouseClick(&open.guide->cmdTipsClose.widget(), Qt::LeftButton);
    }
    QVERIFY(open.paneHidden());
    QCOMPARE(open.shown(), 4);
    QCOMPARE(open.checkedTools(), QStringList(u"Implementation"_s));
    QCOMPARE(open.tags->tags(), QStringList());
}

void tst_GuideAdvice::aClickBringsAClosedPaneBack()
{
    const ImplementationPage open;
    open.clickCharacter(open.startOfAction(3) + 4);
    const double withPane = open.guide->rtfData.Height();
    QTest::mouseClick(&open.guide->cmdTipsClose.widget(), Qt::LeftButton);
    open.clickCharacter(open.startOfAction(5) + 4);
    QVERIFY(open.paneShown());
    QCOMPARE(open.shown(), 5);
    QCOMPARE(open.guide->rtfData.Height(), withPane);
}

void tst_GuideAdvice::aCommaBehindTheKeyWordIsNotShown()
{
    const ImplementationPage open;
    open.guide->rtfData.setText(u"1.\tAssign, one, manager"_s);
    open.releaseAt(3);
    QCOMPARE(open.title(), u"Assign"_s);
    open.guide->rtfData.setText(u"1.\tAssign,one,two manager"_s);
    open.releaseAt(3);
    QCOMPARE(open.title(), u"Assignonetwo"_s);
}

void tst_GuideAdvice::aWordWithoutABlankKeepsTheWordBefore()
{
    const ImplementationPage open;
    open.guide->rtfData.setText(u"1.\tOne of two\n2.\tTwo"_s);
    open.releaseAt(100);
    QCOMPARE(open.title(), u"One"_s);
    QCOMPARE(open.guide->rtfTips.Text(), adviceText(2));
}

void tst_GuideAdvice::anEighthActionHasATitleButNoAdvice()
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

void tst_GuideAdvice::anEmptyPageEmptiesTheTitle()
{
    const ImplementationPage open;
    open.releaseAt(open.startOfAction(2) + 5);
    open.guide->rtfData.setText({});
    open.releaseAt(0);
    QCOMPARE(open.title(), QString());
    QCOMPARE(open.guide->rtfTips.Text(), adviceText(2));
    QCOMPARE(open.guide->rtfData.SelStart(), 0);
}

void tst_GuideAdvice::theCursorAsksOverTheKeyWords_data()
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

void tst_GuideAdvice::theCursorAsksOverTheKeyWords()
{
    QFETCH(float, x);
    const ImplementationPage open;
    QTEST(pointerAt(open, x), "pointer");
}

void tst_GuideAdvice::theCursorFollowsTheMouse()
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

void tst_GuideAdvice::theCursorIsPlainInOtherViews_data()
{
    anotherViewShowsNoPane_data();
}

void tst_GuideAdvice::theCursorIsPlainInOtherViews()
{
    QFETCH(QString, view);
    const ImplementationPage open;
    QCOMPARE(pointerAt(open, 600), int(ArrowQuestionPointer));
    open.press(view);
    QCOMPARE(pointerAt(open, 600), int(ArrowPointer));
}

void tst_GuideAdvice::withoutACheckedViewTheCursorIsPlain()
{
    const ImplementationPage open;
    open.guide->mnuNav.Tools(u"Implementation"_s).setChecked(false);
    QCOMPARE(pointerAt(open, 600), int(ArrowPointer));
    open.guide->mnuNav.Tools(u"Implementation"_s).setChecked(true);
    open.guide->mnuNav.Tools(u"Last"_s).setChecked(true); // the last checked tool counts
    QCOMPARE(pointerAt(open, 600), int(ArrowPointer));
}

void tst_GuideAdvice::theHitTestIsCalledByName()
{
    const ImplementationPage open;
    open.guide->rtfData.setSelStart(open.startOfAction(4) + 9);
    open.guide->names().call(u"rtfData_MouseUp"_s, {.button = 1, .shift = 5, .x = 600, .y = 225});
    QCOMPARE(open.shown(), 4);
    open.guide->names().call(u"cmdTipsClose_Click"_s);
    QVERIFY(open.paneHidden());
}

void tst_GuideAdvice::textAndCaretCountTheSame()
{
    const ImplementationPage open;
    const QString text = open.guide->rtfData.Text();
    QCOMPARE(text.size(), open.end());
    for (int i = 0; i < text.size(); ++i) {
        const QChar shown = open.page().document()->characterAt(i);
        QCOMPARE(text.at(i), shown == QChar::ParagraphSeparator ? u'\n' : shown);
    }
}

void tst_GuideAdvice::everyCharacterIsFoundWhereItIsShown()
{
    const ImplementationPage open;
    QTextCursor cursor(open.page().document());
    for (int position = 0; position <= open.end(); ++position) {
        cursor.setPosition(position);
        const QPoint place = open.page().cursorRect(cursor).center();
        QCOMPARE(open.page().cursorForPosition(place).position(), position);
    }
}

QTEST_MAIN(tst_GuideAdvice)
#include "tst_GuideAdvice.moc"
