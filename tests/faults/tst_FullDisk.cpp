// The program on a disk without room: the tour is walked to its end, and what can't be written is said where a user
// waits for it.
#include "platform/print/PrintFixture.h"
#include "platform/print/Printers.h"
#include "support/NarrowDisk.h"
#include "walk/Walker.h"

#include <QDir>

using namespace Qt::Literals::StringLiterals;
using namespace orvane;
using namespace orvane::test;

namespace
{
QStringList filesIn(const QString &folder)
{
    return QDir(folder).entryList(QDir::Files | QDir::Hidden);
}
} // namespace

class tst_FullDisk : public QObject
{
    Q_OBJECT

private slots:
    void theTourIsWalkedToItsEnd();
    void aDocumentThatHasNoRoomIsReported_data();
    void aDocumentThatHasNoRoomIsReported();
};

// The help needs room for its index. All else that the tour shows needs none.
void tst_FullDisk::theTourIsWalkedToItsEnd()
{
    Walker walker;
    walker.start();
    walker.system().host.expectMessage(u"The help can't be shown: there is no room for its index."_s);
    const NarrowDisk full(0);
    walker.walkTo({}, walker.console().cmdGoNext);
    QVERIFY(!QTest::currentTestFailed());
    walker.take(walker.console().cmdGoNext);
    QCOMPARE(walker.console().Tag(), u"603"_s);
}

void tst_FullDisk::aDocumentThatHasNoRoomIsReported_data()
{
    QTest::addColumn<int>("percent"); // of its size
    for (const int percent : {0, 50, 99})
        QTest::addRow("room for %d %%", percent) << percent;
}

void tst_FullDisk::aDocumentThatHasNoRoomIsReported()
{
    QFETCH(const int, percent);
    TestHost host;
    PrintWindow window;
    compose(window.vs, linesOfText(500));
    window.vs.setDocName(u"Plan"_s);
    window.vs.setDevice(pdfPrinterName());
    window.vs.PrintDoc(1, window.vs.PageCount());
    const QString folder = host.documentsFolder();
    QCOMPARE(filesIn(folder), QStringList{u"Plan.pdf"_s});
    const qint64 size = QFileInfo(folder + u"/Plan.pdf"_s).size();
    host.expectAnyMessage();
    int error = 0;
    try {
        const NarrowDisk disk(size * percent / 100);
        window.vs.PrintDoc(1, window.vs.PageCount());
    } catch (const RunTimeError &failure) {
        error = failure.Number();
    }
    QCOMPARE(error, int(PrinterFailure));
    QCOMPARE(filesIn(folder), QStringList{u"Plan.pdf"_s}); // the one from before, and no part of another
    QCOMPARE(QFileInfo(folder + u"/Plan.pdf"_s).size(), size);
}

QTEST_MAIN(tst_FullDisk)
#include "tst_FullDisk.moc"
