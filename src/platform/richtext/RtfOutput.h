// RTF under construction: parts each control word from the text behind it by a blank, and knows how each character is
// written. The text grows on one line, in ASCII.
#pragma once

#include <QString>

namespace orvane
{

class RtfOutput
{
public:
    // Control words and groups, whole.
    void addCodes(const QString &codes);
    // Text of a document. Characters that no document of the reader's holds are left out.
    void addText(QStringView text);

    const QString &text() const { return m_text; }
    // Characters have been written by number, with nothing behind them for readers that don't know numbers: the
    // document has to say so.
    bool hasUnicode() const { return m_hasUnicode; }

private:
    void addPlain(QStringView plain);
    void addSpecial(char16_t character);
    void addUnicode(char16_t character);

    QString m_text;
    bool m_afterWord = false;
    bool m_hasUnicode = false;
};

} // namespace orvane
