// A window that notes what happens to it, for the tests of windows and of what stands on them.
#pragma once

#include "platform/forms/Window.h"
#include "support/ErrorOf.h"
#include "support/TestHost.h"

#include <QApplication>
#include <QKeyEvent>
#include <QPointer>
#include <QRegularExpression>
#include <QStringList>
#include <QTest>
#include <QTimer>
#include <functional>

namespace orvane::test
{

// What happened to the windows of a test, in order. Each event reads "name Event".
inline QStringList &eventLog()
{
    static QStringList log;
    return log;
}

// Answers of a noted window to its events. An empty one does nothing.
struct Answers {
    std::function<void()> onLoad;
    std::function<void()> onKeyDown;
    std::function<void(bool &)> onQueryUnload;
    std::function<void(bool &)> onUnload;
};

// Adds the notes to a window of any kind.
template <class Base>
class Noted : public Base
{
public:
    template <class... Arguments>
    explicit Noted(Arguments &&...arguments) : Base(std::forward<Arguments>(arguments)...)
    {
    }

    Answers answers;

    using Base::setCancelButton;
    using Base::setDefaultButton;
    using Base::setDesignSize;

protected:
    void note(const QString &event) const { eventLog() << this->Name() + u' ' + event; }

    void Form_Load() override
    {
        note(QStringLiteral("Load"));
        if (answers.onLoad) answers.onLoad();
    }
    void Form_Activate() override { note(QStringLiteral("Activate")); }
    void Form_Deactivate() override { note(QStringLiteral("Deactivate")); }
    void Form_Resize() override { note(QStringLiteral("Resize")); }
    void Form_QueryUnload(bool &cancel, int mode) override
    {
        note(mode == ByUser ? QStringLiteral("QueryUnload by user") : QStringLiteral("QueryUnload by code"));
        if (answers.onQueryUnload) answers.onQueryUnload(cancel);
    }
    void Form_Unload(bool &cancel) override
    {
        note(QStringLiteral("Unload"));
        if (answers.onUnload) answers.onUnload(cancel);
    }
    void Form_KeyDown(int keyCode, int shift) override
    {
        note(QStringLiteral("KeyDown %1 %2").arg(keyCode).arg(shift));
        if (answers.onKeyDown) answers.onKeyDown();
    }
    void Form_KeyPress(int keyAscii) override { note(QStringLiteral("KeyPress %1").arg(keyAscii)); }
    void Form_KeyUp(int keyCode, int shift) override { note(QStringLiteral("KeyUp %1 %2").arg(keyCode).arg(shift)); }
};

// A window of 4500 by 3000 twips.
class PlainWindow : public Window
{
public:
    explicit PlainWindow(const QString &name = QStringLiteral("frmPlain")) : Window(name, FixedBorder)
    {
        setDesignSize(4500, 3000);
    }
};

using NotedWindow = Noted<PlainWindow>;

// Shows the window and waits until the keyboard is its own.
inline void showActive(Form &form)
{
    form.Show();
    QTRY_COMPARE(QApplication::activeWindow(), form.shell().window());
}

// The events of the log that the pattern fits, in their order.
inline QStringList eventsOf(const QString &event)
{
    return eventLog().filter(QRegularExpression(QStringLiteral(" %1$").arg(event)));
}

// The log with its Resize events left out: how many the toolkit sends on the way is its own affair.
inline QStringList logWithoutResize()
{
    QStringList log = eventLog();
    log.removeIf([](const QString &event) { return event.endsWith(QStringLiteral(" Resize")); });
    return log;
}

// Deletes what was unloaded.
inline void sweep()
{
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

} // namespace orvane::test
