#include "platform/BarFixture.h"

#include "platform/controls/Palette.h"
#include "platform/controls/SSPanel.h"
#include "platform/controls/StripFit.h"

#include <QAccessible>
#include <QComboBox>
#include <QLabel>
#include <QMainWindow>
#include <QMenuBar>
#include <QSignalSpy>

using namespace Qt::Literals::StringLiterals;
using namespace orvane;
using namespace barfixture;

namespace
{

QRect placeOnScreen(const QWidget &widget)
{
    return QRect(widget.mapToGlobal(QPoint(0, 0)), widget.size());
}

QColor colourAt(QWidget &widget, const QPoint &point)
{
    const QImage shown = widget.grab().toImage();
    return shown.pixelColor(point * shown.devicePixelRatio());
}

// What a button shows near its left edge, beside picture and caption.
QColor groundOf(const QWidget &button)
{
    return colourAt(*button.parentWidget(), QPoint(button.x() + 3, button.geometry().center().y()));
}

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
    void everyButtonHasANameATextAndASpokenName();

    void altAndTheAccessKeyPressOnce();
    void ofTwoEqualAccessKeysTheFirstCounts();
    void theMenuOfTheFrameKeepsItsAccessKeys();
    void tabReachesEveryButton();
    void aWindowOpensWithTheFocusBehindItsBars();
    void arrowsMoveFromButtonToButton();
    void spaceAndEnterPress_data();
    void spaceAndEnterPress();
    void theFocusCanBeSeen();

    void aFlyoutOpensBelowItsButton();
    void atTheFootOfTheWindowAFlyoutOpensAbove();
    void openingAFlyoutIsNoClick();
    void aChoiceInAFlyoutClicksAfterItHasClosed();
    void keysOpenAFlyout_data();
    void keysOpenAFlyout();
    void aSecondPressClosesTheFlyout();
    void aFlyoutIsKnownToHaveAMenu();
    void aFlyoutOpenedByAnAssistiveTechnologyClicks();

    void captionsGiveWayFromTheRight();
    void whatFindsNoRoomIsInTheMenuOfTheRest();
    void nothingIsCutOff_data();
    void nothingIsCutOff();
    void piecesShareTheRoom_data();
    void piecesShareTheRoom();

    void whatIsTypedStandsInTheTool();
    void enterInAFieldIsAKeyAndAClick();
    void aPickedEntryStandsInTheToolBeforeItsClick();
    void typingAnEntryIsNoPick();
    void theFieldFollowsTheTool();
    void aFieldSpeaksItsCaption();

    void whatIsPointedAtIsDescribed();
    void whatHasTheFocusIsDescribed();
    void theFirstBandHidesTheBar();
    void anUnplacedBarFillsItsPanel();
    void anUnplacedBarLiesAtAnEdge();
    void aPlacedBarStays();

