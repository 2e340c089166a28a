// What is wrong in a script file, and in which of its lines.
#pragma once

#include <QString>

#include <vector>

namespace orvane::lint
{

struct Finding {
    int line; // from 1
    QString message;

    bool operator==(const Finding &) const = default;
};

using Findings = std::vector<Finding>;

} // namespace orvane::lint
