// Where the guide's parts stand in a window of any size. Lengths are twips.
#include "documents/guide/GuideWindow.h"

#include "shell/SharedState.h"

using namespace Qt::Literals::StringLiterals;
using namespace orvane;
using namespace orvane::test;

namespace
{

constexpr double TipsHeight = 1935;
constexpr double TitleHeight = 330;

struct Box {
    double left = 0;
    double top = 0;
    double width = 0;
    double height = 0;

    bool operator==(const Box &) const = default;
};
using Boxes = QMap<QString, Box>;

// Of everything that stands in the window, and the right margin of the page as a box of that width.
Boxes boxesOf(const frmIGSteps &guide)
{
    Boxes boxes;
    const Control *controls[] = {&guide.gradient, &guide.pnlNumber,    &guide.pnlHeading, &guide.ssMnu,  &guide.rtfData,
                                 &guide.ssPanel,  &guide.cmdTipsClose, &guide.rtfTips,    &guide.imgLogo};
    for (const Control *control : controls)
        boxes[control->Name()] = {control->Left(), control->Top(), control->Width(), control->Height()};
    boxes[u"RightMargin"_s].width = guide.rtfData.RightMargin();
    return boxes;
}

// Puts everything out of its place, so that only a layout can have put it there.
void scatter(frmIGSteps &guide)
{
    guide.ssMnu.setWidth(7);
    guide.rtfData.Move(240, 3, 11, 13);
    guide.rtfTips.Move(0, 17, 19, TipsHeight);
    guide.ssPanel.Move(0, 23, 29, TitleHeight);
    guide.cmdTipsClose.Move(31, 37, 300, 240);
    guide.imgLogo.setLeft(41);
    guide.pnlHeading.setWidth(43);
    guide.gradient.setWidth(47);
    guide.rtfData.setRightMargin(53);
}

// A length that is refused leaves what was there.
void put(double &length, double wanted)
{
    if (wanted >= 0) length = wanted;
}

// The layout, worked out by hand from what the design gives.
Boxes laidOut(Boxes boxes, double width, double height, double outerWidth, double linksHeight, bool pane)
{
    const auto room = [&] { return (pane ? boxes[u"ssPanel"_s].top : height) - boxes[u"rtfData"_s].top - linksHeight; };
    put(boxes[u"rtfData"_s].height, room());
    put(boxes[u"ssMnu"_s].width, width);
    put(boxes[u"rtfData"_s].width, width - 220);
    boxes[u"rtfData"_s].top = 375 + 420;
    put(boxes[u"rtfTips"_s].width, width);
    put(boxes[u"ssPanel"_s].width, width);
    boxes[u"imgLogo"_s].left = width - 1500;
    put(boxes[u"pnlHeading"_s].width, width - 1500 - 1455);
    boxes[u"rtfTips"_s].top = height - TipsHeight - linksHeight;
    boxes[u"cmdTipsClose"_s].left = width - 300 - 38;
    boxes[u"cmdTipsClose"_s].top = 45;
    boxes[u"ssPanel"_s].top = boxes[u"rtfTips"_s].top - TitleHeight;
    put(boxes[u"rtfData"_s].height, room());
    put(boxes[u"RightMargin"_s].width, outerWidth - 430);
    put(boxes[u"zelGradient"_s].width, width - 1500);
    return boxes;
}

QString words(const Boxes &boxes, const QString &name)
{
    const Box &box = boxes[name];
    return u"%1: %2, %3, %4, %5"_s.arg(name).arg(box.left).arg(box.top).arg(box.width).arg(box.height);
}

void compareBoxes(const Boxes &actual, const Boxes &expected)
{
    const QStringList names = expected.keys();
    for (const QString &name : names)
        QCOMPARE(words(actual, name), words(expected, name));
}

void resizeInside(frmIGSteps &guide, int width, int height)
{
    guide.setWindowState(Normal);
    QTRY_COMPARE(guide.WindowState(), int(Normal));
    const QSize frame = guide.shell().size() - guide.surface().size();
    guide.shell().setMinimumSize(1, 1);
    guide.shell().resize(QSize(width, height) + frame);
    QTRY_COMPARE(guide.surface().size(), QSize(width, height));
}

} // namespace

