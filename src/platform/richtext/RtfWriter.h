// Writes a document as RTF: each paragraph and run only says what differs from what is in force.
#pragma once

#include "platform/richtext/RtfFormats.h"
#include "platform/richtext/RtfOutput.h"
#include <QStringList>

class QTextDocument;

namespace orvane
{

class RtfWriter
{
public:
    QString write(const QTextDocument &document);

private:
    QString header(double defaultTab) const;
    RtfOutput fontTable() const;
    void writeBlock(const QTextBlock &block);
    void writeText(const QString &text);
    void writeParagraph(const RtfParagraph &wanted);
    void writeCharacters(const RtfCharacters &wanted);
    QString characterCodes(const RtfCharacters &from, const RtfCharacters &to);
    int fontNumber(const QString &family);
    int colourNumber(QRgb colour);

    RtfOutput m_body;
    RtfParagraph m_paragraph;
    RtfCharacters m_characters;
    RtfCharacters m_defaults; // of the document, for what a format leaves open
    QStringList m_families;
    QList<QRgb> m_colours;
    bool m_bullets = false; // there are such paragraphs
};

} // namespace orvane
