// The language of tables, and where the rows come on the page.
#include "platform/print/PrintFixture.h"
#include "platform/print/pages/Table.h"

#include <QPainter>

using namespace Qt::Literals::StringLiterals;
using namespace orvane;
using namespace orvane::test;

namespace
{
using Widths = QList<int>;
using Rows = QList<QStringList>;

// A table on a page of its own.
struct Printed {
    explicit Printed(const QString &format, int border = AllBorders, bool joined = false)
        : table(recording, readTableFormat(format, {}, Qt::AlignLeft), {fontInTwips(u"Arial"_s, 11.25), border}, joined)
    {
        recording.nextSetup().paperSize = LetterPaper;
        recording.start();
        recording.bringUpPage();
        recording.place = {1000, 2000};
    }

    const RecordedPage &page() const { return recording.pages()->front(); }
    std::vector<PlacedLines> texts() const { return itemsOf<PlacedLines>(page()); }
    QStringList words() const { return textOf(page()).split(u'\n'); }

    Recording recording{[] {}, [] {}};
    Table table;
};
} // namespace

class tst_PrintTables : public QObject
{
    Q_OBJECT

private slots:
    void aFormatIsMarksAndWidths_data();
    void aFormatIsMarksAndWidths();
    void marksGiveTheAlignment();
    void rowsAndCellsAreParted_data();
    void rowsAndCellsAreParted();
    void otherSeparatorsPartTheSame();
    void columnsStandSideBySideAndRowsBelowEachOther();
    void theRowIsAsHighAsItsHighestCell();
    void alignmentHoldsWithinTheColumn();
    void aColumnWithoutWidthShowsNothingAndTakesNoRoom();
    void cellsTooManyAreLeftOutAndMissingOnesEmpty();
    void shadesFillEachCellOfTheirRow();
    void allBordersRuleEveryEdgeAndNoBorderNone();
    void aJoinedTableLeavesTheUpperEdgeToTheOneAbove();
    void aRowThatReachesBelowTheBodyGoesToTheNextPage();
    void aWordInAColumnOfOneTwipIsNoHarm();
};

void tst_PrintTables::aFormatIsMarksAndWidths_data()
{
    QTest::addColumn<QString>("format");
    QTest::addColumn<Widths>("widths");
    QTest::newRow("two columns") << u"^+2250|^+7108;"_s << Widths{2250, 7108};
    QTest::newRow("row not ended") << u"<+100"_s << Widths{100};
    QTest::newRow("negative") << u"<+3500|<+-2|<+1500;"_s << Widths{3500, -2, 1500};
    QTest::newRow("no number") << u"<+|>+20"_s << Widths{0, 20};
    QTest::newRow("no mark") << u"300|+400"_s << Widths{300, 400};
    QTest::newRow("empty") << QString() << Widths{0};
    QTest::newRow("only separators") << u"||;"_s << Widths{0, 0, 0};
    QTest::newRow("a second row doesn't count") << u"<+10;<+20|<+30;"_s << Widths{10};
    QTest::newRow("number ends at a letter") << u"<+12a34|<+1.5"_s << Widths{12, 1};
    QTest::newRow("beyond 16 bits") << u"<+40000|<+99999999999999|<+-99999999999"_s << Widths{32767, 32767, -32767};
    QTest::newRow("minus alone") << u"<+-|<--5"_s << Widths{0, 0};
    QTest::newRow("marks in any order") << u"+<>500"_s << Widths{500};
}

void tst_PrintTables::aFormatIsMarksAndWidths()
{
    QFETCH(QString, format);
    Widths widths;
    for (const TableColumn &column : readTableFormat(format, {}, Qt::AlignLeft))
        widths << column.width;
    QTEST(widths, "widths");
}

void tst_PrintTables::marksGiveTheAlignment()
{
    const auto columns = readTableFormat(u"<+1|^+2|>+3|4;"_s, {}, Qt::AlignHCenter);
    const QList<Qt::Alignment> expected{Qt::AlignLeft, Qt::AlignHCenter, Qt::AlignRight, Qt::AlignHCenter};
    for (qsizetype index = 0; index < expected.size(); ++index)
        QCOMPARE(columns[index].alignment, expected[index]);
}

