// The library of the print service itself, for what the toolkit doesn't tell. It is looked up when it is first asked,
// so that the program runs on machines without it; there it never answers.
#pragma once

#include <QString>

namespace orvane
{

// Whether the service takes requests now. One that has stopped is waited for three seconds, and then left alone for
// five: the toolkit would wait for ever.
bool printServiceAnswers();

// While it lives, a service that doesn't answer is hidden from the toolkit, which finds no queues then and doesn't
// wait. Not for use within another one of the same thread.
class SilentServiceHidden
{
public:
    SilentServiceHidden();
    ~SilentServiceHidden();
    SilentServiceHidden(const SilentServiceHidden &) = delete;
    SilentServiceHidden &operator=(const SilentServiceHidden &) = delete;

private:
    bool m_hidden;
};

// Why the service didn't take the job that this thread handed to it last, or nothing where it did.
QString refusalOfLastJob();

// Whether the queue takes jobs and prints none for now. False where the service doesn't answer or doesn't tell.
bool isQueuePaused(const QString &queueName);

} // namespace orvane
