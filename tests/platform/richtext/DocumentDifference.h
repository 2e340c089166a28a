// Tells whether two documents read the same: texts, paragraphs, bullets and the look of every run.
#pragma once

#include <QString>
#include <QTextBlock>
#include <QTextDocument>
#include <QTextFragment>
#include <QTextList>

namespace orvane::test
{

inline QTextBlockFormat withoutList(QTextBlockFormat format)
{
    format.clearProperty(QTextFormat::ObjectIndex);
    return format;
}

// Where two documents part, in words for a failed test; empty when they are the same.
inline QString difference(const QTextDocument &a, const QTextDocument &b)
{
    if (a.blockCount() != b.blockCount())
        return QStringLiteral("paragraphs: %1 and %2").arg(a.blockCount()).arg(b.blockCount());
    for (QTextBlock x = a.begin(), y = b.begin(); x.isValid(); x = x.next(), y = y.next()) {
        const QString place = QStringLiteral("paragraph %1: ").arg(x.blockNumber());
        if (x.text() != y.text()) return place + x.text() + QStringLiteral(" | ") + y.text();
        if (withoutList(x.blockFormat()) != withoutList(y.blockFormat())) return place + QStringLiteral("its format");
        if (bool(x.textList()) != bool(y.textList())) return place + QStringLiteral("its bullet");
        if (x.charFormat() != y.charFormat()) return place + QStringLiteral("its mark");
        auto i = x.begin();
        auto j = y.begin();
        for (; !i.atEnd() && !j.atEnd(); ++i, ++j) {
            if (i.fragment().text() != j.fragment().text())
                return place + QStringLiteral("runs at ") + i.fragment().text();
            if (i.fragment().charFormat() != j.fragment().charFormat())
                return place + QStringLiteral("look of ") + i.fragment().text();
        }
        if (i.atEnd() != j.atEnd()) return place + QStringLiteral("number of runs");
    }
    return {};
}

} // namespace orvane::test
