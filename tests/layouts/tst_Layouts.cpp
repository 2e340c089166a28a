// Every bar against a table of its own in data/layouts, attribute by attribute, and the bars within themselves.
//
// A table has a line for each tool (a band without tools has one line with index -1) and these columns, separated by
// tabs; "-" stands where nothing is laid down. Quotes round a text only show its blanks.
#include "BarsByName.h"

#include <QFile>
#include <QFileInfo>
#include <QMap>
#include <QSet>
#include <QTest>
#include <array>

using namespace Qt::Literals::StringLiterals;
using namespace orvane::layouts;
using orvane::BandRow;
using orvane::BarTable;
using orvane::ToolRow;

namespace
{

enum Column {
    Band,
    BandCaption,
    BandWidth,
    BandHeight,
    Index,
    Name,
    Id,
    Caption,
    Tooltip,
    Description,
    Category,
    ToolTag,
    Flyout,
    Enabled,
    Checked,
    GroupStart,
    Kind,
    Width,
    ColumnCount
};

const QStringList &columnNames()
{
    static const QStringList names{
        u"band"_s,   u"bandCaption"_s, u"bandWidth"_s, u"bandHeight"_s,  u"index"_s,    u"name"_s,
        u"id"_s,     u"caption"_s,     u"tooltip"_s,   u"description"_s, u"category"_s, u"toolTag"_s,
        u"flyout"_s, u"enabled"_s,     u"checked"_s,   u"groupStart"_s,  u"kind"_s,     u"width"_s,
    };
    return names;
}

QString flag(bool on)
{
    return on ? u"1"_s : u"0"_s;
}

QString number(int value)
{
    return QString::number(value);
}

QString unquoted(const QString &cell)
{
    const bool quoted = cell.size() >= 2 && cell.startsWith(u'"') && cell.endsWith(u'"');
    return quoted ? cell.mid(1, cell.size() - 2) : cell;
}

QString tabledCell(const QString &cell, int column)
{
    const bool isFlag = column == Enabled || column == Checked || column == GroupStart;
    if (isFlag && (cell == u"true" || cell == u"false")) return flag(cell == u"true");
    return unquoted(cell);
}

QString tablePath(const QString &bar)
{
    return QStringLiteral(ORVANE_TEST_DATA "/layouts/") + bar + u".tsv"_s;
}

QList<QStringList> linesOfTable(const QString &bar)
{
    QFile file(tablePath(bar));
    if (!file.open(QIODevice::ReadOnly | QIODevice::Text)) return {};
    QList<QStringList> lines;
    const QStringList read = QString::fromUtf8(file.readAll()).split(u'\n', Qt::SkipEmptyParts);
    for (const QString &line : read)
        lines.append(line.split(u'\t'));
    return lines;
}

// What the layout has where a table has its line.
QStringList cellsOf(const BandRow &band, int index)
{
    QStringList cells{text(band.name), text(band.caption), number(band.width), number(band.height), number(index)};
    if (index < 0 || index >= qsizetype(band.tools.size())) return cells;
    const ToolRow &tool = band.tools[size_t(index)];
    cells << text(tool.name) << number(tool.id) << text(tool.caption) << text(tool.tooltip) << text(tool.description)
          << text(tool.category) << number(tool.toolTag) << text(tool.flyout) << flag(tool.enabled)
          << flag(tool.checked) << flag(tool.groupStart) << number(int(tool.kind)) << number(tool.width);
    return cells;
}

bool isLinkBand(const BandRow &band)
{
    return band.name.ends_with(u"Link");
}

bool hasMeaning(const QString &bar, const BandRow &band, const ToolRow &tool)
{
    const int tag = tool.toolTag;
    if (tag == 0 || tag == 900) return true;                                // plain command; nothing to show
    if (tag == 1 || tag == 2) return tool.name.starts_with(u"prt");         // print tools
    if (tag == 6) return bar == u"mdiMain_mnuMain" && !tool.flyout.empty(); // leads to phases only
    if (tag == 999) return bar == u"frmPrint_mnuPrintPreview";              // Close of the preview
    if (tag > 1000) return bar == u"frmATMain_mnuLinks" && isLinkBand(band) && tag / 100 >= 11 && tag / 100 <= 15;
    return tag / 100 >= 1 && tag / 100 <= 5; // the first digit names the module
}

void addBars()
{
    QTest::addColumn<QString>("bar");
    for (auto bar = bars().keyBegin(); bar != bars().keyEnd(); ++bar)
        QTest::addRow("%s", qPrintable(*bar)) << *bar;
}

} // namespace

class tst_Layouts : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void aToolStandsAsTabled_data();
    void aToolStandsAsTabled();
    void aBandHoldsAsManyToolsAsTabled_data();
    void aBandHoldsAsManyToolsAsTabled();
    void theBandsOfABarStandInTheTabledOrder_data() { addBars(); }
    void theBandsOfABarStandInTheTabledOrder();
    void aFlyoutNamesABandOfTheSameBar_data() { addBars(); }
    void aFlyoutNamesABandOfTheSameBar();
    void aTagHasAMeaning_data() { addBars(); }
    void aTagHasAMeaning();
    void aPictureIsThereForEveryImage_data();
    void aPictureIsThereForEveryImage();
    void everyToolOutsideTheMenuHasAnImage_data() { addBars(); }
    void everyToolOutsideTheMenuHasAnImage();

private:
    QMap<QString, QList<QStringList>> m_tables; // without the header line
};

