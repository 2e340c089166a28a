// Cuts a text in RTF into groups, control words and characters. Each token takes at least one character of the text.
#pragma once

#include <QStringView>

namespace orvane
{

struct RtfToken {
    enum Kind { Open, Close, Word, Symbol, Byte, Text, End };

    Kind kind = End;
    QStringView text;      // Word: its name, at most 32 letters (empty for a longer one); Text: its characters
    int value = 0;         // Word: its number, clamped to 32 bits; Byte: 0 to 255
    bool hasValue = false; // Word: a number was there
    char16_t symbol = 0;   // Symbol: the character behind the backslash, or a raw tab
};

class RtfTokenizer
{
public:
    explicit RtfTokenizer(QStringView text) : m_at(text.begin()), m_end(text.end()) {}

    RtfToken next();

    // Goes behind the brace that closes the group that is open here, or to the end.
    void skipGroup();

private:
    RtfToken backslash();
    RtfToken word();
    RtfToken byte();
    RtfToken characters();
    int number();

    const QChar *m_at;
    const QChar *m_end;
};

// False for what never gets into a document: control characters, and what marks breaks, frames and objects inside one.
bool isRtfTextCharacter(char16_t character);

} // namespace orvane
