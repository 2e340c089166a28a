// The print preview: everything is printed through this window. What it shows of a job is not in the program yet.
#pragma once

#include "platform/controls/CommandButton.h"
#include "platform/controls/Label.h"
#include "platform/forms/MDIChild.h"

namespace orvane
{

class frmPrint : public MDIChild
{
public:
    frmPrint();

    Label lblPending;
    CommandButton cmdClose;

    // Module 1 to 5, the section, the scope, version 1 (Master) or 2 (Own), and the texts for the page's head.
    void PrintPreview(int module, const QString &section, int scope, int version, const QString &number,
                      const QString &heading);
    void Form_Resize() override;

protected:
    void Form_Load() override;
    void Form_Activate() override;
    void Form_Deactivate() override;
    void Form_Unload(bool &cancel) override;
};

} // namespace orvane
