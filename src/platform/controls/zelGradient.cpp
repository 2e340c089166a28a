#include "platform/controls/zelGradient.h"

#include "platform/controls/Palette.h"

#include <QLinearGradient>
#include <QPainter>

namespace orvane
{

class zelGradient::Paper : public QWidget
{
public:
    explicit Paper(Look look) : m_look(look) {}

protected:
    void paintEvent(QPaintEvent *) override
    {
        const QPointF far = m_look == Strip ? QPointF(width(), 0) : QPointF(0, height());
        QLinearGradient gradient(QPointF(0, 0), far);
        gradient.setColorAt(0, m_look == Strip ? palette::Line : palette::Paper);
        gradient.setColorAt(1, m_look == Strip ? palette::Paper : palette::Mist);
        QPainter(this).fillRect(rect(), gradient);
    }

private:
    Look m_look;
};

zelGradient::zelGradient(Container &parent, const QString &name, Look look) : Control(parent, name, new Paper(look))
{
    ZOrderBack();
}

} // namespace orvane
