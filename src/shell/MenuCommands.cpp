// What the tools of the main menu do.

#include "platform/controls/text/RichTextBox.h"
#include "platform/forms/DefaultInstance.h"
#include "platform/forms/MDIChild.h"
#include "platform/forms/Screen.h"
#include "platform/help/WinHelp.h"
#include "platform/system/Application.h"
#include "platform/system/Host.h"
#include "platform/system/Number.h"
#include "platform/system/RunTimeError.h"
#include "platform/system/SendKeys.h"
#include "shell/frmAbout.h"
#include "shell/frmProperties.h"
#include "shell/mdiMain.h"
#include "shell/modFunctions.h"
#include "tour/modDemo.h"

#include <map>
#include <optional>

namespace orvane
{

namespace
{
RichTextBox &textAtWork()
{
    auto *text = dynamic_cast<RichTextBox *>(screenActiveControl());
    if (!text) throw RunTimeError(NoSuchMember, QStringLiteral("The active control has no format of its own."));
    return *text;
}
} // namespace

void mdiMain::mnuMain_Click(Tool &tool)
{
    ShowTourStep(QString::number(tool.ToolTag()));
    if (run(tool) == Afterwards::OpenFromTool) OpenFromTool(tool);
}

mdiMain::Afterwards mdiMain::run(Tool &tool)
{
    const QString &name = tool.Name();
    if (name == QStringLiteral("miUndo")) {
        SendKeys(QStringLiteral("^{z}"));
    } else if (name == QStringLiteral("miHAbout")) {
        Default<frmAbout>().Show(Modal);
        return Afterwards::Return;
    } else if (name == QStringLiteral("exit")) {
        ShowTourStep(QStringLiteral("603"));
    } else if (name == QStringLiteral("properties")) {
        Default<frmProperties>().Show();
        return Afterwards::Return;
    } else if (name == QStringLiteral("miCut")) {
        sendToText(QStringLiteral("^x"));
    } else if (name == QStringLiteral("miCopy")) {
        sendToText(QStringLiteral("^c"));
    } else if (name == QStringLiteral("miPaste")) {
        sendToText(QStringLiteral("^v"));
    } else if (name == QStringLiteral("miAll")) {
        sendToText(QStringLiteral("^a"));
    } else if (name == QStringLiteral("clear")) {
        sendToText(QStringLiteral("{DEL}"));
    } else if (name == QStringLiteral("miHContents")) {
        help(HelpContents);
    } else if (name == QStringLiteral("miHSearch")) {
        help(HelpPartialKey);
    }
    return Afterwards::OpenFromTool;
}

// Plain text boxes are left out: only the rich texts of the active child take part.
void mdiMain::sendToText(const QString &keys)
{
    const MDIChild *child = ActiveForm();
    if (child && dynamic_cast<RichTextBox *>(child->ActiveControl())) SendKeys(keys);
}

// Goes on past failures; the last one is shown.
void mdiMain::help(int command)
{
    if (App().HelpFile().isEmpty()) {
        MsgBox(QStringLiteral("Unable to display Help Contents. There is no Help associated with this program."),
               InformationIcon, Caption());
        return;
    }
    std::optional<QString> failure;
    const auto goPast = [&failure](const auto &step) {
        try {
            step();
        } catch (const RunTimeError &error) {
            failure = error.Description();
        }
    };
    if (command == HelpContents) goPast([] { ShowTourStep(QStringLiteral("601")); });
    goPast([command] { WinHelp(App().HelpFile(), command); });
    if (failure) MsgBox(*failure);
}

void mdiMain::FormatSelection(Tool &tool)
{
    static const std::map<QString, void (*)(RichTextBox &)> formats{
        {QStringLiteral("miBold"), [](RichTextBox &text) { text.setSelBold(!text.SelBold()); }},
        {QStringLiteral("miItalic"), [](RichTextBox &text) { text.setSelItalic(!text.SelItalic()); }},
        {QStringLiteral("miUnderline"), [](RichTextBox &text) { text.setSelUnderline(!text.SelUnderline()); }},
        {QStringLiteral("miLeft"), [](RichTextBox &text) { text.setSelAlignment(AlignLeft); }},
        {QStringLiteral("miRight"), [](RichTextBox &text) { text.setSelAlignment(AlignRight); }},
        {QStringLiteral("miCenter"), [](RichTextBox &text) { text.setSelAlignment(AlignCenter); }},
    };
    if (const auto format = formats.find(tool.Name()); format != formats.end()) format->second(textAtWork());
}

void mdiMain::FontSelection(Tool &tool)
{
    const QString entry = tool.List().value(tool.ListIndex());
    if (tool.Name() == QStringLiteral("miFont")) textAtWork().setSelFontName(entry);
    if (tool.Name() == QStringLiteral("miFontSize")) textAtWork().setSelFontSize(toNumber(entry));
}

} // namespace orvane
