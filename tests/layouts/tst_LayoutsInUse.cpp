// What the menu's handlers and the document windows rely on in their bars.
#include "BarsByName.h"

#include <QSet>
#include <QTest>

using namespace Qt::Literals::StringLiterals;
using namespace orvane::layouts;
using orvane::BandRow;
using orvane::BarTable;
using orvane::ToolRow;

namespace
{

// The caption as it shows: one "&" marks the access key, two stand for one.
QString shown(std::u16string_view caption)
{
    QString result;
    bool marked = false;
    for (const char16_t letter : caption) {
        marked = letter == u'&' && !marked;
        if (!marked) result += QChar(letter);
    }
    return result;
}

} // namespace

class tst_LayoutsInUse : public QObject
{
    Q_OBJECT

private slots:
    void theIdsOfTheMenuRiseWithinTheDesignRange();
    void aMenuEntryTipsItsDescriptionOrElseItsCaption();
    void aMenuAndItsBandShareTheirName_data();
    void aMenuAndItsBandShareTheirName();
    void environmentalAspectsStandInThreeBandsWithThreeCaptions();
    void thePrintToolsStandAtTheEndOfTheLinks_data();
    void thePrintToolsStandAtTheEndOfTheLinks();
    void aLinkLeadsToItsTopic_data();
    void aLinkLeadsToItsTopic();
    void aWindowDoesNotLinkToItsOwnModule_data();
    void aWindowDoesNotLinkToItsOwnModule();
    void theFirstPageIsCheckedAlone_data();
    void theFirstPageIsCheckedAlone();
    void aDeepMenuEntryHasAnImageWhereItOpensAnExample();
};

void tst_LayoutsInUse::theIdsOfTheMenuRiseWithinTheDesignRange()
{
    int last = 20007;
    forEachTool(bars()[u"mdiMain_mnuMain"_s], [&last](const BandRow &, const ToolRow &tool) {
        QVERIFY2(tool.id > last && tool.id <= 20196, qPrintable(text(tool.name) + u' ' + QString::number(tool.id)));
        last = tool.id;
    });
}

void tst_LayoutsInUse::aMenuEntryTipsItsDescriptionOrElseItsCaption()
{
    forEachTool(bars()[u"mdiMain_mnuMain"_s], [](const BandRow &, const ToolRow &tool) {
        QCOMPARE(text(tool.tooltip), tool.description.empty() ? shown(tool.caption) : text(tool.description));
    });
}

void tst_LayoutsInUse::aMenuAndItsBandShareTheirName_data()
{
    QTest::addColumn<QString>("name");
    for (const QString &name :
         {u"mnuFile"_s, u"mnuEdit"_s, u"mnuCommand"_s, u"mnuTools"_s, u"mnuWindow"_s, u"mnuHelp"_s})
        QTest::addRow("%s", qPrintable(name)) << name;
}

void tst_LayoutsInUse::aMenuAndItsBandShareTheirName()
{
    QFETCH(QString, name);
    const BarTable bar = bars()[u"mdiMain_mnuMain"_s];
    const ToolRow *menu = findTool(bar[0], name);
    QVERIFY(menu);
    QCOMPARE(text(menu->flyout), name);
    const BandRow *band = findBand(bar, name);
    QVERIFY(band);
    QVERIFY(!findTool(*band, name));
}

void tst_LayoutsInUse::environmentalAspectsStandInThreeBandsWithThreeCaptions()
{
    QStringList found;
    forEachTool(bars()[u"mdiMain_mnuMain"_s], [&found](const BandRow &band, const ToolRow &tool) {
        if (tool.name == u"mnuEnvironmentalAspects") found << text(band.name) + u": "_s + text(tool.caption);
    });
    QCOMPARE(found, QStringList({u"sub24StepPhase1: STEP 5 - Environmental Aspects"_s,
                                 u"subActionTools: Environmental Aspects and Impacts"_s,
                                 u"subPlanning: Environmental Aspects"_s}));
}

