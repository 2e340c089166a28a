#include "platform/controls/AccessKey.h"

#include <QAbstractButton>
#include <QKeySequence>
#include <QMainWindow>
#include <QMenuBar>
#include <algorithm>

namespace orvane
{

const QWidget &innerWindowOf(const QWidget &view)
{
    const QWidget *scope = &view;
    while (!scope->isWindow() && scope->windowType() != Qt::SubWindow && scope->parentWidget())
        scope = scope->parentWidget();
    return *scope;
}

namespace
{
bool menuHas(const QKeySequence &key, const QWidget &window)
{
    const auto *frame = qobject_cast<const QMainWindow *>(&window);
    const auto *menu = frame ? qobject_cast<const QMenuBar *>(frame->menuWidget()) : nullptr;
    return menu && std::ranges::any_of(menu->actions(), [&](const QAction *action) {
               return QKeySequence::mnemonic(action->text()) == key;
           });
}
} // namespace

bool accessKeyIsFree(const QKeySequence &key, const QWidget &view)
{
    if (menuHas(key, *view.window())) return false;
    return std::ranges::none_of(
        innerWindowOf(view).findChildren<QAbstractButton *>(),
        [&](const QAbstractButton *button) { return button->shortcut() == key && !view.isAncestorOf(button); });
}

} // namespace orvane
