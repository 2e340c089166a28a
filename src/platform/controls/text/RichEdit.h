// The editor inside a rich-text control: tells of the mouse, and loads nothing that a document names.
#pragma once

#include <QTextEdit>

namespace orvane
{

class RichEdit : public QTextEdit
{
    Q_OBJECT

public:
    RichEdit();

    void setOneLine(); // no scroll bars, no wrapping, and nothing that would begin a second paragraph

signals:
    void pressed();
    void released(int button, int shift, const QPointF &place); // pixels; 1 left, 2 right, 4 middle
    void moved(int button, int shift, const QPointF &place);

protected:
    QVariant loadResource(int type, const QUrl &name) override;
    void insertFromMimeData(const QMimeData *source) override;
    void keyPressEvent(QKeyEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;

private:
    bool m_oneLine = false;
};

} // namespace orvane
