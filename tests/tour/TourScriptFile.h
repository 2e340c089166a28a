// A tour script as an author writes it, section by section.
#pragma once

#include <QByteArray>

namespace orvane::test
{

inline QByteArray section(const QByteArray &tag, const QByteArray &lines)
{
    return '[' + tag + "]\r\n" + lines;
}

inline QByteArray line(const QByteArray &key, const QByteArray &value)
{
    return key + '=' + value + "\r\n";
}

// A step with all its four keys.
inline QByteArray step(const QByteArray &tag, const QByteArray &next, const QByteArray &back = "(none)")
{
    return section(tag, line("Header", "Step " + tag) + line("RTF", "Text of " + tag) + line("NextRTF", next) +
                            line("PrevRTF", back));
}

} // namespace orvane::test
