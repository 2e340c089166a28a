#include "TourLint.h"

#include "platform/system/File.h"

#include "ByteFaults.h"
#include "ChainFaults.h"
#include "GraphFaults.h"
#include "MoveFaults.h"
#include "ScriptFile.h"
#include "TextFaults.h"

#include <algorithm>

namespace orvane::lint
{

Findings lookThrough(const QString &fileName, Extent extent)
{
    const QByteArray bytes = readWholeFile(fileName);
    if (isUtf16(bytes)) return {{1, QStringLiteral("the file is in UTF-16 and not in code page 1252")}};
    Findings findings;
    findByteFaults(bytes, findings);
    const ScriptFile script = readScriptFile(fileName, findings);
    findTextFaults(script, findings);
    findMoveFaults(script, findings);
    findGraphFaults(script, extent == Extent::Whole, findings);
    findChainFaults(script, findings);
    std::ranges::stable_sort(findings, {}, &Finding::line);
    Findings once;
    for (const Finding &finding : findings)
        if (std::ranges::find(once, finding) == once.end()) once.push_back(finding);
    return once;
}

} // namespace orvane::lint
