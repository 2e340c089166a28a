#include "Walk.h"

#include "command_center/frmInfo.h"
#include "platform/forms/DefaultInstance.h"
#include "platform/forms/MDIChild.h"
#include "shell/frmSplash.h"
#include "shell/mdiMain.h"
#include "tour/frmDemo.h"

#include "Screen.h"

#include <QStringList>
#include <QTextBlock>
#include <QTextDocument>
#include <QTextEdit>

using namespace Qt::Literals::StringLiterals;

namespace orvane::walk
{

namespace
{
QString paragraph(const QTextBlock &block)
{
    QString text;
    for (auto run = block.begin(); run != block.end(); ++run) {
        const bool bold = run.fragment().charFormat().fontWeight() >= QFont::Bold;
        text += (bold ? u"<b>%1</b>"_s : u"%1"_s).arg(run.fragment().text().toHtmlEscaped());
    }
    return text.isEmpty() ? text : u"<p>"_s + text + u"</p>\n"_s;
}

QString bodyOf(const RichTextBox &box)
{
    QString text;
    const auto *edit = qobject_cast<QTextEdit *>(&box.widget());
    for (auto block = edit->document()->begin(); block.isValid(); block = block.next())
        text += paragraph(block);
    return text;
}

QString seenAt(const frmDemo &console)
{
    const auto &frame = Default<mdiMain>();
    const QString window = frame.ActiveForm() ? frame.ActiveForm()->Caption() : QString();
    return u"The window \"%1\" of %2, and the console on \"%3\""_s.arg(window, frame.Caption(), console.Header.Text());
}
} // namespace

bool Walk::run()
{
    const frmSplash &splash = Default<frmSplash>();
    m_handOut.add({u"splash"_s, u"The program starts"_s, {}, {}, {}, u"The splash window"_s}, pictureOf(splash));
    Default<frmSplash>().Show();
    showIntro();
    const frmDemo &console = Default<frmDemo>();
    QStringList seen; // Next leads on from a step in one way only, so a step seen again is a round without an end
    do {
        seen << console.Tag();
        takeStep(console);
        if (console.cmdQuit.Visible()) return true;
        if (!goOn(console)) return false;
    } while (!seen.contains(console.Tag()));
    m_handOut.complain(u"The tour comes round to step %1 again."_s.arg(console.Tag()));
    return false;
}

void Walk::showIntro()
{
    settle();
    const frmInfo &intro = Default<frmInfo>();
    m_handOut.add({u"intro"_s,
                   u"The way in"_s,
                   u"<p>Enter, or a click on the red dot, leads on.</p>"_s,
                   {},
                   {},
                   u"A picture of the five modules with a red dot"_s},
                  pictureOf(intro));
    pressEnter(intro);
    takeMessages();
}

void Walk::takeStep(const frmDemo &console)
{
    ++m_steps;
    const Entry entry{u"step-"_s + console.Tag(), console.Header.Text(),   bodyOf(console.rtf),
                      console.cmdGoNext.Tag(),    console.cmdGoBack.Tag(), seenAt(console)};
    m_handOut.add(entry, pictureOfAll());
    if (entry.heading == u"(none)"_s) m_handOut.complain(u"The script has no step %1."_s.arg(console.Tag()));
}

// Presses Next; false where that leads nowhere or ends the program.
bool Walk::goOn(const frmDemo &console)
{
    const QString before = console.Tag();
    press(console.cmdGoNext);
    takeMessages();
    if (m_host.hasEnded())
        m_handOut.complain(u"Next of step %1 ended the program."_s.arg(before));
    else if (console.Tag() == before)
        m_handOut.complain(u"Next of step %1 leads nowhere."_s.arg(before));
    else
        return true;
    return false;
}

void Walk::quit()
{
    press(Default<frmDemo>().cmdQuit);
    takeMessages();
    if (!m_host.hasEnded() || m_host.exitCode() != 0) m_handOut.complain(u"Quit doesn't end the program well."_s);
}

void Walk::takeMessages()
{
    for (const QString &message : m_host.takeMessages())
        m_handOut.complain(u"The program says: "_s + message);
}

} // namespace orvane::walk
