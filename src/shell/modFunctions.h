// What all windows share: opening module windows, the Window menu, and the state of the Edit tools.
#pragma once

#include "platform/controls/Twips.h"

#include <QString>

namespace orvane
{

class MDIChild;
class Tool;

// Opens what the tool's number names by its first digit; a tool of another number brings forward the window that it
// is named after, where there is one.
void OpenFromTool(Tool &tool);

// Brings forward the window of that title, or opens a new one. A section is the decimal text of a tool's number.
void OpenGuide(const QString &title, const QString &section);
void OpenManual(const QString &title, const QString &section);
void OpenProcedures(const QString &title, const QString &section);
void OpenTools(const QString &title, const QString &section);
void OpenRecords(const QString &title, const QString &section);

// Hands title and section over and loads the window; a failure is shown to the user and leaves the window unloaded.
void OpenWindowCore(MDIChild &window, const QString &title, const QString &section);

// True if a window of that Tag was there and was brought forward.
Boolean16 ActivateOpenWindow(const QString &tagKey);

void UnloadPrintWindows();

// The Window menu. A tool is known by its name: a module window's Tag, or the Caption of the diagram and previews.
void AddWindowTool(const QString &toolName, const QString &toolCaption, const QString &extra);
void RemoveWindowTool(const QString &toolName);
void CheckWindowTool(const QString &toolName, Boolean16 checked,
                     const QString &moduleCode); // sets the frame's title too

// Cut, Copy and Paste follow the selection of the active control and the clipboard.
void UpdateEditTools();

// The diagram comes up again under a module window that is about to go.
void ShowDiagram();

} // namespace orvane
