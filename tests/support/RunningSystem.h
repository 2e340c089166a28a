// The whole system in one test: nothing is loaded at first, and nothing is left behind.
#pragma once

#include "command_center/frmCommandCentre.h"
#include "command_center/frmError.h"
#include "command_center/frmInfo.h"
#include "platform/forms/DefaultInstance.h"
#include "platform/forms/WindowList.h"
#include "shell/SharedState.h"
#include "shell/frmSplash.h"
#include "shell/mdiMain.h"
#include "support/TestHost.h"
#include "tour/frmDemo.h"

namespace orvane::test
{

class RunningSystem
{
public:
    RunningSystem(); // with a tour script of one section for each tag, see writeScript
    ~RunningSystem();

    TestHost host;

    // A section for each tag: heading "Step TAG", body "Text of TAG", and no moves.
    void writeScript(const QStringList &tags) const;

    void showSplash(); // up to the intro on screen
    void leaveIntro(); // by Enter
    void start();      // both: frame, diagram and console are up on step 101

    mdiMain &frame() const { return Default<mdiMain>(); }
    frmCommandCentre &diagram() const { return Default<frmCommandCentre>(); }
    frmDemo &console() const { return Default<frmDemo>(); }

    // What a user does.
    void click(Control &control) const;
    void clickAt(Control &control, double x, double y) const; // twips
    void clickTool(Form &window, const QString &bar, const QString &band, const QString &tool) const;
    MDIChild *active() const { return frame().ActiveForm(); }

    // Runs the step while something modal is up: act runs inside its loop, once it is on show.
    void whileModal(const std::function<void()> &open, const std::function<void()> &act) const;

private:
    QTemporaryDir m_settings;
};

// A loaded window by its name and Tag, or nullptr.
Form *windowByTag(const QString &tag);
int countWindows(const QString &name);

} // namespace orvane::test
