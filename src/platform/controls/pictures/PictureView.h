// Shows a drawing of the program, sharp at every scale, or a picture of pixels as large as the view.
#pragma once

#include "platform/controls/pictures/Drawing.h"
#include "platform/controls/pictures/PictureObject.h"

#include <QPixmap>
#include <QWidget>

namespace orvane
{

class PictureView : public QWidget
{
    Q_OBJECT

public:
    using QWidget::QWidget;

    void setPicture(const QString &name); // a file under pictures/, without its ending
    void setWords(const QSizeF &ground, const std::vector<PictureWords> &words);

    const PictureObject &pixels() const { return m_pixels; }
    void setPixels(const PictureObject &picture);

    void drawAhead(); // what the next paint shows, if the size stays

signals:
    void clicked();

protected:
    void paintEvent(QPaintEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;

private:
    void paintDrawing(QPainter &painter);

    Drawing m_drawing;
    PictureObject m_pixels;
    QPixmap m_ahead;
};

} // namespace orvane
