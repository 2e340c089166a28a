// What the build installs: every file in its place, and programs that run from there without writing there.
#include "packaging/InstalledTree.h"
#include "support/PrivateDisplay.h"

#include <QFile>
#include <QImage>
#include <QRegularExpression>
#include <QTest>
#include <algorithm>
#include <optional>

using namespace Qt::Literals::StringLiterals;
using namespace orvane::test;

class tst_Installation : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void cleanup() { m_tree.letWrite(true); } // or it could not be taken away
    void everyFileIsInItsPlace();
    void aFileCanBeReadByAllAndWrittenByItsOwner();
    void theLinksLeadIntoTheProgramsFolder_data();
    void theLinksLeadIntoTheProgramsFolder();
    void theMenuEntryNamesProgramAndIcon();
    void anIconHasTheSizeOfItsFolder_data();
    void anIconHasTheSizeOfItsFolder();
    void aPackedFileIsItsSource_data();
    void aPackedFileIsItsSource();
    void theDescriptionNamesTheEntryAndTheNewestVersion();
    void theProgramComesUpFromAFolderThatIsNotWritable();
    void theTourIsWalkedFromAFolderThatIsNotWritable();
    void theToolsRun_data();
    void theToolsRun();

private:
    QByteArray contents(const QString &name) const;

    InstalledTree m_tree;
};

namespace
{
QByteArray outputOf(const QString &program, const QStringList &arguments, int *exitCode = nullptr)
{
    QProcess process;
    process.setProcessChannelMode(QProcess::MergedChannels);
    process.start(program, arguments);
    const bool finished = process.waitForFinished() && process.exitStatus() == QProcess::NormalExit;
    if (exitCode) *exitCode = finished ? process.exitCode() : -1;
    return process.readAll();
}

QProcessEnvironment userAt(const PrivateDisplay &display, const QString &home)
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    for (const QString &variable : {u"XDG_CONFIG_HOME"_s, u"XDG_CACHE_HOME"_s, u"QT_QPA_PLATFORM"_s})
        environment.remove(variable);
    environment.insert(u"HOME"_s, home);
    environment.insert(u"DISPLAY"_s, display.name());
    return environment;
}

template <typename Test>
std::optional<ShownWindow> windowWhere(const PrivateDisplay &display, const QProcess &program, Test isIt)
{
    const auto windows = display.windowsOf(program.processId());
    const auto place = std::find_if(windows.begin(), windows.end(), isIt);
    return place == windows.end() ? std::nullopt : std::optional(*place);
}
} // namespace

void tst_Installation::initTestCase()
{
    QVERIFY2(m_tree.install(), m_tree.output());
}

