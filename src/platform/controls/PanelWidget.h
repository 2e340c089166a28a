// Paints the looks of panels.
#pragma once

#include "platform/controls/SSPanel.h"

#include <QWidget>

namespace orvane
{

class PanelWidget : public QWidget
{
    Q_OBJECT

public:
    explicit PanelWidget(SSPanel::Look look) : m_look(look) {}

    const QString &caption() const { return m_caption; }
    void setCaption(const QString &caption);

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    void paintGround(QPainter &painter) const;

    SSPanel::Look m_look;
    QString m_caption;
};

} // namespace orvane
