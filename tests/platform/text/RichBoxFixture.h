// A window with one rich-text box, for the tests of its editing and of its clipboard.
#pragma once

#include "platform/FormFixture.h"
#include "platform/controls/text/zelRich.h"

#include <QClipboard>
#include <QDropEvent>
#include <QInputMethodEvent>
#include <QMimeData>
#include <QTextEdit>

namespace orvane::test
{

class RichBoxWindow : public NotedWindow
{
public:
    RichBoxWindow() { box.Move(0, 0, 4500, 3000); }

    QTextEdit &edit() { return static_cast<QTextEdit &>(box.widget()); }
    void showForKeys();
    void select(int start, int length);
    void press(QKeyCombination keys) { QTest::keyClick(&edit(), keys.key(), keys.keyboardModifiers()); }

    zelRich box{*this, QStringLiteral("rtfData")};
};

inline void RichBoxWindow::showForKeys()
{
    showActive(*this);
    box.SetFocus();
    QTRY_VERIFY(edit().hasFocus());
}

inline void RichBoxWindow::select(int start, int length)
{
    box.setSelStart(start);
    box.setSelLength(length);
}

inline void fillClipboard(const QMap<QString, QByteArray> &contents)
{
    auto *data = new QMimeData;
    for (auto each = contents.begin(); each != contents.end(); ++each)
        data->setData(each.key(), each.value());
    QGuiApplication::clipboard()->setMimeData(data);
}

inline QByteArray onClipboard(const QString &format)
{
    return QGuiApplication::clipboard()->mimeData()->data(format);
}

// What an input method and another program do with a text.
inline void compose(QWidget &widget, const QString &text)
{
    QInputMethodEvent event;
    event.setCommitString(text);
    QCoreApplication::sendEvent(&widget, &event);
}

inline void drop(QTextEdit &edit, const QString &text)
{
    QMimeData dragged;
    dragged.setText(text);
    QDragEnterEvent enter(QPoint(5, 5), Qt::CopyAction, &dragged, Qt::LeftButton, {});
    QCoreApplication::sendEvent(edit.viewport(), &enter);
    QDropEvent dropped(QPointF(5, 5), Qt::CopyAction, &dragged, Qt::LeftButton, {});
    QCoreApplication::sendEvent(edit.viewport(), &dropped);
}

} // namespace orvane::test
