// The fonts and colours that a document numbers. Numbers come from the file: they are looked up, never used as an
// index.
#pragma once

#include "platform/richtext/RtfCodePage.h"
#include <QHash>
#include <QRgb>
#include <QString>

namespace orvane
{

struct RtfFont {
    QString family; // empty: the document's default font
    int codePage = WesternCodePage;
};

class RtfFontTable
{
public:
    void setDefaultNumber(int number) { m_defaultNumber = number; }
    void setDocumentCodePage(int codePage) { m_documentCodePage = codePage; }

    // The pieces of one entry, in the order of the file. The next entry ends one that is still open.
    void beginEntry(int number);
    void setCharset(int charset);
    void addText(QStringView text);
    void endEntry(); // none is open: nothing happens

    int entryCodePage() const { return m_entry.codePage; }
    RtfFont font(int number) const;
    RtfFont defaultFont() const { return font(m_defaultNumber); }

private:
    static constexpr qsizetype MostFonts = 1024;
    static constexpr qsizetype LongestName = 100;

    QHash<int, RtfFont> m_fonts;
    RtfFont m_entry;
    bool m_entryOpen = false;
    int m_entryNumber = 0;
    int m_defaultNumber = 0;
    int m_documentCodePage = WesternCodePage;
};

class RtfColourTable
{
public:
    void setRed(int value);
    void setGreen(int value);
    void setBlue(int value);
    void addText(QStringView text); // each semicolon ends an entry

    // 0 for an entry that names no colour, or that isn't there.
    QRgb colour(int number) const { return m_colours.value(number, 0); }

private:
    static constexpr qsizetype MostColours = 1024;

    QHash<int, QRgb> m_colours;
    int m_number = 0;
    QRgb m_entry = 0;
};

} // namespace orvane