void tst_PrintTables::rowsAndCellsAreParted_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<Rows>("rows");
    QTest::newRow("one row") << u"orvane|Guide;"_s << Rows{{u"orvane"_s, u"Guide"_s}};
    QTest::newRow("two rows") << u"a|b;c|d;"_s << Rows{{u"a"_s, u"b"_s}, {u"c"_s, u"d"_s}};
    QTest::newRow("not ended") << u"a|b"_s << Rows{{u"a"_s, u"b"_s}};
    QTest::newRow("nothing") << QString() << Rows{};
    QTest::newRow("an empty row") << u";"_s << Rows{{QString()}};
    QTest::newRow("an empty row between") << u"a;;b;"_s << Rows{{u"a"_s}, {QString()}, {u"b"_s}};
    QTest::newRow("blanks are kept") << u" | ;"_s << Rows{{u" "_s, u" "_s}};
    QTest::newRow("a name with a row separator") << u"A;B|Guide;"_s << Rows{{u"A"_s}, {u"B"_s, u"Guide"_s}};
    QTest::newRow("a name with a column separator") << u"A|B|Guide;"_s << Rows{{u"A"_s, u"B"_s, u"Guide"_s}};
}

void tst_PrintTables::rowsAndCellsAreParted()
{
    QFETCH(QString, text);
    QTEST(readTableRows(text, {}), "rows");
}

void tst_PrintTables::otherSeparatorsPartTheSame()
{
    QCOMPARE(readTableRows(u"a|b/c,d,"_s, {u'/', u','}), (Rows{{u"a|b"_s, u"c"_s}, {u"d"_s}}));
    QCOMPARE(readTableFormat(u"<+10/<+20,"_s, {u'/', u','}, Qt::AlignLeft).size(), 2);
}

void tst_PrintTables::columnsStandSideBySideAndRowsBelowEachOther()
{
    Printed printed(u"<+3000|<+2000|<+1000;"_s);
    printed.table.addRow({u"a"_s, u"b"_s, u"c"_s}, {});
    const double rowHeight = printed.recording.place.y() - 2000;
    QVERIFY(rowHeight > 11.25 * 20);
    QCOMPARE(printed.recording.place.x(), 1000.0);
    printed.table.addRow({u"d"_s, u"e"_s, u"f"_s}, {});
    const auto texts = printed.texts();
    QCOMPARE(texts.size(), 6U);
    QCOMPARE(texts[1].place, texts[0].place + QPointF(3000, 0));
    QCOMPARE(texts[2].place, texts[0].place + QPointF(5000, 0));
    QCOMPARE(texts[3].place, texts[0].place + QPointF(0, rowHeight));
    QVERIFY(texts[0].place.x() > 1000 && texts[0].place.x() < 1200);
}

void tst_PrintTables::theRowIsAsHighAsItsHighestCell()
{
    Printed printed(u"<+3000|<+1500;"_s);
    printed.table.addRow({u"short"_s, u"a text of several words that takes some lines"_s}, {});
    const auto texts = printed.texts();
    QCOMPARE(texts[0].count, 1);
    QVERIFY(texts[1].count >= 3);
    const double height = printed.recording.place.y() - 2000;
    QVERIFY(height > texts[1].paragraph->height());
    for (const Rule &rule : itemsOf<Rule>(printed.page()))
        QVERIFY(rule.line.dx() != 0 || rule.line.length() == height);
}

void tst_PrintTables::alignmentHoldsWithinTheColumn()
{
    Printed printed(u"<+3000|^+3000|>+3000;"_s);
    printed.table.addRow({u"word"_s, u"word"_s, u"word"_s}, {});
    QList<double> blanks;
    for (const PlacedLines &text : printed.texts()) {
        QImage image(320, 30, QImage::Format_RGB32);
        image.fill(Qt::white);
        QPainter painter(&image);
        painter.scale(0.1, 0.1);
        text.paragraph->draw(painter, {}, 0, 1);
        int left = 0;
        while (left < image.width() && image.copy(left, 0, 1, 30) == image.copy(319, 0, 1, 30))
            ++left;
        blanks << left;
    }
    QVERIFY(blanks[0] < 5);
    QVERIFY(blanks[1] > 110 && blanks[1] < 140);
    QVERIFY(blanks[2] > 230 && blanks[2] < 270);
}

