// The editor inside a rich-text control: tells of the mouse, and loads nothing that a document names. It exchanges rich
// text with other programs. While it is read-only, nothing that the user can do changes its text.
#pragma once

#include <QTextEdit>

namespace orvane
{

class RichEdit : public QTextEdit
{
    Q_OBJECT

public:
    RichEdit();

    void setWrapWidth(int pixels); // 0 for the editor's own edge
    void setOneLine();             // no scroll bars, no wrapping, and nothing that would begin a second paragraph
    void insertPiece(const QTextDocument &piece); // in the place of the selection

signals:
    void pressed();
    void released(int button, int shift, const QPointF &place); // pixels; 1 left, 2 right, 4 middle
    void moved(int button, int shift, const QPointF &place);

protected:
    QMimeData *createMimeDataFromSelection() const override;
    bool canInsertFromMimeData(const QMimeData *source) const override;
    QVariant loadResource(int type, const QUrl &name) override;
    void insertFromMimeData(const QMimeData *source) override;
    void keyPressEvent(QKeyEvent *event) override;
    void inputMethodEvent(QInputMethodEvent *event) override;
    void contextMenuEvent(QContextMenuEvent *event) override;
    void wheelEvent(QWheelEvent *event) override;
    void showEvent(QShowEvent *event) override;
    bool event(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;

private:
    void openMenu(const QPoint &place);
    void pressAtCaret();

    bool m_oneLine = false;
};

} // namespace orvane
