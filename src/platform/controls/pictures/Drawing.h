// A drawing of the program, read when it is painted first and sharp at every scale.
#pragma once

#include "platform/controls/pictures/PictureWords.h"

#include <QRectF>
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
    void setWords(const std::vector<PictureWords> &words) { m_words = words; }
    bool isSet() const { return !m_name.isEmpty(); }
    void paint(QPainter &painter, const QRectF &room); // as large as fits, in the middle

private:
    void paintWords(QPainter &painter, const QRectF &room) const;

    QString m_name;
    std::vector<PictureWords> m_words;
    std::unique_ptr<QSvgRenderer> m_renderer;
};

} // namespace orvane
