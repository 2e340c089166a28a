// A print scheduler of the test's own, CUPS with its folders, socket and queues in a temporary folder; that of the
// machine, if there is one, is left alone. One for each program: the service's library looks for it once.
#pragma once

#include <QDir>
#include <QProcess>
#include <QStringList>
#include <QTemporaryDir>

namespace orvane::test
{

// A job as the device got it.
struct KeptJob {
    QString title;
    int copies = 0;
    QStringList options;
    QString pdf; // the file's name
};

class PrintScheduler
{
public:
    static QString missingProgram(); // of those that are needed; nothing where all are there

    PrintScheduler();
    ~PrintScheduler();

    void start();
    void kill();   // at once, in whatever it does
    void freeze(); // it takes connections and doesn't answer, until it is killed

    // A queue whose jobs are kept by the test, see nextJob. It prints on both sides.
    void addQueue(const QString &name);
    void removeQueue(const QString &name) { run("lpadmin", {QStringLiteral("-x"), name}); }
    void makeUsual(const QString &name) { run("lpadmin", {QStringLiteral("-d"), name}); }
    void pause(const QString &name) { run("cupsdisable", {name}); }
    void resume(const QString &name) { run("cupsenable", {name}); }
    void refuseJobs(const QString &name) { run("cupsreject", {name}); }
    int waitingJobs(const QString &name);

    // Waits until a job has come to the device.
    KeptJob nextJob();
    int keptJobs() const;

    // A queue on the PDF printer of CUPS, whose files come to lie in a folder. It reads its settings in the system's
    // folder, so the scheduler has to have that folder to itself: only root can see to this.
    static bool canHavePdfPrinter();
    void addPdfPrinter(const QString &name);
    QString nextPdf(const QString &queue);

private:
    QString path(const QString &name) const { return m_folder.filePath(name); }
    QByteArray run(const char *program, const QStringList &arguments);
    void makeFolders() const;
    void writeSettings() const;
    void writeDevice() const;

    QTemporaryDir m_folder;
    QProcess m_process;
};

} // namespace orvane::test
