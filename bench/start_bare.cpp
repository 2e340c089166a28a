// A bare multi-document window with one document, up to its first paint.

#include "FirstPaint.h"

#include <QMainWindow>
#include <QMdiArea>
#include <QMenuBar>
#include <QTextEdit>

int main(int argc, char *argv[])
{
    QApplication application(argc, argv);
    const FirstPaint end(QStringLiteral("bare"));
    QMainWindow window;
    window.setObjectName(QStringLiteral("bare"));
    auto *area = new QMdiArea;
    window.setCentralWidget(area);
    window.menuBar()->addMenu(QStringLiteral("&File"))->addAction(QStringLiteral("E&xit"));
    area->addSubWindow(new QTextEdit(QStringLiteral("A document")));
    window.show();
    return QApplication::exec();
}
