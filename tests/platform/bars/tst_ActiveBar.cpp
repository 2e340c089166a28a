#include "platform/bars/BarFixture.h"

#include "support/ErrorOf.h"

#include <QSignalSpy>

using namespace Qt::Literals::StringLiterals;
using namespace orvane;
using namespace orvane::test;
using namespace barfixture;

namespace
{

QStringList namesOf(ActiveBar &bar)
{
    QStringList names;
    for (int i = 0; i < bar.ToolCount(); ++i)
        names += bar.Tools(i).Name();
    return names;
}

constexpr ToolRow StrayTools[] = {{.id = 1, .name = u"Stray", .caption = u"Stray", .flyout = u"nowhere"}};
constexpr BandRow StrayBands[] = {{.name = u"first", .caption = u"First", .tools = StrayTools}};

} // namespace

class tst_ActiveBar : public QObject
{
    Q_OBJECT

private slots:
    void bandsAreFoundByIndexAndByName();
    void aBandKeepsItsDesignSize();
    void toolsAreFoundByIndexAndByName();
    void theCaseOfANameCounts();
    void allToolsCountInStoredOrder();
    void ofEqualNamesTheFirstToolIsFound();
    void aBandAndAToolOfOneNameAreTwoThings();
    void whatIsMissingIsRefusedAndNamed_data();
    void whatIsMissingIsRefusedAndNamed();
    void aFlyoutThatNamesNoBandIsRefused();
    void aToolHasTheAttributesOfItsRow();
    void anAddedToolIsAPlainButtonAtTheEnd();
    void aRemovedToolIsGone();
    void aBandCanBeWalked();
    void theChosenEntryStandsInTheText();
    void theTextTellsWhichEntryStandsInIt();
    void anEntryThatIsNotThereIsRefused();
    void aPressClicksWithTheVeryTool();
    void aPressOnADisabledToolDoesNothing();
    void aToolMayOutliveItsBar();
    void whatIsPointedAtIsToldOnce();
};

void tst_ActiveBar::bandsAreFoundByIndexAndByName()
{
    BarWindow window;
    QCOMPARE(window.bar->BandCount(), 4);
    QCOMPARE(window.bar->Bands(1).Name(), u"subRelated"_s);
    QCOMPARE(&window.bar->Bands(u"EMLink"_s), &window.bar->Bands(2));
    QCOMPARE(window.bar->Bands(1).Caption(), u"Sub Related Menu"_s);
}

void tst_ActiveBar::aBandKeepsItsDesignSize()
{
    BarWindow window;
    QCOMPARE(window.bar->Bands(0).designWidth(), 191);
    QCOMPARE(window.bar->Bands(0).designHeight(), 80);
}

void tst_ActiveBar::toolsAreFoundByIndexAndByName()
{
    BarWindow window;
    Band &band = window.bar->Bands(0);
    QCOMPARE(band.Tools().Count(), 5);
    QCOMPARE(&band.Tools(4), &band.Tools(u"Close"_s));
    QCOMPARE(&band.Tools(4), &band.Tools().Item(4));
    QVERIFY(band.Tools().contains(u"Mode"_s));
    QVERIFY(!band.Tools().contains(u"mode"_s));
}

void tst_ActiveBar::theCaseOfANameCounts()
{
    BarWindow window;
    QCOMPARE(errorOf([&] { window.bar->Bands(u"MNURELATED"_s); }), 9);
    QCOMPARE(errorOf([&] { window.bar->Tools(u"close"_s); }), 9);
}

void tst_ActiveBar::allToolsCountInStoredOrder()
{
    BarWindow window;
    QCOMPARE(namesOf(*window.bar), (QStringList{u"Related"_s, u"Mode"_s, u"Save"_s, u"Pairs"_s, u"Close"_s, u"mnuIG"_s,
                                                u"mnuEM"_s, u"mnuMP"_s, u"btnEM"_s, u"Close"_s}));
}

void tst_ActiveBar::ofEqualNamesTheFirstToolIsFound()
{
    BarWindow window;
    QCOMPARE(window.bar->Tools(u"Close"_s).ToolTag(), 207);
    QCOMPARE(window.bar->Bands(u"EMLink"_s).Tools(u"Close"_s).ToolTag(), 5);
}

