#include "platform/system/Dates.h"

#include "platform/system/DateReader.h"
#include "platform/system/Host.h"

#include <QLocale>
#include <algorithm>

namespace orvane
{

namespace
{
QString padded(int number, qsizetype digits)
{
    return QString::number(number).rightJustified(digits, u'0');
}

// What a run of so many of the letter stands for; nothing for a letter of no meaning.
QString fieldOf(const QDate &date, QChar letter, qsizetype length)
{
    const QLocale english = QLocale::c();
    const auto names = length > 3 ? QLocale::LongFormat : QLocale::ShortFormat;
    switch (letter.toLower().unicode()) {
    case u'd':
        return length > 2 ? english.dayName(date.dayOfWeek(), names) : padded(date.day(), length);
    case u'm':
        return length > 2 ? english.monthName(date.month(), names) : padded(date.month(), length);
    case u'y':
        return length > 2 ? padded(date.year(), 4) : padded(date.year() % 100, 2);
    default:
        return {};
    }
}

qsizetype runLength(QStringView text)
{
    const auto *end =
        std::find_if(text.begin(), text.end(), [&](QChar c) { return c.toLower() != text.front().toLower(); });
    return end - text.begin();
}
} // namespace

QString Date()
{
    QString format = QLocale().dateFormat(QLocale::ShortFormat);
    const qsizetype year = format.indexOf(u'y');
    if (year >= 0) format.replace(year, runLength(QStringView(format).sliced(year)), QStringLiteral("yyyy"));
    return QLocale().toString(host().today(), format);
}

bool IsDate(const QString &text)
{
    return readDate(text).has_value();
}

QString Format(const QString &text, const QString &pattern)
{
    const auto date = readDate(text);
    if (!date) return text;
    QString formatted;
    for (QStringView rest = pattern; !rest.isEmpty();) {
        const QStringView run = rest.left(runLength(rest));
        const QString field = fieldOf(*date, run.front(), run.size());
        formatted += field.isEmpty() ? run : QStringView(field);
        rest = rest.sliced(run.size());
    }
    return formatted;
}

} // namespace orvane
