// Takes hypertext apart into tags and the text between them. What isn't closed takes the rest of the text with it, so
// that the time is linear in the length.
#pragma once

#include <QList>
#include <QString>

namespace orvane
{

struct HtmlAttribute {
    QString name; // small letters
    QString value;
};

struct HtmlTag {
    QString name; // small letters; empty at the end of the text
    bool closing = false;
    bool closed = false; // "<br/>"
    QList<HtmlAttribute> attributes;
};

class HtmlTags
{
public:
    explicit HtmlTags(QStringView html) : m_rest(html) {}

    // The text up to the next tag as it stands, entities included; comments and declarations are left out.
    QString textBefore();
    HtmlTag tag();
    // Passes over the content of an element that holds no text for reading, its end included.
    void skipContent(const QString &name);

private:
    bool opens() const;
    QStringView take(qsizetype length);
    QStringView takeName();
    QString takeValue();

    QStringView m_rest;
};

} // namespace orvane
