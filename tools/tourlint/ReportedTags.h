// The tags that a user's own press reports, besides 0, 6 and 900, and where each comes from first.
#pragma once

#include <QString>

#include <map>

namespace orvane::lint
{

std::map<int, QString> reportedTags();

} // namespace orvane::lint
