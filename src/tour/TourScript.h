// A move script: fields between "/". The first names the step to show afterwards, the second the verb.
#pragma once

#include <QString>

namespace orvane
{

class TourScript
{
public:
    explicit TourScript(const QString &text) : m_text(text) {}

    // Neither a step without a move nor a button that no step has reached yet.
    bool moves() const { return m_text != QStringLiteral("(none)") && !m_text.isEmpty(); }
    bool has(int index) const { return index <= m_text.count(u'/'); }
    QString field(int index) const; // from 0; error 9 where the script has too few
    QString lastCharacter() const { return m_text.right(1); }

private:
    QString m_text;
};

} // namespace orvane
