// How the diagram is laid out in its window, when it isn't, and that opening another window moves nothing.
#include "command_center/DiagramUser.h"
#include "shell/modFunctions.h"

using namespace Qt::Literals::StringLiterals;
using namespace orvane;
using namespace orvane::test;

namespace
{
// Left, Top, Width and Height of everything that a layout moves.
using Places = std::vector<QRectF>;

QRectF placeOf(const Control &control)
{
    return {control.Left(), control.Top(), control.Width(), control.Height()};
}

Places placesOf(const frmCommandCentre &diagram)
{
    Places places{placeOf(diagram.gradient)};
    for (const auto &[index, tab] : diagram.SSRibbon1)
        places.push_back(placeOf(*tab));
    for (int i = 1; i <= 5; ++i) {
        places.push_back(placeOf(diagram.pnlDiag(i)));
        places.push_back(placeOf(diagram.fraButtons(i)));
    }
    return places;
}
} // namespace

class tst_DiagramLayout : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void theTabsAreCentred_data();
    void theTabsAreCentred();
    void thePanelsKeepTheirMargins_data();
    void thePanelsKeepTheirMargins();
    void theButtonsAreCentredInTheWindow_data();
    void theButtonsAreCentredInTheWindow();
    void theButtonsAreNotCentredInThePanel();
    void theGroundTakesTheWholeWindow_data();
    void theGroundTakesTheWholeWindow();
    void noButtonIsSized();

    void theFirstLayoutUsesTheFramesSize();
    void laterLayoutsUseTheWindowsOwnSize();
    void aHeldFirstLayoutCountsAsTheFirst();
    void aHeldLayoutMovesNothingAndLiftsTheHold();
    void aMinimisedWindowIsNotLaidOut();
    void aHeldLayoutOfAMinimisedWindowLiftsTheHold();
    void aSizeTooSmallForAPanelStopsNoOtherStep();

    void openingAWindowLaysNothingOut();
    void bringingAWindowForwardLaysNothingOut();
    void afterAWindowWasClosedTheLayoutIsAsBefore_data();
    void afterAWindowWasClosedTheLayoutIsAsBefore();

private:
    frmCommandCentre &diagram() const { return m_system->diagram(); }
    void resizeTo(double scaleWidth, double scaleHeight) const;
    static void addWidths();

    std::optional<RunningSystem> m_system;
};

void tst_DiagramLayout::init()
{
    m_system.emplace();
}

void tst_DiagramLayout::cleanup()
{
    m_system.reset();
}

// As a user drags the window's edge.
void tst_DiagramLayout::resizeTo(double scaleWidth, double scaleHeight) const
{
    diagram().setWindowState(Normal);
    const double widthOfEdges = diagram().Width() - diagram().ScaleWidth();
    const double heightOfEdges = diagram().Height() - diagram().ScaleHeight();
    diagram().setWidth(scaleWidth + widthOfEdges);
    diagram().setHeight(scaleHeight + heightOfEdges);
    QCOMPARE(diagram().ScaleWidth(), scaleWidth);
    QCOMPARE(diagram().ScaleHeight(), scaleHeight);
}

// Below 9105 the tabs have no room.
void tst_DiagramLayout::addWidths()
{
    QTest::addColumn<double>("width");
    QTest::addColumn<double>("height");
    QTest::addColumn<double>("firstTab");
    QTest::newRow("far below") << 7500.0 << 4500.0 << -802.5;
    QTest::newRow("a little below") << 9000.0 << 6000.0 << -52.5;
    QTest::newRow("just enough") << 9105.0 << 6000.0 << 0.0;
    QTest::newRow("small screen") << 15360.0 << 10800.0 << 3127.5;
    QTest::newRow("large screen") << 28800.0 << 15000.0 << 9847.5;
}

void tst_DiagramLayout::theTabsAreCentred_data()
{
    addWidths();
}

void tst_DiagramLayout::theTabsAreCentred()
{
    QFETCH(double, width);
    QFETCH(double, height);
    QFETCH(double, firstTab);
    m_system->start();
    resizeTo(width, height);
    for (int i = 1; i <= 5; ++i) {
        QCOMPARE(diagram().SSRibbon1(i).Left(), firstTab + (i - 1) * 1920);
        QCOMPARE(diagram().SSRibbon1(i).Top(), 600.0);
        QCOMPARE(diagram().SSRibbon1(i).Width(), i == 5 ? 1425.0 : 1455.0);
        QCOMPARE(diagram().SSRibbon1(i).widget().x(), qRound((firstTab + (i - 1) * 1920) / 15));
    }
}

void tst_DiagramLayout::thePanelsKeepTheirMargins_data()
{
    addWidths();
}

