// A flat card with a caption and a picture, pressed by mouse, Space or Enter. It can stay down, and can show that it
// drops a menu, which Down opens as well.
#pragma once

#include "platform/controls/pictures/Drawing.h"

#include <QAbstractButton>

namespace orvane
{

class CaptionButton : public QAbstractButton
{
    Q_OBJECT

public:
    enum PicturePlace { CornerPicture, TopPicture };

    explicit CaptionButton(PicturePlace place);

    void setPicture(const QString &name); // a file under pictures/, without its ending
    void setDropsMenu(bool drops);
    bool dropsMenu() const { return m_dropsMenu; }
    void setCaptionColour(const QColor &colour);
    const QColor &captionColour() const { return m_captionColour; }

signals:
    void entered();
    void left();

protected:
    void paintEvent(QPaintEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void enterEvent(QEnterEvent *event) override;
    void leaveEvent(QEvent *event) override;

private:
    void paintCard(QPainter &painter) const;
    QRect paintPicture(QPainter &painter); // what is left for the caption
    QFont fontFor(const QRect &room) const;
    void paintMark(QPainter &painter) const;

    PicturePlace m_place;
    Drawing m_picture;
    QColor m_captionColour = Qt::black;
    bool m_dropsMenu = false;
};

} // namespace orvane
