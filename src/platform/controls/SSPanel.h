// A panel: a flat area with a caption of its own, on which other controls can stand.
#pragma once

#include "platform/controls/Control.h"

namespace orvane
{

class PanelWidget;

class SSPanel : public Control, public Container
{
    Q_OBJECT

public:
    enum Look {
        Plain,   // its caption, on whatever lies behind it
        Card,    // a framed sheet
        TitleBar // a coloured bar with a caption
    };

    SSPanel(Container &parent, const QString &name, Look look = Plain);

    QString Caption() const override;
    void setCaption(const QString &caption);
    void setFont(const QString &family, double points, bool bold);

    // The field of a data source that the panel is meant for. It is a name only: there is no data source.
    QString DataField() const { return m_dataField; }
    void setDataField(const QString &field) { m_dataField = field; }

    QWidget &surface() override { return widget(); }
    Form &form() override { return Control::form(); }

private:
    PanelWidget &m_panel;
    QString m_dataField;
};

} // namespace orvane
