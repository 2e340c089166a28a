// The print control's own window while a job is written: tells the page, and lets the user cancel. A job that takes no
// longer than a moment doesn't show it.
#pragma once

#include <QProgressDialog>

namespace orvane
{

struct PrintJob;

class PrintProgress
{
public:
    static constexpr int Moment = 500; // milliseconds

    PrintProgress(const PrintJob &job, const QString &port, int moment = Moment);

    void withholdCancel();
    // To be called before each page. False where the user has cancelled.
    bool goOn(int page);

private:
    QString m_job; // the document, and where it goes
    int m_done = 0;
    bool m_canCancel = true;
    QProgressDialog m_window;
};

} // namespace orvane