    void aToolMayBeRemovedInItsOwnClick();
    void theBarMayEndInItsOwnClick_data();
    void theBarMayEndInItsOwnClick();
    void everyTextCanBeRead_data();
    void everyTextCanBeRead();
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

void tst_ActiveBarStrip::everyButtonHasANameATextAndASpokenName()
{
    BarWindow window;
    window.open();
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

void tst_ActiveBarStrip::altAndTheAccessKeyPressOnce()
{
    BarWindow window;
    window.open();
    QSignalSpy clicks(window.bar.get(), &ActiveBar::Click);
    QTest::keyClick(window.edit, Qt::Key_C, Qt::AltModifier);
    QCOMPARE(clicks.count(), 1);
    QVERIFY(window.edit->hasFocus());
}

void tst_ActiveBarStrip::ofTwoEqualAccessKeysTheFirstCounts()
{
    BarWindow window;
    window.open();
    window.bar->Tools(u"Mode"_s).setCaption(u"&Change"_s);
    QSignalSpy clicks(window.bar.get(), &ActiveBar::Click);
    for (int i = 0; i < 2; ++i)
        QTest::keyClick(window.edit, Qt::Key_C, Qt::AltModifier);
    QCOMPARE(clicks.count(), 2);
    for (const auto &click : clicks)
        QCOMPARE(click.first().value<Tool *>()->Name(), u"Mode"_s);
    QCOMPARE(window.button(u"Close"_s)->text(), u"Close"_s);
}

void tst_ActiveBarStrip::theMenuOfTheFrameKeepsItsAccessKeys()
{
    BarFrame frame;
    BarChild child(frame);
    frame.Show();
    child.Show();
    QVERIFY(QTest::qWaitForWindowActive(&frame.shell()));
    child.edit->setFocus();
    QTRY_VERIFY(child.edit->hasFocus());
    QSignalSpy clicks(&child.bar, &ActiveBar::Click);
    for (int i = 0; i < 2; ++i) {
        QTest::keyClick(child.edit, Qt::Key_C, Qt::AltModifier);
        QTRY_VERIFY(QApplication::activePopupWidget());
        QCOMPARE(QApplication::activePopupWidget()->objectName(), u"mnuCommand"_s);
        QTest::keyClick(QApplication::activePopupWidget(), Qt::Key_Escape);
        QTest::keyClick(&frame.shell(), Qt::Key_Escape);
        child.edit->setFocus();
    }
    QCOMPARE(clicks.count(), 0);
}

void tst_ActiveBarStrip::tabReachesEveryButton()
{
    BarWindow window;
    window.open();
    QStringList reached;
    for (int i = 0; i < 5; ++i) {
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        reached += QApplication::focusWidget()->objectName();
    }
    QCOMPARE(reached, (QStringList{u"Related"_s, u"Mode"_s, u"Pairs"_s, u"Close"_s, QString()}));
}

void tst_ActiveBarStrip::aWindowOpensWithTheFocusBehindItsBars()
{
    BarFrame frame;
    BarChild child(frame);
    frame.Show();
    child.Show();
    QVERIFY(QTest::qWaitForWindowActive(&frame.shell()));
    QTRY_VERIFY(child.edit->hasFocus());
}

void tst_ActiveBarStrip::arrowsMoveFromButtonToButton()
{
    BarWindow window;
    window.open();
    window.button(u"Mode"_s)->setFocus();
    QTest::keyClick(window.button(u"Mode"_s), Qt::Key_Right);
    QVERIFY(window.button(u"Pairs"_s)->hasFocus()); // past the one that is disabled
    QTest::keyClick(window.button(u"Pairs"_s), Qt::Key_Left);
    QVERIFY(window.button(u"Mode"_s)->hasFocus());
    QTest::keyClick(window.button(u"Mode"_s), Qt::Key_Left);
    QTest::keyClick(window.button(u"Related"_s), Qt::Key_Left);
    QVERIFY(window.button(u"Related"_s)->hasFocus());
}

void tst_ActiveBarStrip::spaceAndEnterPress_data()
{
    QTest::addColumn<Qt::Key>("key");
    QTest::newRow("Space") << Qt::Key_Space;
    QTest::newRow("Return") << Qt::Key_Return;
    QTest::newRow("Enter") << Qt::Key_Enter;
}

void tst_ActiveBarStrip::spaceAndEnterPress()
{
    QFETCH(Qt::Key, key);
    BarWindow window;
    window.open();
    QSignalSpy clicks(window.bar.get(), &ActiveBar::Click);
    window.button(u"Mode"_s)->setFocus();
    QTest::keyClick(window.button(u"Mode"_s), key);
    QCOMPARE(clicks.count(), 1);
}

void tst_ActiveBarStrip::theFocusCanBeSeen()
{
    BarWindow window;
    window.open();
    QToolButton *mode = window.button(u"Mode"_s);
    const QPoint rim(mode->width() / 2, 1);
    QVERIFY(colourAt(*mode, rim) != palette::Teal);
    mode->setFocus();
    QCOMPARE(colourAt(*mode, rim), palette::Teal);
}

void tst_ActiveBarStrip::aFlyoutOpensBelowItsButton()
{
    BarWindow window;
    window.open();
    QToolButton *related = window.button(u"Related"_s);
    QPoint corner;
    bool looksPressed = false;
    onceAMenuIsOpen(window, [&](QMenu &menu) {
        corner = menu.pos();
        looksPressed = related->isDown();
        menu.close();
    });
    QTest::mousePress(related, Qt::LeftButton);
    QCOMPARE(corner, related->mapToGlobal(QPoint(0, related->height())));
    QVERIFY(looksPressed && !related->isDown());
}

void tst_ActiveBarStrip::atTheFootOfTheWindowAFlyoutOpensAbove()
{
    BarWindow window;
    window.bar->setTop(270 * TwipsPerPixel);
    window.open();
    window.shell().move(10, 100);
    QToolButton *related = window.button(u"Related"_s);
    int foot = 0;
    onceAMenuIsOpen(window, [&](QMenu &menu) {
        foot = menu.geometry().bottom();
        menu.close();
    });
    QTest::mousePress(related, Qt::LeftButton);
    QCOMPARE(foot + 1, related->mapToGlobal(QPoint(0, 0)).y());
}

void tst_ActiveBarStrip::openingAFlyoutIsNoClick()
{
    BarWindow window;
    window.open();
    QSignalSpy clicks(window.bar.get(), &ActiveBar::Click);
    bool wasOpen = false;
    onceAMenuIsOpen(window, [&](QMenu &menu) {
        wasOpen = menu.objectName() == u"subRelated"_s;
        menu.close();
    });
    QTest::mousePress(window.button(u"Related"_s), Qt::LeftButton);
    QVERIFY(wasOpen);
    QCOMPARE(clicks.count(), 0);
}

void tst_ActiveBarStrip::aChoiceInAFlyoutClicksAfterItHasClosed()
{
    BarWindow window;
    window.open();
    QStringList clicked;
    connect(window.bar.get(), &ActiveBar::Click, this, [&](const Tool *tool) {
        clicked += tool->Name();
        QVERIFY(!QApplication::activePopupWidget());
        QVERIFY(window.edit->hasFocus());
        QVERIFY(!window.button(u"Related"_s)->isDown());
    });
    onceAMenuIsOpen(window, [&](QMenu &menu) {
        clickEntry(menu, u"mnuEM"_s);
        QMenu *subMenu = entry(menu, u"mnuEM"_s)->menu();
        QTRY_VERIFY(subMenu->isVisible());
        clickEntry(*subMenu, u"btnEM"_s);
    });
    QTest::mousePress(window.button(u"Related"_s), Qt::LeftButton);
    QCOMPARE(clicked, QStringList{u"btnEM"_s});
}

void tst_ActiveBarStrip::keysOpenAFlyout_data()
{
    QTest::addColumn<Qt::Key>("key");
    QTest::addColumn<Qt::KeyboardModifiers>("modifiers");
    QTest::newRow("Down") << Qt::Key_Down << Qt::KeyboardModifiers(Qt::NoModifier);
    QTest::newRow("Alt+Down") << Qt::Key_Down << Qt::KeyboardModifiers(Qt::AltModifier);
    QTest::newRow("Space") << Qt::Key_Space << Qt::KeyboardModifiers(Qt::NoModifier);
    QTest::newRow("Enter") << Qt::Key_Return << Qt::KeyboardModifiers(Qt::NoModifier);
}

void tst_ActiveBarStrip::keysOpenAFlyout()
{
    QFETCH(Qt::Key, key);
    QFETCH(Qt::KeyboardModifiers, modifiers);
    BarWindow window;
    window.open();
    QSignalSpy clicks(window.bar.get(), &ActiveBar::Click);
    QString highlighted;
    onceAMenuIsOpen(window, [&](QMenu &menu) {
        highlighted = menu.activeAction() ? menu.activeAction()->objectName() : QString();
        QTest::keyClick(&menu, Qt::Key_Down);
        QTest::keyClick(&menu, Qt::Key_Return);
    });
    window.button(u"Related"_s)->setFocus();
    QTest::keyClick(window.button(u"Related"_s), key, modifiers);
    QCOMPARE(highlighted, u"mnuEM"_s); // the first that is enabled
    QCOMPARE(clicks.count(), 1);
    QCOMPARE(clicks.first().first().value<Tool *>()->Name(), u"mnuMP"_s);
}

void tst_ActiveBarStrip::aSecondPressClosesTheFlyout()
{
    BarWindow window;
    window.open();
    QToolButton *related = window.button(u"Related"_s);
    int opened = 0;
    onceAMenuIsOpen(window, [&](QMenu &menu) {
        ++opened;
        onceAMenuIsOpen(window, [&](QMenu &again) {
            ++opened;
            again.close();
        });
        QTest::mouseClick(&menu, Qt::LeftButton, Qt::NoModifier, menu.mapFromGlobal(placeOnScreen(*related).center()));
    });
    QTest::mousePress(related, Qt::LeftButton);
    QCoreApplication::processEvents();
    QCOMPARE(opened, 1);
    QVERIFY(!QApplication::activePopupWidget());
}

void tst_ActiveBarStrip::aFlyoutIsKnownToHaveAMenu()
{
    BarWindow window;
    window.open();
    const auto state = [&](const QString &name) {
        return QAccessible::queryAccessibleInterface(window.button(name))->state();
    };
    QVERIFY(state(u"Related"_s).hasPopup);
    QVERIFY(!state(u"Mode"_s).hasPopup);
    QCOMPARE(window.button(u"Related"_s)->menu()->objectName(), u"subRelated"_s);
}

void tst_ActiveBarStrip::aFlyoutOpenedByAnAssistiveTechnologyClicks()
{
    BarWindow window;
    window.open();
    QSignalSpy clicks(window.bar.get(), &ActiveBar::Click);
    QAccessibleActionInterface *spoken =
        QAccessible::queryAccessibleInterface(window.button(u"Related"_s))->actionInterface();
    for (const QString &action :
         {QAccessibleActionInterface::pressAction(), QAccessibleActionInterface::showMenuAction()}) {
        onceAMenuIsOpen(window, [](QMenu &menu) { clickEntry(menu, u"mnuMP"_s); });
        spoken->doAction(action);
    }
    QCOMPARE(clicks.count(), 2);
}

void tst_ActiveBarStrip::captionsGiveWayFromTheRight()
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

void tst_ActiveBarStrip::whatFindsNoRoomIsInTheMenuOfTheRest()
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

void tst_ActiveBarStrip::nothingIsCutOff_data()
{
    QTest::addColumn<int>("width");
    for (const int width : {40, 60, 90, 120, 200, 300, 350, 400, 450, 500, 600, 700})
        QTest::addRow("%d pixels", width) << width;
}

void tst_ActiveBarStrip::nothingIsCutOff()
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

void tst_ActiveBarStrip::piecesShareTheRoom_data()
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

void tst_ActiveBarStrip::piecesShareTheRoom()
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

void tst_ActiveBarStrip::whatIsTypedStandsInTheTool()
{
    BarWindow window(PreviewBands);
    window.open();
    auto *field = window.shell().findChild<QLineEdit *>(u"PageNumber"_s);
    QCOMPARE(field->width(), 30);
    field->setFocus();
    QTest::keyClicks(field, u"12"_s);
    QCOMPARE(window.bar->Tools(u"PageNumber"_s).Text(), u"12"_s);
}

void tst_ActiveBarStrip::enterInAFieldIsAKeyAndAClick()
{
    BarWindow window(PreviewBands);
    window.open();
    QStringList events;
    connect(window.bar.get(), &ActiveBar::KeyPress, this, [&](const Tool *tool, int keyAscii) {
        events += u"%1 %2 %3"_s.arg(tool->Name()).arg(keyAscii).arg(tool->Text());
    });
    connect(window.bar.get(), &ActiveBar::Click, this, [&](const Tool *tool) { events += tool->Name(); });
    auto *field = window.shell().findChild<QLineEdit *>(u"PageNumber"_s);
    field->setFocus();
    QTest::keyClick(field, Qt::Key_7);
    QTest::keyClick(field, Qt::Key_Return);
    auto *zoom = window.shell().findChild<QComboBox *>(u"miZoom"_s);
    zoom->setFocus();
    QTest::keyClick(zoom, Qt::Key_Enter);
    QCOMPARE(events,
             (QStringList{u"PageNumber 55 "_s, u"PageNumber 13 7"_s, u"PageNumber"_s, u"miZoom 13 "_s, u"miZoom"_s}));
}

void tst_ActiveBarStrip::aPickedEntryStandsInTheToolBeforeItsClick()
{
    BarWindow window(PreviewBands);
    window.bar->Tools(u"miZoom"_s).setList({u"200%"_s, u"75%"_s, u"Whole Page"_s});
    window.open();
    QStringList events;
    connect(window.bar.get(), &ActiveBar::ComboSelChange, this,
            [&](const Tool *tool) { events += u"%1 %2"_s.arg(tool->Text()).arg(tool->ListIndex()); });
    connect(window.bar.get(), &ActiveBar::Click, this, [&](const Tool *tool) { events += tool->Name(); });
    auto *zoom = window.shell().findChild<QComboBox *>(u"miZoom"_s);
    zoom->setFocus();
    QTest::keyClick(zoom, Qt::Key_Down);
    QTest::keyClick(zoom, Qt::Key_Down);
    QCOMPARE(events, (QStringList{u"200% 0"_s, u"miZoom"_s, u"75% 1"_s, u"miZoom"_s}));
}

void tst_ActiveBarStrip::typingAnEntryIsNoPick()
{
    BarWindow window(PreviewBands);
    window.bar->Tools(u"miZoom"_s).setList({u"200%"_s, u"75%"_s});
    window.open();
    QSignalSpy picks(window.bar.get(), &ActiveBar::ComboSelChange);
    auto *zoom = window.shell().findChild<QComboBox *>(u"miZoom"_s);
    zoom->setFocus();
    QTest::keyClicks(zoom, u"75%"_s);
    QCOMPARE(window.bar->Tools(u"miZoom"_s).ListIndex(), 1);
    QTest::keyClick(zoom, Qt::Key_Return);
    window.edit->setFocus();
    QCOMPARE(picks.count(), 0);
}

void tst_ActiveBarStrip::theFieldFollowsTheTool()
{
    BarWindow window(PreviewBands);
    window.open();
    Tool &zoom = window.bar->Tools(u"miZoom"_s);
    zoom.setList({u"200%"_s, u"75%"_s, u"Page Width"_s});
    auto *box = window.shell().findChild<QComboBox *>(u"miZoom"_s);
    zoom.setListIndex(2);
    QCOMPARE(box->currentText(), u"Page Width"_s);
    zoom.setText(u"68%"_s);
    QCOMPARE(box->currentText(), u"68%"_s);
    QCOMPARE(box->count(), 3);
    QCOMPARE(box->maxVisibleItems(), 3);
    window.bar->Tools(u"PageNumber"_s).setText(u"4"_s);
    QCOMPARE(window.shell().findChild<QLineEdit *>(u"PageNumber"_s)->text(), u"4"_s);
}

void tst_ActiveBarStrip::aFieldSpeaksItsCaption()
{
    BarWindow window(PreviewBands);
    window.open();
    auto *zoom = window.shell().findChild<QComboBox *>(u"miZoom"_s);
    QCOMPARE(zoom->accessibleName(), u"Zoom"_s);
    QCOMPARE(window.shell().findChild<QLineEdit *>(u"PageNumber"_s)->accessibleName(), u"Page Number"_s);
    QTest::keyClick(window.edit, Qt::Key_Z, Qt::AltModifier);
    QTRY_VERIFY(zoom->hasFocus());
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

void tst_ActiveBarStrip::theFirstBandHidesTheBar()
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

void tst_ActiveBarStrip::anUnplacedBarFillsItsPanel()
{
    BarWindow window;
    window.open();
    SSPanel panel(window, u"ssMnu"_s);
    panel.Move(0, 600, 6000, 420);
    panel.setVisible(true);
    ActiveBar bar(panel, u"mnuNav"_s, LinkBands);
    QCOMPARE(bar.widget().geometry(), panel.widget().contentsRect());
    panel.setWidth(7500);
    QCOMPARE(bar.widget().width(), panel.widget().contentsRect().width());
    QCOMPARE(bar.Width(), toTwips(bar.widget().width()));
}

void tst_ActiveBarStrip::anUnplacedBarLiesAtAnEdge()
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

void tst_ActiveBarStrip::aPlacedBarStays()
{
    BarWindow window;
    ActiveBar bar(window, u"mnuNav"_s, LinkBands);
    bar.Move(150, 300, 4500, 405);
    window.setWidth(9000);
    bar.RecalcLayout();
    QCOMPARE(bar.widget().geometry(), QRect(10, 20, 300, 27));
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

void tst_ActiveBarStrip::everyTextCanBeRead_data()
{
    QTest::addColumn<QColor>("text");
    QTest::addColumn<QColor>("ground");
    for (const QColor &ground : {palette::Mist, palette::Paper, palette::White, palette::Sand}) {
        QTest::addRow("ink on %s", qPrintable(ground.name())) << palette::Ink << ground;
        QTest::addRow("grey on %s", qPrintable(ground.name())) << palette::GreyText << ground;
        QTest::addRow("disabled on %s", qPrintable(ground.name())) << palette::DisabledText << ground;
        QTest::addRow("teal on %s", qPrintable(ground.name())) << palette::DeepTeal << ground;
    }
    QTest::newRow("ink on what is pressed") << palette::Ink << palette::PressedMist;
    const QPalette looks = applicationPalette();
    QTest::newRow("selection") << looks.color(QPalette::HighlightedText) << looks.color(QPalette::Highlight);
    QTest::newRow("tool tip") << looks.color(QPalette::ToolTipText) << looks.color(QPalette::ToolTipBase);
}

void tst_ActiveBarStrip::everyTextCanBeRead()
{
    QFETCH(QColor, text);
    QFETCH(QColor, ground);
    const auto luminance = [](const QColor &colour) {
        const auto part = [](double value) {
            return value <= 0.03928 ? value / 12.92 : std::pow((value + 0.055) / 1.055, 2.4);
        };
        return 0.2126 * part(colour.redF()) + 0.7152 * part(colour.greenF()) + 0.0722 * part(colour.blueF());
    };
    const double lighter = std::max(luminance(text), luminance(ground)) + 0.05;
    const double darker = std::min(luminance(text), luminance(ground)) + 0.05;
    QVERIFY2(lighter / darker >= 4.5, qPrintable(QString::number(lighter / darker)));
}

QTEST_MAIN(tst_ActiveBarStrip)
#include "tst_ActiveBarStrip.moc"
