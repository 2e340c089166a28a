// What the tools of the main menu do.

#include "platform/controls/RichTextBox.h"
#include "platform/forms/DefaultInstance.h"
#include "platform/forms/MDIChild.h"
#include "platform/forms/Screen.h"
#include "platform/system/Application.h"
#include "platform/system/Help.h"
#include "platform/system/Host.h"
#include "platform/system/Number.h"
#include "platform/system/RunTimeError.h"
#include "platform/system/SendKeys.h"
#include "shell/frmAbout.h"
#include "shell/frmProperties.h"
#include "shell/mdiMain.h"
#include "shell/modFunctions.h"
#include "tour/modDemo.h"

namespace orvane
{

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

void mdiMain::help(int command)
{
    if (App().HelpFile().isEmpty()) {
        MsgBox(QStringLiteral("Unable to display Help Contents. There is no Help associated with this program."),
               InformationIcon, Caption());
        return;
    }
    if (command == HelpContents) ShowTourStep(QStringLiteral("601"));
    try {
        WinHelp(App().HelpFile(), command);
    } catch (const RunTimeError &error) {
        MsgBox(error.Description());
    }
}

void mdiMain::FormatSelection(Tool &tool)
{
    auto *text = dynamic_cast<RichTextBox *>(screenActiveControl());
    if (!text) throw RunTimeError(NoSuchMember, QStringLiteral("The active control has no format of its own."));
    const QString &name = tool.Name();
    if (name == QStringLiteral("miBold")) text->setSelBold(!text->SelBold());
    if (name == QStringLiteral("miItalic")) text->setSelItalic(!text->SelItalic());
    if (name == QStringLiteral("miUnderline")) text->setSelUnderline(!text->SelUnderline());
    if (name == QStringLiteral("miLeft")) text->setSelAlignment(AlignLeft);
    if (name == QStringLiteral("miRight")) text->setSelAlignment(AlignRight);
    if (name == QStringLiteral("miCenter")) text->setSelAlignment(AlignCenter);
}

void mdiMain::FontSelection(Tool &tool)
{
    auto *text = dynamic_cast<RichTextBox *>(screenActiveControl());
    if (!text) throw RunTimeError(NoSuchMember, QStringLiteral("The active control has no font of its own."));
    const QString entry = tool.List().value(tool.ListIndex());
    if (tool.Name() == QStringLiteral("miFont")) text->setSelFontName(entry);
    if (tool.Name() == QStringLiteral("miFontSize")) text->setSelFontSize(toNumber(entry));
}

} // namespace orvane
