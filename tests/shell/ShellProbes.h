// Windows and notes by which the tests of the shell see what it does.
#pragma once

#include "platform/controls/text/RichTextBox.h"
#include "platform/controls/text/TextBox.h"
#include "platform/controls/text/zelRich.h"
#include "platform/forms/MDIChild.h"
#include "platform/forms/Screen.h"
#include "platform/forms/Window.h"
#include "platform/system/RunTimeError.h"
#include "support/RunningSystem.h"

#include <QMdiSubWindow>
#include <QStringList>
#include <QTest>
#include <functional>

namespace orvane::test
{

// The steps that the console was filled with, in order, each with what was so at that moment.
class StepLog
{
public:
    explicit StepLog(
        frmDemo &console, const std::function<QString()> &circumstance = [] { return QString(); })
    {
        QObject::connect(&console.txtTag, &TextBox::Change, &m_context, [this, &console, circumstance] {
            if (!console.txtTag.Text().isEmpty()) m_steps << console.txtTag.Text() + circumstance();
        });
    }

    const QStringList &steps() const { return m_steps; }

private:
    QStringList m_steps;
    QObject m_context;
};

// Whether a control went off the screen or came back: a step with no texts of its own leaves no other trace.
class VisibilityLog : public QObject
{
public:
    explicit VisibilityLog(Control &control) { control.widget().installEventFilter(this); }

    const QStringList &changes() const { return m_changes; }

    bool eventFilter(QObject *, QEvent *event) override
    {
        if (event->type() == QEvent::HideToParent) m_changes << QStringLiteral("hidden");
        if (event->type() == QEvent::ShowToParent) m_changes << QStringLiteral("shown");
        return false;
    }

private:
    QStringList m_changes;
};

// A document window with one text control of each kind.
class TextWindow : public MDIChild
{
public:
    explicit TextWindow(const QString &caption = QStringLiteral("Texts"))
        : MDIChild(Default<mdiMain>(), QStringLiteral("frmTexts")), rich(*this, QStringLiteral("rich")),
          zel(*this, QStringLiteral("zel")), plain(*this, QStringLiteral("plain"))
    {
        setCaption(caption);
        setDesignSize(6000, 4500);
        rich.Move(0, 0, 6000, 1200);
        zel.Move(0, 1200, 6000, 1200);
        plain.Move(0, 2400, 6000, 300);
        for (RichTextBox *box : {&rich, static_cast<RichTextBox *>(&zel)})
            box->setText(QStringLiteral("one two"));
        plain.setText(QStringLiteral("one two"));
    }

    RichTextBox rich;
    zelRich zel;
    TextBox plain;
};

// Tells when it is loaded and unloaded, and fails on demand.
class ProbeChild : public MDIChild
{
public:
    explicit ProbeChild(std::function<void()> whileLoading)
        : MDIChild(Default<mdiMain>(), QStringLiteral("frmProbe")), m_whileLoading(std::move(whileLoading))
    {
    }

protected:
    void Form_Load() override { m_whileLoading(); }

private:
    std::function<void()> m_whileLoading;
};

class ProbeWindow : public Window
{
public:
    explicit ProbeWindow(const QString &name) : Window(name, FixedBorder) {}

    std::function<void()> whileUnloading = [] {};
    bool refusesFocus = false;

    void SetFocus() override
    {
        if (refusesFocus) throw RunTimeError(InvalidProcedureCall, QStringLiteral("The focus is refused."));
        Window::SetFocus();
    }

protected:
    void Form_Unload(bool &) override { whileUnloading(); }
};

// A tool of no bar's layout.
struct LooseTool {
    explicit LooseTool(const QString &name, int tag = 0, const QString &caption = QStringLiteral("caption"))
        : tool(Default<mdiMain>().mnuMain, 1, name)
    {
        tool.setCaption(caption);
        tool.setToolTag(tag);
    }

    Tool tool;
};

// The names of the loaded windows, in the order of loading.
inline QStringList loadedNames()
{
    QStringList names;
    for (const Form *form : Forms())
        names << form->Name();
    return names;
}

// How often a window's handler is called by its name; the handler itself no longer runs then.
inline void countCalls(Form &form, const QString &handler, int &calls)
{
    form.names().add(handler, [&calls](const CallArguments &) { ++calls; });
}

inline void giveFocus(Control &control)
{
    Default<mdiMain>().SetFocus();
    QTRY_VERIFY(Default<mdiMain>().shell().isActiveWindow());
    control.SetFocus();
    QTRY_COMPARE(screenActiveControl(), &control);
}

} // namespace orvane::test
