// The frame's Window menu: one tool for each open window, numbered in their order.

#include "platform/controls/bars/ActiveBar.h"
#include "platform/forms/DefaultInstance.h"
#include "shell/SharedState.h"
#include "shell/mdiMain.h"
#include "shell/modFunctions.h"

#include <map>

namespace orvane
{

namespace
{
ToolList &windowTools()
{
    return Default<mdiMain>().mnuMain.Bands(QStringLiteral("mnuWindow")).Tools();
}

QString withoutMarks(QString text)
{
    return text.remove(u'&');
}

QString leftTrimmed(const QString &text)
{
    qsizetype start = 0;
    while (start < text.size() && text.at(start) == u' ')
        ++start;
    return text.mid(start);
}

// A caption is a number, a blank, and a title, which may hold blanks of its own.
void renumber(ToolList &tools)
{
    int number = 1;
    for (const auto &tool : tools) {
        const QString title = tool->Caption().section(u' ', 1);
        tool->setCaption(QStringLiteral("&%1 ").arg(number++) + title);
    }
}

QString frameTitle(const QString &moduleCode)
{
    static const std::map<QString, QString> titles{
        {QStringLiteral("CS"), QStringLiteral("orvane")},
        {QStringLiteral("IG"), QStringLiteral("orvane (Implementation Guide)")},
        {QStringLiteral("IGSteps"), QStringLiteral("orvane (Implementation Guide)")},
        {QStringLiteral("MP"), QStringLiteral("orvane (Management Procedures)")},
        {QStringLiteral("RC"), QStringLiteral("orvane (Records)")},
        {QStringLiteral("AT"), QStringLiteral("orvane (Action Tools)")},
        {QStringLiteral("EM"), QStringLiteral("orvane (Environment Manual)")},
    };
    const auto found = titles.find(moduleCode);
    return found == titles.end() ? QString() : found->second;
}
} // namespace

void AddWindowTool(const QString &toolName, const QString &toolCaption, const QString &extra)
{
    ToolList &tools = windowTools();
    if (tools.contains(toolName)) return;
    Tool &tool = tools.Add(Shared().ToolIdCounter, toolName);
    tool.setCaption(QStringLiteral("1 ") + leftTrimmed(withoutMarks(toolCaption)));
    tool.setDescription(withoutMarks(toolCaption));
    tool.setTagText(extra);
    ++Shared().ToolIdCounter;
    renumber(tools);
}

void RemoveWindowTool(const QString &toolName)
{
    ToolList &tools = windowTools();
    for (int index = 0; index < tools.Count(); ++index) {
        if (tools.Item(index).Name() != toolName) continue;
        tools.Remove(index);
        break;
    }
    renumber(tools);
}

void CheckWindowTool(const QString &toolName, Boolean16 checked, const QString &moduleCode)
{
    for (const auto &tool : windowTools())
        tool->setChecked(tool->Name() == toolName && checked == True);
    if (const QString title = frameTitle(moduleCode); !title.isEmpty()) Default<mdiMain>().setCaption(title);
}

} // namespace orvane
