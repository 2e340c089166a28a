// A tour script as the program would read it, with the lines that its parts stand in.
#pragma once

#include "tour/MoveVerbs.h"

#include "Finding.h"

#include <vector>

namespace orvane::lint
{

// The most characters that the program keeps of a value.
inline constexpr int MostOfBody = 8190;
inline constexpr int MostOfLine = 1022;

struct Value {
    QString text = QStringLiteral("(none)");
    int line = 0; // 0: the key is absent, and the text is what the program takes then

    bool moves() const { return text != QStringLiteral("(none)"); }
};

struct Step {
    QString tag; // as it stands between the brackets
    int line = 0;
    Value heading = {};
    Value body = {};
    Value next = {};
    Value back = {};

    bool isEnd() const; // of the tour, with the dealer's lines or without
    const Value &script(Way way) const { return way == Way::Forward ? next : back; }
    static QString key(Way way) { return way == Way::Forward ? QStringLiteral("NextRTF") : QStringLiteral("PrevRTF"); }
};

struct ScriptFile {
    std::vector<Step> steps; // in the file's order; of two with one name only the first, which is the one that is read

    const Step *step(const QString &tag) const;
};

// Adds what is wrong with the lines themselves. A file that can't be read is refused with error 53 or 75.
ScriptFile readScriptFile(const QString &fileName, Findings &findings);

// True for what the program takes for a number.
bool isNumber(const QString &text);

} // namespace orvane::lint
