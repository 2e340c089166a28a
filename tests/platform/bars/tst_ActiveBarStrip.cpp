#include "platform/bars/BarFixture.h"

#include "platform/controls/Palette.h"

#include <QAccessible>
#include <QSignalSpy>

using namespace Qt::Literals::StringLiterals;
using namespace orvane;
using namespace barfixture;

namespace
{

// What a button shows near its left edge, beside picture and caption.
QColor groundOf(const QWidget &button)
{
    return colourAt(*button.parentWidget(), QPoint(button.x() + 3, button.geometry().center().y()));
}

} // namespace

class tst_ActiveBarStrip : public QObject
{
    Q_OBJECT

private slots:
    void aClickPressesTheTool();
    void aClickLeavesTheFocusWhereItWas();
    void groupsStandApartButForTheFirst();
    void outerBlanksWidenAButtonALittle();
    void aLeastWidthIsKeptAndOutgrown();
    void aCheckedToolLooksPressed();
    void aDisabledToolIsNotPressed();
    void changesAreSeenAtOnce();
    void aPictureStandsBesideTheCaption();
    void buttonsAndFlyoutsAreInArial();
    void barsShareThePicturesOfTheirTools();
    void everyButtonHasANameATextAndASpokenName();
    void whatIsPointedAtIsDescribed();
    void whatHasTheFocusIsDescribed();
    void aToolMayBeRemovedInItsOwnClick();
    void theBarMayEndInItsOwnClick_data();
    void theBarMayEndInItsOwnClick();
    void theBarMayEndWithTheFocusInIt();
};

void tst_ActiveBarStrip::aClickPressesTheTool()
{
    BarWindow window;
    window.open();
    QSignalSpy clicks(window.bar.get(), &ActiveBar::Click);
    QTest::mouseClick(window.button(u"Mode"_s), Qt::LeftButton);
    QCOMPARE(clicks.count(), 1);
    QCOMPARE(clicks.first().first().value<Tool *>(), &window.bar->Tools(u"Mode"_s));
}

void tst_ActiveBarStrip::aClickLeavesTheFocusWhereItWas()
{
    BarWindow window;
    window.open();
    connect(window.bar.get(), &ActiveBar::Click, this, [] { QTest::keyClicks(QApplication::focusWidget(), u"abc"_s); });
    QTest::mouseClick(window.button(u"Mode"_s), Qt::LeftButton);
    QCOMPARE(window.edit->text(), u"abc"_s);
}

void tst_ActiveBarStrip::groupsStandApartButForTheFirst()
{
    BarWindow window;
    window.open();
    const auto left = [&](const QString &name) { return window.button(name)->geometry().left(); };
    const auto right = [&](const QString &name) { return window.button(name)->geometry().right(); };
    QVERIFY(left(u"Related"_s) <= 4);
    const int betweenTools = left(u"Save"_s) - right(u"Mode"_s);
    const int betweenGroups = left(u"Mode"_s) - right(u"Related"_s);
    QVERIFY(betweenGroups > betweenTools + 4);
    const QPoint between(right(u"Related"_s) + betweenGroups / 2, window.bar->widget().height() / 2);
    QCOMPARE(colourAt(window.bar->widget(), between), palette::Line);
}

void tst_ActiveBarStrip::outerBlanksWidenAButtonALittle()
{
    BarWindow window;
    window.open();
    QToolButton *mode = window.button(u"Mode"_s);
    const int withBlanks = mode->width();
    QCOMPARE(mode->text(), u"Go to Own"_s);
    window.bar->Tools(u"Mode"_s).setCaption(u"Go to Own"_s);
    QVERIFY(mode->width() < withBlanks);
    window.bar->Tools(u"Mode"_s).setCaption(u"                         Go to Own"_s);
    QVERIFY(mode->width() <= withBlanks + 12);
    QCOMPARE(window.bar->Tools(u"Mode"_s).Caption().size(), 34);
}

void tst_ActiveBarStrip::aLeastWidthIsKeptAndOutgrown()
{
    static constexpr ToolRow tools[] = {{.id = 1, .name = u"View", .caption = u"View", .width = 80}};
    static constexpr BandRow bands[] = {{.name = u"one", .caption = u"One", .tools = tools}};
    BarWindow window(bands);
    window.open();
    QCOMPARE(window.button(u"View"_s)->width(), 80);
    window.bar->Tools(u"View"_s).setCaption(u"View the completed record of the year"_s);
    QVERIFY(window.button(u"View"_s)->width() > 150);
}

