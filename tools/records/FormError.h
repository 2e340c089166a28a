// What is wrong with a description, and where.
#pragma once

#include <QString>
#include <stdexcept>

namespace orvane::records
{

class FormError : public std::runtime_error
{
public:
    explicit FormError(const QString &message) : std::runtime_error(message.toStdString()) {}
    FormError(const QString &fileName, int line, const QString &message)
        : FormError(QStringLiteral("%1:%2: %3").arg(fileName).arg(line).arg(message))
    {
    }
};

} // namespace orvane::records