void tst_LayoutsInUse::thePrintToolsStandAtTheEndOfTheLinks_data()
{
    QTest::addColumn<QString>("bar");
    QTest::addColumn<int>("pageTag");
    QTest::addColumn<bool>("moduleEnabled");
    QTest::newRow("guide") << u"frmIGSteps_mnuLinks"_s << 1 << true;
    QTest::newRow("manual") << u"frmEMMain_mnuLinks"_s << 205 << false;
    QTest::newRow("procedures") << u"frmMPMain_mnuLinks"_s << 1 << true;
    QTest::newRow("tools") << u"frmATMain_mnuLinks"_s << 1 << false;
}

void tst_LayoutsInUse::thePrintToolsStandAtTheEndOfTheLinks()
{
    QFETCH(QString, bar);
    QCOMPARE(bars()[bar].size(), size_t(8));
    const BandRow &band = bars()[bar][7];
    QCOMPARE(band.tools.size(), size_t(2));
    QCOMPARE(text(band.name), u"subPrint"_s);
    QCOMPARE(text(band.tools[0].name), u"prtPartial"_s);
    QTEST(band.tools[0].toolTag, "pageTag");
    QCOMPARE(text(band.tools[1].name), u"prtComplete"_s);
    QTEST(band.tools[1].enabled, "moduleEnabled");
    QCOMPARE(band.tools[1].toolTag, 2);
}

void tst_LayoutsInUse::aLinkLeadsToItsTopic_data()
{
    QTest::addColumn<QString>("bar");
    QTest::addColumn<QString>("band");
    QTest::addColumn<QString>("name");
    QTest::addColumn<int>("tag");
    const auto add = [](const char *row, const QString &bar, const QString &band, const QString &name, int tag) {
        QTest::newRow(row) << bar << band << name << tag;
    };
    add("guide to guide, out of reach", u"frmIGSteps_mnuLinks"_s, u"IGLink"_s, u"IGlinks"_s, 127);
    add("guide to manual", u"frmIGSteps_mnuLinks"_s, u"EMLink"_s, u"btnEM"_s, 219);
    add("guide to procedures", u"frmIGSteps_mnuLinks"_s, u"MPLink"_s, u"btnMP"_s, 311);
    add("guide to tools", u"frmIGSteps_mnuLinks"_s, u"ATLink"_s, u"btnat"_s, 406);
    add("guide to records", u"frmIGSteps_mnuLinks"_s, u"RCLink"_s, u"btnRC"_s, 511);
    add("manual to guide", u"frmEMMain_mnuLinks"_s, u"IGLink"_s, u"IGlinks"_s, 127);
    add("manual to procedures", u"frmEMMain_mnuLinks"_s, u"MPLink"_s, u"btnemp"_s, 311);
    add("manual to tools", u"frmEMMain_mnuLinks"_s, u"ATLink"_s, u"btnat"_s, 406);
    add("manual to records", u"frmEMMain_mnuLinks"_s, u"RCLink"_s, u"btnRC"_s, 511);
    add("procedures to guide", u"frmMPMain_mnuLinks"_s, u"IGLink"_s, u"IGlinks"_s, 127);
    add("procedures to manual", u"frmMPMain_mnuLinks"_s, u"EMLink"_s, u"btnEM"_s, 219);
    add("procedures to tools", u"frmMPMain_mnuLinks"_s, u"ATLink"_s, u"btnepi"_s, 406);
    add("procedures to records", u"frmMPMain_mnuLinks"_s, u"RCLink"_s, u"btnRC"_s, 511);
    add("tools to guide", u"frmATMain_mnuLinks"_s, u"IGLink"_s, u"btnIG"_s, 1127);
    add("tools to manual", u"frmATMain_mnuLinks"_s, u"EMLink"_s, u"btnEM"_s, 1219);
    add("tools to procedures", u"frmATMain_mnuLinks"_s, u"MPLink"_s, u"btnmp"_s, 1311);
    add("tools to records", u"frmATMain_mnuLinks"_s, u"RCLink"_s, u"btnRC"_s, 1511);
}

