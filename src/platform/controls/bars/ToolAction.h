// A tool as an entry of a menu. A combo or text tool stands in the menu with its field.
#pragma once

#include <QPointer>
#include <QWidgetAction>
#include <memory>

namespace orvane
{

class ActiveBar;
class Tool;

class ToolAction : public QWidgetAction
{
    Q_OBJECT

public:
    ToolAction(ActiveBar &bar, const std::shared_ptr<Tool> &tool, QObject *parent);

    std::shared_ptr<Tool> tool() const { return m_tool.lock(); } // null when the tool was removed
    std::shared_ptr<Tool> pressable() const; // null also where the tool does no more than open its band
    void follow();                           // takes the tool's present state over

protected:
    QWidget *createWidget(QWidget *parent) override;

private:
    QPointer<ActiveBar> m_bar;
    std::weak_ptr<Tool> m_tool;
};

} // namespace orvane
