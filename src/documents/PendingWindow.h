// A document window whose pages are not in the program yet. It opens, is listed, and closes as it will later.
#pragma once

#include "platform/controls/CommandButton.h"
#include "platform/controls/Label.h"
#include "platform/controls/SSPanel.h"
#include "platform/controls/zelGradient.h"
#include "platform/forms/MDIChild.h"

namespace orvane
{

class PendingWindow : public MDIChild
{
public:
    zelGradient gradient; // named "zelGradient"
    SSPanel pnlHeading;
    Label lblPending;
    CommandButton cmdClose;

    void Form_Resize() override;

protected:
    enum Pages { ForReading, ForEditing };

    PendingWindow(const QString &name, const QString &tagPrefix, const QString &moduleCode, Pages pages);

    void Form_Load() override;
    void Form_Activate() override;
    void Form_Deactivate() override;
    void Form_Unload(bool &cancel) override;

private:
    QString m_tagPrefix;
    QString m_moduleCode;
    Pages m_pages;
};

} // namespace orvane
