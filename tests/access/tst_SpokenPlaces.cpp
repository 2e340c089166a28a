// How somebody who hears the windows finds the way about them: from a window to what it holds and back, to a menu that
// has dropped, and by the keys that press a button.
#include "access/Scenes.h"

#include "platform/forms/FormSurface.h"

#include <QAbstractButton>
#include <QAccessible>
#include <QContextMenuEvent>
#include <QMenu>
#include <QTextEdit>

using namespace Qt::Literals::StringLiterals;
using namespace orvane;
using namespace orvane::test;

namespace
{
QAccessibleInterface *spokenOf(QWidget &widget)
{
    return QAccessible::queryAccessibleInterface(&widget);
}

QAccessibleActionInterface &actionsOf(QWidget &widget)
{
    return *spokenOf(widget)->actionInterface();
}

// What doesn't lead from the holder to each child and back.
QStringList lostIn(QWidget &holder)
{
    const QAccessibleInterface &spoken = *spokenOf(holder);
    const int count = spoken.childCount();
    QStringList lost;
    for (int i = 0; i < count; ++i)
        if (!spoken.child(i) || spoken.indexOfChild(spoken.child(i)) != i)
            lost << u"%1: child %2"_s.arg(holder.objectName()).arg(i);
    if (spoken.child(-1) || spoken.child(count)) lost << holder.objectName() + u": one too many"_s;
    if (spoken.indexOfChild(&spoken) != -1) lost << holder.objectName() + u": its own child"_s;
    return lost;
}
} // namespace

class tst_SpokenPlaces : public QObject
{
    Q_OBJECT

private slots:
    void init() { m_stage = std::make_unique<Stage>(); }
    void cleanup() { m_stage.reset(); }

    void theWayLeadsDownAndBack_data() { addScenes(); }
    void theWayLeadsDownAndBack();
    void theMenuOverATextIsItsWindowsChild();
    void aMenuStaysItsWindowsChildWithASubMenuOpen();
    void aButtonTellsTheKeyThatPressesIt();
    void aButtonTakesTheFocusWhenAsked();

private:
    std::unique_ptr<Stage> m_stage;
};

void tst_SpokenPlaces::theWayLeadsDownAndBack()
{
    QWidget *window = openScene(*m_stage);
    QStringList lost;
    for (auto *surface : window->findChildren<FormSurface *>())
        if (surface->isVisible()) lost << lostIn(*surface);
    for (auto *button : window->findChildren<QAbstractButton *>())
        if (button->isVisible()) lost << lostIn(*button);
    QCOMPARE(lost.join(u"; "_s), QString());
}

void tst_SpokenPlaces::theMenuOverATextIsItsWindowsChild()
{
    m_stage->system.start();
    scenes::manual(*m_stage);
    scenes::own(*m_stage);
    Form &window = *m_stage->system.active();
    QTextEdit *text = nullptr;
    for (auto *each : window.shell().findChildren<QTextEdit *>())
        if (each->isVisible() && !each->isReadOnly()) text = each;
    QVERIFY(text);
    text->setFocus();
    auto *surface = window.shell().findChild<FormSurface *>();
    QVERIFY(surface);
    const int before = spokenOf(*surface)->childCount();
    QContextMenuEvent event(QContextMenuEvent::Keyboard, QPoint(), QPoint());
    QCoreApplication::sendEvent(text->viewport(), &event);
    QWidget *menu = QApplication::activePopupWidget();
    QVERIFY(menu);
    QCOMPARE(spokenOf(*surface)->childCount(), before + 1);
    QCOMPARE(spokenOf(*surface)->child(before)->object(), menu);
    QCOMPARE(lostIn(*surface).join(u"; "_s), QString());
    menu->close();
    QCOMPARE(spokenOf(*surface)->childCount(), before);
}

void tst_SpokenPlaces::aMenuStaysItsWindowsChildWithASubMenuOpen()
{
    m_stage->system.start();
    frmCommandCentre &diagram = m_stage->system.diagram();
    auto *surface = diagram.shell().findChild<FormSurface *>();
    QVERIFY(surface);
    surface->window()->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(surface->window()));
    const int before = spokenOf(*surface)->childCount();
    bool isSubMenu = false;
    bool isChild = false;
    const auto look = [&] {
        QWidget *menu = QApplication::activePopupWidget();
        QTest::keyClick(menu, Qt::Key_Down);
        QTest::keyClick(menu, Qt::Key_Right);
        isSubMenu = QApplication::activePopupWidget() != menu;
        isChild = spokenOf(*surface)->childCount() > before && spokenOf(*surface)->child(before)->object() == menu;
        while (QWidget *popup = QApplication::activePopupWidget())
            popup->close();
    };
    m_stage->system.whileModal([&] { diagram.drop24Steps(); }, look);
    QVERIFY(isSubMenu);
    QVERIFY(isChild);
    QCOMPARE(spokenOf(*surface)->childCount(), before);
}

// None in the windows as they are: what the bars would have is taken by the menus.
void tst_SpokenPlaces::aButtonTellsTheKeyThatPressesIt()
{
    m_stage->system.start();
    auto &tab = static_cast<QAbstractButton &>(m_stage->system.diagram().SSRibbon1(1).widget());
    const QAccessibleActionInterface &actions = actionsOf(tab);
    const QString press = actions.actionNames().constFirst();
    QCOMPARE(actions.keyBindingsForAction(press), QStringList());
    tab.setText(u"&Guide"_s);
    QCOMPARE(spokenOf(tab)->text(QAccessible::Accelerator), u"Alt+G"_s);
    QCOMPARE(actions.keyBindingsForAction(press), QStringList{u"Alt+G"_s});
    QCOMPARE(actions.keyBindingsForAction(QAccessibleActionInterface::setFocusAction()), QStringList());
}

void tst_SpokenPlaces::aButtonTakesTheFocusWhenAsked()
{
    m_stage->system.start();
    QWidget &tab = m_stage->system.diagram().SSRibbon1(3).widget();
    tab.window()->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(tab.window()));
    QVERIFY(!tab.hasFocus());
    actionsOf(tab).doAction(QAccessibleActionInterface::setFocusAction());
    QTRY_VERIFY(tab.hasFocus());
}

QTEST_MAIN(tst_SpokenPlaces)
#include "tst_SpokenPlaces.moc"
