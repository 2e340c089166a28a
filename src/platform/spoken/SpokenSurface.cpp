#include "platform/spoken/SpokenSurface.h"

#include "platform/forms/FocusRest.h"
#include "platform/forms/FormSurface.h"
#include "platform/spoken/ReadingOrder.h"

#include <QAbstractButton>
#include <QApplication>
#include <QMenu>
#include <algorithm>

namespace orvane
{

namespace
{
// The menu that is open over the window itself. One of a bar or of a button is spoken of there.
QMenu *droppedMenu(const QWidget &surface)
{
    auto *menu = qobject_cast<QMenu *>(QApplication::activePopupWidget());
    while (menu && qobject_cast<QMenu *>(menu->parentWidget()))
        menu = static_cast<QMenu *>(menu->parentWidget());
    if (!menu || qobject_cast<QAbstractButton *>(menu->parentWidget())) return nullptr;
    const QWidget *focus = surface.window()->focusWidget();
    const bool isHere = focus && surface.isAncestorOf(focus) && menu->parentWidget()->window() == surface.window();
    return isHere && menu->menuAction()->associatedObjects().isEmpty() ? menu : nullptr;
}
} // namespace

SpokenSurface::SpokenSurface(FormSurface &surface)
    : QAccessibleWidget(&surface, surface.isWindow() ? QAccessible::Dialog : QAccessible::Client), m_surface(surface)
{
}

QString SpokenSurface::text(QAccessible::Text text) const
{
    const QString given = QAccessibleWidget::text(text);
    if (text != QAccessible::Name || !m_surface.isWindow() || !given.isEmpty()) return given;
    QStringList names;
    for (const QAccessibleInterface *child : children()) {
        const bool isRest = qobject_cast<const FocusRest *>(child->object()); // it bears the name of the window itself
        if (!isRest && !child->state().invisible) names << child->text(QAccessible::Name);
    }
    names.removeAll(QString());
    return names.join(u' ');
}

int SpokenSurface::childCount() const
{
    return static_cast<int>(children().size());
}

QAccessibleInterface *SpokenSurface::child(int index) const
{
    const auto all = children();
    return index >= 0 && index < std::ssize(all) ? all[static_cast<std::size_t>(index)] : nullptr;
}

int SpokenSurface::indexOfChild(const QAccessibleInterface *child) const
{
    const auto all = children();
    const auto found = std::ranges::find(all, child);
    return found == all.end() ? -1 : static_cast<int>(found - all.begin());
}

std::vector<QAccessibleInterface *> SpokenSurface::children() const
{
    std::vector<QAccessibleInterface *> found;
    std::vector<QRect> places;
    for (int i = 0; i < QAccessibleWidget::childCount(); ++i) {
        QAccessibleInterface *child = QAccessibleWidget::child(i);
        const auto *widget = child ? qobject_cast<QWidget *>(child->object()) : nullptr;
        if (!widget || !m_surface.shows(*widget)) continue;
        found.push_back(child);
        places.push_back(widget->geometry());
    }
    std::vector<QAccessibleInterface *> ordered;
    for (const std::size_t index : readingOrder(places))
        ordered.push_back(found[index]);
    if (QMenu *menu = droppedMenu(m_surface)) ordered.push_back(QAccessible::queryAccessibleInterface(menu));
    return ordered;
}

} // namespace orvane
