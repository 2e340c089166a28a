#include "platform/bars/BarFixture.h"

#include <QAccessible>
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

} // namespace

class tst_ActiveBarFlyouts : public QObject
{
    Q_OBJECT

private slots:
    void aFlyoutOpensBelowItsButton();
    void atTheFootOfTheWindowAFlyoutOpensAbove();
    void openingAFlyoutIsNoClick();
    void aChoiceInAFlyoutClicksAfterItHasClosed();
    void keysOpenAFlyout_data();
    void keysOpenAFlyout();
    void aSecondPressClosesTheFlyout();
    void aFlyoutIsKnownToHaveAMenu();
    void aFlyoutOpenedByAnAssistiveTechnologyClicks();
    void theBarMayEndWhileItsFlyoutIsOpen();
    void theMouseMayHaveLeftTheButtonWhenTheFlyoutCloses();
};

void tst_ActiveBarFlyouts::aFlyoutOpensBelowItsButton()
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

void tst_ActiveBarFlyouts::atTheFootOfTheWindowAFlyoutOpensAbove()
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

void tst_ActiveBarFlyouts::openingAFlyoutIsNoClick()
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

void tst_ActiveBarFlyouts::aChoiceInAFlyoutClicksAfterItHasClosed()
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

void tst_ActiveBarFlyouts::keysOpenAFlyout_data()
{
    QTest::addColumn<Qt::Key>("key");
    QTest::addColumn<Qt::KeyboardModifiers>("modifiers");
    QTest::newRow("Down") << Qt::Key_Down << Qt::KeyboardModifiers(Qt::NoModifier);
    QTest::newRow("Alt+Down") << Qt::Key_Down << Qt::KeyboardModifiers(Qt::AltModifier);
    QTest::newRow("Space") << Qt::Key_Space << Qt::KeyboardModifiers(Qt::NoModifier);
    QTest::newRow("Enter") << Qt::Key_Return << Qt::KeyboardModifiers(Qt::NoModifier);
}

void tst_ActiveBarFlyouts::keysOpenAFlyout()
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

void tst_ActiveBarFlyouts::aSecondPressClosesTheFlyout()
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
        const QPoint onButton = menu.mapFromGlobal(placeOnScreen(*related).center());
        QTest::mousePress(menu.windowHandle(), Qt::LeftButton, Qt::NoModifier, onButton);
    });
    QTest::mousePress(related, Qt::LeftButton);
    QCoreApplication::processEvents();
    QCOMPARE(opened, 1);
    QVERIFY(!QApplication::activePopupWidget());
}

void tst_ActiveBarFlyouts::aFlyoutIsKnownToHaveAMenu()
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

void tst_ActiveBarFlyouts::aFlyoutOpenedByAnAssistiveTechnologyClicks()
{
    BarWindow window;
    window.open();
    QSignalSpy clicks(window.bar.get(), &ActiveBar::Click);
    QAccessibleActionInterface *spoken =
        QAccessible::queryAccessibleInterface(window.button(u"Related"_s))->actionInterface();
    for (const QString &action :
         {QAccessibleActionInterface::pressAction(), QAccessibleActionInterface::showMenuAction()}) {
        onceAMenuIsOpen(window, [](QMenu &menu) { clickEntry(menu, u"mnuMP"_s); });
        const auto before = clicks.count();
        spoken->doAction(action);
        QTRY_COMPARE(clicks.count(), before + 1);
    }
}

void tst_ActiveBarFlyouts::theBarMayEndWhileItsFlyoutIsOpen()
{
    BarWindow window;
    window.open();
    onceAMenuIsOpen(window, [&](QMenu &) { window.bar.reset(); });
    QTest::mousePress(window.button(u"Related"_s), Qt::LeftButton);
    QVERIFY(!window.bar);
    QVERIFY(!QApplication::activePopupWidget());
}

void tst_ActiveBarFlyouts::theMouseMayHaveLeftTheButtonWhenTheFlyoutCloses()
{
    BarWindow window;
    window.open();
    QToolButton *related = window.button(u"Related"_s);
    QTest::mouseMove(related);
    QTRY_VERIFY(related->underMouse());
    onceAMenuIsOpen(window, [&](QMenu &menu) {
        QCursor::setPos(placeOnScreen(*window.edit).center());
        menu.close();
    });
    QTest::mousePress(related, Qt::LeftButton);
    QVERIFY(!related->underMouse());
}

QTEST_MAIN(tst_ActiveBarFlyouts)
#include "tst_ActiveBarFlyouts.moc"
