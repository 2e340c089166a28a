#include "platform/bars/BarFixture.h"

#include "platform/controls/SSPanel.h"
#include "platform/controls/bars/StripFit.h"

#include <QSignalSpy>
#include <algorithm>

using namespace Qt::Literals::StringLiterals;
using namespace orvane;
using namespace barfixture;

namespace
{

// The bar at so many pixels of width.
void narrow(BarWindow &window, int width)
{
    window.bar->setWidth(width * TwipsPerPixel);
}

bool hasCaption(const QToolButton &button)
{
    return button.width() > 40;
}

} // namespace

class tst_ActiveBarLayout : public QObject
{
    Q_OBJECT

private slots:
    void captionsGiveWayFromTheRight();
    void whatFindsNoRoomIsInTheMenuOfTheRest();
    void nothingIsCutOff_data();
    void nothingIsCutOff();
    void piecesShareTheRoom_data();
    void piecesShareTheRoom();
    void theFirstBandHidesTheBar();
    void anUnplacedBarFillsItsPanel();
    void anUnplacedBarLiesAtAnEdge();
    void barsOnAWindowTakeTheirRoomFromItsInside();
    void aHiddenBarGivesItsRoomBack();
    void aPlacedBarStays();
};

void tst_ActiveBarLayout::captionsGiveWayFromTheRight()
{
    BarWindow window;
    window.open();
    QToolButton *close = window.button(u"Close"_s);
    narrow(window, close->geometry().right());
    QVERIFY(!hasCaption(*close));
    QVERIFY(hasCaption(*window.button(u"Save"_s)));
    QCOMPARE(close->toolTip(), u"Close "_s);
    QCOMPARE(close->accessibleName(), u"Close"_s);
    QVERIFY(!window.button(u"more"_s)->isVisible());
    narrow(window, 700);
    QVERIFY(hasCaption(*close));
}

void tst_ActiveBarLayout::whatFindsNoRoomIsInTheMenuOfTheRest()
{
    BarWindow window;
    window.open();
    narrow(window, 160);
    QToolButton *more = window.button(u"more"_s);
    QVERIFY(more->isVisible());
    QVERIFY(!window.button(u"Close"_s)->isVisible());
    QVERIFY(window.button(u"Related"_s)->isVisible());
    QSignalSpy clicks(window.bar.get(), &ActiveBar::Click);
    QStringList rest;
    onceAMenuIsOpen(window, [&](QMenu &menu) {
        for (const QAction *action : menu.actions())
            if (!action->isSeparator()) rest += action->objectName();
        clickEntry(menu, u"Close"_s);
    });
    QTest::mousePress(more, Qt::LeftButton);
    QCOMPARE(rest, (QStringList{u"Pairs"_s, u"Close"_s}));
    QCOMPARE(clicks.count(), 1);
}

void tst_ActiveBarLayout::nothingIsCutOff_data()
{
    QTest::addColumn<int>("width");
    for (const int width : {40, 60, 90, 120, 200, 300, 350, 400, 450, 500, 600, 700})
        QTest::addRow("%d pixels", width) << width;
}

void tst_ActiveBarLayout::nothingIsCutOff()
{
    QFETCH(int, width);
    BarWindow window;
    window.open();
    narrow(window, width);
    int right = 0;
    for (QToolButton *button :
         window.bar->widget().findChildren<QToolButton *>(QString(), Qt::FindDirectChildrenOnly)) {
        if (!button->isVisible()) continue;
        QVERIFY(button->geometry().left() >= 0 && button->geometry().right() < width);
        right = std::max(right, button->geometry().right());
    }
    QVERIFY(right > 0);
}

void tst_ActiveBarLayout::piecesShareTheRoom_data()
{
    QTest::addColumn<int>("room");
    QTest::addColumn<QList<bool>>("compact");
    QTest::addColumn<int>("shown");
    QTest::newRow("room for all") << 230 << QList<bool>{false, false, false} << 3;
    QTest::newRow("one pixel less") << 229 << QList<bool>{false, false, true} << 3;
    QTest::newRow("all captions gone") << 120 << QList<bool>{true, false, true} << 3;
    QTest::newRow("the last behind the button") << 119 << QList<bool>{true, false, true} << 2;
    QTest::newRow("hardly any room") << 40 << QList<bool>{true, false, true} << 1;
    QTest::newRow("no room") << 0 << QList<bool>{true, false, true} << 0;
}

