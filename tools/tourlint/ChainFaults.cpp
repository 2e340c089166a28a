#include "ChainFaults.h"

#include "HandEntries.h"
#include "Move.h"
#include "MoveFaults.h"

#include <algorithm>
#include <map>
#include <set>
#include <utility>

using namespace Qt::Literals::StringLiterals;

namespace orvane::lint
{

namespace
{
struct Point {
    const Step *step;
    OpenWindows windows;
};

class Walk
{
public:
    Walk(const ScriptFile &script, Findings &findings) : m_script(script), m_findings(findings) {}

    // What goes wrong without ending the program is passed over from now on.
    void byHand(const QString &place) { m_place = place; }

    // The points from that one on, up to the end or to where this walk has been on that way.
    std::vector<Point> from(Point point, Way way);

private:
    Point after(const Point &point, Way way);
    void report(const Step &step, Way way, const MoveFault &fault);
    bool isNew(const Point &point, Way way);

    const ScriptFile &m_script;
    Findings &m_findings;
    std::map<std::pair<const Step *, Way>, std::vector<OpenWindows>> m_been;
    QString m_place;      // where a user has come in by hand; empty for the tour itself
    std::set<int> m_told; // lines: of what goes wrong in one, the first is told
};

void Walk::report(const Step &step, Way way, const MoveFault &fault)
{
    const int line = step.script(way).line;
    if (!m_place.isEmpty() && !fault.endsProgram) return;
    if (!m_told.insert(line).second) return;
    const QString place = m_place.isEmpty() ? QString() : u" (by hand from %1)"_s.arg(m_place);
    m_findings.push_back({line, u"[%1] %2: %3%4"_s.arg(step.tag, Step::key(way), fault.message, place)});
}

// The next step is null where there is none. A script with a fault of its own only changes the step.
Point Walk::after(const Point &point, Way way)
{
    const Value &value = point.step->script(way);
    Point next{nullptr, point.windows};
    const TourScript script(value.text);
    if (!script.moves() || point.step->isEnd()) return next;
    if (!verbFault(script, way)) {
        if (const auto fault = move(script, way, next.windows)) report(*point.step, way, *fault);
    }
    if (!next.windows.ended()) next.step = m_script.step(script.field(0));
    return next;
}

bool Walk::isNew(const Point &point, Way way)
{
    std::vector<OpenWindows> &been = m_been[{point.step, way}];
    if (std::ranges::find(been, point.windows) != been.end()) return false;
    been.push_back(point.windows);
    return true;
}

std::vector<Point> Walk::from(Point point, Way way)
{
    std::vector<Point> points;
    while (point.step && isNew(point, way)) {
        points.push_back(point);
        point = after(point, way);
    }
    return points;
}
} // namespace

// The first click in the console goes to 102 in place of Next.
void findChainFaults(const ScriptFile &script, Findings &findings)
{
    Walk walk(script, findings);
    for (const QString &first : {u"101"_s, u"102"_s})
        for (const Point &point : walk.from({script.step(first), {}}, Way::Forward))
            walk.from(point, Way::Back);
    for (const HandEntry &entry : handEntries()) {
        walk.byHand(entry.place);
        for (const Way way : {Way::Forward, Way::Back})
            walk.from({script.step(QString::number(entry.tag)), entry.windows}, way);
    }
}

} // namespace orvane::lint
