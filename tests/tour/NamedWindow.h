// A window of the frame that takes part in the tour by nothing but its names: it bears a Name, has bars with handlers,
// and notes what reached them, in order.
#pragma once

#include "platform/controls/bars/ActiveBar.h"
#include "platform/controls/text/RichTextBox.h"
#include "platform/forms/DefaultInstance.h"
#include "platform/forms/MDIChild.h"
#include "shell/mdiMain.h"

#include <QStringList>
#include <memory>
#include <vector>

namespace orvane::test
{

class NamedWindow : public MDIChild
{
public:
    // It lives until it is unloaded, or until the system goes.
    static NamedWindow &open(const QString &name)
    {
        auto *window = new NamedWindow(name);
        window->Show();
        return *window;
    }

    // A bar without a handler: calling one fails.
    ActiveBar &addBar(const QString &bar, BarTable table)
    {
        m_bars.push_back(std::make_unique<ActiveBar>(*this, bar, table));
        connect(m_bars.back().get(), &ActiveBar::Changed, this,
                [this, bar] { notes << bar + QStringLiteral(" laid"); });
        return *m_bars.back();
    }

    void addAnsweredBar(const QString &bar, BarTable table)
    {
        addBar(bar, table);
        names().add(bar + QStringLiteral("_Click"), [this, bar](const CallArguments &arguments) {
            notes << bar + QLatin1Char(' ') + arguments.tool->Name();
        });
    }

    QStringList notes;
    RichTextBox text{*this, QStringLiteral("rtfText")};

private:
    explicit NamedWindow(const QString &name) : MDIChild(Default<mdiMain>(), name) {}

    std::vector<std::unique_ptr<ActiveBar>> m_bars;
};

} // namespace orvane::test
