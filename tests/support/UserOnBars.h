// What a user does to the bars of a window with the mouse: presses a tool's button, chooses from its flyout.
#pragma once

#include "platform/controls/bars/ActiveBar.h"

#include <QAbstractButton>
#include <QApplication>
#include <QMenu>
#include <QTest>
#include <QTimer>
#include <functional>

namespace orvane::test
{

inline QAbstractButton *buttonOf(const ActiveBar &bar, const QString &tool)
{
    return bar.widget().findChild<QAbstractButton *>(tool);
}

inline void pressButton(const ActiveBar &bar, const QString &tool)
{
    QAbstractButton *button = buttonOf(bar, tool);
    QVERIFY2(button && button->isVisible(), qPrintable(tool));
    QTest::mouseClick(button, Qt::LeftButton);
}

inline QAction *entryOf(const QMenu &menu, const QString &name)
{
    for (QAction *action : menu.actions())
        if (action->objectName() == name) return action;
    return nullptr;
}

// From entry to entry through the menus, each of which has to open the next. True if all entries could be chosen; what
// is left open is closed.
inline bool clickThrough(QMenu &first, const QStringList &path)
{
    QMenu *menu = &first;
    for (const QString &name : path) {
        const bool open = menu && QTest::qWaitFor([menu] { return menu->isVisible(); }); // it is filled as it opens
        QAction *entry = open ? entryOf(*menu, name) : nullptr;
        if (!entry || !entry->isEnabled()) {
            first.close();
            return false;
        }
        QMenu *next = entry->menu();
        QTest::mouseClick(menu, Qt::LeftButton, Qt::NoModifier, menu->actionGeometry(entry).center());
        menu = next;
    }
    return true;
}

// Goes through the menu that the step drops; returns when the choice has had its effect. False where no menu came up,
// or where there was no way to the entry.
inline bool chooseFromPopup(const std::function<void()> &drop, const QStringList &path)
{
    bool chosen = false;
    QTimer watch;
    QObject::connect(&watch, &QTimer::timeout, &watch, [&] {
        auto *menu = qobject_cast<QMenu *>(QApplication::activePopupWidget());
        if (!menu) return;
        watch.stop();
        chosen = clickThrough(*menu, path);
    });
    watch.start(1);
    drop();
    return chosen;
}

// The same by the button of a tool that has a flyout.
inline bool chooseFromFlyout(const ActiveBar &bar, const QString &tool, const QStringList &path)
{
    return chooseFromPopup([&] { pressButton(bar, tool); }, path);
}

} // namespace orvane::test
