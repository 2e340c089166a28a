// What can be said of any rich text, whichever program tells it: its letters one by one, with their look and the
// paragraph that they are in. Blanks have no look, so they only part words.
//
// Marks before the text of a list's item are no words, whether the program keeps them as a list or types them. A row of
// a table is one paragraph. Empty paragraphs aren't counted.
#pragma once

#include <QList>
#include <QRegularExpression>
#include <QTextBlock>
#include <QTextDocument>
#include <QTextList>
#include <QTextTable>
#include <cmath>

namespace orvane::test
{

struct Letter {
    QChar letter;
    bool startsWord = false;
    bool startsParagraph = false;
    bool item = false; // the paragraph is a bulleted one
    bool bold = false;
    bool italic = false;
    int size = 0; // half points; 0: not told
};

using Letters = QList<Letter>;

// The typed mark of an item, with what parts it from the text. Numbers are marks as well, but make no bullet.
inline const QRegularExpression TypedMark(QStringLiteral("^\\s*([\u2022\u25E6\u25AA\u25CF\u00B7\u2013-]|\\d+[.)])\\s+"),
                                          QRegularExpression::UseUnicodePropertiesOption);

inline bool isBulletMark(const QRegularExpressionMatch &mark)
{
    return mark.hasMatch() && !mark.captured(1).front().isDigit();
}

inline bool isInBulletList(const QTextBlock &block)
{
    const QTextList *list = block.textList();
    return list && list->format().style() >= QTextListFormat::ListSquare;
}

// In a row of a table, and behind its first cell.
inline bool continuesRow(const QTextDocument &document, const QTextBlock &block)
{
    const QTextTable *table = QTextCursor(document.findBlock(block.position())).currentTable();
    if (!table) return false;
    const QTextTableCell cell = table->cellAt(block.position());
    return cell.column() > 0 && cell.firstCursorPosition().block() == block;
}

inline Letter looksLike(const QTextCharFormat &format)
{
    Letter letter;
    letter.bold = format.fontWeight() >= QFont::DemiBold;
    letter.italic = format.fontItalic();
    if (format.hasProperty(QTextFormat::FontPointSize)) letter.size = int(std::lround(format.fontPointSize() * 2));
    return letter;
}

inline void addLetters(Letters &letters, const QTextBlock &block, bool startsParagraph)
{
    const QRegularExpressionMatch mark = TypedMark.match(block.text());
    const int textStart = block.position() + int(mark.capturedLength());
    const bool item = isInBulletList(block) || isBulletMark(mark);
    bool startsWord = true;
    for (auto at = block.begin(); !at.atEnd(); ++at) {
        const QTextFragment fragment = at.fragment();
        Letter letter = looksLike(fragment.charFormat());
        for (int i = 0; i < fragment.length(); ++i) {
            letter.letter = fragment.text().at(i);
            const bool blank = letter.letter.isSpace();
            startsWord = startsWord || blank;
            if (blank || letter.letter == QChar::SoftHyphen || fragment.position() + i < textStart) continue;
            letter.item = item;
            letter.startsWord = std::exchange(startsWord, false);
            letter.startsParagraph = std::exchange(startsParagraph, false);
            letters.append(letter);
        }
    }
}

inline Letters lettersOf(const QTextDocument &document)
{
    Letters letters;
    for (QTextBlock block = document.begin(); block.isValid(); block = block.next())
        addLetters(letters, block, !continuesRow(document, block));
    return letters;
}

inline QStringList wordsOf(const Letters &letters)
{
    QStringList words;
    for (const Letter &letter : letters) {
        if (letter.startsWord) words.append(QString());
        words.last() += letter.letter;
    }
    return words;
}

// The words of a plain text, which has marks of items, rules round tables, and a mark of its encoding.
inline QStringList wordsOfPlainText(QString text)
{
    static const QRegularExpression rule(QStringLiteral("^-{2,}$"));
    static const QRegularExpression blanks(QStringLiteral("\\s+"), QRegularExpression::UseUnicodePropertiesOption);
    QStringList words;
    text.remove(QChar(0xFEFF)).remove(QChar::SoftHyphen);
    for (QString line : text.split(u'\n'))
        words += line.remove(TypedMark).split(blanks, Qt::SkipEmptyParts);
    words.removeIf([](const QString &word) { return rule.match(word).hasMatch(); });
    return words;
}

} // namespace orvane::test