void tst_Layouts::initTestCase()
{
    // These are laid down for every tool; a table without them would compare nothing.
    static constexpr std::array compulsory{Name, Caption, ToolTag, Flyout, Enabled, Checked, GroupStart, Kind};
    for (auto name = bars().keyBegin(); name != bars().keyEnd(); ++name) {
        const QString &bar = *name;
        QList<QStringList> lines = linesOfTable(bar);
        QVERIFY2(!lines.isEmpty(), qPrintable(tablePath(bar)));
        QCOMPARE(lines.takeFirst(), columnNames());
        for (const QStringList &line : lines) {
            QVERIFY2(line.size() == ColumnCount, qPrintable(bar + u": "_s + line.join(u'|')));
            for (const Column column : compulsory)
                QVERIFY2(line[Index] == u"-1" || line[column] != u"-", qPrintable(bar + u": "_s + line.join(u'|')));
        }
        m_tables.insert(bar, lines);
    }
}

void tst_Layouts::aToolStandsAsTabled_data()
{
    QTest::addColumn<QStringList>("actual");
    QTest::addColumn<QStringList>("tabled");
    for (const auto &[bar, bands] : bars().asKeyValueRange())
        for (const QStringList &line : std::as_const(m_tables[bar])) {
            const BandRow *band = findBand(bands, line[Band]);
            QTest::addRow("%s/%s/%s", qPrintable(bar), qPrintable(line[Band]), qPrintable(line[Index]))
                << (band ? cellsOf(*band, line[Index].toInt()) : QStringList{}) << line;
        }
}

void tst_Layouts::aToolStandsAsTabled()
{
    QFETCH(QStringList, actual);
    QFETCH(QStringList, tabled);
    const int columns = tabled[Index] == u"-1" ? Index + 1 : ColumnCount;
    QCOMPARE(actual.size(), columns);
    for (int column = 0; column < columns; ++column) {
        if (tabled[column] == u"-") continue;
        const QString name = columnNames()[column] + u' ';
        QCOMPARE(name + actual[column], name + tabledCell(tabled[column], column));
    }
}

void tst_Layouts::aBandHoldsAsManyToolsAsTabled_data()
{
    QTest::addColumn<QString>("bar");
    QTest::addColumn<QString>("band");
    for (const auto &[bar, bands] : bars().asKeyValueRange())
        for (const BandRow &band : bands)
            QTest::addRow("%s/%s", qPrintable(bar), qPrintable(text(band.name))) << bar << text(band.name);
}

void tst_Layouts::aBandHoldsAsManyToolsAsTabled()
{
    QFETCH(QString, bar);
    QFETCH(QString, band);
    QStringList indices;
    for (const QStringList &line : std::as_const(m_tables[bar]))
        if (line[Band] == band) indices << line[Index];
    QStringList expected;
    for (int index = 0; index < int(findBand(bars()[bar], band)->tools.size()); ++index)
        expected << number(index);
    if (expected.isEmpty()) expected << u"-1"_s;
    QCOMPARE(indices, expected);
}

void tst_Layouts::theBandsOfABarStandInTheTabledOrder()
{
    QFETCH(QString, bar);
    QStringList tabled;
    for (const QStringList &line : std::as_const(m_tables[bar]))
        if (!tabled.contains(line[Band])) tabled << line[Band];
    QStringList actual;
    for (const BandRow &band : bars()[bar])
        actual << text(band.name);
    QCOMPARE(actual, tabled);
}

void tst_Layouts::aFlyoutNamesABandOfTheSameBar()
{
    QFETCH(QString, bar);
    const BarTable bands = bars()[bar];
    forEachTool(bands, [bands](const BandRow &band, const ToolRow &tool) {
        const QString flyout = text(tool.flyout);
        QVERIFY2(flyout.isEmpty() || findBand(bands, flyout), qPrintable(text(band.name) + u": "_s + flyout));
    });
}

void tst_Layouts::aTagHasAMeaning()
{
    QFETCH(QString, bar);
    forEachTool(bars()[bar], [bar](const BandRow &band, const ToolRow &tool) {
        QVERIFY2(hasMeaning(bar, band, tool), qPrintable(text(tool.name) + u' ' + number(tool.toolTag)));
    });
}

void tst_Layouts::aPictureIsThereForEveryImage_data()
{
    QTest::addColumn<QString>("image");
    QSet<QString> images;
    for (const BarTable &bar : bars())
        forEachTool(bar, [&images](const BandRow &, const ToolRow &tool) { images << text(tool.image); });
    images.remove(QString());
    for (const QString &image : std::as_const(images))
        QTest::addRow("%s", qPrintable(image)) << image;
}

void tst_Layouts::aPictureIsThereForEveryImage()
{
    QFETCH(QString, image);
    const QFileInfo picture(QStringLiteral(ORVANE_SOURCE_DIR "/data/pictures/tools/") + image + u".svg"_s);
    QVERIFY2(picture.isFile() && picture.size() > 0, qPrintable(picture.filePath()));
}

void tst_Layouts::everyToolOutsideTheMenuHasAnImage()
{
    QFETCH(QString, bar);
    const bool isMenu = bar == u"mdiMain_mnuMain";
    forEachTool(bars()[bar], [isMenu](const BandRow &band, const ToolRow &tool) {
        const bool isModule = band.name == u"mnuCommand";
        QVERIFY2((isMenu && !isModule) || !tool.image.empty(), qPrintable(text(tool.name)));
    });
}

QTEST_GUILESS_MAIN(tst_Layouts)
#include "tst_Layouts.moc"