class tst_GuideLayout : public QObject
{
    Q_OBJECT

private slots:
    void everyPartHasItsPlace_data();
    void everyPartHasItsPlace();
    void whatTheDesignFixesStays();
    void theSameWidthChangesThePagesHeightAlone();
    void theSameWidthWithThePaneLaysOutAnew();
    void aMinimisedWindowIsNotLaidOut();
    void theFirstLayoutTakesTheSizeOfTheFrame();
    void theSecondLayoutTakesTheWindowsOwnSize();
    void linesBreakShortOfTheWindowsEdge();
    void aWindowOpenedOverAnotherBreaksItsLinesToo();
    void aRefusedSizeStopsNoOtherStep();
    void thePageEndsAboveThePane();
    void closingThePaneGivesThePageItsRoom();
    void theBarCoversTheFootOfTheLogo();
    void theWindowFollowsTheFrame();
    void theLayoutIsCalledByName();
    void thePartsAreInTheirContainers();
    void fontsAreThoseOfTheDesign();
};

void tst_GuideLayout::everyPartHasItsPlace_data()
{
    QTest::addColumn<int>("width"); // pixels inside
    QTest::addColumn<int>("height");
    QTest::addColumn<bool>("pane");
    const QSize sizes[] = {{1000, 700}, {550, 330}, {640, 201}, {197, 150}, {20, 12}, {12, 4}};
    for (const QSize &size : sizes)
        for (const bool pane : {false, true})
            QTest::addRow("%d x %d, %s", size.width(), size.height(), pane ? "with the pane" : "without")
                << size.width() << size.height() << pane;
}

void tst_GuideLayout::everyPartHasItsPlace()
{
    QFETCH(int, width);
    QFETCH(int, height);
    QFETCH(bool, pane);
    const GuideWindow open;
    frmIGSteps &guide = *open.guide;
    if (pane) open.press(u"Implementation"_s);
    resizeInside(guide, width, height);
    scatter(guide);
    const Boxes before = boxesOf(guide);
    guide.Form_Resize();
    compareBoxes(boxesOf(guide), laidOut(before, width * 15, height * 15, guide.Width(), 375, pane));
}

void tst_GuideLayout::whatTheDesignFixesStays()
{
    const GuideWindow open;
    open.press(u"Implementation"_s);
    for (const QSize &size : {QSize(900, 600), QSize(30, 30), QSize(700, 400)})
        resizeInside(*open.guide, size.width(), size.height());
    const Boxes boxes = boxesOf(*open.guide);
    QCOMPARE(boxes[u"rtfTips"_s].height, TipsHeight);
    QCOMPARE(boxes[u"ssPanel"_s].height, TitleHeight);
    QCOMPARE(boxes[u"rtfData"_s].left, 240.0);
    QCOMPARE(boxes[u"pnlNumber"_s], (Box{0, 0, 1455, 375}));
    QCOMPARE(boxes[u"pnlHeading"_s].left, 1680.0);
    QCOMPARE(boxes[u"ssMnu"_s].top, 375.0);
    QCOMPARE(boxes[u"ssMnu"_s].height, 420.0);
}

void tst_GuideLayout::theSameWidthChangesThePagesHeightAlone()
{
    const GuideWindow open;
    frmIGSteps &guide = *open.guide;
    resizeInside(guide, 700, 400);
    guide.Form_Resize();
    scatter(guide);
    guide.ssMnu.setWidth(700 * 15);
    Boxes expected = boxesOf(guide);
    expected[u"rtfData"_s].height = 400 * 15 - guide.rtfData.Top() - guide.ssMnuLinks.Height();
    guide.Form_Resize();
    compareBoxes(boxesOf(guide), expected);
    guide.Form_Resize();
    compareBoxes(boxesOf(guide), expected);
}

void tst_GuideLayout::theSameWidthWithThePaneLaysOutAnew()
{
    const GuideWindow open;
    frmIGSteps &guide = *open.guide;
    open.press(u"Implementation"_s);
    resizeInside(guide, 700, 400);
    scatter(guide);
    guide.ssMnu.setWidth(700 * 15);
    const Boxes before = boxesOf(guide);
    guide.Form_Resize();
    compareBoxes(boxesOf(guide), laidOut(before, 700 * 15, 400 * 15, guide.Width(), 375, true));
}

