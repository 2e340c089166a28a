// The console's two buttons with a script of the test's own, and the windows that scripts act on.
#pragma once

#include "documents/frmIGSteps.h"
#include "shell/modFunctions.h"
#include "support/RunningSystem.h"

namespace orvane::test
{

inline void clickNext(const RunningSystem &system, const QString &script)
{
    system.console().cmdGoNext.setTag(script);
    system.click(system.console().cmdGoNext);
}

inline void clickBack(const RunningSystem &system, const QString &script)
{
    system.console().cmdGoBack.setTag(script);
    system.click(system.console().cmdGoBack);
}

inline void clickWay(const RunningSystem &system, bool forward, const QString &script)
{
    (forward ? clickNext : clickBack)(system, script);
}

// The guide's step, in front.
inline frmIGSteps &openStep(const RunningSystem &system)
{
    OpenGuide(QStringLiteral("STEP 17 - Emergency Preparedness and Response"), QStringLiteral("127"));
    return dynamic_cast<frmIGSteps &>(*system.active());
}

// Every tag that the console comes to show.
class ShownTags : public QObject
{
public:
    explicit ShownTags(frmDemo &console)
    {
        connect(&console.txtTag, &TextBox::Change, this, [this, &console] { tags << console.txtTag.Text(); });
    }

    QStringList tags;
};

} // namespace orvane::test
