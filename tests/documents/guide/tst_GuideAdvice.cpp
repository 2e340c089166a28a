// The advice pane: what it shows, and when it comes and goes.
#include "documents/guide/ImplementationPage.h"

#include <QScrollBar>

using namespace Qt::Literals::StringLiterals;
using namespace orvane;
using namespace orvane::test;

namespace
{

const QString Prompt = u"Click on the Bold Text above to get detailed advice"_s;

// The order in which the parts of the pane come and go.
class PaneLog : public QObject
{
public:
    explicit PaneLog(const frmIGSteps &guide)
    {
        for (const Control *part :
             {static_cast<const Control *>(&guide.rtfTips), static_cast<const Control *>(&guide.cmdTipsClose),
              static_cast<const Control *>(&guide.ssPanel)})
            part->widget().installEventFilter(this);
    }

    bool eventFilter(QObject *part, QEvent *event) override
    {
        if (event->type() == QEvent::ShowToParent || event->type() == QEvent::HideToParent) parts << part->objectName();
        return false;
    }

    QStringList parts;
};

} // namespace

class tst_GuideAdvice : public QObject
{
    Q_OBJECT

private slots:
    void cleanup();

    void theFirstTimeThePanePrompts();
    void thePaneKeepsItsPromptUntilAnActionIsChosen();
    void theHeadingStandsWhileThePaneComes();
    void aClickShowsTheAdviceOnItsAction_data();
    void aClickShowsTheAdviceOnItsAction();
    void everyReleaseIsReported_data();
    void everyReleaseIsReported();
    void anIntroductionHearsNoClick_data();
    void anIntroductionHearsNoClick();
    void otherButtonsChangeNothing_data();
    void otherButtonsChangeNothing();
    void otherButtonsLeaveTheCaretAtTheStart_data() { otherButtonsChangeNothing_data(); }
    void otherButtonsLeaveTheCaretAtTheStart();
    void anotherViewShowsNoPane_data();
    void anotherViewShowsNoPane();
    void comingBackStartsFromTheFirstAction_data();
    void comingBackStartsFromTheFirstAction();
    void leavingKeepsWhatThePaneShowed();
    void theCloseButtonHidesThePane_data();
    void theCloseButtonHidesThePane();
    void aClickBringsAClosedPaneBack();
    void thePaneComesAndGoesInItsOrder();
};

void tst_GuideAdvice::cleanup()
{
    while (QWidget *popup = QApplication::activePopupWidget())
        popup->close();
}

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
    open.guide->rtfData.setSelLength(6);
    const int caret = open.guide->rtfData.SelStart();
    const QString page = open.guide->rtfData.TextRTF();
    open.clickCharacter(open.startOfAction(5) + 4, button);
    QCOMPARE(open.guide->rtfData.SelStart(), caret);
    QCOMPARE(open.guide->rtfData.SelLength(), 6);
    QCOMPARE(open.shown(), 2);
    QVERIFY(open.paneHidden());
    QCOMPARE(open.guide->rtfData.TextRTF(), page);
    QCOMPARE(open.checkedTools(), QStringList(u"Implementation"_s));
}

// A click of the left button takes it behind the first marker.
void tst_GuideAdvice::otherButtonsLeaveTheCaretAtTheStart()
{
    QFETCH(Qt::MouseButton, button);
    const ImplementationPage open;
    QCOMPARE(open.guide->rtfData.SelStart(), 0);
    open.clickCharacter(open.startOfAction(5) + 4, button);
    QCOMPARE(open.guide->rtfData.SelStart(), 0);
    QCOMPARE(open.guide->rtfData.SelLength(), 0);
    QCOMPARE(open.title(), u"orvane Advice"_s);
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

void tst_GuideAdvice::thePaneComesAndGoesInItsOrder()
{
    const GuideWindow open;
    PaneLog log(*open.guide);
    open.press(u"Implementation"_s);
    QCOMPARE(log.parts, (QStringList{u"rtfTips"_s, u"ssPanel"_s, u"cmdTipsClose"_s}));
    log.parts.clear();
    open.press(u"Requirement"_s);
    QCOMPARE(log.parts, (QStringList{u"rtfTips"_s, u"cmdTipsClose"_s, u"ssPanel"_s}));
}

QTEST_MAIN(tst_GuideAdvice)
#include "tst_GuideAdvice.moc"