void tst_GuideLayout::aMinimisedWindowIsNotLaidOut()
{
    const GuideWindow open;
    frmIGSteps &guide = *open.guide;
    resizeInside(guide, 700, 400);
    guide.setWindowState(Minimized);
    QTRY_COMPARE(guide.WindowState(), int(Minimized));
    scatter(guide);
    Boxes expected = boxesOf(guide);
    expected[u"ssMnu"_s].width = guide.ScaleWidth();
    expected[u"rtfData"_s].height = guide.ScaleHeight() - guide.rtfData.Top() - guide.ssMnuLinks.Height();
    guide.Form_Resize();
    compareBoxes(boxesOf(guide), expected);
}

void tst_GuideLayout::theFirstLayoutTakesTheSizeOfTheFrame()
{
    RunningSystem system;
    system.start();
    Shared().FrameScaleWidth = 9001;
    Shared().FrameScaleHeight = 6002;
    auto *guide = new frmIGSteps;
    const Boxes before = boxesOf(*guide);
    OpenWindowCore(*guide, u"Title"_s, u"127"_s);
    compareBoxes(boxesOf(*guide), laidOut(before, 9001, 6002, guide->Width(), 375, false));
}

void tst_GuideLayout::theSecondLayoutTakesTheWindowsOwnSize()
{
    RunningSystem system;
    system.start();
    Shared().FrameScaleWidth = 9001;
    auto *guide = new frmIGSteps;
    OpenWindowCore(*guide, u"Title"_s, u"127"_s);
    QVERIFY(guide->ScaleWidth() != 9001);
    guide->Form_Resize();
    QCOMPARE(guide->ssMnu.Width(), guide->ScaleWidth());
    QCOMPARE(guide->gradient.Width(), guide->ScaleWidth() - 1500);
}

void tst_GuideLayout::linesBreakShortOfTheWindowsEdge()
{
    const GuideWindow open;
    QCOMPARE(open.guide->WindowState(), int(Maximized));
    QCOMPARE(open.guide->rtfData.RightMargin(), open.guide->Width() - 430);
    QCOMPARE(open.page().lineWrapMode(), QTextEdit::FixedPixelWidth);
    QCOMPARE(open.page().lineWrapColumnOrWidth(), toPixels(open.guide->rtfData.RightMargin()));
    open.press(u"Implementation"_s);
    QCOMPARE(open.guide->rtfData.RightMargin(), open.guide->Width() - 430);
}

void tst_GuideLayout::aWindowOpenedOverAnotherBreaksItsLinesToo()
{
    const GuideWindow open;
    for (const auto &title : {u"Second"_s, u"Third"_s}) {
        OpenGuide(title, u"101"_s);
        const auto &other = static_cast<frmIGSteps &>(*open.system.active());
        QCOMPARE(other.Caption(), title);
        QCOMPARE(other.Width(), open.system.frame().ScaleWidth());
        QCOMPARE(other.rtfData.RightMargin(), other.Width() - 430);
    }
    open.guide->SetFocus();
    QCOMPARE(open.guide->rtfData.RightMargin(), open.guide->Width() - 430);
}

void tst_GuideLayout::aRefusedSizeStopsNoOtherStep()
{
    const GuideWindow open;
    frmIGSteps &guide = *open.guide;
    resizeInside(guide, 14, 10); // narrower than 220 twips: the page, the heading and the strip can't be sized
    scatter(guide);
    guide.Form_Resize();
    QCOMPARE(guide.rtfData.Width(), 11.0);
    QCOMPARE(guide.pnlHeading.Width(), 43.0);
    QCOMPARE(guide.gradient.Width(), 47.0);
    QCOMPARE(guide.rtfData.Top(), 795.0);
    QCOMPARE(guide.imgLogo.Left(), 14 * 15 - 1500.0);
    QCOMPARE(guide.ssPanel.Top(), 10 * 15 - TipsHeight - 375 - TitleHeight);
}

void tst_GuideLayout::thePageEndsAboveThePane()
{
    const GuideWindow open;
    const frmIGSteps &guide = *open.guide;
    open.press(u"Implementation"_s);
    // The height leaves room for the links' bar a second time: the page ends that much above the pane's title.
    QCOMPARE(guide.rtfData.Top() + guide.rtfData.Height() + 375, guide.ssPanel.Top());
    QCOMPARE(guide.ssPanel.Top() + TitleHeight, guide.rtfTips.Top());
    QCOMPARE(guide.rtfTips.Top() + TipsHeight, guide.ssMnuLinks.Top());
}

