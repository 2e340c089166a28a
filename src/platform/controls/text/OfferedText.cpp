#include "platform/controls/text/OfferedText.h"

#include "platform/controls/text/TakenText.h"
#include "platform/richtext/Rtf.h"

#include <QTextCursor>
#include <QTextDocument>

namespace orvane
{

namespace
{
constexpr auto Html = "text/html";
constexpr auto PlainText = "text/plain";

// Other programs want to be told what a bullet looks like. No text of the document reads like the code.
QByteArray withBulletSign(QByteArray rtf)
{
    return rtf.replace("{\\*\\pn\\pnlvlblt}", "{\\*\\pn\\pnlvlblt{\\pntxtb\\'95}}");
}
} // namespace

OfferedText::OfferedText(const QTextCursor &selection)
    : m_piece(selection), m_font(selection.document()->defaultFont()),
      m_option(selection.document()->defaultTextOption())
{
}

QStringList OfferedText::formats() const
{
    return richTextFormats() + QStringList{QString::fromLatin1(Html), QString::fromLatin1(PlainText)};
}

QVariant OfferedText::retrieveData(const QString &format, QMetaType) const
{
    if (richTextFormats().contains(format)) return asRtf();
    if (format == QLatin1StringView(Html)) return m_piece.toHtml();
    if (format == QLatin1StringView(PlainText)) return m_piece.toPlainText();
    return {};
}

QByteArray OfferedText::asRtf() const
{
    QTextDocument document;
    document.setUndoRedoEnabled(false);
    document.setDefaultFont(m_font);
    document.setDefaultTextOption(m_option);
    QTextCursor(&document).insertFragment(m_piece);
    return withBulletSign(writeRtf(document).toLatin1());
}

} // namespace orvane
