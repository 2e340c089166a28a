// A bar on show as the menu of a frame.
#include "platform/bars/BarFixture.h"

#include <QAccessible>
#include <QMainWindow>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QMenuBar>
#include <QSignalSpy>

using namespace Qt::Literals::StringLiterals;
using namespace orvane;
using namespace barfixture;

namespace
{

QString pressedName(const QSignalSpy &clicks)
{
    return clicks.isEmpty() ? QString() : clicks.last().first().value<Tool *>()->Name();
}

QMenuBar &menuBarOf(BarFrame &frame)
{
    return *qobject_cast<QMenuBar *>(qobject_cast<QMainWindow *>(&frame.shell())->menuWidget());
}

// Shows a frame, and a document window in it whose edit field has the focus.
struct OpenFrame {
    OpenFrame() : child(frame)
    {
        frame.Show();
        child.Show();
        QVERIFY(QTest::qWaitForWindowActive(&frame.shell()));
        child.edit->setFocus();
        QTRY_VERIFY(child.edit->hasFocus());
    }

    QMenuBar &menuBar() { return menuBarOf(frame); }
    QMenu *openByMouse(const QString &name)
    {
        QTest::mouseClick(&menuBar(), Qt::LeftButton, Qt::NoModifier, titleOf(name).center());
        return qobject_cast<QMenu *>(QApplication::activePopupWidget());
    }
    QRect titleOf(const QString &name)
    {
        for (QAction *action : menuBar().actions())
            if (action->objectName() == name) return menuBar().actionGeometry(action);
        return {};
    }

    BarFrame frame;
    BarChild child;
};

} // namespace

class tst_ActiveBarMenus : public QObject
{
    Q_OBJECT

private slots:
    void cleanup();

    void theBarIsTheMenuOfTheFrame();
    void aMenuIsFilledWhenItOpens();
    void flyoutsInFlyoutsAreSubMenus();
    void aChoiceClicksOnceWithItsTool();
    void aChoiceInASubMenuClicksOnceWithItsTool();
    void theMenuHasClosedAndTheFocusIsBackWhenTheClickComes_data();
    void theMenuHasClosedAndTheFocusIsBackWhenTheClickComes();
    void keysReachTheTextThatHadTheFocus();
    void aFirstGroupHasNoSeparatorBeforeIt();
    void addedToolsAreThereWhenTheMenuOpensAgain();
    void aBandWithoutToolsOpensNothing();
    void changesAreSeenInAnOpenMenu();
    void barAndMenusAreInArial();
    void aToolThatComesOrGoesIsSeenInAnOpenMenu();
    void anOpenSubMenuClosesWithItsTool();
    void aToolMayBeRemovedByItsOwnClick();
    void altAndTheAccessKeyOpenAMenu();
    void entriesBearTheNamesOfTheirTools();
    void aCheckedToolStaysCheckedAfterItsClick();
    void theHighlightedEntryIsDescribed();
    void aTitleIsDescribedWhileTheMouseIsOnIt();
};

void tst_ActiveBarMenus::cleanup()
{
    while (QWidget *popup = QApplication::activePopupWidget())
        popup->close();
}

void tst_ActiveBarMenus::theBarIsTheMenuOfTheFrame()
{
    BarFrame frame;
    QMenuBar &menu = menuBarOf(frame);
    QCOMPARE(menu.objectName(), u"mnuMain"_s);
    QCOMPARE(menu.actions().size(), 3);
    QCOMPARE(menu.actions().at(1)->text(), u"&Command"_s);
    QVERIFY(!menu.isNativeMenuBar());
}

void tst_ActiveBarMenus::aMenuIsFilledWhenItOpens()
{
    OpenFrame open;
    QMenu *file = open.menuBar().actions().first()->menu();
    QVERIFY(file->isEmpty());
    QCOMPARE(open.openByMouse(u"mnuFile"_s), file);
    QCOMPARE(entry(*file, u"exit"_s)->text(), u"E&xit"_s);
    QVERIFY(!entry(*file, u"exit"_s)->icon().isNull());
    QVERIFY(!entry(*file, u"off"_s)->isEnabled());
}

