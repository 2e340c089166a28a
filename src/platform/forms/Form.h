// A window: its life, its events, its place, and what others reach in it by name.
//
// Events come in the order that windows rely on: Load before anything is shown, Activate and Deactivate as the user
// goes from window to window, Resize whenever the inside changes and when the window is minimised or restored,
// QueryUnload (which may refuse) and Unload at the end. Loading is separate from showing. Left, Top, Width and Height
// are outside sizes, ScaleWidth and ScaleHeight inside ones, all in twips.
#pragma once

#include "platform/controls/Control.h"
#include "platform/forms/NameTable.h"

#include <QObject>
#include <QString>
#include <functional>
#include <vector>

class QCloseEvent;
class QEventLoop;
class QKeyEvent;

namespace orvane
{

enum WindowStates { Normal = 0, Minimized = 1, Maximized = 2 };
enum ShowModes { Modeless = 0, Modal = 1 };
enum UnloadModes { ByUser = 0, ByCode = 1 };
enum KeyCodes { KeyA = 65, KeyF1 = 112, KeyF6 = 117 };

class Form : public QObject, public Container
{
    Q_OBJECT

public:
    ~Form() override;

    QString Name() const { return objectName(); }
    QString Caption() const { return m_caption; }
    virtual void setCaption(const QString &caption);
    QString Tag() const { return m_tag; }
    void setTag(const QString &tag) { m_tag = tag; }

    // Sizing a maximised window is refused with error 384, a negative size with 380. A minimised one stays as it is.
    double Left() const;
    double Top() const;
    double Width() const;
    double Height() const;
    void setLeft(double twips);
    void setTop(double twips);
    void setWidth(double twips);
    void setHeight(double twips);
    double ScaleWidth() const;
    double ScaleHeight() const;

    // What bars at the edges of the surface leave to the other controls, in pixels of the surface. Controls are placed
    // from its corner.
    QRect inside() const;
    // Gives a bar its place at the upper or lower edge, behind those that came before it, in pixels of the surface. A
    // height of none gives the room back.
    QRect dock(const Control &bar, bool atFoot, int height);

    int WindowState() const;
    virtual void setWindowState(int state);
    bool Visible() const;
    void setVisible(bool visible); // as Show, modeless, and Hide
    void setBackColor(int colour); // blue, green, red
    int MousePointer() const { return m_mousePointer; }
    void setMousePointer(int pointer);

    void Load();
    bool Loaded() const { return m_loaded; }
    bool Unloaded() const { return m_gone; } // and waiting to be deleted
    virtual void Show(int mode = Modeless);  // loads first; modal: returns when the window is hidden or unloaded
    virtual void Hide();
    bool Unload(int mode = ByCode); // false where QueryUnload or Unload refused
    virtual void SetFocus();
    void Refresh(); // paints the inside anew, at once

    Control *ActiveControl() const; // the control that has the focus in this window, or nullptr
    Control *control(const QString &name) const;
    QWidget &focusRest();                  // takes the focus off all controls on show
    NameTable &names() { return m_names; } // handlers and controls by name

    QWidget &shell() const { return *m_shell; }
    QWidget &surface() override { return *m_surface; }
    Form &form() override { return *this; }

    void pin() { ++m_pins; } // an unloaded window is deleted when nothing of it is running any more
    void unpin();

    void adopt(Control &control);
    void release(Control &control);

protected:
    // The shell is the window itself, the surface its inside; the form owns the shell.
    Form(const QString &name, QWidget *shell, QWidget *surface);
    void setDesignSize(double scaleWidth, double scaleHeight);
    void setFixedDesignSize(double scaleWidth, double scaleHeight); // the user can't change it

    virtual void Form_Load() {}
    virtual void Form_Activate() {}
    virtual void Form_Deactivate() {}
    virtual void Form_Resize() {}
    virtual void Form_QueryUnload(bool &cancel, int mode);
    virtual void Form_Unload(bool &cancel);
    virtual void Form_KeyDown(int keyCode, int shift); // shift: 1 Shift, 2 Ctrl, 4 Alt
    virtual void Form_KeyPress(int keyAscii);
    virtual void Form_KeyUp(int keyCode, int shift);

    bool eventFilter(QObject *watched, QEvent *event) override;
    virtual void leave(); // hides the window for good, before it is forgotten

    virtual void activationChanged(bool active);
    virtual void applyState();
    void activated(); // once for each time that the window becomes the active one
    void deactivated();

private:
    struct DockedBar {
        const Control *bar;
        bool atFoot;
        int height; // pixels
    };

    int dockedHeight(bool atFoot) const;
    bool refusesUnload(int mode);
    void closeAsked(QCloseEvent &event);
    void stateChanged();
    void keyPressed(const QKeyEvent &event);
    void keyReleased(const QKeyEvent &event);
    void waitUntilHidden();

    QPointer<QWidget> m_shell;
    QPointer<QWidget> m_surface;
    QPointer<QWidget> m_focusRest;
    NameTable m_names;
    std::vector<Control *> m_controls;
    std::vector<DockedBar> m_dockedBars;
    QString m_caption;
    QString m_tag;
    double m_width = 0; // as set; the shell's own measures count as soon as they differ by a pixel
    double m_height = 0;
    double m_left = 0;
    double m_top = 0;
    int m_state = Normal; // what the window takes when it is shown next
    int m_lastState = Normal;
    int m_mousePointer = DefaultPointer;
    bool m_loaded = false;
    bool m_unloading = false;
    bool m_gone = false;
    int m_pins = 0;
    bool m_active = false;
    QEventLoop *m_modalLoop = nullptr;
};

// Keeps a window alive while one of its routines runs.
class FormPin
{
public:
    explicit FormPin(Form &form) : m_form(form) { m_form.pin(); }
    ~FormPin() { m_form.unpin(); }
    FormPin(const FormPin &) = delete;
    FormPin &operator=(const FormPin &) = delete;

private:
    Form &m_form;
};

} // namespace orvane
