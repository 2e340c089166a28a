// The input as rich text: any bytes give a document, and what is written of it reads back to the same.
#include "platform/richtext/DocumentDifference.h"
#include "platform/richtext/Rtf.h"

#include <QGuiApplication>
#include <cstdint>
#include <cstdio>
#include <cstdlib>

using namespace orvane;

namespace
{

void check(const QString &difference)
{
    if (difference.isEmpty()) return;
    std::fputs(qPrintable(difference), stderr);
    std::abort();
}

void checkDocument(const QString &text)
{
    QTextDocument read;
    readRtf(text, read);
    const QString written = writeRtf(read);
    QTextDocument again;
    readRtf(written, again);
    check(test::difference(read, again));
    if (writeRtf(again) != written) check(QStringLiteral("written twice, it differs"));
}

} // namespace

extern "C" int LLVMFuzzerInitialize(int *argc, char ***argv)
{
    qputenv("QT_QPA_PLATFORM", "minimal");
    static QGuiApplication application(*argc, *argv);
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const QString text = QString::fromLatin1(reinterpret_cast<const char *>(data), qsizetype(size));
    checkDocument(text);
    checkDocument(QStringLiteral("{\\rtf1 ") + text);
    return 0;
}
