// The one instance of a fixed window: made and loaded by the first reference to it, and again by the first reference
// after it was unloaded.
#pragma once

#include <QPointer>
#include <type_traits>

namespace orvane
{

template <class Window>
QPointer<Window> &defaultSlot()
{
    static QPointer<Window> slot;
    return slot;
}

template <class Window>
Window &Default()
{
    QPointer<Window> &slot = defaultSlot<Window>();
    if (!slot || slot->Unloaded()) slot = new Window;
    slot->Load();
    return *slot;
}

} // namespace orvane