void tst_ActiveBarStrip::aCheckedToolLooksPressed()
{
    BarWindow window;
    window.open();
    QToolButton *mode = window.button(u"Mode"_s);
    QCOMPARE(groundOf(*mode), palette::Mist);
    window.bar->Tools(u"Mode"_s).setChecked(true);
    QCOMPARE(groundOf(*mode), palette::PressedMist);
    QVERIFY(mode->isChecked());
    QTest::mouseClick(mode, Qt::LeftButton);
    QVERIFY(mode->isChecked());
}

void tst_ActiveBarStrip::aDisabledToolIsNotPressed()
{
    BarWindow window;
    window.open();
    QSignalSpy clicks(window.bar.get(), &ActiveBar::Click);
    QVERIFY(!window.button(u"Save"_s)->isEnabled());
    QTest::mouseClick(window.button(u"Save"_s), Qt::LeftButton);
    QCOMPARE(clicks.count(), 0);
    window.bar->Tools(u"Save"_s).setEnabled(true);
    QTest::mouseClick(window.button(u"Save"_s), Qt::LeftButton);
    QCOMPARE(clicks.count(), 1);
}

void tst_ActiveBarStrip::changesAreSeenAtOnce()
{
    BarWindow window;
    window.open();
    Tool &mode = window.bar->Tools(u"Mode"_s);
    mode.setCaption(u" Go to Master "_s);
    mode.setToolTipText(u"Back"_s);
    QCOMPARE(window.button(u"Mode"_s)->text(), u"Go to Master"_s);
    QCOMPARE(window.button(u"Mode"_s)->toolTip(), u"Back"_s);
    window.bar->Bands(0).Tools().Add(35000, u"New"_s).setCaption(u"New"_s);
    window.bar->RecalcLayout();
    QVERIFY(window.button(u"New"_s)->isVisible());
    window.bar->Bands(0).Tools().Remove(1);
    QVERIFY(!window.button(u"Mode"_s));
}

void tst_ActiveBarStrip::aPictureStandsBesideTheCaption()
{
    BarWindow window;
    window.open();
    QVERIFY(!window.button(u"Mode"_s)->icon().isNull());
    QVERIFY(window.button(u"Pairs"_s)->icon().isNull());
    QCOMPARE(window.button(u"Mode"_s)->icon().pixmap(QSize(16, 16), 2.0).size(), QSize(32, 32));
}

void tst_ActiveBarStrip::barsShareThePicturesOfTheirTools()
{
    BarWindow first;
    BarWindow second;
    const auto iconOf = [](BarWindow &window, const QString &name) { return window.button(name)->icon().cacheKey(); };
    QCOMPARE(iconOf(second, u"Mode"_s), iconOf(first, u"Mode"_s));
    QVERIFY(iconOf(first, u"Mode"_s) != iconOf(first, u"Save"_s));
}

void tst_ActiveBarStrip::buttonsAndFlyoutsAreInArial()
{
    BarWindow window;
    window.open();
    for (const auto &name : {u"Related"_s, u"Mode"_s, u"Close"_s})
        QCOMPARE(window.button(name)->font().family(), u"Arial"_s);
    QString inMenu;
    onceAMenuIsOpen(window, [&](QMenu &menu) {
        inMenu = menu.font().family();
        menu.close();
    });
    QTest::mouseClick(window.button(u"Related"_s), Qt::LeftButton);
    QCOMPARE(inMenu, u"Arial"_s);
}

void tst_ActiveBarStrip::everyButtonHasANameATextAndASpokenName()
{
    BarWindow window;
    window.open();
    QCOMPARE(window.bar->widget().accessibleName(), u"Related"_s);
    const QToolButton *close = window.button(u"Close"_s);
    QCOMPARE(close->accessibleName(), u"Close"_s);
    QCOMPARE(close->accessibleDescription(), u"Close "_s);
    QCOMPARE(close->toolTip(), u"Close "_s);
    QCOMPARE(window.button(u"Pairs"_s)->accessibleName(), u"Suppliers & Contractors"_s);
    QCOMPARE(window.button(u"Pairs"_s)->text(), u"Suppliers && Contractors"_s);
    window.bar->Tools(u"Close"_s).setCaption({});
    QCOMPARE(close->accessibleName(), u"Close"_s);
    QCOMPARE(QAccessible::queryAccessibleInterface(window.button(u"Mode"_s))->text(QAccessible::Name), u"Go to Own"_s);
}

