// The verbs of move scripts as tables: which there are, what stands behind them, and which of them the way back knows.
#pragma once

#include <QString>

#include <span>
#include <string_view>

namespace orvane
{

enum class Way { Forward, Back };

enum class Verb {
    OpenWindow,
    PressRibbon,
    PressMenu,
    PressPage,
    PressLink,
    PressPreview,
    ReleaseMouse,
    CloseTips,
    ConfirmDetails
};

struct VerbRow {
    std::u16string_view name; // field 1 of a script, matched with its case
    Verb verb;
    int fields; // how many are read behind it
    bool back;  // the Back button knows it too
};

// A module window: by its code in scripts, its Name, and its place, which is the first digit of its tags less one.
struct ModuleRow {
    std::u16string_view code;
    std::u16string_view window;
    bool back; // the Back button opens it too
};

std::span<const ModuleRow> moveModules();

// Null where there is none of that name on that way.
const VerbRow *verbNamed(const QString &name, Way way);
const ModuleRow *moduleNamed(const QString &code, Way way);

bool isModuleWindow(const QString &name);

} // namespace orvane
