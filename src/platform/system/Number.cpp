#include "platform/system/Number.h"

#include "platform/system/RunTimeError.h"

#include <QLocale>
#include <QRegularExpression>
#include <cmath>
#include <limits>

namespace orvane
{

double toNumber(const QString &text)
{
    bool isNumber = false;
    const double value = QLocale::c().toDouble(text.trimmed(), &isNumber);
    if (!isNumber || !std::isfinite(value))
        throw RunTimeError(TypeMismatch, QStringLiteral("A number was expected, not \"%1\".").arg(text.left(80)));
    return value;
}

int toInteger(const QString &text)
{
    const double value = std::round(toNumber(text));
    if (value < std::numeric_limits<int>::min() || value > std::numeric_limits<int>::max())
        throw RunTimeError(Overflow, QStringLiteral("The number %1 is too large.").arg(text.left(80)));
    return static_cast<int>(value);
}

double leadingNumber(const QString &text)
{
    static const QRegularExpression start(QStringLiteral(R"(^\s*([+-]?(?:[0-9]+\.?[0-9]*|\.[0-9]+)))"));
    return QLocale::c().toDouble(start.match(text).captured(1));
}

} // namespace orvane
