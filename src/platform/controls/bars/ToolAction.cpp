#include "platform/controls/bars/ToolAction.h"

#include "platform/controls/bars/ActiveBar.h"
#include "platform/controls/bars/BarLooks.h"
#include "platform/controls/bars/ToolField.h"

namespace orvane
{

ToolAction::ToolAction(ActiveBar &bar, const std::shared_ptr<Tool> &tool, QObject *parent)
    : QWidgetAction(parent), m_bar(&bar), m_tool(tool)
{
    setObjectName(tool->Name());
    setIcon(toolIcon(*tool));
    connect(this, &QAction::hovered, &bar, [this] {
        if (const auto pointed = this->tool()) m_bar->hover(pointed->Description());
    });
}

std::shared_ptr<Tool> ToolAction::pressable() const
{
    const auto pressed = tool();
    return pressed && pressed->Flyout().isEmpty() ? pressed : nullptr;
}

void ToolAction::follow()
{
    const auto followed = tool();
    if (!followed) return;
    const QString caption = shownCaption(*followed);
    setText(caption.isEmpty() ? spokenName(*followed) : caption);
    setToolTip(followed->ToolTipText());
    setEnabled(followed->Enabled());
    setCheckable(followed->Checked()); // only what is checked is spoken of as a thing to check
    setChecked(followed->Checked());
    for (QWidget *field : createdWidgets())
        static_cast<ToolField *>(field)->follow(*followed, true);
}

QWidget *ToolAction::createWidget(QWidget *parent)
{
    const auto followed = tool();
    if (!followed || !followed->isField()) return nullptr;
    auto *field = new ToolField(*m_bar, followed, parent);
    field->follow(*followed, true);
    connect(field, &ToolField::chosen, this, &QAction::trigger);
    return field;
}

} // namespace orvane
