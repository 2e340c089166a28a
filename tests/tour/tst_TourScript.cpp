// The tour script that the program ships with: nothing is missing in it, and every way through it arrives.
#include "command_center/DiagramTables.h"
#include "layouts/BarsByName.h"
#include "support/ShippedTour.h"
#include "tour/LiteralTags.h"

#include <QSet>
#include <QTest>

using namespace Qt::Literals::StringLiterals;
using namespace orvane;
using namespace orvane::test;

namespace
{
// The links of the Action Tools give up their first digit before they are reported.
QString reported(int toolTag)
{
    const QString tag = QString::number(toolTag);
    return tag.size() == 4 ? tag.mid(1) : tag;
}

// The steps that one button leads through, up to one that it doesn't lead on from or to one that was passed before.
QStringList chain(const QString &first, QString TourSection::*script)
{
    QStringList passed;
    for (QString tag = first; !tag.isEmpty(); tag = ShippedTour::target(ShippedTour::section(tag).*script)) {
        const bool again = passed.contains(tag);
        passed << tag;
        if (again) break;
    }
    return passed;
}
} // namespace

class tst_TourScript : public QObject
{
    Q_OBJECT

private slots:
    void everyTagThatAHandCanReachHasASection_data();
    void everyTagThatAHandCanReachHasASection();
    void noSectionStandsTwice();
    void everyLineEndsAsInAProfileFile();
    void everyByteIsPlain();
    void nextLeadsFromTheFirstStepToTheEndWithoutALoop();
    void backLeadsFromTheLastStepToTheFirst();
    void everyStepLeadsOnToTheEnd_data() { addSteps(); }
    void everyStepLeadsOnToTheEnd();
    void everyStepLeadsBackToTheBeginning_data() { addSteps(); }
    void everyStepLeadsBackToTheBeginning();
    void theEndsHaveNoMoves();

private:
    static void addSteps();
};

void tst_TourScript::everyTagThatAHandCanReachHasASection_data()
{
    QTest::addColumn<QString>("where");
    QMap<QString, QString> places;
    for (const LiteralTag &literal : LiteralTags)
        places.insert(QString::number(literal.tag), QString::fromLatin1(literal.place));
    for (auto bar = layouts::bars().begin(); bar != layouts::bars().end(); ++bar)
        layouts::forEachTool(bar.value(), [&](const BandRow &, const ToolRow &tool) {
            places.insert(reported(tool.toolTag), bar.key() + u' ' + layouts::text(tool.name));
        });
    for (const diagram::TabRow &tab : diagram::tabs())
        places.insert(layouts::text(tab.tag), layouts::text(tab.caption));
    for (const diagram::ButtonRow &button : diagram::buttons())
        places.insert(layouts::text(button.tag), layouts::text(button.caption));
    for (const QString &noStep : {u"0"_s, u"6"_s, u"900"_s})
        QCOMPARE(places.remove(noStep), 1);
    QVERIFY(places.size() > 40);
    for (auto place = places.begin(); place != places.end(); ++place)
        QTest::addRow("%s", qPrintable(place.key())) << place.value();
}

void tst_TourScript::everyTagThatAHandCanReachHasASection()
{
    QFETCH(QString, where);
    const TourSection section = ShippedTour::section(QString::fromLatin1(QTest::currentDataTag()));
    QVERIFY2(section.heading != ShippedTour::none(), qPrintable(where));
    QVERIFY2(section.body != ShippedTour::none(), qPrintable(where));
}

void tst_TourScript::noSectionStandsTwice()
{
    const QStringList tags = ShippedTour::tags();
    QVERIFY(tags.size() > 40);
    QCOMPARE(QSet<QString>(tags.begin(), tags.end()).size(), tags.size());
}

void tst_TourScript::everyLineEndsAsInAProfileFile()
{
    const QByteArray bytes = ShippedTour::bytes();
    QVERIFY(bytes.endsWith("\r\n"));
    QCOMPARE(bytes.count('\n'), bytes.count("\r\n"));
    QCOMPARE(bytes.count('\r'), bytes.count("\r\n"));
}

// The rich text writes what isn't ASCII as an escape, so that any editor keeps it.
void tst_TourScript::everyByteIsPlain()
{
    const QByteArray bytes = ShippedTour::bytes();
    QVERIFY(!bytes.isEmpty());
    for (const char byte : bytes)
        QVERIFY2((byte >= 32 && byte < 127) || byte == '\r' || byte == '\n', QByteArray(1, byte).toHex().constData());
}

void tst_TourScript::nextLeadsFromTheFirstStepToTheEndWithoutALoop()
{
    const QStringList steps = chain(u"101"_s, &TourSection::next);
    QCOMPARE(steps.last(), u"603"_s);
    QVERIFY(steps.contains(u"102"_s));
    QCOMPARE(QSet<QString>(steps.begin(), steps.end()).size(), steps.size());
    QVERIFY(steps.size() > 35);
}

void tst_TourScript::backLeadsFromTheLastStepToTheFirst()
{
    const QStringList forward = chain(u"101"_s, &TourSection::next);
    const QStringList back = chain(forward.at(forward.size() - 2), &TourSection::back);
    QCOMPARE(back.last(), u"101"_s);
    for (const QString &tag : back)
        QVERIFY2(forward.contains(tag), qPrintable(tag));
}

void tst_TourScript::addSteps()
{
    QTest::addColumn<QString>("tag");
    for (const QString &tag : ShippedTour::tags())
        if (!ShippedTour::isEnd(tag)) QTest::addRow("%s", qPrintable(tag)) << tag;
}

void tst_TourScript::everyStepLeadsOnToTheEnd()
{
    QFETCH(QString, tag);
    const QStringList steps = chain(tag, &TourSection::next);
    QVERIFY2(steps.last() == u"603"_s, qPrintable(steps.join(u' ')));
}

void tst_TourScript::everyStepLeadsBackToTheBeginning()
{
    QFETCH(QString, tag);
    const QStringList steps = chain(tag, &TourSection::back);
    QVERIFY2(steps.last() == u"101"_s, qPrintable(steps.join(u' ')));
}

void tst_TourScript::theEndsHaveNoMoves()
{
    for (const QString &tag : {u"603"_s, u"604"_s}) {
        QCOMPARE(ShippedTour::section(tag).next, ShippedTour::none());
        QCOMPARE(ShippedTour::section(tag).back, ShippedTour::none());
    }
}

QTEST_GUILESS_MAIN(tst_TourScript)
#include "tst_TourScript.moc"
