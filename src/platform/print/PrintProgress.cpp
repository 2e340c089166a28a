#include "platform/print/PrintProgress.h"

#include "platform/print/PrintJob.h"

#include <QApplication>

namespace orvane
{

using namespace Qt::Literals::StringLiterals;

PrintProgress::PrintProgress(const PrintJob &job, const QString &port, int moment)
    : m_job(job.title + u'\n' +
            QString::asprintf(" on the %s on %s", qUtf8Printable(job.deviceName), qUtf8Printable(port))),
      m_window(QString(), u"Cancel"_s, 0, (job.to - job.from + 1) * job.copies, QApplication::activeWindow())
{
    m_window.setObjectName(u"dlgPrinting"_s);
    m_window.setWindowTitle(u"Printing..."_s);
    m_window.setWindowModality(Qt::ApplicationModal);
    m_window.setWindowFlag(Qt::WindowStaysOnTopHint); // the tour's console stays on top too
    m_window.setMinimumDuration(moment);
    m_window.setValue(0);
}

void PrintProgress::withholdCancel()
{
    m_canCancel = false;
    m_window.setCancelButton(nullptr);
}

bool PrintProgress::goOn(int page)
{
    m_window.setLabelText(QString::asprintf("Now printing Page %d of", page) + u'\n' + m_job);
    m_window.setValue(m_done++);
    return !m_canCancel || !m_window.wasCanceled(); // closing the window cancels too
}

} // namespace orvane
