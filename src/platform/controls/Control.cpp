#include "platform/controls/Control.h"

#include "platform/controls/Twips.h"
#include "platform/forms/Form.h"

#include <QAbstractScrollArea>
#include <QEvent>
#include <QScrollBar>
#include <QVariant>
#include <algorithm>

namespace orvane
{

namespace
{
const char ControlProperty[] = "orvaneControl";
} // namespace

Control::Control(Container &parent, const QString &name, QWidget *widget) : m_form(parent.form()), m_widget(widget)
{
    setObjectName(name);
    widget->setObjectName(name);
    widget->setParent(&parent.surface());
    widget->setProperty(ControlProperty, QVariant::fromValue(static_cast<QObject *>(this)));
    m_form.adopt(*this);
}

Control::~Control()
{
    m_form.release(*this);
    delete m_widget;
}

Control *Control::of(QWidget *widget)
{
    for (; widget; widget = widget->parentWidget())
        if (auto *control = qobject_cast<Control *>(widget->property(ControlProperty).value<QObject *>()))
            return control;
    return nullptr;
}

void Control::setLeft(double twips)
{
    m_left = twips;
    put();
}

void Control::setTop(double twips)
{
    m_top = twips;
    put();
}

void Control::setWidth(double twips)
{
    refuseNegative(twips);
    m_width = twips;
    put();
}

void Control::setHeight(double twips)
{
    refuseNegative(twips);
    m_height = twips;
    put();
}

void Control::Move(double left, double top, double width, double height)
{
    refuseNegative(width);
    refuseNegative(height);
    m_left = left;
    m_top = top;
    m_width = width;
    m_height = height;
    put();
}

void Control::put()
{
    place();
    moved();
}

QRect Control::room() const
{
    QWidget *container = m_widget->parentWidget();
    return container == &m_form.surface() ? m_form.inside() : container->rect();
}

void Control::place()
{
    if (m_align != NotAligned) cling();
    const QPoint corner = room().topLeft();
    m_widget->setGeometry(corner.x() + toPixels(m_left), corner.y() + toPixels(m_top), toPixels(m_width),
                          toPixels(m_height));
}

void Control::setAlign(Alignments align)
{
    m_align = align;
    if (align == NotAligned) return;
    m_widget->parentWidget()->installEventFilter(this);
    put();
}

// A control that clings has no place of its own but its height at the foot.
void Control::cling()
{
    const double roomHeight = toTwips(room().height());
    if (m_align == AlignedAllOver) m_height = std::max(0.0, roomHeight); // bars may leave less than nothing
    m_left = 0;
    m_top = m_align == AlignedBottom ? roomHeight - m_height : 0;
    m_width = toTwips(room().width());
}

bool Control::eventFilter(QObject *watched, QEvent *event)
{
    if (m_align != NotAligned && event->type() == QEvent::Resize && watched == m_widget->parentWidget()) put();
    return false;
}

bool Control::Visible() const
{
    return !m_widget->isHidden();
}

void Control::setVisible(bool visible)
{
    m_widget->setVisible(visible);
}

bool Control::Enabled() const
{
    return m_widget->isEnabledTo(m_widget->parentWidget());
}

void Control::setEnabled(bool enabled)
{
    m_widget->setEnabled(enabled);
}

QString Control::ToolTipText() const
{
    return m_widget->toolTip();
}

void Control::setToolTipText(const QString &text)
{
    m_widget->setToolTip(text);
    speak();
}

void Control::setPurpose(const QString &purpose)
{
    m_purpose = purpose;
    speak();
}

void Control::speak()
{
    QString name = Caption().remove(u'&').trimmed();
    if (name.isEmpty()) name = ToolTipText();
    if (name.isEmpty()) name = m_purpose;
    voice().setAccessibleName(name);
    m_widget->setAccessibleName(name);
    const auto *area = qobject_cast<const QAbstractScrollArea *>(m_widget);
    if (!area || name.isEmpty()) return;
    area->verticalScrollBar()->setAccessibleName(name + QStringLiteral(", up and down"));
    area->horizontalScrollBar()->setAccessibleName(name + QStringLiteral(", left and right"));
}

void Control::setMousePointer(int pointer)
{
    voice().setCursor(pointerShape(pointer));
    m_mousePointer = pointer;
}

// A control that isn't on show takes the focus off the others all the same.
void Control::SetFocus()
{
    QWidget &target = m_widget->isVisibleTo(&m_form.surface()) ? focusTarget() : m_form.focusRest();
    target.setFocus(Qt::OtherFocusReason);
}

void Control::setTabAfter(const Control &before)
{
    QWidget::setTabOrder(&before.focusTarget(), &focusTarget());
}

void Control::Refresh()
{
    m_widget->repaint();
}

void Control::ZOrderBack()
{
    m_widget->lower();
}

} // namespace orvane
