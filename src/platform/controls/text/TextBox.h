// A box of plain text, of one line or of several.
#pragma once

#include "platform/controls/Control.h"

class QLineEdit;
class QPlainTextEdit;

namespace orvane
{

class TextBox : public Control
{
    Q_OBJECT

public:
    enum Lines { OneLine, ManyLines };

    TextBox(Container &parent, const QString &name, Lines lines = OneLine);

    QString Text() const; // lines end with CR LF, whatever line ends were put
    void setText(const QString &text);
    void setFont(const QString &family, double points, bool bold);
    void setColours(const QColor &ground, const QColor &text);
    void setLocked(bool locked); // read, select and copy only

signals:
    void Change();
    void KeyPress(int keyAscii); // a key that stands for a character, before it has its effect
    void KeyUp();                // any key
    void GotFocus();             // from another control
    void LostFocus();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    QLineEdit *m_line = nullptr; // one of the two
    QPlainTextEdit *m_lines = nullptr;
};

} // namespace orvane
