// Shows a drawing of the program, sharp at every scale.
#pragma once

#include "platform/controls/Drawing.h"

#include <QWidget>

namespace orvane
{

class PictureView : public QWidget
{
    Q_OBJECT

public:
    using QWidget::QWidget;

    void setPicture(const QString &name); // a file under pictures/, without its ending

signals:
    void clicked();

protected:
    void paintEvent(QPaintEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;

private:
    Drawing m_drawing;
};

} // namespace orvane
