// The character and paragraph formats of a rich-text control's selection.

#include "platform/controls/text/RichEdit.h"
#include "platform/controls/text/RichTextBox.h"
#include "platform/system/RunTimeError.h"

namespace orvane
{

bool RichTextBox::SelBold() const
{
    return m_edit.fontWeight() >= QFont::Bold;
}

void RichTextBox::setSelBold(bool bold)
{
    m_edit.setFontWeight(bold ? QFont::Bold : QFont::Normal);
}

bool RichTextBox::SelItalic() const
{
    return m_edit.fontItalic();
}

void RichTextBox::setSelItalic(bool italic)
{
    m_edit.setFontItalic(italic);
}

bool RichTextBox::SelUnderline() const
{
    return m_edit.fontUnderline();
}

void RichTextBox::setSelUnderline(bool underline)
{
    m_edit.setFontUnderline(underline);
}

int RichTextBox::SelAlignment() const
{
    const Qt::Alignment alignment = m_edit.alignment();
    if (alignment & Qt::AlignHCenter) return AlignCenter;
    return alignment & Qt::AlignRight ? AlignRight : AlignLeft;
}

void RichTextBox::setSelAlignment(int alignment)
{
    switch (alignment) {
    case AlignLeft:
        m_edit.setAlignment(Qt::AlignLeft);
        break;
    case AlignRight:
        m_edit.setAlignment(Qt::AlignRight);
        break;
    case AlignCenter:
        m_edit.setAlignment(Qt::AlignHCenter);
        break;
    default:
        throw RunTimeError(InvalidPropertyValue, QStringLiteral("There is no alignment of that number."));
    }
}

QString RichTextBox::SelFontName() const
{
    return m_edit.fontFamily();
}

void RichTextBox::setSelFontName(const QString &family)
{
    m_edit.setFontFamily(family);
}

double RichTextBox::SelFontSize() const
{
    return m_edit.fontPointSize();
}

void RichTextBox::setSelFontSize(double points)
{
    if (points <= 0) throw RunTimeError(InvalidPropertyValue, QStringLiteral("A font's size is more than 0 points."));
    m_edit.setFontPointSize(points);
}

} // namespace orvane