// At right and at foot as much as at left, which is 240; 2040 lie above.
void tst_DiagramLayout::thePanelsKeepTheirMargins()
{
    QFETCH(double, width);
    QFETCH(double, height);
    m_system->start();
    resizeTo(width, height);
    for (int i = 1; i <= 5; ++i)
        QCOMPARE(placeOf(diagram().pnlDiag(i)), QRectF(240, 2040, width - 480, height - 2280));
}

void tst_DiagramLayout::theButtonsAreCentredInTheWindow_data()
{
    addWidths();
}

void tst_DiagramLayout::theButtonsAreCentredInTheWindow()
{
    QFETCH(double, width);
    QFETCH(double, height);
    const std::vector<std::pair<double, double>> sizes{
        {5295, 1815}, {5295, 2655}, {3255, 735}, {6855, 2655}, {3255, 735}};
    m_system->start();
    resizeTo(width, height);
    for (int i = 1; i <= 5; ++i) {
        const auto [frameWidth, frameHeight] = sizes[static_cast<size_t>(i - 1)];
        const QRectF expected((width - frameWidth) / 2, (height - 2280 - frameHeight) / 2, frameWidth, frameHeight);
        QCOMPARE(placeOf(diagram().fraButtons(i)), expected);
    }
}

// They stand right of the panel's middle by its left margin.
void tst_DiagramLayout::theButtonsAreNotCentredInThePanel()
{
    m_system->start();
    resizeTo(15360, 10800);
    for (int i = 1; i <= 5; ++i) {
        const Frame &buttons = diagram().fraButtons(i);
        const double middleOfPanel = diagram().pnlDiag(i).Width() / 2;
        QCOMPARE(buttons.Left() + buttons.Width() / 2 - middleOfPanel, 240.0);
    }
}

void tst_DiagramLayout::theGroundTakesTheWholeWindow_data()
{
    addWidths();
}

void tst_DiagramLayout::theGroundTakesTheWholeWindow()
{
    QFETCH(double, width);
    QFETCH(double, height);
    m_system->start();
    resizeTo(width, height);
    QCOMPARE(placeOf(diagram().gradient), QRectF(0, 0, width, height));
    QCOMPARE(diagram().surface().children().first(), &diagram().gradient.widget());
}

void tst_DiagramLayout::noButtonIsSized()
{
    m_system->start();
    const auto [left, top] = std::pair(diagram().cmdAct(10).Left(), diagram().cmdAct(10).Top());
    resizeTo(28800, 15000);
    QCOMPARE(placeOf(diagram().cmdAct(10)), QRectF(left, top, 1395, 615));
    resizeTo(7500, 4500);
    QCOMPARE(placeOf(diagram().cmdAct(10)), QRectF(left, top, 1395, 615));
    QCOMPARE(placeOf(diagram().pnlHeader), QRectF(0, 0, 10050, 375));
}

void tst_DiagramLayout::theFirstLayoutUsesTheFramesSize()
{
    diagram();
    Shared().FrameScaleWidth = 12345;
    Shared().FrameScaleHeight = 6789;
    QVERIFY(diagram().ScaleWidth() != 12345.0);
    diagram().Form_Resize();
    QCOMPARE(placeOf(diagram().gradient), QRectF(0, 0, 12345, 6789));
    QCOMPARE(diagram().SSRibbon1(1).Left(), 1620.0);
    QCOMPARE(placeOf(diagram().pnlDiag(5)), QRectF(240, 2040, 11865, 4509));
    QCOMPARE(diagram().fraButtons(4).Left(), 2745.0);
    QCOMPARE(diagram().fraButtons(4).Top(), 927.0);
}

void tst_DiagramLayout::laterLayoutsUseTheWindowsOwnSize()
{
    diagram();
    Shared().FrameScaleWidth = 12345;
    Shared().FrameScaleHeight = 6789;
    diagram().Form_Resize();
    diagram().Form_Resize();
    QCOMPARE(placeOf(diagram().gradient), QRectF(0, 0, diagram().ScaleWidth(), diagram().ScaleHeight()));
}

void tst_DiagramLayout::aHeldFirstLayoutCountsAsTheFirst()
{
    diagram();
    Shared().FrameScaleWidth = 12345;
    Shared().DiagramLayoutHeld = True;
    diagram().Form_Resize();
    QCOMPARE(placeOf(diagram().pnlDiag(1)), QRectF(240, 2040, 6975, 2775));
    diagram().Form_Resize();
    QCOMPARE(diagram().gradient.Width(), diagram().ScaleWidth());
}

