// What the chunks of a page say, read with nothing but the page's own few words: each paragraph's place and text, and
// the look of each of its characters.
#pragma once

#include "documents/PageText.h"

#include <QChar>
#include <QList>

namespace pagetext
{

struct Look {
    int size = 24; // half points
    bool bold = false;
    bool italic = false;
    bool underline = false;
    bool raised = false;
    bool red = false;

    bool operator==(const Look &) const = default;
};

struct Place {
    int left = 0; // twips
    int first = 0;
    QList<int> tabs;
    bool bullet = false;
    bool centred = false;
};

struct Paragraph {
    Place place;
    QString text;
    QList<Look> looks; // one for each character of the text
};

class ChunkReader
{
public:
    QList<Paragraph> read(const QString &page)
    {
        QList<Paragraph> all;
        for (const QString &chunk : paragraphs(page)) {
            m_paragraph = {};
            m_paragraph.place = m_place;
            readParagraph(chunk);
            all << m_paragraph;
        }
        return all;
    }

private:
    void readParagraph(const QString &chunk)
    {
        static const QRegularExpression token(
            uR"((?<pn>\{\\\*\\pn\\pnlvlblt.*?\}\})|\{\\pntext[^}]*\}|\\'(?<byte>[0-9a-f]{2}))"
            uR"(|\\(?<word>[a-z]+)(?<number>-?\d+)? ?|(?<text>.))"_s);
        for (auto found = token.globalMatch(chunk); found.hasNext();) {
            const QRegularExpressionMatch piece = found.next();
            if (piece.hasCaptured(u"pn"_s)) m_place.bullet = true;
            if (piece.hasCaptured(u"byte"_s)) take(fromByte(piece.captured(u"byte"_s)));
            if (piece.hasCaptured(u"word"_s)) obey(piece.captured(u"word"_s), piece.captured(u"number"_s).toInt());
            if (piece.hasCaptured(u"text"_s)) take(piece.captured(u"text"_s).front());
            m_paragraph.place = m_place;
        }
    }

    static QChar fromByte(const QString &byte)
    {
        static const QHash<QString, QChar> known{{u"85"_s, QChar(0x2026)}, {u"92"_s, QChar(0x2019)}};
        return known.value(byte, QChar(byte.toUShort(nullptr, 16)));
    }

    void take(QChar character)
    {
        m_paragraph.text += character;
        m_paragraph.looks << m_look;
    }

    void obey(const QString &word, int number)
    {
        if (word == u"pard") m_place = {};
        if (word == u"li") m_place.left = number;
        if (word == u"fi") m_place.first = number;
        if (word == u"tx") m_place.tabs << number;
        if (word == u"qc") m_place.centred = true;
        if (word == u"tab") take(u'\t');
        if (word == u"endash") take(QChar(0x2013));
        if (word == u"plain") m_look = {};
        if (word == u"fs") m_look.size = number;
        if (word == u"b") m_look.bold = true;
        if (word == u"i") m_look.italic = true;
        if (word == u"ul") m_look.underline = true;
        if (word == u"up") m_look.raised = number > 0;
        if (word == u"cf") m_look.red = number == 1;
    }

    Place m_place;
    Look m_look;
    Paragraph m_paragraph;
};

} // namespace pagetext
