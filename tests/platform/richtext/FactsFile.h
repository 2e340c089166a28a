// What is known of a rich text as lines that can be read and kept: one for each run of a look, "item b. 24|text", a
// paragraph's first with "para" or "item", the others with "more"; then b for bold and i for italic, and the size in
// half points, 0 where it isn't told.
#pragma once

#include "platform/richtext/DocumentFacts.h"

namespace orvane::test
{

inline QString runHead(const Letter &letter)
{
    const QString kind = !letter.startsParagraph ? QStringLiteral("more")
                         : letter.item           ? QStringLiteral("item")
                                                 : QStringLiteral("para");
    return QStringLiteral("%1 %2%3 %4|")
        .arg(kind, letter.bold ? u"b" : u".", letter.italic ? u"i" : u".")
        .arg(letter.size);
}

inline QString toLines(const Letters &letters)
{
    QString lines;
    const Letter *before = nullptr;
    for (const Letter &letter : letters) {
        const bool goesOn = before && !letter.startsParagraph && letter.bold == before->bold &&
                            letter.italic == before->italic && letter.size == before->size;
        if (!goesOn) lines += (before ? QStringLiteral("\n") : QString()) + runHead(letter);
        if (letter.startsWord && !letter.startsParagraph) lines += u' ';
        lines += letter.letter;
        before = &letter;
    }
    return lines + u'\n';
}

inline Letters fromLines(const QString &lines)
{
    Letters letters;
    bool item = false;
    for (const QString &line : lines.split(u'\n', Qt::SkipEmptyParts)) {
        Letter letter;
        bool starts = !line.startsWith(u"more");
        if (starts) item = line.startsWith(u"item");
        letter.item = item;
        letter.bold = line.at(5) == u'b';
        letter.italic = line.at(6) == u'i';
        const qsizetype text = line.indexOf(u'|') + 1;
        letter.size = QStringView(line).sliced(8, text - 9).toInt();
        bool startsWord = starts;
        for (const QChar c : QStringView(line).sliced(text)) {
            startsWord = startsWord || c == u' ';
            if (c == u' ') continue;
            letter.letter = c;
            letter.startsWord = std::exchange(startsWord, false);
            letter.startsParagraph = std::exchange(starts, false);
            letters.append(letter);
        }
    }
    return letters;
}

} // namespace orvane::test
