// What the help leaves behind: nothing beside the program, nothing in the settings, nothing in the cache.
#include "platform/system/RunTimeError.h"
#include "support/HelpUser.h"

#include <QDir>
#include <QDirIterator>
#include <QLockFile>
#include <QStandardPaths>
#include <optional>

using namespace Qt::Literals::StringLiterals;
using namespace orvane;
using namespace orvane::test;

class tst_HelpTraces : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void theProgramsFolderStaysAsItWas();
    void aProgramsFolderForReadingOnlyWillDo();
    void placeAndSizeAreForgotten();
    void noSettingsAreWritten();
    void theFolderInTheCacheIsGivenBack();
    void whatAnEndedProgramLeftIsTakenOver();
    void twoProgramsHaveAFolderEach();
    void withoutACacheTheHelpWorksToo_data();
    void withoutACacheTheHelpWorksToo();
    void withoutAnyFolderItSaysSo();

private:
    QString folder(int number) const;
    static QStringList filesUnder(const QString &path);

    std::optional<TestHost> m_host;
    std::optional<HelpUser> m_user;
};

void tst_HelpTraces::init()
{
    m_host.emplace();
    m_user.emplace(*m_host);
}

void tst_HelpTraces::cleanup()
{
    m_user.reset();
    m_host.reset();
}

QString tst_HelpTraces::folder(int number) const
{
    return QStandardPaths::writableLocation(QStandardPaths::CacheLocation) + u"/help%1"_s.arg(number);
}

QStringList tst_HelpTraces::filesUnder(const QString &path)
{
    QStringList found;
    QDirIterator files(path, QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot, QDirIterator::Subdirectories);
    while (files.hasNext()) {
        files.next();
        found << u"%1 %2 %3"_s.arg(files.filePath())
                     .arg(files.fileInfo().size())
                     .arg(files.fileInfo().lastModified().toMSecsSinceEpoch());
    }
    found.sort();
    return found;
}

void tst_HelpTraces::theProgramsFolderStaysAsItWas()
{
    const QStringList before = filesUnder(m_host->folder());
    QCOMPARE(before.size(), 2);
    m_user->openSearch();
    m_user->goTo(u"printing.html"_s);
    QCOMPARE(filesUnder(m_host->folder()), before);
    m_user->window()->close();
    QCOMPARE(filesUnder(m_host->folder()), before);
}

void tst_HelpTraces::aProgramsFolderForReadingOnlyWillDo()
{
    QFile::setPermissions(m_user->file(), QFile::ReadOwner);
    QFile::setPermissions(m_host->folder(), QFile::ReadOwner | QFile::ExeOwner);
    m_user->openContents();
    QCOMPARE(m_user->pageName(), u"index.html"_s);
    QFile::setPermissions(m_host->folder(), QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
}

void tst_HelpTraces::placeAndSizeAreForgotten()
{
    m_user->openContents();
    const QRect first = m_user->window()->geometry();
    m_user->window()->setGeometry(first.adjusted(40, 30, -50, -60));
    QVERIFY(m_user->closeAndWait());
    m_user->openContents();
    QCOMPARE(m_user->window()->geometry(), first);
    QCOMPARE(m_user->tab(), u"Contents"_s);
}

void tst_HelpTraces::noSettingsAreWritten()
{
    QTemporaryDir settings;
    const QByteArray before = qgetenv("XDG_CONFIG_HOME");
    qputenv("XDG_CONFIG_HOME", QFile::encodeName(settings.path()));
    m_user->openSearch();
    QVERIFY(m_user->closeAndWait());
    QCOMPARE(filesUnder(settings.path()), QStringList());
    qputenv("XDG_CONFIG_HOME", before);
}

void tst_HelpTraces::theFolderInTheCacheIsGivenBack()
{
    m_user->openContents();
    QVERIFY(QDir(folder(0)).exists());
    m_user->window()->close();
    QTRY_VERIFY(!QDir(folder(0)).exists());
    QVERIFY(!QFile::exists(folder(0) + u".lock"_s));
}

void tst_HelpTraces::whatAnEndedProgramLeftIsTakenOver()
{
    QVERIFY(QDir().mkpath(folder(0)));
    QFile left(folder(0) + u"/collection"_s);
    QVERIFY(left.open(QIODevice::WriteOnly) && left.write("left by another") > 0);
    left.close();
    m_user->openContents();
    QVERIFY(!QDir(folder(1)).exists());
    QCOMPARE(m_user->pageName(), u"index.html"_s);
}

void tst_HelpTraces::twoProgramsHaveAFolderEach()
{
    QVERIFY(QDir().mkpath(folder(0)));
    QLockFile other(folder(0) + u".lock"_s);
    QVERIFY(other.tryLock());
    m_user->openContents();
    QVERIFY(QDir(folder(1)).exists());
    QVERIFY(QDir(folder(0)).isEmpty());
    QCOMPARE(m_user->pageName(), u"index.html"_s);
}

void tst_HelpTraces::withoutACacheTheHelpWorksToo_data()
{
    QTest::addColumn<QString>("cache");
    QTest::newRow("a file in its place") << QStringLiteral(ORVANE_TOOLS_DIR "/Orvane.hlp");
    QTest::newRow("a place where nothing can be made") << u"/proc"_s;
}

void tst_HelpTraces::withoutACacheTheHelpWorksToo()
{
    QFETCH(QString, cache);
    qputenv("XDG_CACHE_HOME", QFile::encodeName(cache));
    m_user->openContents();
    QCOMPARE(m_user->pageName(), u"index.html"_s);
    QVERIFY(m_user->closeAndWait());
    m_user->openSearch();
    QCOMPARE(m_user->tab(), u"Search"_s);
}

void tst_HelpTraces::withoutAnyFolderItSaysSo()
{
    qputenv("XDG_CACHE_HOME", "/proc");
    const QByteArray before = qgetenv("TMPDIR");
    qputenv("TMPDIR", "/proc");
    QString told;
    try {
        WinHelp(m_user->file(), HelpContents);
    } catch (const RunTimeError &error) {
        told = error.Description();
    }
    before.isNull() ? qunsetenv("TMPDIR") : qputenv("TMPDIR", before);
    QCOMPARE(told, u"The help can't be shown: there is no folder that it could keep its index in."_s);
    QVERIFY(!m_user->window());
}

QTEST_MAIN(tst_HelpTraces)
#include "tst_HelpTraces.moc"
