// A piece of a document as other programs take it: rich text, hypertext and plain text, each written when it is asked
// for.
#pragma once

#include <QFont>
#include <QMimeData>
#include <QTextDocumentFragment>
#include <QTextOption>

class QTextCursor;

namespace orvane
{

class OfferedText : public QMimeData
{
    Q_OBJECT

public:
    // Keeps the selection as it is now.
    explicit OfferedText(const QTextCursor &selection);

    QStringList formats() const override;

protected:
    QVariant retrieveData(const QString &format, QMetaType type) const override;

private:
    QByteArray asRtf() const;

    QTextDocumentFragment m_piece;
    QFont m_font; // of the document, for what the piece leaves open
    QTextOption m_option;
};

} // namespace orvane
