#include "platform/forms/MDIForm.h"

#include "platform/controls/pictures/ProgramMark.h"
#include "platform/forms/MDIChild.h"
#include "platform/system/Guard.h"

#include <QLabel>
#include <QMainWindow>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QStatusBar>
#include <algorithm>

namespace orvane
{

MDIForm::MDIForm(const QString &name) : MDIForm(name, new QMainWindow, new QMdiArea) {}

MDIForm::MDIForm(const QString &name, QMainWindow *window, QMdiArea *area)
    : Form(name, window, area->viewport()), m_area(area), m_status(new QLabel)
{
    area->setObjectName(name + QStringLiteral("Area"));
    area->setAccessibleName(QStringLiteral("Open windows"));
    area->setFrameShape(QFrame::NoFrame);
    area->setActivationOrder(QMdiArea::ActivationHistoryOrder);
    area->setBackground(window->palette().brush(QPalette::Mid));
    window->setCentralWidget(area);
    m_status->setObjectName(QStringLiteral("status"));
    window->statusBar()->setAccessibleName(QStringLiteral("Status"));
    window->statusBar()->setSizeGripEnabled(false);
    window->statusBar()->addWidget(m_status, 1);
    connect(area, &QMdiArea::subWindowActivated, this, [this](QMdiSubWindow *sub) {
        MDIChild *child = sub ? MDIChild::of(*sub) : nullptr;
        if (child && m_areaMuted == 0) guarded([&] { childActivated(child); });
    });
}

// Nobody sees the sign before, and reading its sizes takes time.
void MDIForm::Show(int mode)
{
    if (!shell().testAttribute(Qt::WA_SetWindowIcon)) shell().setWindowIcon(programMark());
    Form::Show(mode);
}

void MDIForm::setStatusText(const QString &text)
{
    m_status->setText(text);
}

void MDIForm::childActivated(MDIChild *child)
{
    if (child == m_active || !child->Loaded() || !child->Visible()) return;
    MDIChild *before = m_active;
    m_active = child;
    std::erase(m_history, child);
    m_history.push_back(child);
    if (before && before->Loaded()) before->deactivated();
    if (m_active == child) child->activated();
}

void MDIForm::withoutArea(const std::function<void()> &change)
{
    ++m_areaMuted;
    change();
    --m_areaMuted;
}

void MDIForm::forget(MDIChild &child)
{
    std::erase(m_history, &child);
    if (m_active == &child) m_active = nullptr;
}

// When a child goes the area makes a choice of its own, leaves nothing maximised and takes the focus along.
void MDIForm::childLeft(MDIChild &child, bool wasMaximized, QWidget *focusBefore)
{
    const bool wasActive = m_active == &child;
    forget(child);
    if (wasActive && !m_history.empty()) {
        MDIChild *successor = m_history.back();
        if (wasMaximized && successor->WindowState() == Normal) successor->setWindowState(Maximized);
        successor->SetFocus();
    } else if (m_active) {
        withoutArea([this] { m_area->setActiveSubWindow(&m_active->subWindow()); });
        if (focusBefore) focusBefore->setFocus();
    }
}

} // namespace orvane