void tst_ActiveBar::aBandAndAToolOfOneNameAreTwoThings()
{
    const BarFrame frame;
    const Tool &title = frame.bar.Tools(u"mnuFile"_s);
    QCOMPARE(title.Id(), 20);
    QCOMPARE(title.Flyout(), u"mnuFile"_s);
    const Band &menu = frame.bar.Bands(u"mnuFile"_s);
    QCOMPARE(&menu, &frame.bar.Bands(1));
    QVERIFY(!menu.Tools().contains(u"mnuFile"_s));
    QVERIFY(frame.bar.Bands(0).Tools().contains(u"mnuFile"_s));
}

void tst_ActiveBar::whatIsMissingIsRefusedAndNamed_data()
{
    using Step = std::function<void(ActiveBar &)>;
    QTest::addColumn<Step>("step");
    QTest::addColumn<QString>("named");
    QTest::newRow("band by name") << Step([](ActiveBar &bar) { bar.Bands(u"subPrint"_s); }) << u"subPrint"_s;
    QTest::newRow("band by index") << Step([](ActiveBar &bar) { bar.Bands(4); }) << u"4"_s;
    QTest::newRow("band below zero") << Step([](ActiveBar &bar) { bar.Bands(-1); }) << u"-1"_s;
    QTest::newRow("tool by name") << Step([](ActiveBar &bar) { bar.Bands(0).Tools(u"Print"_s); }) << u"Print"_s;
    QTest::newRow("its band") << Step([](ActiveBar &bar) { bar.Bands(0).Tools(u"Print"_s); }) << u"mnuRelated"_s;
    QTest::newRow("tool by index") << Step([](ActiveBar &bar) { bar.Bands(0).Tools(5); }) << u"5"_s;
    QTest::newRow("tool below zero") << Step([](ActiveBar &bar) { bar.Bands(0).Tools(-1); }) << u"-1"_s;
    QTest::newRow("tool of the bar") << Step([](ActiveBar &bar) { bar.Tools(u"Print"_s); }) << u"Print"_s;
    QTest::newRow("tool of the bar by index") << Step([](ActiveBar &bar) { bar.Tools(10); }) << u"10"_s;
    QTest::newRow("tool to remove") << Step([](ActiveBar &bar) { bar.Bands(3).Tools().Remove(0); }) << u"IGLink"_s;
}

void tst_ActiveBar::whatIsMissingIsRefusedAndNamed()
{
    QFETCH(std::function<void(ActiveBar &)>, step);
    QFETCH(QString, named);
    BarWindow window;
    const RunTimeError failure = refusalOf([&] { step(*window.bar); });
    QCOMPARE(failure.Number(), static_cast<int>(SubscriptOutOfRange));
    QVERIFY2(failure.Description().contains(named), qPrintable(failure.Description()));
}

void tst_ActiveBar::aFlyoutThatNamesNoBandIsRefused()
{
    const RunTimeError failure = refusalOf([] { BarWindow window(StrayBands); });
    QCOMPARE(failure.Number(), static_cast<int>(SubscriptOutOfRange));
    QVERIFY(failure.Description().contains(u"nowhere"_s));
}

void tst_ActiveBar::aToolHasTheAttributesOfItsRow()
{
    BarWindow window;
    const Tool &tool = window.bar->Tools(u"Mode"_s);
    QCOMPARE(tool.Id(), 2);
    QCOMPARE(tool.Caption(), u"  Go to Own "_s);
    QCOMPARE(tool.ToolTipText(), u"Mode"_s);
    QCOMPARE(tool.Description(), u"Changes the version"_s);
    QCOMPARE(tool.ToolTag(), 201);
    QVERIFY(tool.Enabled() && !tool.Checked() && tool.GroupStart());
    QCOMPARE(tool.Width(), -1);
    QCOMPARE(tool.Image(), u"mode"_s);
}

void tst_ActiveBar::anAddedToolIsAPlainButtonAtTheEnd()
{
    BarWindow window;
    Tool &tool = window.bar->Bands(0).Tools().Add(35000, u"Added"_s);
    QCOMPARE(&window.bar->Bands(0).Tools(5), &tool);
    QCOMPARE(tool.Id(), 35000);
    QCOMPARE(tool.Name(), u"Added"_s);
    QVERIFY(tool.Caption().isEmpty() && tool.Enabled() && !tool.Checked() && tool.Flyout().isEmpty());
    QCOMPARE(tool.Kind(), ToolKind::Button);
}

