// Shows and edits a rich text. Text and SelStart count the same characters: a paragraph break is one.
#pragma once

#include "platform/controls/Control.h"

class QTextEdit;

namespace orvane
{

class RichEdit;

enum SelAlignments { AlignLeft = 0, AlignRight = 1, AlignCenter = 2 };

class RichTextBox : public Control
{
    Q_OBJECT

public:
    RichTextBox(Container &parent, const QString &name);

    // Putting replaces the whole document and sets the caret to its start; there is nothing to undo then. A text that
    // isn't rich text is shown as plain text.
    QString TextRTF() const;
    void setTextRTF(const QString &rtf);
    void setSelRTF(const QString &rtf); // in the place of the selection; the caret comes behind it; nothing to undo
    QString Text() const;
    void setText(const QString &text);

    int SelStart() const; // characters before the selection, or before the caret
    void setSelStart(int position);
    int SelLength() const;
    void setSelLength(int length);

    // Of the selection, or of what is typed next.
    bool SelBold() const;
    void setSelBold(bool bold);
    bool SelItalic() const;
    void setSelItalic(bool italic);
    bool SelUnderline() const;
    void setSelUnderline(bool underline);
    int SelAlignment() const; // one of SelAlignments
    void setSelAlignment(int alignment);
    QString SelFontName() const;
    void setSelFontName(const QString &family);
    double SelFontSize() const; // points
    void setSelFontSize(double points);

    double RightMargin() const { return m_rightMargin; } // twips at which lines break, 0 for the control's own edge
    void setRightMargin(double twips);                   // a negative one is refused with error 380
    bool Locked() const { return m_locked; }
    void setLocked(bool locked);                                   // read, select and copy only
    void setFont(const QString &family, double points, bool bold); // of plain text
    void setGround(const QColor &ground, int margin);              // colour and pixels round the text
    void setOneLine();                                             // no scroll bars, wrapping or second paragraph

signals:
    void Click();
    void SelChange();
    void Change();
    void MouseUp(int button, int shift, float x, float y); // 1 left, 2 right, 4 middle; twips
    void MouseMove(int button, int shift, float x, float y);

protected:
    QWidget &voice() const override;
    QWidget &focusTarget() const override { return widget(); }

    void tellOfEditsOnly() { m_tellsOfPuts = false; } // no Change for a text that the program puts
    virtual bool barsEditing() const { return m_locked; }
    void applyLock(); // after a change of what barsEditing() says

private:
    RichEdit &m_edit;
    bool m_locked = false;
    bool m_tellsOfPuts = true;
    bool m_putting = false;
    double m_rightMargin = 0;
};

} // namespace orvane
