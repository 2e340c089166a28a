#include "platform/controls/text/TextBox.h"

#include "platform/controls/CaptionFont.h"
#include "platform/controls/text/DocumentText.h"

#include <QKeyEvent>
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

// A change of windows or an open menu leaves the focus where it is.
bool isMoveOfFocus(const QEvent &event)
{
    const Qt::FocusReason reason = static_cast<const QFocusEvent &>(event).reason();
    return reason != Qt::ActiveWindowFocusReason && reason != Qt::PopupFocusReason;
}
} // namespace

TextBox::TextBox(Container &parent, const QString &name, Lines lines)
    : Control(parent, name, newBox(lines)), m_line(qobject_cast<QLineEdit *>(&widget())),
      m_lines(qobject_cast<QPlainTextEdit *>(&widget()))
{
    widget().installEventFilter(this);
    if (m_line) connect(m_line, &QLineEdit::textChanged, this, &TextBox::Change);
    if (m_lines) {
        m_lines->setTabChangesFocus(true);
        connect(m_lines, &QPlainTextEdit::textChanged, this, &TextBox::Change);
    }
}

bool TextBox::eventFilter(QObject *watched, QEvent *event)
{
    if (watched != &widget()) return Control::eventFilter(watched, event);
    const auto keyOf = [event] { return static_cast<const QKeyEvent *>(event); };
    switch (event->type()) {
    case QEvent::KeyPress:
        if (!keyOf()->text().isEmpty()) emit KeyPress(keyOf()->text().front().unicode());
        break;
    case QEvent::KeyRelease:
        emit KeyUp();
        break;
    case QEvent::FocusIn:
        if (isMoveOfFocus(*event)) emit GotFocus();
        break;
    case QEvent::FocusOut:
        if (isMoveOfFocus(*event)) emit LostFocus();
        break;
    default:
        break;
    }
    return false;
}

QString TextBox::Text() const
{
    if (m_line) return m_line->text();
    return textOf(*m_lines->document()).replace(u'\n', QStringLiteral("\r\n"));
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
