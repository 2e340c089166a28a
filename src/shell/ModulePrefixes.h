// What stands before the title in a module window's Tag. The manual's differs from its name in the menus.
#pragma once

#include <QString>

namespace orvane::prefix
{

inline QString Guide()
{
    return QStringLiteral("[Implementation Guide] - ");
}
inline QString Manual()
{
    return QStringLiteral("[Environmental Manual] - ");
}
inline QString Procedures()
{
    return QStringLiteral("[Management Procedures] - ");
}
inline QString Tools()
{
    return QStringLiteral("[Action Tools] - ");
}
inline QString Records()
{
    return QStringLiteral("[Records] - ");
}

} // namespace orvane::prefix
