#include "platform/controls/SSScroll.h"

#include "platform/controls/Colour.h"
#include "platform/controls/ScrollView.h"
#include "platform/controls/Twips.h"

#include <QScrollBar>

namespace orvane
{

SSScroll::SSScroll(Container &parent, const QString &name)
    : Control(parent, name, new ScrollView), m_view(static_cast<ScrollView &>(widget()))
{
}

QWidget &SSScroll::surface()
{
    return m_view.area();
}

QWidget &SSScroll::voice() const
{
    return m_view;
}

void SSScroll::setScrollWidth(double twips)
{
    refuseNegative(twips);
    m_scrollWidth = twips;
    m_view.setAreaSize({toPixels(m_scrollWidth), toPixels(m_scrollHeight)});
}

void SSScroll::setScrollHeight(double twips)
{
    refuseNegative(twips);
    m_scrollHeight = twips;
    m_view.setAreaSize({toPixels(m_scrollWidth), toPixels(m_scrollHeight)});
}

double SSScroll::HorizontalPosition() const
{
    return toTwips(m_view.horizontalScrollBar()->value());
}

double SSScroll::VerticalPosition() const
{
    return toTwips(m_view.verticalScrollBar()->value());
}

void SSScroll::setHorizontalPosition(double twips)
{
    m_view.horizontalScrollBar()->setValue(toPixels(twips));
}

void SSScroll::setVerticalPosition(double twips)
{
    m_view.verticalScrollBar()->setValue(toPixels(twips));
}

void SSScroll::setSteps(double line, double page)
{
    for (QScrollBar *bar : {m_view.horizontalScrollBar(), m_view.verticalScrollBar()}) {
        bar->setSingleStep(toPixels(line));
        bar->setPageStep(toPixels(page));
    }
}

void SSScroll::setBackColor(int colour)
{
    QPalette palette = m_view.palette();
    palette.setColor(QPalette::Window, toColour(colour));
    m_view.viewport()->setPalette(palette);
    m_view.viewport()->setBackgroundRole(QPalette::Window);
    m_view.viewport()->setAutoFillBackground(true);
}

} // namespace orvane
