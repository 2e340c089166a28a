#include "TextFaults.h"

#include "platform/richtext/Rtf.h"
#include "platform/richtext/RtfTokenizer.h"

#include "ByteFaults.h"

#include <optional>

using namespace Qt::Literals::StringLiterals;

namespace orvane::lint
{

namespace
{
std::optional<QString> groupFault(const QString &rtf)
{
    RtfTokenizer tokens(rtf);
    int depth = 0;
    bool ended = false;
    for (RtfToken token = tokens.next(); token.kind != RtfToken::End; token = tokens.next()) {
        if (token.kind == RtfToken::Close && depth == 0) return u"has a closing brace too many"_s;
        if (ended) return u"goes on behind its last brace"_s;
        if (token.kind == RtfToken::Byte && isWithoutCharacter(token.value))
            return u"has an escape for a byte without a character in code page 1252"_s;
        if (token.kind == RtfToken::Open) ++depth;
        if (token.kind == RtfToken::Close) ended = --depth == 0;
    }
    if (depth > 0) return u"leaves %1 of its braces open"_s.arg(depth);
    return std::nullopt;
}

std::optional<QString> bodyFault(const QString &body)
{
    if (!isRtf(body)) return u"does not begin with {\\rtf"_s;
    return groupFault(body);
}

void findTooLong(const Step &step, const QString &key, const Value &value, int most, Findings &findings)
{
    if (value.text.size() <= most) return;
    findings.push_back(
        {value.line,
         u"[%1] %2 has %3 characters, of which %4 are kept"_s.arg(step.tag, key).arg(value.text.size()).arg(most)});
}
} // namespace

void findTextFaults(const ScriptFile &script, Findings &findings)
{
    for (const Step &step : script.steps) {
        if (!step.heading.line) findings.push_back({step.line, u"[%1] has no Header"_s.arg(step.tag)});
        if (!step.body.line) findings.push_back({step.line, u"[%1] has no RTF"_s.arg(step.tag)});
        findTooLong(step, u"Header"_s, step.heading, MostOfLine, findings);
        findTooLong(step, u"RTF"_s, step.body, MostOfBody, findings);
        findTooLong(step, u"NextRTF"_s, step.next, MostOfLine, findings);
        findTooLong(step, u"PrevRTF"_s, step.back, MostOfLine, findings);
        if (!step.body.line) continue;
        if (const auto fault = bodyFault(step.body.text))
            findings.push_back({step.body.line, u"[%1] RTF %2"_s.arg(step.tag, *fault)});
    }
}

} // namespace orvane::lint
