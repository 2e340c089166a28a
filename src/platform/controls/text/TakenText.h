// What a rich-text control takes from the clipboard and from what is dragged: rich text before hypertext, hypertext
// before plain text.
#pragma once

#include <QStringList>

class QMimeData;
class QTextDocument;

namespace orvane
{

QStringList richTextFormats(); // the names under which programs hand out RTF

// What the data says that it has; nothing is fetched.
bool holdsRichText(const QMimeData &data); // RTF or hypertext
bool holdsPlainText(const QMimeData &data);

// Puts the text into an empty document, formatted as the reader of RTF would keep it; nothing that it names is loaded.
// False where there is none that can be read, and then plain text is to be taken.
bool readRichText(const QMimeData &data, QTextDocument &document);

// Without characters that stand for no text.
QString readPlainText(const QMimeData &data);

} // namespace orvane
