// Documents read from RTF, and what a test asks of them.
#pragma once

#include "platform/richtext/Rtf.h"

#include <QDebug>
#include <QFile>
#include <QTest>
#include <QTextBlock>
#include <QTextDocument>
#include <QTextFragment>

namespace orvane::test
{

// The header of the pages: font 0 is never used by text, 1 has the bullet, 2 is the text's; then red beside black.
inline const QString PageFonts = QStringLiteral(
    R"({\rtf1\ansi\ansicpg1252\deff0\deftab720{\fonttbl{\f0\fswiss MS Sans Serif;}{\f1\froman\fcharset2 Symbol;})"
    R"({\f2\froman\fprq2 Times New Roman;}})");
inline const QString PageColours = QStringLiteral(R"({\colortbl\red0\green0\blue0;\red255\green0\blue0;})");
inline const QString PageStart = QStringLiteral(R"(\deflang1033\pard)");

inline QString page(const QString &body)
{
    return PageFonts + PageColours + PageStart + body + QStringLiteral(R"(\par })");
}

inline QByteArray sampleBytes(const QString &name)
{
    QFile file(QStringLiteral(ORVANE_TEST_DATA "/rtf/") + name);
    return file.open(QFile::ReadOnly) ? file.readAll() : QByteArray();
}

struct RtfDocument : QTextDocument {
    explicit RtfDocument(const QString &rtf) { readRtf(rtf, *this); }

    QTextBlock block(int number) const { return findBlockByNumber(number); }
    QTextBlockFormat paragraph(int number) const { return block(number).blockFormat(); }

    // The look of the first place of this text.
    QTextCharFormat look(const QString &text) const
    {
        const QTextCursor found = find(text, 0, FindCaseSensitively);
        return found.isNull() ? QTextCharFormat() : found.charFormat();
    }

    int runs() const
    {
        int count = 0;
        for (QTextBlock at = begin(); at.isValid(); at = at.next())
            for (auto fragment = at.begin(); !fragment.atEnd(); ++fragment)
                ++count;
        return count;
    }
};

} // namespace orvane::test
