#include "platform/controls/text/TextBox.h"

#include "platform/controls/CaptionFont.h"
#include "platform/controls/text/DocumentText.h"

#include <QApplication>
#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMenuBar>
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
bool isMoveOfFocus(Qt::FocusReason reason)
{
    return reason != Qt::ActiveWindowFocusReason && reason != Qt::PopupFocusReason && reason != Qt::MenuBarFocusReason;
}

QString lentFocus()
{
    return QStringLiteral("lentFocus");
}

// A menu bar that is worked by keys has the focus in the box's place, until it gives it back or a click moves it.
void lendFocus(TextBox &box)
{
    auto *lent = new QObject(&box.widget());
    lent->setObjectName(lentFocus());
    QObject::connect(qApp, &QApplication::focusChanged, lent, [&box, lent](const QWidget *, const QWidget *now) {
        if (!now || now->window() != box.widget().window() || qobject_cast<const QMenuBar *>(now)) return;
        TextBox &loser = box; // what is captured goes with the connection
        delete lent;
        emit loser.LostFocus();
    });
}

bool takeFocusBack(const QWidget &widget)
{
    const QObject *lent = widget.findChild<QObject *>(lentFocus(), Qt::FindDirectChildrenOnly);
    if (!lent) return false;
    delete lent;
    return true;
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
    const auto reasonOf = [event] { return static_cast<const QFocusEvent *>(event)->reason(); };
    switch (event->type()) {
    case QEvent::KeyPress:
        if (!keyOf()->text().isEmpty()) emit KeyPress(keyOf()->text().front().unicode());
        break;
    case QEvent::InputMethod:
        for (const QChar character : static_cast<const QInputMethodEvent *>(event)->commitString())
            emit KeyPress(character.unicode());
        break;
    case QEvent::KeyRelease:
        emit KeyUp();
        break;
    case QEvent::FocusIn:
        if (!takeFocusBack(widget()) && isMoveOfFocus(reasonOf())) emit GotFocus();
        break;
    case QEvent::FocusOut:
        if (reasonOf() == Qt::MenuBarFocusReason) lendFocus(*this);
        if (isMoveOfFocus(reasonOf())) emit LostFocus();
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