void tst_ActiveBarMenus::flyoutsInFlyoutsAreSubMenus()
{
    OpenFrame open;
    QMenu *command = open.openByMouse(u"mnuCommand"_s);
    QMenu *procedures = entry(*command, u"Procedures"_s)->menu();
    QVERIFY(procedures && procedures->isEmpty());
    clickEntry(*command, u"Procedures"_s);
    QTRY_VERIFY(procedures->isVisible());
    QVERIFY(entry(*procedures, u"EmergencyPlanning"_s));
    QVERIFY(command->isVisible());
}

void tst_ActiveBarMenus::aChoiceClicksOnceWithItsTool()
{
    OpenFrame open;
    QSignalSpy clicks(&open.frame.bar, &ActiveBar::Click);
    clickEntry(*open.openByMouse(u"mnuFile"_s), u"properties"_s);
    QCOMPARE(clicks.count(), 1);
    QCOMPARE(clicks.first().first().value<Tool *>(), &open.frame.bar.Bands(1).Tools(u"properties"_s));
}

void tst_ActiveBarMenus::aChoiceInASubMenuClicksOnceWithItsTool()
{
    OpenFrame open;
    QSignalSpy clicks(&open.frame.bar, &ActiveBar::Click);
    QMenu *command = open.openByMouse(u"mnuCommand"_s);
    clickEntry(*command, u"Procedures"_s);
    QMenu *procedures = entry(*command, u"Procedures"_s)->menu();
    QTRY_VERIFY(procedures->isVisible());
    QCOMPARE(clicks.count(), 0);
    clickEntry(*procedures, u"EmergencyPlanning"_s);
    QCOMPARE(clicks.count(), 1);
    QCOMPARE(pressedName(clicks), u"EmergencyPlanning"_s);
}

void tst_ActiveBarMenus::theMenuHasClosedAndTheFocusIsBackWhenTheClickComes_data()
{
    QTest::addColumn<bool>("byKeys");
    QTest::newRow("by the mouse") << false;
    QTest::newRow("by keys") << true;
}

void tst_ActiveBarMenus::theMenuHasClosedAndTheFocusIsBackWhenTheClickComes()
{
    QFETCH(bool, byKeys);
    OpenFrame open;
    int clicks = 0;
    connect(&open.frame.bar, &ActiveBar::Click, this, [&] {
        ++clicks;
        QVERIFY(!QApplication::activePopupWidget());
        QCOMPARE(QApplication::focusWidget(), open.child.edit);
    });
    if (byKeys) {
        QTest::keyClick(&open.frame.shell(), Qt::Key_F, Qt::AltModifier);
        QTRY_VERIFY(QApplication::activePopupWidget());
        QTest::keyClick(QApplication::activePopupWidget(), Qt::Key_Return);
    } else {
        clickEntry(*open.openByMouse(u"mnuFile"_s), u"exit"_s);
    }
    QCOMPARE(clicks, 1);
}

void tst_ActiveBarMenus::keysReachTheTextThatHadTheFocus()
{
    OpenFrame open;
    connect(&open.frame.bar, &ActiveBar::Click, this, [] { QTest::keyClicks(QApplication::focusWidget(), u"abc"_s); });
    clickEntry(*open.openByMouse(u"mnuFile"_s), u"exit"_s);
    QCOMPARE(open.child.edit->text(), u"abc"_s);
}

void tst_ActiveBarMenus::aFirstGroupHasNoSeparatorBeforeIt()
{
    OpenFrame open;
    QMenu *file = open.openByMouse(u"mnuFile"_s);
    QList<bool> separators;
    for (QAction *action : file->actions())
        separators += action->isSeparator();
    QCOMPARE(separators, (QList<bool>{false, true, false, false}));
}

