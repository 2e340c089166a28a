// A drawing of the program, read when it is painted first and sharp at every scale.
#pragma once

#include "platform/controls/pictures/PictureWords.h"

#include <QRectF>
#include <QSizeF>
#include <QString>
#include <memory>
#include <vector>

class QPainter;
class QSvgRenderer;

namespace orvane
{

class Drawing
{
public:
    Drawing();
    ~Drawing();

    void set(const QString &name); // a file under pictures/, without its ending
    void setWords(const QSizeF &ground, const std::vector<PictureWords> &words); // the size that their places are of
    bool isSet() const { return !m_name.isEmpty(); }
    void paint(QPainter &painter, const QRectF &room); // as large as fits, in the middle

private:
    void paintGround(QPainter &painter, const QRectF &room);
    void paintWords(QPainter &painter, const QRectF &room) const;

    QString m_name;
    QSizeF m_ground;
    std::vector<PictureWords> m_words;
    std::unique_ptr<QSvgRenderer> m_renderer;
};

} // namespace orvane
