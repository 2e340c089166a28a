// What the shipped tour says: it can be read, it fits the console, and what it names in bold type is on the screen.
#include "command_center/DiagramTables.h"
#include "layouts/BarsByName.h"
#include "platform/richtext/Rtf.h"
#include "support/RunningSystem.h"
#include "support/ShippedTour.h"
#include "tour/modDemo.h"

#include <QScrollBar>
#include <QSet>
#include <QTest>
#include <QTextBlock>
#include <QTextEdit>
#include <QTextLayout>

using namespace Qt::Literals::StringLiterals;
using namespace orvane;
using namespace orvane::test;

namespace
{
QString onScreen(QString caption)
{
    caption.replace(u"&&"_s, u"\1"_s).remove(u'&').replace(u'\1', u'&');
    return caption.trimmed();
}

// What bears a caption: tools, tabs and buttons, and what the windows' own code writes on them.
const QSet<QString> &captions()
{
    static const QSet<QString> all = [] {
        QSet<QString> found{
            u"Back"_s,   u"Next"_s,  u"Quit"_s,           u"OK"_s,           u"Cancel"_s,         u"X"_s,
            u"Issue:"_s, u"Date:"_s, u"Authorized by:"_s, u"Go to Master"_s, u"View Completed"_s, u"Command Center"_s};
        for (const BarTable &bar : layouts::bars())
            layouts::forEachTool(
                bar, [&](const BandRow &, const ToolRow &tool) { found << onScreen(layouts::text(tool.caption)); });
        for (const diagram::TabRow &tab : diagram::tabs())
            found << onScreen(layouts::text(tab.caption));
        for (const diagram::ButtonRow &button : diagram::buttons())
            found << onScreen(layouts::text(button.caption));
        return found;
    }();
    return all;
}

QStringList boldRuns(const QTextDocument &document)
{
    QStringList runs;
    for (auto block = document.begin(); block.isValid(); block = block.next())
        for (auto run = block.begin(); run != block.end(); ++run)
            if (run.fragment().charFormat().fontWeight() >= QFont::Bold) runs << run.fragment().text().trimmed();
    return runs;
}

QTextEdit &editOf(const RichTextBox &box)
{
    return static_cast<QTextEdit &>(box.widget());
}
} // namespace

class tst_TourScriptTexts : public QObject
{
    Q_OBJECT

private slots:
    void aBodyHasNeitherTooFewWordsNorTooMany_data() { addSections(); }
    void aBodyHasNeitherTooFewWordsNorTooMany();
    void aBodyIsRichTextThatReadsBackWhole_data() { addSections(); }
    void aBodyIsRichTextThatReadsBackWhole();
    void aNameInBoldTypeStandsOnTheScreen_data() { addSections(); }
    void aNameInBoldTypeStandsOnTheScreen();
    void aStepNamesTheButtonThatLeadsOn_data() { addSections(); }
    void aStepNamesTheButtonThatLeadsOn();
    void nothingIsAnnouncedForLater_data() { addSections(); }
    void nothingIsAnnouncedForLater();
    void noTwoStepsThatFollowOneAnotherEndAlike();
    void everyTextFitsTheConsole();
    void theClosingTextLeavesRoomForTheDealersLines();

private:
    static void addSections();
    static void read(const QString &tag, QTextDocument &document) { readRtf(ShippedTour::section(tag).body, document); }
    static QString textOf(const QString &tag);
};

void tst_TourScriptTexts::addSections()
{
    QTest::addColumn<QString>("tag");
    for (const QString &tag : ShippedTour::tags())
        QTest::addRow("%s", qPrintable(tag)) << tag;
}

QString tst_TourScriptTexts::textOf(const QString &tag)
{
    QTextDocument document;
    read(tag, document);
    return document.toPlainText();
}

void tst_TourScriptTexts::aBodyHasNeitherTooFewWordsNorTooMany()
{
    QFETCH(QString, tag);
    const auto words = textOf(tag).split(QRegularExpression(u"\\s+"_s), Qt::SkipEmptyParts).size();
    QVERIFY2(words >= 25 && words <= 90, qPrintable(QString::number(words)));
}