void tst_ActiveBarMenus::addedToolsAreThereWhenTheMenuOpensAgain()
{
    OpenFrame open;
    ToolList &tools = open.frame.bar.Bands(u"mnuWindow"_s).Tools();
    tools.Add(35000, u"[Records] - Plan"_s).setCaption(u"&1 [Records] - Plan"_s);
    QMenu *menu = open.openByMouse(u"mnuWindow"_s);
    QCOMPARE(menu->actions().size(), 1);
    menu->close();
    tools.Add(35001, u"Command Center"_s).setCaption(u"&2 Command Center"_s);
    menu = open.openByMouse(u"mnuWindow"_s);
    QCOMPARE(menu->actions().size(), 2);
    QCOMPARE(menu->actions().constLast()->text(), u"&2 Command Center"_s);
}

void tst_ActiveBarMenus::aBandWithoutToolsOpensNothing()
{
    OpenFrame open;
    QSignalSpy clicks(&open.frame.bar, &ActiveBar::Click);
    QVERIFY(!open.openByMouse(u"mnuWindow"_s));
    QCOMPARE(clicks.count(), 0);
    ToolList &tools = open.frame.bar.Bands(u"mnuWindow"_s).Tools();
    tools.Add(35000, u"One"_s);
    tools.Remove(0);
    QVERIFY(!open.openByMouse(u"mnuWindow"_s));
}

void tst_ActiveBarMenus::changesAreSeenInAnOpenMenu()
{
    OpenFrame open;
    Band &band = open.frame.bar.Bands(u"mnuFile"_s);
    QMenu *file = open.openByMouse(u"mnuFile"_s);
    QAction *off = entry(*file, u"off"_s);
    band.Tools(u"off"_s).setEnabled(true);
    band.Tools(u"off"_s).setChecked(true);
    band.Tools(u"off"_s).setCaption(u" &On "_s);
    QVERIFY(off->isEnabled() && off->isChecked());
    QCOMPARE(off->text(), u"&On"_s);
    band.Tools(u"off"_s).setChecked(false);
    QVERIFY(!off->isChecked() && !off->isCheckable());
}

void tst_ActiveBarMenus::aToolThatComesOrGoesIsSeenInAnOpenMenu()
{
    OpenFrame open;
    ToolList &tools = open.frame.bar.Bands(u"mnuFile"_s).Tools();
    QMenu *file = open.openByMouse(u"mnuFile"_s);
    QAction *kept = entry(*file, u"exit"_s);
    tools.Remove(1);
    tools.Add(35000, u"New"_s).setCaption(u"New"_s);
    QVERIFY(!entry(*file, u"properties"_s));
    QCOMPARE(file->actions().constLast()->text(), u"New"_s);
    QCOMPARE(entry(*file, u"exit"_s), kept);
}

void tst_ActiveBarMenus::anOpenSubMenuClosesWithItsTool()
{
    OpenFrame open;
    QMenu *command = open.openByMouse(u"mnuCommand"_s);
    QMenu *procedures = entry(*command, u"Procedures"_s)->menu();
    clickEntry(*command, u"Procedures"_s);
    QTRY_VERIFY(procedures->isVisible());
    open.frame.bar.Bands(u"mnuCommand"_s).Tools().Remove(0);
    QVERIFY(!procedures->isVisible());
}

void tst_ActiveBarMenus::aToolMayBeRemovedByItsOwnClick()
{
    OpenFrame open;
    ToolList &tools = open.frame.bar.Bands(u"mnuFile"_s).Tools();
    QString caption;
    connect(&open.frame.bar, &ActiveBar::Click, this, [&](const Tool *tool) {
        tools.Remove(0);
        caption = tool->Caption();
    });
    clickEntry(*open.openByMouse(u"mnuFile"_s), u"exit"_s);
    QCOMPARE(caption, u"E&xit"_s);
    QVERIFY(!tools.contains(u"exit"_s));
    QVERIFY(!entry(*open.openByMouse(u"mnuFile"_s), u"exit"_s));
}

