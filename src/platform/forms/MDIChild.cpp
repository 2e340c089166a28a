#include "platform/forms/MDIChild.h"

#include "platform/forms/FormSurface.h"
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
    auto *surface = new FormSurface;
    surface->setAutoFillBackground(true);
    subWindow.setWidget(surface);
    return surface;
}
} // namespace

MDIChild::MDIChild(MDIForm &frame, const QString &name) : MDIChild(frame, name, new QMdiSubWindow) {}

MDIChild::MDIChild(MDIForm &frame, const QString &name, QMdiSubWindow *subWindow)
    : Form(name, subWindow, newSurface(*subWindow)), m_frame(&frame), m_subWindow(subWindow)
{
    subWindow->setProperty(ChildProperty, QVariant::fromValue(static_cast<QObject *>(this)));
    subWindow->setAttribute(Qt::WA_DeleteOnClose, false);
    frame.area().addSubWindow(subWindow);
    subWindow->hide();
}

MDIChild::~MDIChild()
{
    if (m_frame) m_frame->forget(*this);
}

MDIChild *MDIChild::of(const QMdiSubWindow &subWindow)
{
    return qobject_cast<MDIChild *>(subWindow.property(ChildProperty).value<QObject *>());
}

void MDIChild::Show(int mode)
{
    if (mode == Modal)
        throw RunTimeError(InvalidProcedureCall, QStringLiteral("A window inside the frame can't be shown modal."));
    Load();
    if (!Visible()) m_frame->withoutArea([this] { applyState(); });
    SetFocus();
}

void MDIChild::setWindowState(int state)
{
    const bool restored = state == Normal && Visible() && WindowState() == Minimized;
    // A restored child stays normal, also where the one before it was maximised.
    m_frame->area().setOption(QMdiArea::DontMaximizeSubWindowOnActivation, restored);
    m_frame->withoutArea([&] { Form::setWindowState(state); });
    if (restored) SetFocus();
    m_frame->area().setOption(QMdiArea::DontMaximizeSubWindowOnActivation, false);
    if (state == Maximized && Visible()) m_frame->childActivated(this);
}

void MDIChild::Hide()
{
    const bool wasMaximized = Visible() && WindowState() == Maximized;
    const QPointer<QWidget> focus = m_frame->shell().focusWidget();
    m_frame->withoutArea([this] { Form::Hide(); });
    m_frame->childLeft(*this, wasMaximized, focus);
}

void MDIChild::leave()
{
    Hide();
    const QPointer<QWidget> focus = m_frame->shell().focusWidget();
    m_frame->withoutArea([this] { m_frame->area().removeSubWindow(m_subWindow); });
    m_frame->childLeft(*this, false, focus);
}

void MDIChild::SetFocus()
{
    m_frame->withoutArea([this] {
        m_frame->area().setActiveSubWindow(m_subWindow);
        // The frame gives the focus back to where it was when it becomes the active window again.
        const QWidget *focus = m_frame->shell().focusWidget();
        if (!focus || !m_subWindow->isAncestorOf(focus)) m_subWindow->setFocus();
    });
    m_frame->childActivated(this);
}

} // namespace orvane
