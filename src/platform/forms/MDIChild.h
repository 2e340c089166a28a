// A document window inside the frame.
#pragma once

#include "platform/forms/MDIForm.h"

class QMdiSubWindow;

namespace orvane
{

class MDIChild : public Form
{
    Q_OBJECT

public:
    ~MDIChild() override;

    void setWindowState(int state) override; // a child on show that is maximised becomes the active one
    void Show(int mode = Modeless) override; // a child can't be modal: error 5
    void Hide() override;
    void SetFocus() override;

    QMdiSubWindow &subWindow() const { return *m_subWindow; }
    static MDIChild *of(const QMdiSubWindow &subWindow);

protected:
    MDIChild(MDIForm &frame, const QString &name);

    void activationChanged(bool) override {} // the frame tells which child is active
    void leave() override;

private:
    friend class MDIForm;

    MDIChild(MDIForm &frame, const QString &name, QMdiSubWindow *subWindow);

    QPointer<MDIForm> m_frame;
    QMdiSubWindow *m_subWindow;
};

} // namespace orvane