void tst_PrintTables::aColumnWithoutWidthShowsNothingAndTakesNoRoom()
{
    Printed printed(u"<+3500|<+-2|<+0|<+1500;"_s);
    printed.table.addRow({u"left"_s, u"gone"_s, u"gone"_s, u"right"_s}, Qt::gray);
    QCOMPARE(printed.words(), (QStringList{u"left"_s, u"right"_s}));
    const auto texts = printed.texts();
    QCOMPARE(texts[1].place.x(), texts[0].place.x() + 3500);
    QCOMPARE(itemsOf<FilledArea>(printed.page()).size(), 2U);
}

void tst_PrintTables::cellsTooManyAreLeftOutAndMissingOnesEmpty()
{
    Printed printed(u"<+2000|<+2000;"_s);
    printed.table.addRow({u"A"_s, u"B"_s, u"Guide"_s}, {});
    printed.table.addRow({u"alone"_s}, {});
    QCOMPARE(printed.words(), (QStringList{u"A"_s, u"B"_s, u"alone"_s}));
    QCOMPARE(printed.texts().size(), 4U);
}

void tst_PrintTables::shadesFillEachCellOfTheirRow()
{
    Printed printed(u"<+2000|<+3000;"_s);
    printed.table.addRow({u"a"_s, u"b"_s}, {});
    const double top = printed.recording.place.y();
    printed.table.addRow({u"c"_s, u"d"_s}, QColor(0xE0, 0xE0, 0xE0));
    const auto areas = itemsOf<FilledArea>(printed.page());
    QCOMPARE(areas.size(), 2U);
    QCOMPARE(areas[0].area, QRectF(1000, top, 2000, printed.recording.place.y() - top));
    QCOMPARE(areas[1].area.left(), 3000.0);
    QCOMPARE(areas[1].area.width(), 3000.0);
    QCOMPARE(areas[0].colour, QColor(0xE0, 0xE0, 0xE0));
}

void tst_PrintTables::allBordersRuleEveryEdgeAndNoBorderNone()
{
    Printed ruled(u"<+2000|<+3000;"_s);
    ruled.table.addRow({u"a"_s, u"b"_s}, {});
    QRectF covered;
    for (const Rule &rule : itemsOf<Rule>(ruled.page()))
        covered |= QRectF(rule.line.p1(), rule.line.p2()).adjusted(0, 0, 0.001, 0.001);
    QCOMPARE(covered.toRect(), QRect(1000, 2000, 5000, qRound(ruled.recording.place.y() - 2000)));
    QCOMPARE(itemsOf<Rule>(ruled.page()).size(), 8U);
    Printed plain(u"<+2000|<+3000;"_s, NoBorder);
    plain.table.addRow({u"a"_s, u"b"_s}, {});
    QCOMPARE(itemsOf<Rule>(plain.page()).size(), 0U);
}

void tst_PrintTables::aJoinedTableLeavesTheUpperEdgeToTheOneAbove()
{
    for (const bool joined : {false, true}) {
        Printed printed(u"<+2000;"_s, AllBorders, joined);
        printed.table.addRow({u"a"_s}, {});
        bool upper = false;
        for (const Rule &rule : itemsOf<Rule>(printed.page()))
            upper = upper || rule.line == QLineF(1000, 2000, 3000, 2000);
        QCOMPARE(upper, !joined);
    }
}

void tst_PrintTables::aRowThatReachesBelowTheBodyGoesToTheNextPage()
{
    Printed printed(u"<+2000;"_s);
    const QRectF body = printed.recording.setup().body();
    printed.recording.place.setY(body.bottom() - 100);
    printed.table.addRow({u"next"_s}, {});
    QCOMPARE(printed.recording.count(), 2);
    const auto texts = itemsOf<PlacedLines>(printed.recording.pages()->back());
    QCOMPARE(texts.size(), 1U);
    QVERIFY(texts[0].place.y() > body.top() && texts[0].place.y() < body.top() + 100);
    QVERIFY(texts[0].place.x() > 1000 && texts[0].place.x() < 1200);
}

void tst_PrintTables::aWordInAColumnOfOneTwipIsNoHarm()
{
    Printed printed(u"<+1|<+2000;"_s);
    printed.table.addRow({u"word "_s.repeated(20000), u"right"_s}, {});
    const auto texts = itemsOf<PlacedLines>(printed.recording.pages()->back());
    QCOMPARE(texts.size(), 2U);
    QVERIFY(texts[0].paragraph->height() <= printed.recording.setup().page().height());
}

QTEST_MAIN(tst_PrintTables)
#include "tst_PrintTables.moc"
