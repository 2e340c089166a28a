#include "platform/controls/SSPanel.h"

#include "platform/controls/CaptionFont.h"
#include "platform/controls/PanelWidget.h"

namespace orvane
{

SSPanel::SSPanel(Container &parent, const QString &name, Look look)
    : Control(parent, name, new PanelWidget(look)), m_panel(static_cast<PanelWidget &>(widget()))
{
}

QString SSPanel::Caption() const
{
    return m_panel.caption();
}

void SSPanel::setCaption(const QString &caption)
{
    m_panel.setCaption(caption);
    speak();
}

void SSPanel::setFont(const QString &family, double points, bool bold)
{
    orvane::setFont(m_panel, family, points, bold);
}

} // namespace orvane
