#include "PageChunks.h"

namespace orvane::pages
{

QString join(std::initializer_list<QStringView> chunks)
{
    qsizetype length = 0;
    for (QStringView chunk : chunks) {
        length += chunk.size();
    }
    QString text;
    text.reserve(length);
    for (QStringView chunk : chunks) {
        text += chunk;
    }
    return text;
}

QString page(QStringView body)
{
    return join({Header, ColourTable, body, Closing});
}

} // namespace orvane::pages
