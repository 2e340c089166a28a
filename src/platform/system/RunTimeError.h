// What a control or system service throws when it refuses a request: a number that handlers may test, and a sentence
// that the user reads when nobody does.
#pragma once

#include <QString>
#include <stdexcept>

namespace orvane
{

enum ErrorNumber {
    InvalidProcedureCall = 5,
    Overflow = 6,
    SubscriptOutOfRange = 9,
    TypeMismatch = 13,
    FileNotFound = 53,
    PathAccessError = 75,
    ObjectNotSet = 91,
    NoSuchControlArrayElement = 340,
    InvalidPropertyValue = 380,
    CannotSizeInThisState = 384,
    NoSuchMember = 438,
    PrinterFailure = 482,
    PrinterHasNoSuchProperty = 483,
};

class RunTimeError : public std::runtime_error
{
public:
    RunTimeError(int number, const QString &description);

    int Number() const { return m_number; }
    const QString &Description() const { return m_description; }

private:
    int m_number;
    QString m_description;
};

} // namespace orvane
