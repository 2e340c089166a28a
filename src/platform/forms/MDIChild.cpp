#include "platform/forms/MDIChild.h"

#include "platform/forms/MDIForm.h"
#include "platform/system/RunTimeError.h"

#include <QMdiArea>
#include <QMdiSubWindow>
#include <QMenu>
#include <QVariant>

namespace orvane
{

namespace
{
const char ChildProperty[] = "orvaneChild";

QWidget *newSurface(QMdiSubWindow &subWindow)
{
    auto *surface = new QWidget;
    surface->setAutoFillBackground(true);
    subWindow.setWidget(surface);
    return surface;
}
} // namespace

MDIChild::MDIChild(MDIForm &frame, const QString &name) : MDIChild(frame, name, new QMdiSubWindow) {}

MDIChild::MDIChild(MDIForm &frame, const QString &name, QMdiSubWindow *subWindow)
    : Form(name, subWindow, newSurface(*subWindow)), m_frame(frame), m_subWindow(subWindow)
{
    subWindow->setProperty(ChildProperty, QVariant::fromValue(static_cast<QObject *>(this)));
    subWindow->setAttribute(Qt::WA_DeleteOnClose, false);
    frame.area().addSubWindow(subWindow);
    subWindow->hide();
}

MDIChild::~MDIChild() = default;

MDIChild *MDIChild::of(const QMdiSubWindow &subWindow)
{
    return qobject_cast<MDIChild *>(subWindow.property(ChildProperty).value<QObject *>());
}

void MDIChild::Show(int mode)
{
    if (mode == Modal)
        throw RunTimeError(InvalidProcedureCall, QStringLiteral("A window inside the frame can't be shown modal."));
    Load();
    if (!Visible()) applyState();
    SetFocus();
}

void MDIChild::setWindowState(int state)
{
    Form::setWindowState(state);
    if (state == Maximized && Visible()) m_frame.childActivated(this);
}

void MDIChild::Hide()
{
    const bool wasMaximized = Visible() && WindowState() == Maximized;
    m_frame.m_choosing = true;
    Form::Hide();
    m_frame.m_choosing = false;
    m_frame.childLeft(*this, wasMaximized);
}

void MDIChild::leave()
{
    Hide();
    m_frame.area().removeSubWindow(m_subWindow);
}

void MDIChild::SetFocus()
{
    m_frame.area().setActiveSubWindow(m_subWindow);
    m_frame.childActivated(this);
}

} // namespace orvane
