// How the diagram is made from its tables, and what its parts are wired to.

#include "command_center/frmCommandCentre.h"
#include "platform/forms/DefaultInstance.h"
#include "platform/forms/Wiring.h"
#include "platform/system/Guard.h"
#include "shell/mdiMain.h"

namespace orvane
{

namespace
{
constexpr double TabTop = 600;
constexpr double TabHeight = 1140;
constexpr int HoverColour = 0xFF0000; // blue
constexpr int RestColour = 0;

QString textOf(std::u16string_view text)
{
    return QStringView(text).toString();
}
} // namespace

frmCommandCentre::frmCommandCentre()
    : MDIChild(Default<mdiMain>(), QStringLiteral("frmCommandCentre")),
      gradient(*this, QStringLiteral("zelGradient"), zelGradient::Ground), pnlHeader(*this, QStringLiteral("pnlHeader"))
{
    setCaption(QStringLiteral("Command Center"));
    setDesignSize(10050, 6000);
    gradient.Move(0, 0, 10050, 6000);
    pnlHeader.Move(0, 0, 10050, 375);
    pnlHeader.setCaption(QStringLiteral("Command Center"));
    pnlHeader.setFont(QStringLiteral("Arial"), 9.75, true);
    buildTabs();
    buildPanels();
    buildButtons();
    buildConnectors();
    wireClicks();
    gradient.ZOrderBack();
    answerName(*this, &frmCommandCentre::Form_Resize, QStringLiteral("Form_Resize"));
}

void frmCommandCentre::buildTabs()
{
    for (const auto &row : diagram::tabs()) {
        SSRibbon &tab = SSRibbon1.add(row.index, *this, tabs, row.index == 1);
        tab.Move(row.left, TabTop, row.width, TabHeight);
        tab.setCaption(textOf(row.caption));
        tab.setTag(textOf(row.tag));
        tab.setPicture(textOf(row.picture));
        wire(tab, &SSRibbon::ValueClick, *this,
             [index = row.index](frmCommandCentre &self, Boolean16 value) { self.SSRibbon1_Click(index, value); });
        wire(tab, &SSCommand::MouseEnter, *this, [&tab](frmCommandCentre &) { tab.setForeColor(HoverColour); });
        wire(tab, &SSCommand::MouseLeave, *this, [&tab](frmCommandCentre &) { tab.setForeColor(RestColour); });
    }
}

void frmCommandCentre::buildPanels()
{
    for (const auto &row : diagram::frames()) {
        SSPanel &panel = pnlDiag.add(row.index, *this, SSPanel::Card);
        panel.setVisible(row.index == 1);
        panel.setPurpose(SSRibbon1(row.index).Caption());
        fraButtons.add(row.index, panel).Move(row.left, row.top, row.width, row.height);
    }
    pnlDiag(1).Move(240, 2040, 6975, 2775);
    SSCommand &focusSink = cmdCommand.add(0, pnlDiag(5));
    focusSink.Move(-500, 720, 30, 60);
    focusSink.setPurpose(QStringLiteral("Command Center"));
    focusSink.setTabStop(false); // nobody would see where the focus is
}

void frmCommandCentre::buildButtons()
{
    for (const auto &row : diagram::buttons()) {
        SSCommand &button = arrayOf(row.array).add(row.index, fraButtons(row.panel));
        button.Move(row.left, row.top, diagram::ButtonWidth, diagram::ButtonHeight);
        button.setCaption(textOf(row.caption));
        button.setTag(textOf(row.tag));
        button.setToolTipText(textOf(row.toolTip.empty() ? row.caption : row.toolTip));
        if (row.redDot) button.setPicture(QStringLiteral("reddot"));
    }
}

void frmCommandCentre::buildConnectors()
{
    using enum diagram::PictureArray;
    const std::map<diagram::PictureArray, ControlArray<Image> *> arrays{
        {Image1, &this->Image1}, {Image2, &this->Image2}, {Image3, &this->Image3}, {Image4, &this->Image4}};
    for (const auto &row : diagram::connectors()) {
        Frame &frame = fraButtons(row.panel);
        Image *picture = nullptr;
        if (const auto array = arrays.find(row.array); array != arrays.end()) {
            picture = &array->second->add(row.index, frame);
        } else {
            auto &single = row.array == Image5 ? this->Image5 : this->Image6;
            single = std::make_unique<Image>(frame,
                                             row.array == Image5 ? QStringLiteral("Image5") : QStringLiteral("Image6"));
            picture = single.get();
        }
        picture->Move(row.left, row.top, row.width, row.height);
        picture->setPicture(QStringLiteral("connectors/") + textOf(row.picture));
        picture->setPurpose(QStringLiteral("Connection"));
    }
}

ControlArray<SSCommand> &frmCommandCentre::arrayOf(diagram::ButtonArray array)
{
    switch (array) {
    case diagram::ButtonArray::cmdImp:
        return cmdImp;
    case diagram::ButtonArray::cmdImpMnu:
        return cmdImpMnu;
    case diagram::ButtonArray::cmdEnv:
        return cmdEnv;
    case diagram::ButtonArray::cmdEnvMnu:
        return cmdEnvMnu;
    case diagram::ButtonArray::cmdEnvMnuAn:
        return cmdEnvMnuAn;
    case diagram::ButtonArray::cmdEnvMnuMSR:
        return cmdEnvMnuMSR;
    case diagram::ButtonArray::cmdPrc:
        return cmdPrc;
    case diagram::ButtonArray::cmdRec:
        return cmdRec;
    case diagram::ButtonArray::cmdAct:
        break;
    }
    return cmdAct;
}

void frmCommandCentre::wireClicks()
{
    const auto clicks = [this](ControlArray<SSCommand> &array, auto handler, bool dropsMenu) {
        for (const auto &[index, button] : array) {
            wire(*button, &SSCommand::Click, *this, [handler, i = index](frmCommandCentre &self) { handler(self, i); });
            button->setDropsMenu(dropsMenu);
        }
        wireHover(array);
    };
    using Self = frmCommandCentre;
    clicks(
        cmdImp, [](Self &self, int index) { self.cmdImp_Click(index); }, false);
    clicks(
        cmdEnv, [](Self &self, int index) { self.cmdEnv_Click(index); }, false);
    clicks(
        cmdAct, [](Self &self, int index) { self.cmdAct_Click(index); }, false);
    clicks(
        cmdCommand, [](Self &self, int index) { self.cmdCommand_Click(index); }, false);
    clicks(
        cmdImpMnu, [](Self &self, int) { self.drop24Steps(); }, true);
    clicks(
        cmdEnvMnu, [](Self &self, int) { self.dropIntroduction(); }, true);
    clicks(
        cmdEnvMnuAn, [](Self &self, int) { self.dropAnnexes(); }, true);
    clicks(
        cmdEnvMnuMSR, [](Self &self, int) { self.dropRequirements(); }, true);
    clicks(
        cmdPrc, [](Self &self, int index) { self.cmdPrc_Click(index); }, true);
    clicks(
        cmdRec, [](Self &self, int index) { self.cmdRec_Click(index); }, true);
}

void frmCommandCentre::wireHover(ControlArray<SSCommand> &array)
{
    for (const auto &[index, element] : array) {
        SSCommand *button = element.get();
        wire(*button, &SSCommand::MouseEnter, *this,
             [button](frmCommandCentre &) { button->setForeColor(HoverColour); });
        wire(*button, &SSCommand::MouseLeave, *this,
             [button](frmCommandCentre &) { button->setForeColor(RestColour); });
    }
}

} // namespace orvane
