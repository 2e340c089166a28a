#include "platform/richtext/Rtf.h"

#include <QFile>
#include <QGuiApplication>
#include <QTextDocument>
#include <cstdio>

int main(int argc, char *argv[])
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication application(argc, argv);
    QFile file(QGuiApplication::arguments().value(1));
    if (!file.open(QIODevice::ReadOnly)) {
        std::fprintf(stderr, "rtf2text: give the name of a file that can be read\n");
        return 1;
    }
    QTextDocument document;
    orvane::readRtf(QString::fromLatin1(file.readAll()), document);
    std::puts(qPrintable(document.toPlainText()));
}
