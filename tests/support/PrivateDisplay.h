// A display of the test's own: an X server that nobody else knows, with a window manager, and a user's hand on it.
#pragma once

#include <QPoint>
#include <QProcess>
#include <QRect>
#include <QSize>
#include <QString>

namespace orvane::test
{

struct ShownWindow {
    QString id;
    QString title;
    QRect place; // in pixels of the screen
};

class PrivateDisplay
{
public:
    static QString missingProgram(); // of those that are needed; nothing where all are there

    explicit PrivateDisplay(QSize size = {1024, 768});
    ~PrivateDisplay();

    QString name() const { return m_name; }
    QSize size() const { return m_size; }
    void kill(); // the server goes away in the middle of everything

    QList<ShownWindow> windowsOf(qint64 processId) const;
    void click(const ShownWindow &window, QPoint place) const; // which comes above others first
    void pressIn(const ShownWindow &window, const QString &key) const;

private:
    QString act(const QStringList &arguments) const; // what the hand's program answers

    QSize m_size;
    QString m_name;
    QProcess m_server;
    QProcess m_windowManager;
};

} // namespace orvane::test
