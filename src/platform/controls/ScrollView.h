// The view of a scrolling container: an area of widgets, of which the viewport shows a part. Lengths are pixels.
#pragma once

#include <QAbstractScrollArea>

namespace orvane
{

class ScrollView : public QAbstractScrollArea
{
    Q_OBJECT

public:
    ScrollView();

    QWidget &area() { return *m_area; }
    void setAreaSize(const QSize &size); // of what is scrolled; it reaches at least to the widgets on show

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void scrollContentsBy(int dx, int dy) override;
    void keyPressEvent(QKeyEvent *event) override;
    void focusInEvent(QFocusEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;

private:
    void watchWidgets(QObject *watched, const QEvent &event);
    QSize reach() const;
    void layOut();
    void placeArea();

    QWidget *m_area;
    QSize m_size;
};

} // namespace orvane
