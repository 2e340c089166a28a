#include "platform/controls/bars/ActiveBar.h"
#include "platform/controls/bars/BarMenu.h"

#include <QApplication>

namespace orvane
{

namespace
{
constexpr double AtTheMouse = -1;
} // namespace

Band::Band(ActiveBar &bar, const BandRow &row)
    : m_bar(bar), m_name(tableText(row.name)), m_caption(tableText(row.caption)), m_designWidth(row.width),
      m_designHeight(row.height), m_tools(bar, m_name)
{
    m_tools.m_tools.reserve(row.tools.size());
    for (const ToolRow &tool : row.tools)
        m_tools.m_tools.push_back(std::make_shared<Tool>(bar, tool));
}

bool Band::isFirst() const
{
    return m_bar.m_bands.front().get() == this;
}

void Band::setVisible(bool visible)
{
    m_visible = visible;
    if (!isFirst()) return;
    m_bar.setVisible(visible);
    m_bar.dock();
}

void Band::setDockingArea(int area)
{
    m_dockingArea = area;
    if (isFirst()) m_bar.dock();
}

void Band::PopupMenu(double x, double y)
{
    const bool atTheMouse = x == AtTheMouse && y == AtTheMouse;
    const DropPlace place = atTheMouse ? dropPlaceOfUser() : dropPlaceAt(QPoint(toPixels(x), toPixels(y)));
    QWidget *window = QApplication::activeWindow();
    const QPointer<ActiveBar> bar = &m_bar;
    const QPointer<BarMenu> menu = new BarMenu(m_bar, sourceOf(*this), window ? window : m_bar.widget().window());
    const auto chosen = menu->choose(place);
    delete menu; // its window may have gone meanwhile, and the bar with it
    if (bar && chosen) bar->press(*chosen);
}

} // namespace orvane
