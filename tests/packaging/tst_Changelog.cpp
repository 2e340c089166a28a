// What the package and the release tell of the changelog.
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::Literals::StringLiterals;

class tst_Changelog : public QObject
{
    Q_OBJECT

private slots:
    void debianHasAnEntryForEachVersion();
    void aLongEntryIsFolded();
    void aReleaseHasItsDay();
    void anUnreleasedVersionHasTheDayOfTheBuild();
    void theNoteIsTheNewestSection();
    void aFileWithoutAVersionIsRefused();
    void wrongUseIsRefused();

private:
    QByteArray tell(const QString &form, const QByteArray &changelog);

    int m_exitCode = -1;
};

namespace
{
constexpr char TwoVersions[] = "# Changelog\n\nThe newest first.\n\n## 1.1, 2026-12-03\n\n### Added\n\n- One thing\n"
                               "  and more of it.\n\n### Fixed\n\n- Another.\n\n## 1.0, 2026-12-01\n\n- The first.\n";
} // namespace

// What the script says of a file of that text.
QByteArray tst_Changelog::tell(const QString &form, const QByteArray &changelog)
{
    const QTemporaryDir folder;
    QFile file(folder.filePath(u"CHANGELOG.md"_s));
    if (!file.open(QIODevice::WriteOnly) || file.write(changelog) != changelog.size()) return {};
    file.close();
    QProcess script;
    script.setProcessChannelMode(QProcess::MergedChannels);
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(u"SOURCE_DATE_EPOCH"_s, u"86400"_s);
    script.setProcessEnvironment(environment);
    script.start(QStringLiteral(ORVANE_SOURCE_DIR "/packaging/changelog.sh"),
                 {form, file.fileName(), u"Some Body <some@body.example>"_s});
    m_exitCode = script.waitForFinished() ? script.exitCode() : -1;
    return script.readAll();
}

void tst_Changelog::debianHasAnEntryForEachVersion()
{
    QCOMPARE(tell(u"debian"_s, TwoVersions),
             QByteArray("orvane (1.1) unstable; urgency=medium\n\n  * One thing and more of it.\n  * Another.\n\n"
                        " -- Some Body <some@body.example>  Thu, 03 Dec 2026 12:00:00 +0000\n\n"
                        "orvane (1.0) unstable; urgency=medium\n\n  * The first.\n\n"
                        " -- Some Body <some@body.example>  Tue, 01 Dec 2026 12:00:00 +0000\n"));
}

void tst_Changelog::aLongEntryIsFolded()
{
    const QByteArray words = QByteArray("word ").repeated(40).trimmed();
    const QByteArray told = tell(u"debian"_s, "## 1.0, 2026-12-01\n\n- " + words + '\n');
    QByteArray joined;
    for (const QByteArray &line : told.split('\n')) {
        QVERIFY(line.size() <= 76);
        if (line.contains("word")) joined += line.trimmed() + ' ';
    }
    QCOMPARE(joined.trimmed(), "* " + words);
}

void tst_Changelog::aReleaseHasItsDay()
{
    QCOMPARE(tell(u"releases"_s, TwoVersions),
             QByteArray("    <release version=\"1.1\" date=\"2026-12-03\" type=\"stable\"/>\n"
                        "    <release version=\"1.0\" date=\"2026-12-01\" type=\"stable\"/>\n"));
}

void tst_Changelog::anUnreleasedVersionHasTheDayOfTheBuild()
{
    QCOMPARE(tell(u"releases"_s, "## Unreleased (to be 1.2)\n\n- New.\n"),
             QByteArray("    <release version=\"1.2\" date=\"1970-01-02\" type=\"development\"/>\n"));
}

void tst_Changelog::theNoteIsTheNewestSection()
{
    QCOMPARE(tell(u"note"_s, TwoVersions),
             QByteArray("# orvane 1.1\n\nReleased on 2026-12-03.\n\n### Added\n\n- One thing\n"
                        "  and more of it.\n\n### Fixed\n\n- Another.\n\n"));
}

void tst_Changelog::aFileWithoutAVersionIsRefused()
{
    QVERIFY(tell(u"note"_s, "# Changelog\n\n## Soon\n\n- New.\n").contains("no section is headed by a version"));
    QCOMPARE(m_exitCode, 1);
}

void tst_Changelog::wrongUseIsRefused()
{
    QVERIFY(tell(u"poem"_s, TwoVersions).startsWith("Usage: changelog.sh "));
    QCOMPARE(m_exitCode, 2);
}

QTEST_GUILESS_MAIN(tst_Changelog)
#include "tst_Changelog.moc"
