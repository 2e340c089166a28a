// The tags that reach the console, in order, from when this is made: of each, once its step is on show.
#pragma once

#include "tour/frmDemo.h"

#include <QStringList>

namespace orvane::test
{

class ReportedTags : public QObject
{
public:
    explicit ReportedTags(const frmDemo &console)
    {
        connect(&console.rtf, &RichTextBox::Change, this, [this, &console] { m_tags << console.Tag(); });
    }

    const QStringList &tags() const { return m_tags; }
    void clear() { m_tags.clear(); }

private:
    QStringList m_tags;
};

} // namespace orvane::test
