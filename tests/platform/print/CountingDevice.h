// A paint device that counts the texts drawn on it.
#pragma once

#include <QPaintEngine>

namespace orvane::test
{

class CountingEngine : public QPaintEngine
{
public:
    CountingEngine() : QPaintEngine(AllFeatures) {}

    int texts = 0;

    bool begin(QPaintDevice *) override { return true; }
    bool end() override { return true; }
    void updateState(const QPaintEngineState &) override {}
    void drawPixmap(const QRectF &, const QPixmap &, const QRectF &) override {}
    void drawPath(const QPainterPath &) override {}
    void drawPolygon(const QPointF *, int, PolygonDrawMode) override {}
    void drawTextItem(const QPointF &, const QTextItem &) override { ++texts; }
    Type type() const override { return User; }
};

class CountingDevice : public QPaintDevice
{
public:
    QPaintEngine *paintEngine() const override { return &m_engine; }
    int texts() const { return m_engine.texts; }

protected:
    int metric(PaintDeviceMetric metric) const override
    {
        switch (metric) {
        case PdmWidth:
        case PdmHeight:
            return 1000;
        case PdmDpiX:
        case PdmDpiY:
        case PdmPhysicalDpiX:
        case PdmPhysicalDpiY:
            return 96;
        case PdmDepth:
            return 32;
        case PdmDevicePixelRatio:
            return 1;
        default:
            return QPaintDevice::metric(metric);
        }
    }

private:
    mutable CountingEngine m_engine;
};

} // namespace orvane::test
