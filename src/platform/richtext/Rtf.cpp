#include "platform/richtext/Rtf.h"

#include "platform/richtext/RtfReader.h"
#include "platform/richtext/RtfWriter.h"
#include <QTextDocument>
#include <QTextDocumentFragment>
#include <algorithm>

namespace orvane
{

using namespace Qt::Literals::StringLiterals;

namespace
{

QStringView withoutLeadingBlanks(QStringView text)
{
    const auto *first = std::find_if_not(text.begin(), text.end(),
                                         [](QChar c) { return c == u' ' || c == u'\t' || c == u'\r' || c == u'\n'; });
    return text.sliced(first - text.begin());
}

// One paragraph a line. The format says all that a reader of RTF would say, so that the text written as RTF reads back
// the same.
void readPlainText(QString text, QTextDocument &document)
{
    text.replace("\r\n"_L1, "\n"_L1).replace(u'\r', u'\n').replace(QChar::ParagraphSeparator, u'\n');
    text.removeIf([](QChar c) { return c != u'\n' && c != u'\t' && !isRtfTextCharacter(c.unicode()); });
    const RtfCharacters characters = charactersOf(document.defaultFont());
    RtfBuilder builder(document);
    for (const QStringView line : QStringView(text).split(u'\n')) {
        if (!line.isEmpty()) builder.addText(line, characters);
        builder.endParagraph({}, characters);
        if (builder.isFull()) return;
    }
}

} // namespace

bool isRtf(QStringView text)
{
    constexpr QStringView opening = u"{\\rtf";
    const QStringView start = withoutLeadingBlanks(text).left(opening.size() + 1);
    return start.startsWith(opening) && (start.size() == opening.size() || !start.back().isLetter());
}

void readRtf(QStringView text, QTextDocument &document)
{
    const bool undo = document.isUndoRedoEnabled();
    document.setUndoRedoEnabled(false);
    QTextCursor cursor(&document);
    cursor.beginEditBlock();
    document.clear();
    if (isRtf(text))
        RtfReader(withoutLeadingBlanks(text), document).read();
    else
        readPlainText(text.toString(), document);
    cursor.endEditBlock();
    document.setUndoRedoEnabled(undo);
    document.setModified(false);
}

bool fitTogether(const QTextDocument &one, const QTextDocument &other)
{
    return heightOf(one) + heightOf(other) <= TallestWithPastes;
}

QString writeRtf(const QTextDocument &document)
{
    return RtfWriter().write(document);
}

QString writeRtf(const QTextCursor &selection)
{
    QTextDocument part;
    part.setUndoRedoEnabled(false);
    if (const QTextDocument *whole = selection.document()) {
        part.setDefaultFont(whole->defaultFont());
        part.setDefaultTextOption(whole->defaultTextOption());
    }
    QTextCursor(&part).insertFragment(selection.selection());
    return writeRtf(part);
}

} // namespace orvane
