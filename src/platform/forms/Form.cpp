#include "platform/forms/Form.h"

#include "platform/controls/Colour.h"
#include "platform/controls/Twips.h"
#include "platform/forms/FocusRest.h"
#include "platform/forms/ShellGeometry.h"
#include "platform/forms/WindowList.h"
#include "platform/spoken/SpokenWidgets.h"
#include "platform/system/Guard.h"

#include <QApplication>
#include <QCloseEvent>
#include <QEventLoop>
#include <QKeyEvent>
#include <QPalette>
#include <QScopeGuard>
#include <algorithm>

namespace orvane
{

Form::Form(const QString &name, QWidget *shell, QWidget *surface) : m_shell(shell), m_surface(surface)
{
    speakOwnWidgets();
    setObjectName(name);
    shell->setObjectName(name);
    if (surface != shell) surface->setObjectName(name + QStringLiteral("Surface"));
    shell->installEventFilter(this);
    if (surface != shell) surface->installEventFilter(this);
}

Form::~Form()
{
    windowList().remove(*this);
    delete m_shell;
}

void Form::setDesignSize(double scaleWidth, double scaleHeight)
{
    m_shell->resize(toPixels(scaleWidth), toPixels(scaleHeight));
    m_width = scaleWidth;
    m_height = scaleHeight;
}

void Form::setFixedDesignSize(double scaleWidth, double scaleHeight)
{
    setDesignSize(scaleWidth, scaleHeight);
    m_shell->setFixedSize(m_shell->size());
}

void Form::setCaption(const QString &caption)
{
    m_caption = caption;
    m_shell->setWindowTitle(caption);
    m_surface->setAccessibleName(caption);
}

void Form::setBackColor(int colour)
{
    QPalette palette = m_surface->palette();
    palette.setColor(QPalette::Window, toColour(colour));
    m_surface->setPalette(palette);
    m_surface->setAutoFillBackground(true);
}

double Form::Left() const
{
    return asSet(m_left, m_shell->x());
}

double Form::Top() const
{
    return asSet(m_top, m_shell->y());
}

double Form::Width() const
{
    return asSet(m_width, m_shell->frameGeometry().width());
}

double Form::Height() const
{
    return asSet(m_height, m_shell->frameGeometry().height());
}

void Form::setLeft(double twips)
{
    refuseMaximized(WindowState());
    m_left = twips;
    m_shell->move(toPixels(twips), m_shell->y());
}

void Form::setTop(double twips)
{
    refuseMaximized(WindowState());
    m_top = twips;
    m_shell->move(m_shell->x(), toPixels(twips));
}

void Form::setWidth(double twips)
{
    refuseMaximized(WindowState());
    refuseNegative(twips);
    m_width = twips;
    if (WindowState() == Minimized) return;
    resizeOutside(*m_shell, toPixels(twips), m_shell->frameGeometry().height());
}

void Form::setHeight(double twips)
{
    refuseMaximized(WindowState());
    refuseNegative(twips);
    m_height = twips;
    if (WindowState() == Minimized) return;
    resizeOutside(*m_shell, m_shell->frameGeometry().width(), toPixels(twips));
}

double Form::ScaleWidth() const
{
    return toTwips(inside().width());
}

double Form::ScaleHeight() const
{
    return toTwips(inside().height());
}

int Form::dockedHeight(bool atFoot) const
{
    int height = 0;
    for (const DockedBar &docked : m_dockedBars)
        if (docked.atFoot == atFoot) height += docked.height;
    return height;
}

QRect Form::inside() const
{
    return m_surface->rect().adjusted(0, dockedHeight(false), 0, -dockedHeight(true));
}

QRect Form::dock(const Control &bar, bool atFoot, int height)
{
    const QRect before = inside();
    std::erase_if(m_dockedBars, [&](const DockedBar &docked) { return docked.bar == &bar; });
    const int taken = dockedHeight(atFoot);
    m_dockedBars.push_back({&bar, atFoot, height});
    if (inside() != before) {
        for (Control *control : m_controls)
            control->place();
        if (m_loaded) guarded([this] { Form_Resize(); });
    }
    const int top = atFoot ? m_surface->height() - taken - height : taken;
    return {0, top, m_surface->width(), height};
}

int Form::WindowState() const
{
    if (!Visible()) return m_state;
    if (m_shell->isMinimized()) return Minimized;
    return m_shell->isMaximized() ? Maximized : Normal;
}

void Form::setWindowState(int state)
{
    m_state = state;
    if (Visible()) applyState();
}

void Form::applyState()
{
    if (m_shell->isVisible() && WindowState() == m_state) return;
    switch (m_state) {
    case Minimized:
        m_shell->showMinimized();
        break;
    case Maximized:
        m_shell->showMaximized();
        break;
    default:
        m_shell->showNormal();
        break;
    }
}

bool Form::Visible() const
{
    return m_shell && !m_shell->isHidden();
}

void Form::setVisible(bool visible)
{
    if (visible)
        Show();
    else
        Hide();
}

void Form::setMousePointer(int pointer)
{
    m_shell->setCursor(pointerShape(pointer));
    m_mousePointer = pointer;
}

void Form::unpin()
{
    if (--m_pins == 0 && m_gone) deleteLater();
}

void Form::Load()
{
    if (m_loaded) return;
    const FormPin pin(*this);
    m_loaded = true;
    windowList().add(*this);
    try {
        Form_Load();
    } catch (...) {
        m_loaded = false;
        windowList().remove(*this);
        throw;
    }
}

void Form::Show(int mode)
{
    const FormPin pin(*this);
    Load();
    if (m_shell->isVisible()) {
        m_shell->raise();
    } else {
        m_shell->setWindowModality(mode == Modal ? Qt::ApplicationModal : Qt::NonModal);
        applyState();
        if (m_shell->isWindow()) settle(*m_shell, m_state == Maximized);
    }
    if (!m_shell->testAttribute(Qt::WA_ShowWithoutActivating)) {
        m_shell->activateWindow();
        activated();
    }
    if (mode == Modal && Visible()) waitUntilHidden();
}

void Form::waitUntilHidden()
{
    QEventLoop loop;
    m_modalLoop = &loop;
    loop.exec();
    m_modalLoop = nullptr;
}

void Form::Hide()
{
    if (!m_shell) return;
    if (Visible()) m_state = WindowState();
    m_shell->hide();
    m_active = false;
    if (m_modalLoop) m_modalLoop->quit();
}

bool Form::refusesUnload(int mode)
{
    m_unloading = true;
    const auto done = qScopeGuard([this] { m_unloading = false; }); // a handler may fail
    bool cancel = false;
    Form_QueryUnload(cancel, mode);
    if (!cancel) Form_Unload(cancel);
    return cancel;
}

bool Form::Unload(int mode)
{
    if (!m_loaded || m_unloading) return true;
    const FormPin pin(*this);
    if (refusesUnload(mode)) return false;
    m_loaded = false;
    windowList().remove(*this);
    m_gone = true;
    leave();
    return true;
}

void Form::leave()
{
    Hide();
}

void Form::SetFocus()
{
    m_shell->raise();
    m_shell->activateWindow();
    activated();
}

void Form::Refresh()
{
    m_surface->repaint();
}

Control *Form::ActiveControl() const
{
    return Control::of(m_shell->focusWidget());
}

Control *Form::control(const QString &name) const
{
    const auto found = std::find_if(m_controls.begin(), m_controls.end(),
                                    [&](const Control *control) { return control->Name() == name; });
    return found == m_controls.end() ? nullptr : *found;
}

QWidget &Form::focusRest()
{
    if (!m_focusRest) {
        m_focusRest = new FocusRest(*m_surface);
        m_focusRest->setAccessibleName(m_caption);
    }
    return *m_focusRest;
}

void Form::adopt(Control &control)
{
    m_controls.push_back(&control);
}

void Form::release(Control &control)
{
    std::erase(m_controls, &control);
    std::erase_if(m_dockedBars, [&](const DockedBar &docked) { return docked.bar == &control; });
}

void Form::Form_QueryUnload(bool &, int) {}

void Form::Form_Unload(bool &) {}

void Form::Form_KeyDown(int, int) {}

void Form::Form_KeyPress(int) {}

void Form::Form_KeyUp(int, int) {}

void Form::activated()
{
    if (m_active || !m_loaded) return;
    m_active = true;
    Form_Activate();
}

void Form::deactivated()
{
    if (!m_active || !m_loaded) return;
    m_active = false;
    Form_Deactivate();
}

} // namespace orvane
