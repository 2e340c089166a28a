// A combo or text tool: its caption as a label, and its field. What the user types stands in the tool at once.
#pragma once

#include "platform/controls/bars/StripItem.h"

#include <QPointer>
#include <QWidget>
#include <memory>

class QComboBox;
class QLabel;
class QLineEdit;

namespace orvane
{

class ActiveBar;

class ToolField : public QWidget, public StripItem
{
    Q_OBJECT

public:
    ToolField(ActiveBar &bar, const std::shared_ptr<Tool> &tool, QWidget *parent);

    QWidget &widget() override { return *this; }
    QWidget &focusTarget() override { return *m_field; }
    void follow(const Tool &tool, bool withAccessKey) override;
    int widthFor(bool compact) const override;
    void setCompact(bool compact) override;

    bool eventFilter(QObject *watched, QEvent *event) override;

signals:
    void chosen(); // an entry was picked, or Enter pressed

private:
    void makeField(const Tool &tool);
    void picked(int index);
    void keyPressed(int keyAscii);

    QPointer<ActiveBar> m_bar;
    std::weak_ptr<Tool> m_tool;
    QLabel *m_label;
    QComboBox *m_combo = nullptr;
    QLineEdit *m_edit = nullptr; // of the combo, or the field itself
    QWidget *m_field = nullptr;
};

} // namespace orvane
