// The home of the program: five tabs over five panels, each a diagram of one module with buttons that open its
// documents, drop a menu, or only report to the tour.
//
// Assumptions: the panel on show is known by the tab that is down; frames of buttons are centred, never resized.
#pragma once

#include "command_center/DiagramTables.h"
#include "platform/controls/ControlArray.h"
#include "platform/controls/Frame.h"
#include "platform/controls/SSCommand.h"
#include "platform/controls/SSPanel.h"
#include "platform/controls/SSRibbon.h"
#include "platform/controls/pictures/Image.h"
#include "platform/controls/zelGradient.h"
#include "platform/forms/MDIChild.h"

namespace orvane
{

class frmCommandCentre : public MDIChild
{
public:
    frmCommandCentre();

    zelGradient gradient; // named "zelGradient"
    SSPanel pnlHeader;
    RibbonGroup tabs;
    ControlArray<SSRibbon> SSRibbon1{QStringLiteral("SSRibbon1")};
    ControlArray<SSPanel> pnlDiag{QStringLiteral("pnlDiag")};
    ControlArray<Frame> fraButtons{QStringLiteral("fraButtons")};
    ControlArray<Image> Image1{QStringLiteral("Image1")};
    ControlArray<Image> Image2{QStringLiteral("Image2")};
    ControlArray<Image> Image3{QStringLiteral("Image3")};
    ControlArray<Image> Image4{QStringLiteral("Image4")};
    std::unique_ptr<Image> Image5;
    std::unique_ptr<Image> Image6;
    ControlArray<SSCommand> cmdImp{QStringLiteral("cmdImp")};
    ControlArray<SSCommand> cmdImpMnu{QStringLiteral("cmdImpMnu")};
    ControlArray<SSCommand> cmdEnv{QStringLiteral("cmdEnv")};
    ControlArray<SSCommand> cmdEnvMnu{QStringLiteral("cmdEnvMnu")};
    ControlArray<SSCommand> cmdEnvMnuAn{QStringLiteral("cmdEnvMnuAn")};
    ControlArray<SSCommand> cmdEnvMnuMSR{QStringLiteral("cmdEnvMnuMSR")};
    ControlArray<SSCommand> cmdPrc{QStringLiteral("cmdPrc")};
    ControlArray<SSCommand> cmdAct{QStringLiteral("cmdAct")};
    ControlArray<SSCommand> cmdRec{QStringLiteral("cmdRec")};
    ControlArray<SSCommand> cmdCommand{QStringLiteral("cmdCommand")}; // 0 takes the focus from the others

    void Form_Resize() override;
    void SSRibbon1_Click(int index, Boolean16 value);

    // One each for the menus that a caller may want dropped without a button.
    void dropAnnexes();
    void drop24Steps();
    void dropIntroduction();
    void dropRequirements();
    void restFocus(int ignored);

protected:
    void Form_Load() override;
    void Form_Activate() override;
    void Form_Deactivate() override;
    void Form_QueryUnload(bool &cancel, int mode) override;

private:
    void buildTabs();
    void buildPanels();
    void buildButtons();
    void buildConnectors();
    void wireClicks();
    void wireHover(ControlArray<SSCommand> &array);
    ControlArray<SSCommand> &arrayOf(diagram::ButtonArray array);

    void layoutTabs();
    void layoutPanel(int index);

    void cmdImp_Click(int index);
    void cmdAct_Click(int index);
    void cmdEnv_Click(int index);
    void cmdCommand_Click(int index);
    void cmdPrc_Click(int index);
    void cmdRec_Click(int index);
    void drop(const QString &band);

    int m_width = 0; // twips of the last layout, 0 before the first
    int m_height = 0;
};

} // namespace orvane