void tst_ActiveBar::aRemovedToolIsGone()
{
    BarWindow window;
    window.bar->Bands(0).Tools().Remove(1);
    QCOMPARE(window.bar->Bands(0).Tools().Count(), 4);
    QCOMPARE(window.bar->Bands(0).Tools(1).Name(), u"Save"_s);
    QVERIFY(!window.bar->Bands(0).Tools().contains(u"Mode"_s));
}

void tst_ActiveBar::aBandCanBeWalked()
{
    BarWindow window;
    QStringList names;
    for (const auto &tool : window.bar->Bands(1).Tools())
        names += tool->Name();
    QCOMPARE(names, (QStringList{u"mnuIG"_s, u"mnuEM"_s, u"mnuMP"_s}));
}

void tst_ActiveBar::theChosenEntryStandsInTheText()
{
    BarWindow window(PreviewBands);
    Tool &zoom = window.bar->Tools(u"miZoom"_s);
    zoom.setList({u"200%"_s, u"75%"_s, u"Whole Page"_s});
    QCOMPARE(zoom.ListIndex(), -1);
    zoom.setListIndex(2);
    QCOMPARE(zoom.Text(), u"Whole Page"_s);
    zoom.setListIndex(-1);
    QCOMPARE(zoom.Text(), QString());
}

void tst_ActiveBar::theTextTellsWhichEntryStandsInIt()
{
    BarWindow window(PreviewBands);
    Tool &zoom = window.bar->Tools(u"miZoom"_s);
    zoom.setText(u"75%"_s);
    zoom.setList({u"200%"_s, u"75%"_s});
    QCOMPARE(zoom.ListIndex(), 1);
    zoom.setText(u"68%"_s);
    QCOMPARE(zoom.ListIndex(), -1);
    zoom.setText(u"200%"_s);
    QCOMPARE(zoom.ListIndex(), 0);
}

void tst_ActiveBar::anEntryThatIsNotThereIsRefused()
{
    BarWindow window(PreviewBands);
    Tool &zoom = window.bar->Tools(u"miZoom"_s);
    zoom.setList({u"200%"_s});
    QCOMPARE(errorOf([&] { zoom.setListIndex(1); }), static_cast<int>(InvalidPropertyValue));
    QCOMPARE(errorOf([&] { zoom.setListIndex(-2); }), static_cast<int>(InvalidPropertyValue));
    QCOMPARE(zoom.ListIndex(), -1);
}

void tst_ActiveBar::aPressClicksWithTheVeryTool()
{
    BarWindow window;
    QSignalSpy clicks(window.bar.get(), &ActiveBar::Click);
    Tool &tool = window.bar->Bands(u"EMLink"_s).Tools(u"Close"_s);
    window.bar->press(tool);
    QCOMPARE(clicks.count(), 1);
    QCOMPARE(clicks.first().first().value<Tool *>(), &tool);
}

void tst_ActiveBar::aPressOnADisabledToolDoesNothing()
{
    BarWindow window;
    QSignalSpy clicks(window.bar.get(), &ActiveBar::Click);
    window.bar->press(window.bar->Tools(u"Save"_s));
    QCOMPARE(clicks.count(), 0);
}

void tst_ActiveBar::aToolMayOutliveItsBar()
{
    BarWindow window;
    const std::shared_ptr<Tool> tool = window.bar->Tools(u"Close"_s).shared_from_this();
    window.bar.reset();
    tool->setToolTag(1207);
    tool->setCaption(u"Closed"_s);
    QCOMPARE(tool->ToolTag(), 1207);
    QCOMPARE(tool->Caption(), u"Closed"_s);
}

void tst_ActiveBar::whatIsPointedAtIsToldOnce()
{
    BarWindow window;
    QSignalSpy hovers(window.bar.get(), &ActiveBar::Hover);
    window.bar->hover(u"One"_s);
    window.bar->hover(u"One"_s);
    window.bar->hover({});
    QCOMPARE(hovers.count(), 2);
    QCOMPARE(hovers.at(0).first().toString(), u"One"_s);
    QCOMPARE(hovers.at(1).first().toString(), QString());
}

QTEST_MAIN(tst_ActiveBar)
#include "tst_ActiveBar.moc"