void tst_ActiveBarMenus::altAndTheAccessKeyOpenAMenu()
{
    OpenFrame open;
    QSignalSpy clicks(&open.frame.bar, &ActiveBar::Click);
    QTest::keyClick(&open.frame.shell(), Qt::Key_F, Qt::AltModifier);
    QTRY_VERIFY(QApplication::activePopupWidget());
    QCOMPARE(qobject_cast<QMenu *>(QApplication::activePopupWidget())->activeAction()->objectName(), u"exit"_s);
    QTest::keyClick(QApplication::activePopupWidget(), Qt::Key_Down);
    QTest::keyClick(QApplication::activePopupWidget(), Qt::Key_Return);
    QCOMPARE(pressedName(clicks), u"properties"_s);
}

void tst_ActiveBarMenus::entriesBearTheNamesOfTheirTools()
{
    OpenFrame open;
    QMenu *file = open.openByMouse(u"mnuFile"_s);
    QCOMPARE(file->objectName(), u"mnuFile"_s);
    QCOMPARE(file->accessibleName(), u"File"_s);
    QAccessibleInterface *spoken = QAccessible::queryAccessibleInterface(file)->child(0);
    QCOMPARE(spoken->text(QAccessible::Name), u"Exit"_s);
    QCOMPARE(entry(*file, u"exit"_s)->toolTip(), u"End"_s);
}

void tst_ActiveBarMenus::aCheckedToolStaysCheckedAfterItsClick()
{
    OpenFrame open;
    Tool &tool = open.frame.bar.Bands(u"mnuFile"_s).Tools(u"properties"_s);
    tool.setChecked(true);
    clickEntry(*open.openByMouse(u"mnuFile"_s), u"properties"_s);
    QVERIFY(tool.Checked());
    QVERIFY(entry(*open.openByMouse(u"mnuFile"_s), u"properties"_s)->isChecked());
}

void tst_ActiveBarMenus::theHighlightedEntryIsDescribed()
{
    OpenFrame open;
    QString told;
    connect(&open.frame.bar, &ActiveBar::Hover, this, [&](const QString &text) { told = text; });
    QTest::keyClick(&open.frame.shell(), Qt::Key_F, Qt::AltModifier);
    QTRY_COMPARE(told, u"Ends it all"_s);
    QTest::keyClick(QApplication::activePopupWidget(), Qt::Key_Down);
    QCOMPARE(told, u"Who you are"_s);
    QTest::keyClick(QApplication::activePopupWidget(), Qt::Key_Escape);
    QCOMPARE(told, QString());
}

void tst_ActiveBarMenus::aTitleIsDescribedWhileTheMouseIsOnIt()
{
    OpenFrame open;
    QString told;
    connect(&open.frame.bar, &ActiveBar::Hover, this, [&](const QString &text) { told = text; });
    const QPoint onTitle = open.titleOf(u"mnuWindow"_s).center();
    QTest::mouseMove(&open.menuBar(), onTitle - QPoint(1, 0));
    QTest::mouseMove(&open.menuBar(), onTitle);
    QTRY_COMPARE(told, u"What is open"_s);
    QTest::mouseMove(open.child.edit);
    QTRY_COMPARE(told, QString());
}

void tst_ActiveBarMenus::barAndMenusAreInArial()
{
    OpenFrame open;
    QCOMPARE(open.menuBar().font().family(), u"Arial"_s);
    const QMenu *menu = open.openByMouse(u"mnuFile"_s);
    QVERIFY(menu);
    QCOMPARE(menu->font().family(), u"Arial"_s);
}

QTEST_MAIN(tst_ActiveBarMenus)
#include "tst_ActiveBarMenus.moc"