QByteArray tst_Installation::contents(const QString &name) const
{
    QFile file(m_tree.path(name));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

void tst_Installation::everyFileIsInItsPlace()
{
    QStringList expected{u"lib/orvane/DealerData.dat"_s,
                         u"lib/orvane/DemoData.ini"_s,
                         u"lib/orvane/Orvane.hlp"_s,
                         u"lib/orvane/orvane"_s,
                         u"lib/orvane/tourwalk"_s,
                         u"share/applications/orvane.desktop"_s,
                         u"share/doc/orvane/changelog.gz"_s,
                         u"share/doc/orvane/copyright"_s,
                         u"share/icons/hicolor/scalable/apps/orvane.svg"_s,
                         u"share/metainfo/example.orvane.orvane.metainfo.xml"_s};
    for (const auto &program : {"orvane", "tourwalk", "tourlint", "dealertext"})
        expected << u"bin/%1"_s.arg(QLatin1String(program)) << u"share/man/man1/%1.1.gz"_s.arg(QLatin1String(program));
    for (const int size : {16, 22, 24, 32, 48, 64, 128, 256})
        expected << u"share/icons/hicolor/%1x%1/apps/orvane.png"_s.arg(size);
    expected.sort();
    QStringList found;
    for (const auto &[name, state] : m_tree.everything())
        if (!QFileInfo(m_tree.path(name)).isDir()) found << name;
    QCOMPARE(found, expected);
}

void tst_Installation::aFileCanBeReadByAllAndWrittenByItsOwner()
{
    constexpr QFile::Permissions ToBeRead = QFile::ReadOwner | QFile::ReadGroup | QFile::ReadOther;
    constexpr QFile::Permissions ToBeRun = QFile::ExeOwner | QFile::ExeGroup | QFile::ExeOther;
    static const QRegularExpression program(u"^(bin/[a-z]+|lib/orvane/[a-z]+)$"_s);
    for (const auto &[name, state] : m_tree.everything()) {
        const bool runs = program.match(name).hasMatch() || QFileInfo(m_tree.path(name)).isDir();
        const QFile::Permissions rights = state.first & ~(QFile::ReadUser | QFile::WriteUser | QFile::ExeUser);
        const QFile::Permissions expected = ToBeRead | QFile::WriteOwner | (runs ? ToBeRun : QFile::Permissions());
        QVERIFY2(rights == expected, qPrintable(name));
    }
}

void tst_Installation::theLinksLeadIntoTheProgramsFolder_data()
{
    QTest::addColumn<QString>("program");
    QTest::newRow("orvane") << u"orvane"_s;
    QTest::newRow("tourwalk") << u"tourwalk"_s;
}

// From the folder of the links, so that the whole can be moved.
void tst_Installation::theLinksLeadIntoTheProgramsFolder()
{
    QFETCH(QString, program);
    QCOMPARE(QFile::symLinkTarget(m_tree.path(u"bin/"_s + program)), m_tree.path(u"lib/orvane/"_s + program));
    const QByteArray link = outputOf(u"readlink"_s, {m_tree.path(u"bin/"_s + program)});
    QCOMPARE(link.trimmed(), QByteArray("../lib/orvane/") + program.toLatin1());
}

void tst_Installation::theMenuEntryNamesProgramAndIcon()
{
    const QByteArrayList lines = contents(u"share/applications/orvane.desktop"_s).split('\n');
    QCOMPARE(lines.first(), QByteArray("[Desktop Entry]"));
    const QByteArrayList expected{"Type=Application", "Name=orvane",    "Exec=orvane",
                                  "Icon=orvane",      "Terminal=false", "StartupWMClass=orvane"};
    for (const QByteArray &line : expected)
        QVERIFY2(lines.contains(line), line);
}

void tst_Installation::anIconHasTheSizeOfItsFolder_data()
{
    QTest::addColumn<int>("size");
    for (const int size : {16, 22, 24, 32, 48, 64, 128, 256})
        QTest::addRow("%d pixels", size) << size;
}

void tst_Installation::anIconHasTheSizeOfItsFolder()
{
    QFETCH(int, size);
    const QImage icon(m_tree.path(u"share/icons/hicolor/%1x%1/apps/orvane.png"_s.arg(size)));
    QCOMPARE(icon.size(), QSize(size, size));
    QCOMPARE(qAlpha(icon.pixel(0, 0)), 0); // its corners are round
    QCOMPARE(qAlpha(icon.pixel(size / 2, size / 2)), 255);
}

void tst_Installation::aPackedFileIsItsSource_data()
{
    QTest::addColumn<QString>("packed");
    QTest::addColumn<QString>("source");
    for (const auto &program : {u"orvane"_s, u"tourwalk"_s, u"tourlint"_s, u"dealertext"_s})
        QTest::newRow(qPrintable(program))
            << u"share/man/man1/%1.1.gz"_s.arg(program) << u"data/man/%1.1"_s.arg(program);
}

void tst_Installation::aPackedFileIsItsSource()
{
    QFETCH(QString, packed);
    QFETCH(QString, source);
    QFile file(QStringLiteral(ORVANE_SOURCE_DIR "/") + source);
    QVERIFY(file.open(QIODevice::ReadOnly));
    QCOMPARE(outputOf(u"gzip"_s, {u"-dc"_s, m_tree.path(packed)}), file.readAll());
}

void tst_Installation::theDescriptionNamesTheEntryAndTheNewestVersion()
{
    const QByteArray description = contents(u"share/metainfo/example.orvane.orvane.metainfo.xml"_s);
    QVERIFY(description.contains("<launchable type=\"desktop-id\">orvane.desktop</launchable>"));
    const QByteArray changelog = outputOf(u"gzip"_s, {u"-dc"_s, m_tree.path(u"share/doc/orvane/changelog.gz"_s)});
    static const QRegularExpression head(u"^orvane \\(([0-9.]+)\\) "_s);
    const QString version = head.match(QString::fromUtf8(changelog)).captured(1);
    QVERIFY(!version.isEmpty());
    QVERIFY(description.contains("<release version=\"" + version.toLatin1() + "\" date=\""));
}

void tst_Installation::theProgramComesUpFromAFolderThatIsNotWritable()
{
    const QString missing = PrivateDisplay::missingProgram();
    if (!missing.isEmpty()) QSKIP(qPrintable(missing + u" is not installed"_s));
    const PrivateDisplay display;
    QVERIFY(m_tree.letWrite(false));
    const auto before = m_tree.everything();
    QProcess program;
    const QTemporaryDir home;
    program.setProcessEnvironment(userAt(display, home.path()));
    program.start(m_tree.path(u"bin/orvane"_s), QStringList());
    const auto isIntro = [](const ShownWindow &each) { return each.place.size() == QSize(621, 466); };
    const auto isDiagram = [](const ShownWindow &each) { return each.title == u"orvane - [Command Center]"_s; };
    QTRY_VERIFY_WITH_TIMEOUT(windowWhere(display, program, isIntro), 30'000);
    display.click(*windowWhere(display, program, isIntro), {99, 99});
    QTRY_VERIFY_WITH_TIMEOUT(windowWhere(display, program, isDiagram), 30'000);
    program.kill();
    QVERIFY(program.waitForFinished());
    QVERIFY(m_tree.everything() == before);
}

// Without the dealer's file, which lies in the folder, the walk would not get beyond the opening picture.
void tst_Installation::theTourIsWalkedFromAFolderThatIsNotWritable()
{
    const QTemporaryDir out;
    QFile script(out.filePath(u"short.ini"_s));
    QVERIFY(script.open(QIODevice::WriteOnly));
    script.write("[101]\nHeader=First\nRTF={\\rtf1 Text}\nNextRTF=603/cc/1\n[603]\nHeader=End\nRTF={\\rtf1 Text}\n");
    script.close();
    QVERIFY(m_tree.letWrite(false));
    const auto before = m_tree.everything();
    int exitCode = -1;
    const QByteArray output =
        outputOf(m_tree.path(u"bin/tourwalk"_s), {u"--out"_s, out.filePath(u"out"_s), script.fileName()}, &exitCode);
    QVERIFY2(exitCode == 0, output);
    QVERIFY(m_tree.everything() == before);
}

void tst_Installation::theToolsRun_data()
{
    QTest::addColumn<QString>("tool");
    QTest::addColumn<QStringList>("arguments");
    const QString script = m_tree.programFolder().filePath(u"DemoData.ini"_s);
    const QString dealer = m_tree.programFolder().filePath(u"DealerData.dat"_s);
    QTest::newRow("tourlint") << u"tourlint"_s << QStringList{script};
    QTest::newRow("dealertext") << u"dealertext"_s << QStringList{u"unscramble"_s, dealer, u"-"_s};
}

void tst_Installation::theToolsRun()
{
    QFETCH(QString, tool);
    QFETCH(QStringList, arguments);
    int exitCode = -1;
    const QByteArray output = outputOf(m_tree.path(u"bin/"_s + tool), arguments, &exitCode);
    QVERIFY2(exitCode == 0, output);
}

QTEST_GUILESS_MAIN(tst_Installation)
#include "tst_Installation.moc"
