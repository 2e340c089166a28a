// The frame: a main window whose inside is the area of its child windows.
#pragma once

#include "platform/forms/Form.h"

#include <functional>
#include <vector>

class QLabel;
class QMainWindow;
class QMdiArea;
class QMdiSubWindow;

namespace orvane
{

class MDIChild;

class MDIForm : public Form
{
    Q_OBJECT

public:
    void Show(int mode = Modeless) override;

    // The child that is active among the children, whichever window of the program has the focus, or nullptr.
    MDIChild *ActiveForm() const { return m_active; }

    void setStatusText(const QString &text); // at the foot of the frame
    QMdiArea &area() const { return *m_area; }

protected:
    explicit MDIForm(const QString &name);

private:
    friend class MDIChild;

    MDIForm(const QString &name, QMainWindow *window, QMdiArea *area);
    void childActivated(MDIChild *child);
    void forget(MDIChild &child);
    // What the area makes of a change that the program itself asks for doesn't count: the frame says who is active.
    void withoutArea(const std::function<void()> &change);
    void childLeft(MDIChild &child, bool wasMaximized, QWidget *focusBefore);

    QMdiArea *m_area;
    QLabel *m_status;
    MDIChild *m_active = nullptr;
    std::vector<MDIChild *> m_history; // the last is the one that was active last
    int m_areaMuted = 0;
};

} // namespace orvane