void tst_ActiveBarLayout::piecesShareTheRoom()
{
    QFETCH(int, room);
    QFETCH(QList<bool>, compact);
    QFETCH(int, shown);
    // The second has no picture, so its caption has to stay.
    const std::vector<StripPiece> pieces{{5, 80, 25}, {5, 60, 60}, {10, 75, 20}};
    const StripFit fit = fitStrip(pieces, room, 15);
    QCOMPARE(QList<bool>(fit.compact.begin(), fit.compact.end()), compact);
    QCOMPARE(static_cast<int>(fit.shown), shown);
}

void tst_ActiveBarLayout::theFirstBandHidesTheBar()
{
    BarWindow window;
    window.open();
    window.bar->Bands(1).setVisible(false);
    QVERIFY(window.bar->widget().isVisible());
    window.bar->Bands(0).setVisible(false);
    QVERIFY(!window.bar->widget().isVisible());
    QVERIFY(!window.bar->Bands(0).Visible());
    window.bar->Bands(0).setVisible(true);
    QVERIFY(window.bar->widget().isVisible());
}

void tst_ActiveBarLayout::anUnplacedBarFillsItsPanel()
{
    BarWindow window;
    window.open();
    SSPanel panel(window, u"ssMnu"_s);
    panel.Move(0, 600, 6000, 600);
    panel.setVisible(true);
    ActiveBar bar(panel, u"mnuNav"_s, LinkBands);
    QCOMPARE(bar.widget().geometry(), panel.widget().contentsRect());
    panel.setWidth(7500);
    QCOMPARE(bar.widget().width(), panel.widget().contentsRect().width());
    QCOMPARE(bar.Width(), toTwips(bar.widget().width()));
}

void tst_ActiveBarLayout::anUnplacedBarLiesAtAnEdge()
{
    BarWindow window;
    ActiveBar bar(window, u"mnuNav"_s, LinkBands);
    const int height = bar.widget().height();
    QVERIFY(height >= 24 && height <= 32);
    QCOMPARE(bar.widget().geometry(), QRect(0, 0, window.surface().width(), height));
    bar.Bands(0).setDockingArea(DockedBottom);
    QCOMPARE(bar.widget().geometry().bottom(), window.surface().height() - 1);
    QCOMPARE(bar.widget().height(), height);
}

void tst_ActiveBarLayout::barsOnAWindowTakeTheirRoomFromItsInside()
{
    BarWindow window;
    window.open();
    const double height = window.ScaleHeight();
    SSPanel panel(window, u"pnl"_s);
    panel.Move(0, 0, 1500, 300);
    ActiveBar upper(window, u"mnuNav"_s, LinkBands);
    ActiveBar lower(window, u"mnuLinks"_s, LinkBands);
    lower.Bands(0).setDockingArea(DockedBottom);
    QCOMPARE(window.ScaleHeight(), height - upper.Height() - lower.Height());
    QCOMPARE(panel.Top(), 0.0);
    QCOMPARE(panel.widget().y(), upper.widget().geometry().bottom() + 1);
    window.setHeight(window.Height() + 1500);
    QCOMPARE(lower.widget().geometry().bottom(), window.surface().height() - 1);
    QCOMPARE(upper.widget().y(), 0);
}

void tst_ActiveBarLayout::aHiddenBarGivesItsRoomBack()
{
    BarWindow window;
    const double height = window.ScaleHeight();
    ActiveBar bar(window, u"mnuNav"_s, LinkBands);
    QVERIFY(window.ScaleHeight() < height);
    bar.Bands(0).setVisible(false);
    QCOMPARE(window.ScaleHeight(), height);
    bar.Bands(0).setVisible(true);
    QCOMPARE(window.ScaleHeight(), height - bar.Height());
}

void tst_ActiveBarLayout::aPlacedBarStays()
{
    BarWindow window;
    ActiveBar bar(window, u"mnuNav"_s, LinkBands);
    bar.Move(150, 300, 4500, 405);
    window.setWidth(9000);
    bar.RecalcLayout();
    QCOMPARE(bar.widget().geometry(), QRect(10, 20, 300, 27));
}

QTEST_MAIN(tst_ActiveBarLayout)
#include "tst_ActiveBarLayout.moc"
