// Reads one document in RTF: takes token by token, keeps the formatting of the open groups, and hands text to a
// builder.
#pragma once

#include "platform/richtext/RtfBuilder.h"
#include "platform/richtext/RtfGroup.h"
#include "platform/richtext/RtfTables.h"
#include "platform/richtext/RtfTokenizer.h"

namespace orvane
{

class RtfReader
{
public:
    // The text begins with "{\rtf". The document must be empty, and inside an edit block until read() is over.
    RtfReader(QStringView text, QTextDocument &document);

    void read();

private:
    // Groups that lie deeper are left out whole.
    static constexpr size_t MostGroups = 512;

    void take(const RtfToken &token);
    bool skips(RtfToken &token);
    void openGroup();
    void closeGroup();
    void leaveGroup();
    void skipRestOfGroup();
    void takeLabel(const RtfGroup &label);

    void takeSymbol(char16_t symbol);
    void takeText(QStringView text);
    void takeBodyText(QStringView text);
    void takeByte(int byte);
    void takeCharacter(char16_t character);
    void takeCodePoint(int value);

    void takeWord(const RtfToken &token);
    void enterDestination(RtfWord word);
    void enterBulletDefinition();
    void applyToBody(const RtfKeyword &keyword, const RtfToken &token);
    void applyToFonts(RtfWord word, int value);
    void applyToColours(RtfWord word, int value);
    void applyToDocument(RtfWord word, int value);
    void useFont(const RtfFont &font);
    void resetCharacters();
    void endParagraph();
    void breakPage();
    RtfParagraph labelledParagraph();

    RtfTokenizer m_tokenizer;
    RtfBuilder m_builder;
    RtfFontTable m_fonts;
    RtfColourTable m_colours;
    std::vector<RtfGroup> m_outer; // the groups around the current one
    RtfGroup m_group;
    QString m_documentFamily;
    QString m_label;            // of the list's item that is begun, as far as it has come
    bool m_labelBullet = false; // it is a bullet, of the paragraph under way
    int m_skip = 0;             // characters still to be left out behind a "\u"
    bool m_groupStart = false;  // nothing but "\*" has come since the group was opened
    bool m_starred = false;     // "\*" has come: the group is to be left out if its word isn't known
    bool m_header = true;       // no text has come, and no word that text would have before it
    bool m_over = false;
};

} // namespace orvane
