// The programs as they were built: each source with what makes a slip in it hard to use, and nothing called that the
// program has no use for.
// Patterns are made for each row: clazy:excludeall=use-static-qregularexpression
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QRegularExpression>
#include <QStandardPaths>
#include <QTest>

using namespace Qt::Literals::StringLiterals;

class tst_BuiltPrograms : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void aProgramIsHardened_data();
    void aProgramIsHardened();
    void noLibraryComesFromAnUnusualFolder();
    void everySourceIsCompiledSo();
    void theProgramKnowsNoNetworkAndNoShell();
    void theProgramLoadsNoLibraryOfTheNetwork();
};

namespace
{
QStringList programs()
{
    return {u"orvane"_s, u"dealertext"_s, u"tourlint"_s, u"tourwalk"_s};
}

QString readelf(const QString &option, const QString &name)
{
    QProcess process;
    process.start(u"readelf"_s, {option, u"--wide"_s, QStringLiteral(ORVANE_TOOLS_DIR "/") + name});
    process.waitForFinished();
    return QString::fromLatin1(process.readAllStandardOutput());
}

// The functions of other libraries that the program calls, without their versions.
QStringList calls(const QString &name)
{
    QStringList found;
    static const QRegularExpression undefined(u" UND ([^@\\s]+)"_s);
    const QString symbols = readelf(u"--dyn-syms"_s, name);
    for (auto match = undefined.globalMatch(symbols); match.hasNext();)
        found << match.next().captured(1);
    return found;
}
} // namespace

void tst_BuiltPrograms::initTestCase()
{
    if (QStandardPaths::findExecutable(u"readelf"_s).isEmpty()) QSKIP("readelf is not installed");
}

void tst_BuiltPrograms::aProgramIsHardened_data()
{
#ifdef __SANITIZE_ADDRESS__
    QSKIP("the sanitizers see to it");
#endif
    QTest::addColumn<QString>("program");
    QTest::addColumn<QString>("part");
    QTest::addColumn<QString>("pattern");
    for (const QString &name : programs()) {
        const auto row = [&name](const char *what, const QString &part, const QString &pattern) {
            QTest::addRow("%s %s", qPrintable(name), what) << name << part << pattern;
        };
        row("stands at any address", u"--file-header"_s, u"Type:\\s+DYN"_s);
        row("has its tables read-only", u"--segments"_s, u"GNU_RELRO"_s);
        row("is bound at its start", u"--dynamic"_s, u"BIND_NOW"_s);
        row("runs nothing on its stack", u"--segments"_s, u"GNU_STACK(\\s+0x[0-9a-f]+){5}\\s+RW\\s"_s);
        row("guards its stack", u"--dyn-syms"_s, u"__stack_chk_fail"_s);
    }
}

void tst_BuiltPrograms::aProgramIsHardened()
{
    QFETCH(const QString, program);
    QFETCH(const QString, part);
    QFETCH(const QString, pattern);
    const QRegularExpression wanted(pattern);
    QVERIFY(readelf(part, program).contains(wanted));
}

void tst_BuiltPrograms::noLibraryComesFromAnUnusualFolder()
{
    for (const QString &name : programs()) {
        const QString dynamic = readelf(u"--dynamic"_s, name);
        QVERIFY(dynamic.contains(u"NEEDED"_s));
        QVERIFY2(!dynamic.contains(u"(RPATH)"_s) && !dynamic.contains(u"(RUNPATH)"_s), qPrintable(name));
    }
}

void tst_BuiltPrograms::everySourceIsCompiledSo()
{
#ifdef __SANITIZE_ADDRESS__
    QSKIP("the sanitizers see to it");
#endif
    QFile file(QStringLiteral(ORVANE_TOOLS_DIR "/../compile_commands.json"));
    QVERIFY(file.open(QIODevice::ReadOnly));
    int sources = 0;
    const QJsonArray commands = QJsonDocument::fromJson(file.readAll()).array();
    for (const auto each : commands) {
        if (!each[u"file"_s].toString().startsWith(QStringLiteral(ORVANE_SOURCE_DIR "/src/"))) continue;
        const QString command = each[u"command"_s].toString() + u' ';
        for (const QString &flag : {u" -fstack-protector-strong "_s, u" -fstack-clash-protection "_s, u" -fPI"_s,
                                    u" -D_GLIBCXX_ASSERTIONS "_s})
            QVERIFY2(command.contains(flag), qPrintable(flag + each[u"file"_s].toString()));
#ifdef ORVANE_FORTIFIED
        QVERIFY2(command.contains(u" -D_FORTIFY_SOURCE=3 "_s), qPrintable(each[u"file"_s].toString()));
#endif
        ++sources;
    }
    QVERIFY(sources > 100);
}

// Only QProcess starts a program, and it does so without a shell. The print service's library is opened by the toolkit.
void tst_BuiltPrograms::theProgramKnowsNoNetworkAndNoShell()
{
#ifdef ORVANE_COUNTED
    QSKIP("what counts the lines calls functions of its own");
#endif
    const QStringList called = calls(u"orvane"_s);
    QVERIFY(called.size() > 500);
    for (const QString &name :
         {u"socket"_s,      u"connect"_s,       u"bind"_s,         u"listen"_s,   u"accept"_s, u"sendto"_s,
          u"getaddrinfo"_s, u"gethostbyname"_s, u"getpwuid"_s,     u"getpwnam"_s, u"system"_s, u"popen"_s,
          u"fork"_s,        u"vfork"_s,         u"execl"_s,        u"execlp"_s,   u"execv"_s,  u"execvp"_s,
          u"execve"_s,      u"posix_spawn"_s,   u"posix_spawnp"_s, u"dlopen"_s,   u"mktemp"_s, u"tmpnam"_s,
          u"tempnam"_s,     u"gets"_s,          u"strcpy"_s,       u"strcat"_s,   u"sprintf"_s})
        QVERIFY2(!called.contains(name), qPrintable(name));
    QStringList starters;
    for (const QString &name : called)
        if (name.contains(u"8QProcess"_s) || name.contains(u"16QDesktopServices"_s)) starters << name;
    QVERIFY2(starters.size() == 1 && starters.front().contains(u"startDetached"_s), qPrintable(starters.join(u' ')));
}

void tst_BuiltPrograms::theProgramLoadsNoLibraryOfTheNetwork()
{
    const QString dynamic = readelf(u"--dynamic"_s, u"orvane"_s);
    QVERIFY(dynamic.contains(u"libQt6Core"_s));
    static const QRegularExpression network(u"NEEDED.*(Network|WebEngine|WebSockets|curl|ssl|soup)"_s);
    QVERIFY(!network.match(dynamic).hasMatch());
}

QTEST_GUILESS_MAIN(tst_BuiltPrograms)
#include "tst_BuiltPrograms.moc"
