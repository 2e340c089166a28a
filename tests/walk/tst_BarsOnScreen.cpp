// What the bars of the program hold and show while it runs, tool by tool, against the tables in data/layouts.
#include "layouts/BarsByName.h"
#include "platform/forms/Window.h"
#include "support/RunningSystem.h"
#include "support/UserOnBars.h"

#include <QFile>
#include <QMainWindow>
#include <QMenuBar>
#include <QToolButton>

using namespace Qt::Literals::StringLiterals;
using namespace orvane;
using namespace orvane::test;

namespace
{

// A line of a table: texts by the names of the columns, without the quotes that only show their blanks.
using Line = QMap<QString, QString>;

QString unquoted(const QString &cell)
{
    return cell.size() >= 2 && cell.startsWith(u'"') ? cell.sliced(1, cell.size() - 2) : cell;
}

// Of bands without tools the tables have a line that tells of the band alone; it is left out.
QList<Line> tabledTools(const QString &bar)
{
    QFile file(QStringLiteral(ORVANE_TEST_DATA "/layouts/") + bar + u".tsv"_s);
    if (!file.open(QIODevice::ReadOnly)) return {};
    QStringList rows = QString::fromUtf8(file.readAll()).split(u'\n', Qt::SkipEmptyParts);
    const QStringList columns = rows.takeFirst().split(u'\t');
    QList<Line> lines;
    for (const QString &row : rows) {
        const QStringList cells = row.split(u'\t');
        Line line;
        for (qsizetype i = 0; i < columns.size(); ++i)
            line[columns[i]] = unquoted(cells[i]);
        if (line[u"index"_s] != u"-1") lines << line;
    }
    return lines;
}

QString flag(bool on)
{
    return on ? u"1"_s : u"0"_s;
}

Line held(const Band &band, const Tool &tool)
{
    return {{u"bandCaption"_s, band.Caption()},
            {u"bandWidth"_s, QString::number(band.designWidth())},
            {u"bandHeight"_s, QString::number(band.designHeight())},
            {u"name"_s, tool.Name()},
            {u"id"_s, QString::number(tool.Id())},
            {u"caption"_s, tool.Caption()},
            {u"tooltip"_s, tool.ToolTipText()},
            {u"description"_s, tool.Description()},
            {u"category"_s, tool.Category()},
            {u"toolTag"_s, QString::number(tool.ToolTag())},
            {u"flyout"_s, tool.Flyout()},
            {u"enabled"_s, flag(tool.Enabled())},
            {u"checked"_s, flag(tool.Checked())},
            {u"groupStart"_s, flag(tool.GroupStart())},
            {u"kind"_s, QString::number(int(tool.Kind()))},
            {u"width"_s, QString::number(tool.Width())}};
}

// As it is read on the screen: without outer blanks and without the mark of the access key.
QString read(QString text)
{
    return text.replace(u"&&"_s, u"\1"_s).remove(u'&').replace(u'\1', u'&').trimmed();
}

// What is on the screen, by "band/index".
using Shown = QMap<QString, QStringList>;

QStringList entry(const QString &name, const QString &text, bool enabled, bool checked, bool behindLine)
{
    return {name, read(text), flag(enabled), flag(checked), flag(behindLine)};
}

void lookAt(QMenu &menu, Shown &shown)
{
    menu.popup(QPoint(0, 0)); // it is filled as it opens
    int index = 0;
    bool behindLine = false;
    for (QAction *action : menu.actions()) {
        if (!action->isSeparator())
            shown[menu.objectName() + u'/' + QString::number(index++)] =
                entry(action->objectName(), action->text(), action->isEnabled(), action->isChecked(), behindLine);
        behindLine = action->isSeparator();
        if (action->menu()) lookAt(*action->menu(), shown);
    }
    menu.close();
}

Shown onMenuBar(mdiMain &frame)
{
    Shown shown;
    int index = 0;
    for (QAction *action : static_cast<QMainWindow &>(frame.shell()).menuBar()->actions()) {
        shown[u"mnuMain/%1"_s.arg(index++)] =
            entry(action->objectName(), action->text(), action->isEnabled(), false, false);
        if (action->menu()) lookAt(*action->menu(), shown);
    }
    return shown;
}

// Fields are no buttons; the lines between groups of a toolbar are drawn and no part of it.
Shown onToolBar(const ActiveBar &bar)
{
    Shown shown;
    const Band &band = bar.Bands(0);
    for (int i = 0; i < band.Tools().Count(); ++i) {
        const Tool &tool = band.Tools(i);
        auto *button = qobject_cast<QToolButton *>(buttonOf(bar, tool.Name()));
        if (!button) continue;
        shown[band.Name() + u'/' + QString::number(i)] =
            entry(button->objectName(), button->text(), button->isEnabled(), button->isChecked(), false);
        if (button->menu()) lookAt(*button->menu(), shown);
    }
    return shown;
}

// A window with one bar and room for all of it.
class BarWindow : public Window
{
public:
    explicit BarWindow(BarTable table) : Window(u"frmBar"_s, FixedBorder), bar(*this, u"bar"_s, table)
    {
        setDesignSize(30000, 3000);
        bar.Move(0, 0, 30000, 420);
    }

