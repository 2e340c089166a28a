// Where the pages of a preview lie, for each way of looking at them.
#include "platform/print/preview/PreviewLayout.h"

#include <QTest>

using namespace orvane;

namespace
{
constexpr QSizeF LetterSize{12240, 15840};
constexpr QSizeF View{600, 600};

PreviewLayout layOut(int mode, int pages, int page = 1, double zoom = 75)
{
    return layOutPreview({mode, zoom, page, View}, std::vector<QSizeF>(size_t(pages), LetterSize), LetterSize);
}

QList<int> numbersOf(const PreviewLayout &layout)
{
    QList<int> numbers;
    for (const PlacedPage &page : layout.pages)
        numbers << page.number;
    return numbers;
}
} // namespace

class tst_PreviewLayout : public QObject
{
    Q_OBJECT

private slots:
    void eachModeTakesItsPages_data();
    void eachModeTakesItsPages();
    void eachModeFitsWhatItShows();
    void thumbnailsStandInRows();
    void pagesOfDifferentSizesAreShownAtOneScale();
};

void tst_PreviewLayout::eachModeTakesItsPages_data()
{
    QTest::addColumn<int>("mode");
    QTest::addColumn<int>("page");
    QTest::addColumn<QList<int>>("pages");
    QTest::newRow("percentage") << int(ZoomByPercent) << 3 << QList<int>{3};
    QTest::newRow("whole page") << int(ZoomWholePage) << 2 << QList<int>{2};
    QTest::newRow("page width") << int(ZoomPageWidth) << 2 << QList<int>{2};
    QTest::newRow("two pages") << int(ZoomTwoPages) << 1 << QList<int>{1, 2};
    QTest::newRow("two pages, the last") << int(ZoomTwoPages) << 4 << QList<int>{3, 4};
    QTest::newRow("thumbnails") << int(ZoomThumbnails) << 2 << QList<int>{1, 2, 3, 4};
}

void tst_PreviewLayout::eachModeTakesItsPages()
{
    QFETCH(int, mode);
    QFETCH(int, page);
    QTEST(numbersOf(layOut(mode, 4, page)), "pages");
    QCOMPARE(numbersOf(layOut(mode, 1)), QList<int>{1});
    QCOMPARE(numbersOf(layOut(mode, 0, 0)), QList<int>());
}

void tst_PreviewLayout::eachModeFitsWhatItShows()
{
    const QRectF view({0, 0}, View);
    const QRectF whole = layOut(ZoomWholePage, 3).pages[0].place;
    QVERIFY(view.contains(whole) && whole.height() > 550);
    const QRectF wide = layOut(ZoomPageWidth, 3).pages[0].place;
    QVERIFY(wide.left() > 0 && wide.right() < 600 && wide.width() > 550 && wide.height() > 600);
    const PreviewLayout two = layOut(ZoomTwoPages, 3);
    QVERIFY(view.contains(two.pages[0].place) && view.contains(two.pages[1].place));
    QVERIFY(two.pages[1].place.left() > two.pages[0].place.right());
    QCOMPARE(two.pages[1].place.top(), two.pages[0].place.top());
    QCOMPARE(layOut(ZoomByPercent, 3, 1, 50).pages[0].place.size(), LetterSize / 15 / 2);
}

void tst_PreviewLayout::thumbnailsStandInRows()
{
    const PreviewLayout layout = layOut(ZoomThumbnails, 20);
    int inFirstRow = 0;
    for (const PlacedPage &page : layout.pages) {
        QVERIFY(page.place.left() > 0 && page.place.right() < View.width());
        if (page.place.top() == layout.pages[0].place.top()) ++inFirstRow;
    }
    const double width = layout.pages[0].place.width();
    QVERIFY(inFirstRow >= 3);
    QVERIFY((inFirstRow + 1) * width > View.width() - 16 * (inFirstRow + 2));
    QCOMPARE(layout.pages[size_t(inFirstRow)].place.left(), layout.pages[0].place.left());
    QVERIFY(layout.pages[size_t(inFirstRow)].place.top() > layout.pages[0].place.bottom());
}

void tst_PreviewLayout::pagesOfDifferentSizesAreShownAtOneScale()
{
    const PreviewLayout layout =
        layOutPreview({ZoomTwoPages, 75, 1, View}, {LetterSize, LetterSize.transposed()}, LetterSize);
    QCOMPARE(layout.pages[0].place.width(), layout.pages[1].place.height());
    QVERIFY(layout.pages[1].place.right() < View.width());
}

QTEST_APPLESS_MAIN(tst_PreviewLayout)
#include "tst_PreviewLayout.moc"