void tst_GuideLayout::closingThePaneGivesThePageItsRoom()
{
    const GuideWindow open;
    const frmIGSteps &guide = *open.guide;
    const double without = guide.rtfData.Height();
    open.press(u"Implementation"_s);
    QVERIFY(guide.rtfData.Height() < without);
    QTest::mouseClick(&guide.cmdTipsClose.widget(), Qt::LeftButton);
    QVERIFY(open.paneHidden());
    QCOMPARE(guide.rtfData.Height(), without);
    QCOMPARE(guide.rtfData.Top() + guide.rtfData.Height(), guide.ssMnuLinks.Top());
}

void tst_GuideLayout::theBarCoversTheFootOfTheLogo()
{
    const GuideWindow open;
    frmIGSteps &guide = *open.guide;
    QVERIFY(guide.imgLogo.Top() + guide.imgLogo.Height() > guide.ssMnu.Top());
    const auto partAt = [&](int y) {
        const QPoint place(guide.imgLogo.widget().geometry().center().x(), y);
        return Control::of(guide.surface().childAt(place));
    };
    const int edge = guide.ssMnu.widget().y();
    QCOMPARE(partAt(edge - 1), &guide.imgLogo);
    QVERIFY(partAt(edge) == &guide.mnuNav || partAt(edge) == &guide.ssMnu);
}

void tst_GuideLayout::theWindowFollowsTheFrame()
{
    const GuideWindow open;
    const frmIGSteps &guide = *open.guide;
    open.system.frame().setWindowState(Normal);
    for (const QSize &size : {QSize(900, 600), QSize(760, 500)}) {
        open.system.frame().shell().resize(size);
        QTRY_COMPARE(guide.ScaleWidth(), size.width() * 15.0);
        QCOMPARE(guide.ssMnu.Width(), guide.ScaleWidth());
        QCOMPARE(guide.rtfData.RightMargin(), guide.Width() - 430);
        QCOMPARE(guide.rtfData.Top() + guide.rtfData.Height(), guide.ssMnuLinks.Top());
        QCOMPARE(guide.ssMnuLinks.Top() + 375, guide.ScaleHeight());
    }
}

void tst_GuideLayout::theLayoutIsCalledByName()
{
    const GuideWindow open;
    scatter(*open.guide);
    open.guide->names().call(u"Form_Resize"_s);
    QCOMPARE(open.guide->ssMnu.Width(), open.guide->ScaleWidth());
}

void tst_GuideLayout::thePartsAreInTheirContainers()
{
    const RunningSystem system;
    frmIGSteps guide;
    const auto parent = [](const Control &control) { return control.widget().parentWidget()->objectName(); };
    QCOMPARE(parent(guide.pnlNumber), u"zelGradient"_s);
    QCOMPARE(parent(guide.pnlHeading), u"zelGradient"_s);
    QCOMPARE(parent(guide.cmdTipsClose), u"ssPanel"_s);
    QCOMPARE(parent(guide.mnuNav), u"ssMnu"_s);
    QCOMPARE(parent(guide.mnuLinks), u"ssMnuLinks"_s);
    for (const auto &name : {u"zelGradient"_s, u"ssMnuLinks"_s, u"ssPanel"_s, u"rtfTips"_s, u"ssMnu"_s, u"imgLogo"_s})
        QVERIFY2(guide.control(name), qPrintable(name));
}

void tst_GuideLayout::fontsAreThoseOfTheDesign()
{
    const RunningSystem system;
    const frmIGSteps guide;
    for (const SSPanel *panel : {&guide.pnlNumber, &guide.pnlHeading, &guide.ssPanel}) {
        const QFont font = panel->widget().font();
        QCOMPARE(font.family(), u"Arial"_s);
        QCOMPARE(font.pointSizeF(), 9.75);
        QVERIFY(font.bold());
    }
    const QFont font = guide.cmdTipsClose.widget().font();
    QCOMPARE(font.family(), u"Verdana"_s);
    QCOMPARE(font.pointSizeF(), 9.0);
    QVERIFY(font.bold());
    QCOMPARE(guide.cmdTipsClose.Caption(), u"X"_s);
}

QTEST_MAIN(tst_GuideLayout)
#include "tst_GuideLayout.moc"