    ActiveBar bar;
};

} // namespace

class tst_BarsOnScreen : public QObject
{
    Q_OBJECT

private slots:
    void aBarHoldsWhatIsTabled_data() { addBars(); }
    void aBarHoldsWhatIsTabled();
    void aBarShowsWhatIsTabled_data() { addBars(); }
    void aBarShowsWhatIsTabled();

private:
    static void addBars();
};

void tst_BarsOnScreen::addBars()
{
    QTest::addColumn<QString>("bar");
    const QStringList bars = layouts::bars().keys();
    for (const QString &bar : bars)
        QTest::newRow(qPrintable(bar)) << bar;
}

void tst_BarsOnScreen::aBarHoldsWhatIsTabled()
{
    QFETCH(QString, bar);
    RunningSystem system;
    system.start();
    BarWindow window(layouts::bars()[bar]);
    const ActiveBar &live = bar == u"mdiMain_mnuMain" ? system.frame().mnuMain : window.bar;
    const QList<Line> lines = tabledTools(bar);
    QVERIFY(!lines.isEmpty());
    for (const Line &line : lines) {
        const Band &band = live.Bands(line[u"band"_s]);
        const Line actual = held(band, band.Tools(line[u"index"_s].toInt()));
        for (const auto &[column, value] : actual.asKeyValueRange())
            if (line[column] != u"-") QCOMPARE(line[u"name"_s] + u' ' + value, line[u"name"_s] + u' ' + line[column]);
    }
}

void tst_BarsOnScreen::aBarShowsWhatIsTabled()
{
    QFETCH(QString, bar);
    RunningSystem system;
    system.start();
    BarWindow window(layouts::bars()[bar]);
    window.Show();
    const bool isMenu = bar == u"mdiMain_mnuMain";
    const Shown shown = isMenu ? onMenuBar(system.frame()) : onToolBar(window.bar);
    for (const Line &line : tabledTools(bar)) {
        if (line[u"kind"_s].toInt() >= int(ToolKind::ComboBox)) continue;
        const bool inMenu = isMenu || line[u"band"_s] != window.bar.Bands(0).Name();
        const bool behindLine = inMenu && line[u"groupStart"_s] == u"1" && line[u"index"_s] != u"0";
        QCOMPARE(shown[line[u"band"_s] + u'/' + line[u"index"_s]],
                 entry(line[u"name"_s], line[u"caption"_s], line[u"enabled"_s] == u"1", line[u"checked"_s] == u"1",
                       behindLine));
    }
}

QTEST_MAIN(tst_BarsOnScreen)
#include "tst_BarsOnScreen.moc"
