// A save that is killed at each of its points, 200 and more from its beginning to its end: what lies on the disk is the
// old file or the new one, whole each time, and the next save works.
#include "faults/SteppedProcess.h"
#include "platform/system/ProfileFile.h"
#include "platform/system/SettingsStore.h"
#include "support/ShippedTour.h"

#include <QDir>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::Literals::StringLiterals;
using namespace orvane;
using namespace orvane::test;

namespace
{
constexpr int LeastKills = 200;
const QString Application = u"orvane Quillmark CD"_s;
const QString Section = u"UserDetails"_s;
using Work = std::function<void()>;

QByteArray bytesOf(const QString &fileName)
{
    QFile file(fileName);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

// The file alone in its folder. What a killed process leaves would be in the way of the next one, since all of them
// draw the same names for what is temporary, being copies of this one.
void writeAlone(const QString &fileName, const QByteArray &bytes)
{
    const QDir folder = QFileInfo(fileName).dir();
    QVERIFY(QDir(folder).removeRecursively() && folder.mkpath(u"."_s));
    QFile file(fileName);
    QVERIFY(file.open(QIODevice::WriteOnly));
    QCOMPARE(file.write(bytes), bytes.size());
}

// What the file holds when the work was let through to its end.
QByteArray after(const QString &fileName, const QByteArray &before, const Work &work)
{
    writeAlone(fileName, before);
    [&] { QVERIFY(SteppedProcess::pointsOf(work)); }();
    return bytesOf(fileName);
}

// Kills at one point after the other until the work comes to its end before. Counts how often each of the states was
// found, and fails on any other one.
void killThroughout(const QString &fileName, const QList<QByteArray> &states, const Work &work)
{
    QList<int> found(states.size());
    int point = 0;
    for (;; ++point) {
        writeAlone(fileName, states.front());
        if (!SteppedProcess::killAt(point, work)) break;
        const auto state = states.indexOf(bytesOf(fileName));
        QVERIFY2(state >= 0, qPrintable(u"a broken file after the kill at point %1"_s.arg(point)));
        ++found[state];
    }
    QVERIFY2(point >= LeastKills, qPrintable(u"only %1 points"_s.arg(point)));
    for (qsizetype state = 0; state < states.size(); ++state)
        QVERIFY2(found[state] > 0, qPrintable(u"state %1 was never found"_s.arg(state)));
}
} // namespace

class tst_KilledSaves : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup() { setSettingsFolder({}); }
    void theScriptIsWhole();
    void aNewScriptIsWholeOrNotThere();
    void theSettingsAreWhole();

private:
    QTemporaryDir m_temporary;
    QDir m_folder;
};

void tst_KilledSaves::init()
{
    if (!SteppedProcess::isPossible()) QSKIP("this system lets nobody trace a process");
    m_temporary = QTemporaryDir();
    m_folder.setPath(m_temporary.filePath(u"saves"_s));
    QVERIFY(m_folder.mkpath(u"."_s));
    setSettingsFolder(m_folder.path());
}

// As the author's Save does it: the body, then the heading. The shipped script several times over, so that a save has
// as many points as kills.
void tst_KilledSaves::theScriptIsWhole()
{
    const QString script = m_folder.filePath(u"DemoData.ini"_s);
    const auto saveBody = [&] { writeProfileString(u"127"_s, u"RTF"_s, u"{\\rtf1 New}"_s, script); };
    const auto save = [&] {
        saveBody();
        writeProfileString(u"127"_s, u"Header"_s, u"New"_s, script);
    };
    const QByteArray before = ShippedTour::bytes().repeated(28);
    const QByteArray between = after(script, before, saveBody);
    killThroughout(script, {before, between, after(script, before, save)}, save);
    save();
    QCOMPARE(readProfileString(u"127"_s, u"Header"_s, {}, 100, script), u"New"_s);
}

void tst_KilledSaves::aNewScriptIsWholeOrNotThere()
{
    const QString script = m_folder.filePath(u"DemoData.ini"_s);
    const auto save = [&] { writeProfileString(u"127"_s, u"RTF"_s, QString(200'000, u'x'), script); };
    const int points = SteppedProcess::pointsOf(save).value_or(0);
    const QByteArray whole = bytesOf(script);
    QVERIFY(points > 0 && whole.size() > 200'000);
    for (int point = 0; point < points; ++point) {
        writeAlone(script, {});
        QFile::remove(script);
        SteppedProcess::killAt(point, save);
        QVERIFY2(!QFile::exists(script) || bytesOf(script) == whole, qPrintable(QString::number(point)));
    }
}

void tst_KilledSaves::theSettingsAreWhole()
{
    SaveSetting(Application, Section, u"Company"_s, u"Global Inc"_s);
    const QString settings = m_folder.filePath(Application + u".ini"_s);
    const QByteArray before = bytesOf(settings);
    const auto save = [] { SaveSetting(Application, Section, u"Name"_s, u"Ada"_s); };
    killThroughout(settings, {before, after(settings, before, save)}, save);
    SaveSetting(Application, Section, u"Name"_s, u"Grace"_s);
    QCOMPARE(GetSetting(Application, Section, u"Name"_s), u"Grace"_s);
    QCOMPARE(GetSetting(Application, Section, u"Company"_s), u"Global Inc"_s);
}

QTEST_GUILESS_MAIN(tst_KilledSaves)
#include "tst_KilledSaves.moc"
