#include "platform/controls/text/RichTextBox.h"

#include "platform/controls/text/DocumentText.h"
#include "platform/controls/text/RichEdit.h"
#include "platform/richtext/Rtf.h"
#include "platform/system/RunTimeError.h"

#include <QFrame>
#include <QScopedValueRollback>
#include <QTextBlock>
#include <QTextDocument>
#include <algorithm>

namespace orvane
{

RichTextBox::RichTextBox(Container &parent, const QString &name)
    : Control(parent, name, new RichEdit), m_edit(static_cast<RichEdit &>(widget()))
{
    const auto inTwips = [](double pixels) { return static_cast<float>(pixels * TwipsPerPixel); };
    connect(&m_edit, &RichEdit::pressed, this, &RichTextBox::Click);
    connect(&m_edit, &QTextEdit::cursorPositionChanged, this, &RichTextBox::SelChange);
    connect(&m_edit, &QTextEdit::selectionChanged, this, &RichTextBox::SelChange);
    connect(&m_edit, &QTextEdit::textChanged, this, [this] {
        if (m_tellsOfPuts || !m_putting) emit Change();
    });
    connect(&m_edit, &RichEdit::released, this, [this, inTwips](int button, int shift, const QPointF &place) {
        emit MouseUp(button, shift, inTwips(place.x()), inTwips(place.y()));
    });
    connect(&m_edit, &RichEdit::moved, this, [this, inTwips](int button, int shift, const QPointF &place) {
        emit MouseMove(button, shift, inTwips(place.x()), inTwips(place.y()));
    });
}

QWidget &RichTextBox::voice() const
{
    return *m_edit.viewport();
}

QString RichTextBox::TextRTF() const
{
    return writeRtf(*m_edit.document());
}

void RichTextBox::setTextRTF(const QString &rtf)
{
    const QScopedValueRollback putting(m_putting, true);
    readRtf(rtf, *m_edit.document());
    m_edit.moveCursor(QTextCursor::Start);
}

void RichTextBox::setSelRTF(const QString &rtf)
{
    const QScopedValueRollback putting(m_putting, true);
    QTextDocument piece;
    piece.setDefaultFont(m_edit.document()->defaultFont());
    readRtf(rtf, piece);
    m_edit.insertPiece(piece);
    m_edit.document()->clearUndoRedoStacks();
}

QString RichTextBox::Text() const
{
    return textOf(*m_edit.document());
}

void RichTextBox::setText(const QString &text)
{
    const QScopedValueRollback putting(m_putting, true);
    m_edit.setPlainText(text);
    m_edit.moveCursor(QTextCursor::Start);
}

int RichTextBox::SelStart() const
{
    return m_edit.textCursor().selectionStart();
}

void RichTextBox::setSelStart(int position)
{
    QTextCursor cursor = m_edit.textCursor();
    cursor.setPosition(std::clamp(position, 0, m_edit.document()->characterCount() - 1));
    m_edit.setTextCursor(cursor);
}

int RichTextBox::SelLength() const
{
    const QTextCursor cursor = m_edit.textCursor();
    return cursor.selectionEnd() - cursor.selectionStart();
}

void RichTextBox::setSelLength(int length)
{
    QTextCursor cursor = m_edit.textCursor();
    const int start = cursor.selectionStart();
    cursor.setPosition(start);
    cursor.setPosition(std::clamp(start + length, start, m_edit.document()->characterCount() - 1),
                       QTextCursor::KeepAnchor);
    m_edit.setTextCursor(cursor);
}

void RichTextBox::setRightMargin(double twips)
{
    if (twips < 0) throw RunTimeError(InvalidPropertyValue, QStringLiteral("A right margin can't be negative."));
    m_rightMargin = twips;
    m_edit.setWrapWidth(toPixels(twips));
}

void RichTextBox::setLocked(bool locked)
{
    m_locked = locked;
    applyLock();
}

void RichTextBox::applyLock()
{
    m_edit.setReadOnly(barsEditing());
    // Reading by keyboard needs the caret too.
    if (barsEditing()) m_edit.setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
}

void RichTextBox::setGround(const QColor &ground, int margin)
{
    QPalette palette = m_edit.palette();
    palette.setColor(QPalette::Base, ground);
    m_edit.setPalette(palette);
    m_edit.document()->setDocumentMargin(margin);
}

void RichTextBox::setOneLine()
{
    m_edit.setOneLine();
}

void RichTextBox::setFont(const QString &family, double points, bool bold)
{
    QFont font(family);
    font.setPointSizeF(points);
    font.setBold(bold);
    m_edit.document()->setDefaultFont(font);
    m_edit.setFont(font);
}

} // namespace orvane
