// A machine on which the toolkit's database driver is missing.
#include "platform/help/HelpDatabase.h"
#include "platform/system/RunTimeError.h"

#include <QCoreApplication>
#include <QTest>

using namespace Qt::Literals::StringLiterals;
using namespace orvane;

class tst_HelpWithoutDriver : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void theMissingDriverIsNamed();
};

// Drivers are looked for once, when the first is asked for.
void tst_HelpWithoutDriver::initTestCase()
{
    QCoreApplication::setLibraryPaths({});
}

void tst_HelpWithoutDriver::theMissingDriverIsNamed()
{
    try {
        const HelpDatabase database(QStringLiteral(ORVANE_TOOLS_DIR "/Orvane.hlp"));
        QFAIL("a driver was found");
    } catch (const RunTimeError &error) {
        QCOMPARE(error.Number(), int(FileNotFound));
        QCOMPARE(error.Description(),
                 u"The help can't be shown: Qt's SQLite driver isn't installed on this machine."_s);
    }
}

QTEST_GUILESS_MAIN(tst_HelpWithoutDriver)
#include "tst_HelpWithoutDriver.moc"