void tst_TourScriptTexts::aBodyIsRichTextThatReadsBackWhole()
{
    QFETCH(QString, tag);
    const QString body = ShippedTour::section(tag).body;
    QVERIFY(isRtf(body));
    QVERIFY(body.size() < 8190);
    QVERIFY(body.endsWith(u"\\par }"_s));
    QCOMPARE(body.count(u'{'), body.count(u'}'));
    const QString text = textOf(tag);
    QVERIFY(text.trimmed().endsWith(u'.'));
    QVERIFY2(!text.contains(QRegularExpression(u"[\\\\{}]|  |^ | $"_s)), qPrintable(text));
}

void tst_TourScriptTexts::aNameInBoldTypeStandsOnTheScreen()
{
    QFETCH(QString, tag);
    QTextDocument document;
    read(tag, document);
    const QStringList runs = boldRuns(document);
    QVERIFY(!runs.empty());
    for (const QString &run : runs)
        QVERIFY2(captions().contains(run), qPrintable(run));
}

void tst_TourScriptTexts::aStepNamesTheButtonThatLeadsOn()
{
    QFETCH(QString, tag);
    QTextDocument document;
    read(tag, document);
    QVERIFY(boldRuns(document).contains(ShippedTour::isEnd(tag) ? u"Quit"_s : u"Next"_s));
}

void tst_TourScriptTexts::nothingIsAnnouncedForLater()
{
    QFETCH(QString, tag);
    static const QRegularExpression promise(u"still to come|not yet|coming soon|will be available"_s,
                                            QRegularExpression::CaseInsensitiveOption);
    QVERIFY(!textOf(tag).contains(promise));
}

void tst_TourScriptTexts::noTwoStepsThatFollowOneAnotherEndAlike()
{
    QString before;
    for (QString tag = u"101"_s; !tag.isEmpty(); tag = ShippedTour::target(ShippedTour::section(tag).next)) {
        const QString closing = textOf(tag).trimmed().section(QRegularExpression(u"[.!?]\\s"_s), -1);
        QVERIFY2(closing != before, qPrintable(tag + u": "_s + closing));
        before = closing;
    }
}

// With no scroll bar, and the heading on one line.
void tst_TourScriptTexts::everyTextFitsTheConsole()
{
    RunningSystem system;
    system.host.writeFile(u"DemoData.ini"_s, ShippedTour::bytes());
    system.start();
    for (const QString &tag : ShippedTour::tags()) {
        if (ShippedTour::isEnd(tag)) continue; // nothing comes up after an end
        ShowTourStep(QString(tag));
        QCOMPARE(system.console().Tag(), tag);
        QVERIFY2(editOf(system.console().rtf).verticalScrollBar()->maximum() == 0, qPrintable(tag));
        const QTextEdit &heading = editOf(system.console().Header);
        QVERIFY2(heading.document()->idealWidth() <= heading.viewport()->width(), qPrintable(tag));
    }
}

// They come up over the middle of it, and the button over its lower edge.
void tst_TourScriptTexts::theClosingTextLeavesRoomForTheDealersLines()
{
    RunningSystem system;
    system.host.writeFile(u"DemoData.ini"_s, ShippedTour::bytes());
    system.start();
    Shared().DealerTextPresent = True;
    ShowTourStep(u"603"_s);
    QCOMPARE(system.console().Tag(), u"604"_s);
    const QTextEdit &body = editOf(system.console().rtf);
    const QTextDocument &document = *body.document();
    for (auto block = document.begin(); block.isValid(); block = block.next()) {
        const QRectF lines = block.layout()->boundingRect().translated(block.layout()->position());
        const QRect place = lines.toRect().translated(body.viewport()->mapTo(body.window(), QPoint()));
        for (const Control *over :
             {static_cast<Control *>(&system.console().txtInfo), static_cast<Control *>(&system.console().cmdQuit)})
            QVERIFY2(!place.intersects(over->widget().geometry()), qPrintable(block.text()));
    }
}

QTEST_MAIN(tst_TourScriptTexts)
#include "tst_TourScriptTexts.moc"
