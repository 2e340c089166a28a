// A drawing of the program, read when it is painted first and sharp at every scale.
#pragma once

#include <QRectF>
#include <QString>
#include <memory>

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
    bool isSet() const { return !m_name.isEmpty(); }
    void paint(QPainter &painter, const QRectF &room); // as large as fits, in the middle

private:
    QString m_name;
    std::unique_ptr<QSvgRenderer> m_renderer;
};

} // namespace orvane
