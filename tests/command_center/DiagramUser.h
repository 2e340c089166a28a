// What a user of the diagram does and sees: panels and their buttons, menus that drop, notices that come and go.
#pragma once

#include "support/RunningSystem.h"

#include <QApplication>
#include <QMenu>
#include <QTest>
#include <QTimer>
#include <stdexcept>

namespace orvane::test
{

// An element of the diagram by its name, as "cmdAct(7)".
inline SSCommand &buttonOf(const frmCommandCentre &diagram, const QString &name)
{
    auto *button = dynamic_cast<SSCommand *>(diagram.control(name));
    if (!button) throw std::out_of_range(name.toStdString());
    return *button;
}

inline void showPanel(const RunningSystem &system, int panel)
{
    system.click(system.diagram().SSRibbon1(panel));
}

inline int panelOnShow(const frmCommandCentre &diagram)
{
    int shown = 0;
    for (const auto &[index, panel] : diagram.pnlDiag)
        if (panel->Visible()) shown = shown * 10 + index; // two at a time are no panel's number
    return shown;
}

// Whether no button that is on show has the focus.
inline bool focusRests(const frmCommandCentre &diagram)
{
    const Control *active = diagram.ActiveControl();
    return !active || active == &diagram.cmdCommand(0);
}

inline void giveFocus(const RunningSystem &system, Control &control)
{
    system.frame().SetFocus();
    QTRY_VERIFY(system.frame().shell().isActiveWindow());
    control.SetFocus();
    QTRY_COMPARE(QApplication::focusWidget(), &control.widget());
}

// Presses, and acts on the menu that drops thereby; what is left open is closed. False if none dropped.
inline bool whileDropped(const std::function<void()> &press, const std::function<void(QMenu &)> &act)
{
    bool dropped = false;
    QTimer watch;
    QObject::connect(&watch, &QTimer::timeout, &watch, [&] {
        auto *menu = qobject_cast<QMenu *>(QApplication::activePopupWidget());
        if (!menu) return;
        watch.stop();
        dropped = true;
        act(*menu);
        menu->close();
    });
    watch.start(1);
    press();
    return dropped;
}

// Presses, leaves each notice that comes up to its time, and says how many there were.
inline int noticesDuring(RunningSystem &system, const std::function<void()> &press)
{
    int notices = 0;
    QTimer watch;
    QObject::connect(&watch, &QTimer::timeout, &watch, [&] {
        if (countWindows(QStringLiteral("frmError")) == 0 || !Default<frmError>().Visible()) return;
        ++notices;
        system.host.advance(2000);
    });
    watch.start(1);
    press();
    return notices;
}

inline void pressInMenu(Qt::Key key)
{
    if (QWidget *menu = QApplication::activePopupWidget()) QTest::keyClick(menu, key);
}

// With the keyboard alone: down to each entry of the path, into its menu, and Enter on the last one. False where the
// path leads nowhere.
inline bool chooseByKeys(const QStringList &path)
{
    for (const QString &name : path) {
        auto *menu = qobject_cast<QMenu *>(QApplication::activePopupWidget());
        if (!menu) return false;
        for (qsizetype i = 0; i < menu->actions().size(); ++i) {
            if (menu->activeAction() && menu->activeAction()->objectName() == name) break;
            pressInMenu(Qt::Key_Down);
        }
        if (!menu->activeAction() || menu->activeAction()->objectName() != name) return false;
        pressInMenu(name == path.last() ? Qt::Key_Return : Qt::Key_Right);
    }
    return true;
}

} // namespace orvane::test
