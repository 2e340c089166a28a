#include "platform/controls/ScrollView.h"

#include "platform/controls/Palette.h"

#include <QChildEvent>
#include <QKeyEvent>
#include <QScrollBar>

namespace orvane
{

namespace
{
// The frame tells who has the keys.
void colourFrame(QWidget &view, const QColor &colour)
{
    QPalette palette = view.palette();
    palette.setColor(QPalette::WindowText, colour);
    view.setPalette(palette);
}
} // namespace

ScrollView::ScrollView() : m_area(new QWidget(viewport()))
{
    setFrameStyle(QFrame::Box | QFrame::Plain);
    colourFrame(*this, palette::Line);
    setFocusPolicy(Qt::StrongFocus);
    m_area->installEventFilter(this);
}

void ScrollView::setAreaSize(const QSize &size)
{
    m_size = size;
    layOut();
}

bool ScrollView::eventFilter(QObject *watched, QEvent *event)
{
    watchWidgets(watched, *event);
    return QAbstractScrollArea::eventFilter(watched, event);
}

void ScrollView::watchWidgets(QObject *watched, const QEvent &event)
{
    switch (event.type()) {
    case QEvent::ChildAdded:
        if (watched == m_area) static_cast<const QChildEvent &>(event).child()->installEventFilter(this);
        break;
    case QEvent::Move:
    case QEvent::Resize:
    case QEvent::ShowToParent:
    case QEvent::HideToParent:
        if (watched->parent() == m_area) layOut();
        break;
    default:
        break;
    }
}

QSize ScrollView::reach() const
{
    QSize size = m_size;
    for (const QObject *child : m_area->children()) {
        const auto *widget = qobject_cast<const QWidget *>(child);
        if (!widget || widget->isHidden()) continue;
        const QRect place = widget->geometry();
        size = size.expandedTo({place.x() + place.width(), place.y() + place.height()});
    }
    return size;
}

void ScrollView::layOut()
{
    const QSize reached = reach();
    const QSize room = viewport()->size();
    horizontalScrollBar()->setRange(0, std::max(0, reached.width() - room.width()));
    verticalScrollBar()->setRange(0, std::max(0, reached.height() - room.height()));
    m_area->resize(reached.expandedTo(viewport()->size()));
    placeArea();
}

void ScrollView::placeArea()
{
    m_area->move(-horizontalScrollBar()->value(), -verticalScrollBar()->value());
}

void ScrollView::resizeEvent(QResizeEvent *event)
{
    QAbstractScrollArea::resizeEvent(event);
    layOut();
}

void ScrollView::scrollContentsBy(int, int)
{
    placeArea();
}

void ScrollView::keyPressEvent(QKeyEvent *event)
{
    const bool home = event->key() == Qt::Key_Home;
    if (!home && event->key() != Qt::Key_End) {
        QAbstractScrollArea::keyPressEvent(event);
        return;
    }
    const auto go = [home](QScrollBar &bar) { bar.setValue(home ? bar.minimum() : bar.maximum()); };
    go(*horizontalScrollBar());
    if (event->modifiers() & Qt::ControlModifier) go(*verticalScrollBar());
}

void ScrollView::focusInEvent(QFocusEvent *event)
{
    QAbstractScrollArea::focusInEvent(event);
    colourFrame(*this, palette::Teal);
}

void ScrollView::focusOutEvent(QFocusEvent *event)
{
    QAbstractScrollArea::focusOutEvent(event);
    colourFrame(*this, palette::Line);
}

} // namespace orvane