void tst_LayoutsInUse::aLinkLeadsToItsTopic()
{
    QFETCH(QString, bar);
    QFETCH(QString, band);
    QFETCH(QString, name);
    static const QMap<int, QString> titles{{127, u"STEP 17 - Emergency Preparedness and Response"_s},
                                           {219, u"Emergency Preparedness and Response"_s},
                                           {311, u"Emergency Planning"_s},
                                           {406, u"Emergency Plan Ideas"_s},
                                           {511, u"Emergency Plan"_s}};
    const BandRow *links = findBand(bars()[bar], band);
    QVERIFY(links);
    QCOMPARE(links->tools.size(), size_t(1));
    QCOMPARE(text(links->tools[0].name), name);
    QTEST(links->tools[0].toolTag, "tag");
    QCOMPARE(text(links->tools[0].caption), titles[links->tools[0].toolTag % 1000]);
}

void tst_LayoutsInUse::aWindowDoesNotLinkToItsOwnModule_data()
{
    QTest::addColumn<QString>("bar");
    QTest::addColumn<QString>("own");
    QTest::addColumn<int>("leftovers");
    QTest::newRow("guide") << u"frmIGSteps_mnuLinks"_s << u"mnuIG"_s << 1;
    QTest::newRow("manual") << u"frmEMMain_mnuLinks"_s << u"mnuEM"_s << 0;
    QTest::newRow("procedures") << u"frmMPMain_mnuLinks"_s << u"mnuMP"_s << 0;
    QTest::newRow("tools") << u"frmATMain_mnuLinks"_s << u"mnuAT"_s << 0;
}

void tst_LayoutsInUse::aWindowDoesNotLinkToItsOwnModule()
{
    QFETCH(QString, bar);
    QFETCH(QString, own);
    const BarTable bands = bars()[bar];
    QCOMPARE(bands.size(), size_t(8));
    for (const ToolRow &module : bands[1].tools)
        QCOMPARE(module.enabled, text(module.name) != own);
    const ToolRow *tool = findTool(bands[1], own);
    QVERIFY(tool);
    const BandRow *links = findBand(bands, text(tool->flyout));
    QVERIFY(links);
    QTEST(int(links->tools.size()), "leftovers");
}

void tst_LayoutsInUse::theFirstPageIsCheckedAlone_data()
{
    QTest::addColumn<QString>("bar");
    QTest::addColumn<QStringList>("checked");
    QTest::newRow("guide") << u"frmIGSteps_mnuNav"_s << QStringList{u"Requirement"_s};
    QTest::newRow("manual") << u"frmEMMain_mnuNav"_s << QStringList{u"Commitment"_s};
    QTest::newRow("procedures") << u"frmMPMain_mnuNav"_s << QStringList{u"Aim"_s};
    QTest::newRow("records") << u"frmRCMain_mnuNav"_s << QStringList{};
    QTest::newRow("menu") << u"mdiMain_mnuMain"_s << QStringList{};
}

void tst_LayoutsInUse::theFirstPageIsCheckedAlone()
{
    QFETCH(QString, bar);
    QStringList actual;
    forEachTool(bars()[bar], [&actual](const BandRow &, const ToolRow &tool) {
        if (tool.checked) actual << text(tool.name);
    });
    QTEST(actual, "checked");
}

void tst_LayoutsInUse::aDeepMenuEntryHasAnImageWhereItOpensAnExample()
{
    static const QSet<QString> deep{u"sub24StepPhase1"_s,       u"sub24StepPhase2"_s, u"sub24StepPhase3"_s,
                                    u"subIntroduction"_s,       u"subAnnexes"_s,      u"subPlanning"_s,
                                    u"subImpAndOp"_s,           u"subChecking"_s,     u"CoreProcedures"_s,
                                    u"EnvironmentProcedures"_s, u"CoreRecords"_s,     u"EnvironmentRecords"_s};
    QStringList examples;
    forEachTool(bars()[u"mdiMain_mnuMain"_s], [&examples](const BandRow &band, const ToolRow &tool) {
        if (!deep.contains(text(band.name))) return;
        QCOMPARE(text(tool.image), tool.toolTag == 900 ? QString() : u"document"_s);
        if (tool.toolTag != 900) examples << QString::number(tool.toolTag);
    });
    QCOMPARE(examples, QStringList({u"127"_s, u"219"_s, u"311"_s, u"511"_s, u"519"_s}));
}

QTEST_GUILESS_MAIN(tst_LayoutsInUse)
#include "tst_LayoutsInUse.moc"
