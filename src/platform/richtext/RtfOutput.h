// RTF under construction: knows when a blank has to part a control word from the text behind it, and how each character
// is written. The text grows on one line, in ASCII.
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

private:
    void addPlain(QStringView plain);
    void addSpecial(char16_t character);

    QString m_text;
    bool m_afterWord = false;
};

} // namespace orvane
