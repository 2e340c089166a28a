#include "GraphFaults.h"

#include "tour/TourScript.h"

#include "ReportedTags.h"

#include <QStringList>

#include <algorithm>
#include <set>

using namespace Qt::Literals::StringLiterals;

namespace orvane::lint
{

namespace
{
using Steps = std::set<const Step *>;

const Step *target(const ScriptFile &script, const Step &step, Way way)
{
    const TourScript move(step.script(way).text);
    return move.moves() ? script.step(move.field(0)) : nullptr;
}

void findMissing(const ScriptFile &script, Findings &findings)
{
    for (const auto &[tag, place] : reportedTags())
        if (!script.step(QString::number(tag)))
            findings.push_back({1, u"tag %1 has no section (%2)"_s.arg(tag).arg(place)});
}

void follow(const ScriptFile &script, const Step *start, Steps &reached)
{
    std::vector<const Step *> open{start};
    while (!open.empty()) {
        const Step *step = open.back();
        open.pop_back();
        if (!step || !reached.insert(step).second) continue;
        for (const Way way : {Way::Forward, Way::Back})
            open.push_back(target(script, *step, way));
    }
}

void findUnreached(const ScriptFile &script, Findings &findings)
{
    Steps reached;
    for (const auto &[tag, place] : reportedTags())
        follow(script, script.step(QString::number(tag)), reached);
    for (const Step &step : script.steps)
        if (!reached.contains(&step)) findings.push_back({step.line, u"nothing leads to section [%1]"_s.arg(step.tag)});
}

void findDeadEnds(const ScriptFile &script, Findings &findings)
{
    for (const Step &step : script.steps)
        if (!step.isEnd() && !step.next.moves())
            findings.push_back({step.next.line ? step.next.line : step.line,
                                u"[%1] is a dead end: it has no Next, and only 603 ends the tour"_s.arg(step.tag)});
}

// The steps that Next goes round in from there, if it comes into a round that has not been passed before.
std::vector<const Step *> roundFrom(const ScriptFile &script, const Step &start, Steps &passed)
{
    std::vector<const Step *> way;
    const Step *step = &start;
    while (step && !step->isEnd() && passed.insert(step).second) {
        way.push_back(step);
        step = target(script, *step, Way::Forward);
    }
    return {std::ranges::find(way, step), way.end()};
}

void findRounds(const ScriptFile &script, Findings &findings)
{
    Steps passed;
    for (const Step &step : script.steps) {
        const auto round = roundFrom(script, step, passed);
        if (round.empty()) continue;
        QStringList tags;
        for (const Step *each : round)
            tags << each->tag;
        tags << round.front()->tag;
        findings.push_back({round.front()->next.line, u"[%1] is in a loop without exit: Next goes %2"_s.arg(
                                                          round.front()->tag, tags.join(u" > "_s))});
    }
}
} // namespace

void findGraphFaults(const ScriptFile &script, bool byHand, Findings &findings)
{
    if (byHand) findMissing(script, findings);
    findUnreached(script, findings);
    findDeadEnds(script, findings);
    findRounds(script, findings);
}

} // namespace orvane::lint
