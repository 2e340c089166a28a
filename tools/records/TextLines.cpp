#include "records/TextLines.h"

#include "records/FormError.h"

#include <QFile>
#include <QTextStream>

namespace orvane::records
{

std::vector<TextLine> readLines(const QString &fileName)
{
    QFile file(fileName);
    if (!file.open(QIODevice::ReadOnly | QIODevice::Text))
        throw FormError(QStringLiteral("%1: %2").arg(fileName, file.errorString()));
    std::vector<TextLine> lines;
    QTextStream stream(&file);
    int number = 0;
    while (!stream.atEnd()) {
        const QString text = stream.readLine();
        ++number;
        if (text.trimmed().isEmpty() || text.startsWith(u'#')) continue;
        if (text.startsWith(u' ') && !lines.empty())
            lines.back().text += u' ' + text.trimmed();
        else
            lines.push_back({number, text.trimmed()});
    }
    return lines;
}

} // namespace orvane::records
