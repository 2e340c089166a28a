#include "platform/forms/FormSurface.h"

#include "platform/forms/FocusRest.h"

namespace orvane
{

bool FormSurface::shows(const QWidget &widget) const
{
    const QRect place(widget.mapTo(this, QPoint()), widget.size());
    return rect().intersects(place) || qobject_cast<const FocusRest *>(&widget);
}

bool FormSurface::focusNextPrevChild(bool next)
{
    const QWidget *first = nullptr;
    while (QWidget::focusNextPrevChild(next)) {
        const QWidget *reached = focusWidget();
        if (!isWindow() || !reached || shows(*reached) || reached == first) return true;
        if (!first) first = reached;
    }
    return false;
}

} // namespace orvane
