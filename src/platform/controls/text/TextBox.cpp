#include "platform/controls/text/TextBox.h"

#include "platform/controls/CaptionFont.h"

#include <QLineEdit>
#include <QPlainTextEdit>

namespace orvane
{

namespace
{
QWidget *newBox(TextBox::Lines lines)
{
    return lines == TextBox::OneLine ? static_cast<QWidget *>(new QLineEdit) : new QPlainTextEdit;
}
} // namespace

TextBox::TextBox(Container &parent, const QString &name, Lines lines)
    : Control(parent, name, newBox(lines)), m_line(qobject_cast<QLineEdit *>(&widget())),
      m_lines(qobject_cast<QPlainTextEdit *>(&widget()))
{
    if (m_line) connect(m_line, &QLineEdit::textChanged, this, &TextBox::Change);
    if (m_lines) {
        m_lines->setTabChangesFocus(true);
        connect(m_lines, &QPlainTextEdit::textChanged, this, &TextBox::Change);
    }
}

QString TextBox::Text() const
{
    if (m_line) return m_line->text();
    return m_lines->toPlainText().replace(u'\n', QStringLiteral("\r\n"));
}

void TextBox::setText(const QString &text)
{
    if (m_line)
        m_line->setText(text);
    else
        m_lines->setPlainText(text);
}

void TextBox::setFont(const QString &family, double points, bool bold)
{
    orvane::setFont(widget(), family, points, bold);
}

void TextBox::setColours(const QColor &ground, const QColor &text)
{
    QPalette palette = widget().palette();
    palette.setColor(QPalette::Base, ground);
    palette.setColor(QPalette::Text, text);
    widget().setPalette(palette);
}

void TextBox::setLocked(bool locked)
{
    if (m_line)
        m_line->setReadOnly(locked);
    else
        m_lines->setReadOnly(locked);
}

} // namespace orvane
