// What every control of a window has: a name, a place in twips, a state, texts for the eye and for the ear.
//
// Lengths are kept exactly as they were set and shown rounded to the pixel. A control speaks its caption, or else its
// tool tip, or else the purpose it was given (setPurpose).
#pragma once

#include "platform/controls/MousePointer.h"
#include "platform/controls/Twips.h"

#include <QObject>
#include <QPointer>
#include <QString>
#include <QWidget>

namespace orvane
{

class Form;

// Where controls can be placed: a window's client area, a panel, a frame, a picture box.
class Container
{
public:
    virtual ~Container() = default;
    virtual QWidget &surface() = 0;
    virtual Form &form() = 0;
};

// A control can cling to its container: to the foot of it in its own height, or all over it.
enum Alignments { NotAligned = 0, AlignedBottom = 2, AlignedAllOver = 5 };

class Control : public QObject
{
    Q_OBJECT

public:
    ~Control() override;

    QString Name() const { return objectName(); }
    Form &form() const { return m_form; }

    double Left() const { return m_left; }
    double Top() const { return m_top; }
    double Width() const { return m_width; }
    double Height() const { return m_height; }
    void setLeft(double twips);
    void setTop(double twips);
    void setWidth(double twips); // a negative width or height is refused with error 380
    void setHeight(double twips);
    void Move(double left, double top, double width, double height);

    void setAlign(Alignments align);

    // The control's own flag, whether or not its container is on show.
    bool Visible() const;
    void setVisible(bool visible);
    bool Enabled() const;
    void setEnabled(bool enabled);

    QString Tag() const { return m_tag; }
    void setTag(const QString &tag) { m_tag = tag; }
    virtual QString Caption() const { return {}; }
    QString ToolTipText() const;
    void setToolTipText(const QString &text);
    void setPurpose(const QString &purpose);

    int MousePointer() const { return m_mousePointer; }
    void setMousePointer(int pointer); // one of MousePointers

    void SetFocus();
    void setTabAfter(const Control &before); // Tab comes here from that control of the window
    void Refresh();
    void ZOrderBack(); // behind the other controls of its container

    QWidget &widget() const { return *m_widget; }
    QWidget &mouseTarget() const { return voice(); } // the widget under the mouse

    // The control that shows this widget or holds it, or nullptr.
    static Control *of(QWidget *widget);

protected:
    // Takes the widget over and names it; the widget becomes a child of the container's surface.
    Control(Container &parent, const QString &name, QWidget *widget);

    void speak();
    bool eventFilter(QObject *watched, QEvent *event) override;

    // The widget that has focus, cursor and a spoken name where it isn't the outer one.
    virtual QWidget &voice() const { return *m_widget; }
    virtual QWidget &focusTarget() const { return voice(); }

    virtual void moved() {} // the control was given another place

private:
    friend class Form; // places its controls anew when its inside moves

    QRect room() const; // of its container, in that one's pixels
    void put();
    void place();
    void cling();

    Form &m_form;
    QPointer<QWidget> m_widget;
    QString m_tag;
    QString m_purpose;
    double m_left = 0;
    double m_top = 0;
    double m_width = 0;
    double m_height = 0;
    int m_mousePointer = DefaultPointer;
    Alignments m_align = NotAligned;
};

} // namespace orvane
