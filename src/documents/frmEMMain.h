// The Environment Manual window: section 4.4.7 on its three pages.
#pragma once

#include "documents/VersionedWindow.h"

namespace orvane
{

class frmEMMain : public VersionedWindow
{
public:
    frmEMMain();

    void mnuNav_Click(Tool &tool) override;
    void mnuLinks_Click(Tool &tool) override;

protected:
    void Form_Load() override;
    void Form_Activate() override;
    void Form_Unload(bool &cancel) override;

    Tool &saveTool() const override;
    bool showPage(const QString &name) override;
    void save() override {} // in this window the tool has no effect
    void fieldsReset() override;
};

} // namespace orvane
