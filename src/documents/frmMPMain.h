// The Management Procedures window: procedure C11 on its five pages.
#pragma once

#include "documents/VersionedWindow.h"

namespace orvane
{

class frmMPMain : public VersionedWindow
{
public:
    frmMPMain();

    SSPanel pnlTools; // covered by the page

    void mnuNav_Click(Tool &tool) override;
    void mnuLinks_Click(Tool &tool) override;
    void QuitSaveData();

protected:
    void Form_Load() override;
    void Form_Activate() override;
    void Form_Unload(bool &cancel) override;

    Tool &saveTool() const override;
    bool showPage(const QString &name) override;
    void save() override;
};

} // namespace orvane
