// Joins what a window's controls report to its handlers, and lists the handlers that others call by name.
#pragma once

#include "platform/controls/bars/ActiveBar.h"
#include "platform/forms/Form.h"
#include "platform/system/Guard.h"

namespace orvane
{

// Joins a control's event to a handler of the window, through the door. The window outlives the handler, even one
// that unloads it.
template <class Sender, class Signal, class Window, class Handler>
void wire(Sender &sender, Signal signal, Window &window, Handler handler)
{
    QObject::connect(&sender, signal, &window, [&window, handler](auto... arguments) {
        guarded([&] {
            const FormPin pin(window);
            std::invoke(handler, window, arguments...);
        });
    });
}

// One handler for every tool of a bar, pressed by the user or called by name.
template <class W>
void answerTools(ActiveBar &bar, W &window, void (W::*handler)(Tool &), const QString &handlerName)
{
    wire(bar, &ActiveBar::Click, window, [handler](W &self, Tool *tool) { (self.*handler)(*tool); });
    window.names().add(handlerName, [&window, handler](const CallArguments &arguments) {
        if (!arguments.tool) throw RunTimeError(ObjectNotSet, QStringLiteral("The call hands over no tool."));
        (window.*handler)(*arguments.tool);
    });
}

// A handler without arguments, to be called by name.
template <class W>
void answerName(W &window, void (W::*handler)(), const QString &handlerName)
{
    window.names().add(handlerName, [&window, handler](const CallArguments &) { (window.*handler)(); });
}

// A bar of a window by its name: error 438 where the window has none.
ActiveBar &barOf(Form &form, const QString &name);

} // namespace orvane