void tst_ActiveBarStrip::whatIsPointedAtIsDescribed()
{
    BarWindow window;
    window.open();
    QString told;
    connect(window.bar.get(), &ActiveBar::Hover, this, [&](const QString &text) { told = text; });
    QTest::mouseMove(window.button(u"Mode"_s));
    QTRY_COMPARE(told, u"Changes the version"_s);
    QTest::mouseMove(window.edit);
    QTRY_COMPARE(told, QString());
}

void tst_ActiveBarStrip::whatHasTheFocusIsDescribed()
{
    BarWindow window;
    window.open();
    QString told;
    connect(window.bar.get(), &ActiveBar::Hover, this, [&](const QString &text) { told = text; });
    window.button(u"Related"_s)->setFocus();
    QCOMPARE(told, u"Where else it stands"_s);
    window.edit->setFocus();
    QCOMPARE(told, QString());
}

void tst_ActiveBarStrip::aToolMayBeRemovedInItsOwnClick()
{
    BarWindow window;
    window.open();
    QString caption;
    connect(window.bar.get(), &ActiveBar::Click, this, [&](const Tool *tool) {
        window.bar->Bands(0).Tools().Remove(1);
        caption = tool->Caption();
    });
    QTest::mouseClick(window.button(u"Mode"_s), Qt::LeftButton);
    QCOMPARE(caption, u"  Go to Own "_s);
    QVERIFY(!window.button(u"Mode"_s));
}

void tst_ActiveBarStrip::theBarMayEndInItsOwnClick_data()
{
    using Press = std::function<void(BarWindow &)>;
    QTest::addColumn<Press>("press");
    QTest::newRow("by the mouse") << Press(
        [](BarWindow &window) { QTest::mouseClick(window.button(u"Close"_s), Qt::LeftButton); });
    QTest::newRow("by Enter") << Press([](BarWindow &window) {
        window.button(u"Close"_s)->setFocus();
        QTest::keyClick(window.button(u"Close"_s), Qt::Key_Return);
    });
    QTest::newRow("by the access key") << Press(
        [](BarWindow &window) { QTest::keyClick(window.edit, Qt::Key_C, Qt::AltModifier); });
    QTest::newRow("in a flyout") << Press([](BarWindow &window) {
        onceAMenuIsOpen(window, [](QMenu &menu) { clickEntry(menu, u"mnuMP"_s); });
        QTest::mousePress(window.button(u"Related"_s), Qt::LeftButton);
    });
    QTest::newRow("in a popup") << Press([](BarWindow &window) {
        onceAMenuIsOpen(window, [](QMenu &menu) { clickEntry(menu, u"mnuMP"_s); });
        window.bar->Bands(1).PopupMenu(-1, -1);
    });
}

void tst_ActiveBarStrip::theBarMayEndInItsOwnClick()
{
    QFETCH(std::function<void(BarWindow &)>, press);
    BarWindow window;
    window.open();
    QString name;
    connect(window.bar.get(), &ActiveBar::Click, this, [&](const Tool *tool) {
        window.bar.reset();
        name = tool->Name();
    });
    press(window);
    QVERIFY(!window.bar);
    QVERIFY(!name.isEmpty());
}

void tst_ActiveBarStrip::theBarMayEndWithTheFocusInIt()
{
    BarWindow window;
    window.open();
    QSignalSpy hovers(window.bar.get(), &ActiveBar::Hover);
    window.button(u"Related"_s)->setFocus();
    QCOMPARE(hovers.count(), 1);
    window.bar.reset();
    QVERIFY(!window.button(u"Related"_s));
    QCOMPARE(hovers.count(), 1);
}

QTEST_MAIN(tst_ActiveBarStrip)
#include "tst_ActiveBarStrip.moc"
