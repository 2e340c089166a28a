// The text of one paragraph, cut into runs of one look each.
#pragma once

#include "platform/richtext/RtfFormats.h"
#include <vector>

namespace orvane
{

class RtfRuns
{
public:
    struct Run {
        qsizetype end;
        RtfCharacters characters;
    };

    // Text of the look that the text before has is no run of its own.
    void add(QStringView text, const RtfCharacters &characters);
    void truncate(qsizetype length);
    void clear();

    const QString &text() const { return m_text; }
    const std::vector<Run> &runs() const { return m_runs; }

private:
    qsizetype takeStretch(QStringView text);
    void limitTabs(qsizetype start);

    QString m_text;
    std::vector<Run> m_runs;
    int m_stretch = 0; // characters since the last blank
    qsizetype m_tabs = 0;
};

} // namespace orvane
