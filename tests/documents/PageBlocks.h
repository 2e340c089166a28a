// A page as the rich-text reader understands it: its paragraphs, their place and the runs that they are made of.
#pragma once

#include "platform/richtext/Rtf.h"

#include <QList>
#include <QRegularExpression>
#include <QStringList>
#include <QTextBlock>
#include <QTextDocument>
#include <QTextList>

namespace pageblocks
{

using namespace Qt::Literals::StringLiterals;

struct Run {
    QString text;
    QString family;
    int size = 0; // half points
    bool bold = false;
    bool italic = false;
    bool underline = false;

    bool operator==(const Run &) const = default;
};

struct Block {
    QString text;
    QList<Run> runs;
    int left = 0; // twips
    bool bullet = false;

    bool operator==(const Block &) const = default;
};

inline Run runOf(const QTextFragment &fragment)
{
    const QTextCharFormat format = fragment.charFormat();
    return {fragment.text(),
            format.fontFamilies().toStringList().join(u','),
            qRound(format.fontPointSize() * 2),
            format.fontWeight() >= QFont::Bold,
            format.fontItalic(),
            format.fontUnderline()};
}

inline QList<Block> blocks(const QString &rtf)
{
    QTextDocument document;
    orvane::readRtf(rtf, document);
    QList<Block> all;
    for (QTextBlock from = document.begin(); from.isValid(); from = from.next()) {
        Block block;
        block.text = from.text();
        block.left = qRound(from.blockFormat().leftMargin() * 15);
        block.bullet = from.textList() != nullptr;
        for (auto part = from.begin(); !part.atEnd(); ++part)
            block.runs << runOf(part.fragment());
        all << block;
    }
    return all;
}

// One sign for what a paragraph is: "." empty, "text", "bold" a bold line, "bullet" with its hang in twips, and the
// bold lines of other sizes as "28" or, in italics, "28i".
inline QString kind(const Block &block)
{
    if (block.bullet) return (block.text.isEmpty() ? u"hollow"_s : u"bullet"_s) + QString::number(block.left);
    if (block.text.isEmpty()) return u"."_s;
    const Run &first = block.runs.first();
    if (block.runs.size() > 1 || !first.bold) return u"text"_s;
    if (first.size == 24) return u"bold"_s;
    return QString::number(first.size) + (first.italic ? u"i"_s : QString());
}

// The kinds one behind the other, equal neighbors counted: "28 . text . text 5*bullet283".
inline QString shape(const QString &rtf)
{
    QStringList kinds;
    int count = 0;
    QString last;
    const auto close = [&] {
        if (count > 0) kinds << (count > 1 ? QString::number(count) + u'*' + last : last);
    };
    for (const Block &block : blocks(rtf)) {
        const QString now = kind(block);
        if (now != last) {
            close();
            count = 0;
        }
        last = now;
        ++count;
    }
    close();
    return kinds.join(u' ');
}

// The texts of all paragraphs of a kind.
inline QStringList ofKind(const QString &rtf, const QString &wanted)
{
    QStringList found;
    for (const Block &block : blocks(rtf))
        if (kind(block) == wanted) found << block.text;
    return found;
}

// The bold words that stand among plain ones, and lines that are bold from end to end.
inline QStringList boldWords(const QString &rtf)
{
    QStringList found;
    for (const Block &block : blocks(rtf))
        for (const Run &run : block.runs)
            if (run.bold && run.size == 24) found << run.text;
    return found;
}

inline QStringList sentences(const QString &paragraph)
{
    static const QRegularExpression gap(u"(?<=[.!?]) +"_s);
    return paragraph.split(gap, Qt::SkipEmptyParts);
}

inline QStringList allSentences(const QString &rtf)
{
    QStringList all;
    for (const Block &block : blocks(rtf))
        all << sentences(block.text);
    return all;
}

} // namespace pageblocks