void tst_DiagramLayout::aHeldLayoutMovesNothingAndLiftsTheHold()
{
    m_system->start();
    const Places before = placesOf(diagram());
    diagram().setWindowState(Normal);
    const Places normal = placesOf(diagram());
    QVERIFY(normal != before);
    Shared().DiagramLayoutHeld = True;
    diagram().setWidth(diagram().Width() - 1500);
    QVERIFY(Shared().DiagramLayoutHeld == False);
    QVERIFY(placesOf(diagram()) == normal);
    diagram().setWidth(diagram().Width() - 1500);
    QVERIFY(placesOf(diagram()) != normal);
    QCOMPARE(diagram().gradient.Width(), diagram().ScaleWidth());
}

void tst_DiagramLayout::aMinimisedWindowIsNotLaidOut()
{
    m_system->start();
    diagram().gradient.Move(15, 30, 45, 60);
    const Places before = placesOf(diagram());
    diagram().setWindowState(Minimized);
    diagram().Form_Resize();
    QCOMPARE(diagram().WindowState(), int(Minimized));
    QVERIFY(placesOf(diagram()) == before);
    diagram().setWindowState(Maximized);
    QCOMPARE(placeOf(diagram().gradient), QRectF(0, 0, diagram().ScaleWidth(), diagram().ScaleHeight()));
}

void tst_DiagramLayout::aHeldLayoutOfAMinimisedWindowLiftsTheHold()
{
    m_system->start();
    diagram().setWindowState(Minimized);
    Shared().DiagramLayoutHeld = True;
    diagram().Form_Resize();
    QVERIFY(Shared().DiagramLayoutHeld == False);
}

// A panel can't be that narrow and is left as it was; the steps behind it are done all the same.
void tst_DiagramLayout::aSizeTooSmallForAPanelStopsNoOtherStep()
{
    diagram();
    Shared().FrameScaleWidth = 300;
    Shared().FrameScaleHeight = 1500;
    diagram().Form_Resize();
    QCOMPARE(placeOf(diagram().gradient), QRectF(0, 0, 300, 1500));
    QCOMPARE(diagram().SSRibbon1(5).Left(), 3277.5);
    for (int i = 1; i <= 5; ++i)
        QCOMPARE(placeOf(diagram().pnlDiag(i)), QRectF(240, 2040, 6975, 2775));
    QCOMPARE(placeOf(diagram().fraButtons(5)), QRectF(-1477.5, 1020, 3255, 735));
}

// What a layout would put right stays as it is.
void tst_DiagramLayout::openingAWindowLaysNothingOut()
{
    m_system->start();
    const Places before = placesOf(diagram());
    diagram().gradient.Move(15, 30, 45, 60);
    diagram().fraButtons(3).Move(0, 0, 3255, 735);
    m_system->click(diagram().cmdImp(1));
    QCOMPARE(m_system->active()->Name(), u"frmIGSteps"_s);
    QCOMPARE(placeOf(diagram().gradient), QRectF(15, 30, 45, 60));
    QCOMPARE(diagram().fraButtons(3).Left(), 0.0);
    QVERIFY(Shared().DiagramLayoutHeld == False);
    ShowDiagram();
    QVERIFY(placesOf(diagram()) == before);
}

// The hold is there by the time that the window comes up, and is used up by that.
void tst_DiagramLayout::bringingAWindowForwardLaysNothingOut()
{
    m_system->start();
    m_system->click(diagram().cmdImp(1));
    diagram().SetFocus();
    diagram().gradient.Move(15, 30, 45, 60);
    m_system->click(diagram().cmdImp(1));
    QCOMPARE(m_system->active()->Name(), u"frmIGSteps"_s);
    QCOMPARE(diagram().WindowState(), int(Normal));
    QCOMPARE(placeOf(diagram().gradient), QRectF(15, 30, 45, 60));
    QVERIFY(Shared().DiagramLayoutHeld == False);
}

void tst_DiagramLayout::afterAWindowWasClosedTheLayoutIsAsBefore_data()
{
    QTest::addColumn<bool>("byItsTool");
    QTest::newRow("the diagram first, then the window goes") << true;
    QTest::newRow("the window goes") << false;
}

void tst_DiagramLayout::afterAWindowWasClosedTheLayoutIsAsBefore()
{
    QFETCH(bool, byItsTool);
    m_system->start();
    const Places before = placesOf(diagram());
    m_system->click(diagram().cmdImp(0));
    MDIChild *guide = m_system->active();
    QVERIFY(guide != &diagram());
    if (byItsTool) ShowDiagram();
    QVERIFY(guide->Unload());
    QCOMPARE(m_system->active(), &diagram());
    QCOMPARE(diagram().WindowState(), int(Maximized));
    QVERIFY(placesOf(diagram()) == before);
}

QTEST_MAIN(tst_DiagramLayout)
#include "tst_DiagramLayout.moc"
