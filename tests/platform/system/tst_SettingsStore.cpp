#include "platform/system/SettingsStore.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSettings>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::Literals::StringLiterals;
using namespace orvane;

namespace
{

const QString Application = u"orvane Quillmark CD"_s;
const QString Section = u"UserDetails"_s;

} // namespace

class tst_SettingsStore : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void whatWasNeverSavedIsTheDefault();
    void aValueComesBackAsItWas_data();
    void aValueComesBackAsItWas();
    void anEmptyValueIsNotTheDefault();
    void aLaterValueTakesThePlaceOfTheFirst();
    void keysSectionsAndApplicationsAreApart();
    void theFileIsNamedAfterTheApplication();
    void withoutAFolderTheFileStandsInTheUsersPlace();
    void aMissingFolderIsMade();
    void aFileWrittenByHandIsReadAsText_data();
    void aFileWrittenByHandIsReadAsText();
    void aBrokenFileIsTheDefault();
    void aSaveThatCannotBeWrittenGoesUnreported();
    void savesInQuickSuccessionAreAllReadBack();
    void aNewFileIsForTheUsersEyesAlone();
    void theFilesPermissionsStay();
    void aLinkToTheFileStaysALink();
    void nothingIsLeftBesideTheFile();

private:
    QString fileName() const { return m_folder->filePath(Application + u".ini"_s); }
    QString valueFromDisk(const QString &key) const;

    std::unique_ptr<QTemporaryDir> m_folder;
};

void tst_SettingsStore::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    setSettingsFolder(m_folder->path());
}

void tst_SettingsStore::cleanup()
{
    setSettingsFolder({});
    m_folder.reset();
}

// As another program would find it: from a copy that nothing of this one has seen.
QString tst_SettingsStore::valueFromDisk(const QString &key) const
{
    const QTemporaryDir copy;
    if (!QFile::copy(fileName(), copy.filePath(Application + u".ini"_s))) return u"no file"_s;
    setSettingsFolder(copy.path());
    const QString value = GetSetting(Application, Section, key, u"None"_s);
    setSettingsFolder(m_folder->path());
    return value;
}

void tst_SettingsStore::whatWasNeverSavedIsTheDefault()
{
    QCOMPARE(GetSetting(Application, Section, u"Name"_s, u"None"_s), u"None"_s);
    QCOMPARE(GetSetting(Application, Section, u"Name"_s), QString());
    QVERIFY(!QFile::exists(fileName()));
}

void tst_SettingsStore::aValueComesBackAsItWas_data()
{
    QTest::addColumn<QString>("value");
    QTest::newRow("plain") << u"Pat Doe"_s;
    QTest::newRow("blanks around") << u"  Pat  Doe  "_s;
    QTest::newRow("one blank") << u" "_s;
    QTest::newRow("tabs") << u"\tPat\tDoe\t"_s;
    QTest::newRow("line breaks") << u"Pat\r\nDoe\nLtd\r"_s;
    QTest::newRow("quotes") << u"\"Pat\" 'Doe' \""_s;
    QTest::newRow("commas") << u"Doe, Pat, and others,"_s;
    QTest::newRow("only a comma") << u","_s;
    QTest::newRow("semicolons") << u"Doe; Pat;"_s;
    QTest::newRow("equals signs") << u"=a=b="_s;
    QTest::newRow("brackets") << u"[Doe]"_s;
    QTest::newRow("blank as percent code") << u"Pat%20Doe"_s;
    QTest::newRow("percent signs") << u"%1 100% %"_s;
    QTest::newRow("backslashes") << u"C:\\new\\x41\\"_s;
    QTest::newRow("at sign in front") << u"@Invalid()"_s;
    QTest::newRow("at signs") << u"@@ByteArray(x)"_s;
    QTest::newRow("number") << u"007"_s;
    QTest::newRow("logical") << u"true"_s;
    QTest::newRow("accents") << u"Zo\u00EB Stra\u00DFe \u20AC"_s;
    QTest::newRow("hex digits behind accents") << u"\u00E9\u0001fade"_s;
    QTest::newRow("beyond the page") << u"\u03A9 \u4E2D\u6587 \u05D0"_s;
    QTest::newRow("emoji") << u"\U0001F600\U0001F3ED"_s;
    QTest::newRow("NUL") << QString(u"a\0b"_s);
    QTest::newRow("controls") << u"\u0001\u001F\u007F\u0085\u2028"_s;
    QTest::newRow("10000 characters") << QString(9'999, u'x') + u'z';
}

void tst_SettingsStore::aValueComesBackAsItWas()
{
    QFETCH(QString, value);
    SaveSetting(Application, Section, u"Name"_s, value);
    QCOMPARE(GetSetting(Application, Section, u"Name"_s, u"None"_s), value);
    QCOMPARE(valueFromDisk(u"Name"_s), value);
}

void tst_SettingsStore::anEmptyValueIsNotTheDefault()
{
    SaveSetting(Application, Section, u"Name"_s, u""_s);
    SaveSetting(Application, Section, u"Company"_s, QString());
    QCOMPARE(GetSetting(Application, Section, u"Name"_s, u"None"_s), u""_s);
    QCOMPARE(GetSetting(Application, Section, u"Company"_s, u"None"_s), u""_s);
    QCOMPARE(valueFromDisk(u"Name"_s), u""_s);
    QCOMPARE(valueFromDisk(u"Company"_s), u""_s);
}

void tst_SettingsStore::aLaterValueTakesThePlaceOfTheFirst()
{
    SaveSetting(Application, Section, u"Name"_s, u"first"_s);
    SaveSetting(Application, Section, u"Name"_s, u"second"_s);
    QCOMPARE(valueFromDisk(u"Name"_s), u"second"_s);
}

void tst_SettingsStore::keysSectionsAndApplicationsAreApart()
{
    SaveSetting(Application, Section, u"Name"_s, u"Pat"_s);
    SaveSetting(Application, Section, u"Company"_s, u"Doe"_s);
    SaveSetting(Application, u"Other"_s, u"Name"_s, u"other section"_s);
    SaveSetting(u"another"_s, Section, u"Name"_s, u"other application"_s);
    QCOMPARE(valueFromDisk(u"Name"_s), u"Pat"_s);
    QCOMPARE(valueFromDisk(u"Company"_s), u"Doe"_s);
    QCOMPARE(valueFromDisk(u"UserName"_s), u"None"_s);
    QCOMPARE(GetSetting(Application, u"Other"_s, u"Name"_s), u"other section"_s);
    QCOMPARE(GetSetting(u"another"_s, Section, u"Name"_s), u"other application"_s);
}

void tst_SettingsStore::theFileIsNamedAfterTheApplication()
{
    SaveSetting(Application, Section, u"Name"_s, u"Pat"_s);
    QCOMPARE(QDir(m_folder->path()).entryList(QDir::Files), QStringList{u"orvane Quillmark CD.ini"_s});
}

void tst_SettingsStore::withoutAFolderTheFileStandsInTheUsersPlace()
{
    QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, m_folder->path());
    setSettingsFolder({});
    SaveSetting(Application, Section, u"Name"_s, u"Pat"_s);
    QCOMPARE(GetSetting(Application, Section, u"Name"_s, u"None"_s), u"Pat"_s);
    QVERIFY(QFile::exists(fileName()));
}

void tst_SettingsStore::aMissingFolderIsMade()
{
    const QString folder = m_folder->filePath(u"a/b"_s);
    setSettingsFolder(folder);
    SaveSetting(Application, Section, u"Name"_s, u"Pat"_s);
    QVERIFY(QFile::exists(folder + u"/orvane Quillmark CD.ini"_s));
}

void tst_SettingsStore::aFileWrittenByHandIsReadAsText_data()
{
    QTest::addColumn<QByteArray>("line");
    QTest::addColumn<QString>("value");
    QTest::newRow("plain") << "UserName=Pat Doe"_ba << u"Pat Doe"_s;
    QTest::newRow("blanks around") << "UserName =  Pat Doe  "_ba << u"Pat Doe"_s;
    QTest::newRow("percent code") << "UserName=Pat%20Doe"_ba << u"Pat%20Doe"_s;
    QTest::newRow("commas") << "UserName=Doe, Pat, and others"_ba << u"Doe, Pat, and others"_s;
    QTest::newRow("quoted") << "UserName=\"Doe, Pat\""_ba << u"Doe, Pat"_s;
    QTest::newRow("number") << "UserName=17"_ba << u"17"_s;
    QTest::newRow("accents") << "UserName=Zo\xC3\xAB"_ba << u"Zo\u00EB"_s;
    QTest::newRow("empty") << "UserName="_ba << u""_s;
}

void tst_SettingsStore::aFileWrittenByHandIsReadAsText()
{
    QFETCH(QByteArray, line);
    QFile file(fileName());
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write("[UserDetails]\n" + line + "\n");
    file.close();
    QTEST(GetSetting(Application, Section, u"UserName"_s, u"None"_s), "value");
}

void tst_SettingsStore::aBrokenFileIsTheDefault()
{
    QFile file(fileName());
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(QByteArray("\0\xFF[[[=\n\\x\"", 10) + QByteArray(100'000, '\x80'));
    file.close();
    QCOMPARE(GetSetting(Application, Section, u"Name"_s, u"None"_s), u"None"_s);
    SaveSetting(Application, Section, u"Name"_s, u"Pat"_s);
    QCOMPARE(valueFromDisk(u"Name"_s), u"Pat"_s);
}

void tst_SettingsStore::aSaveThatCannotBeWrittenGoesUnreported()
{
    QFile file(m_folder->filePath(u"file"_s));
    QVERIFY(file.open(QIODevice::WriteOnly));
    setSettingsFolder(file.fileName());
    SaveSetting(Application, Section, u"Name"_s, u"Pat"_s);
    QVERIFY(!QFile::exists(file.fileName() + u"/orvane Quillmark CD.ini"_s));
}

// A file of the same length, written in the same moment.
void tst_SettingsStore::savesInQuickSuccessionAreAllReadBack()
{
    for (int i = 100; i < 300; ++i) {
        const QString value = QString::number(i);
        SaveSetting(Application, Section, u"Name"_s, value);
        QCOMPARE(GetSetting(Application, Section, u"Name"_s), value);
    }
}

void tst_SettingsStore::aNewFileIsForTheUsersEyesAlone()
{
    SaveSetting(Application, Section, u"Name"_s, u"Pat"_s);
    const QFile::Permissions others = QFile::ReadGroup | QFile::WriteGroup | QFile::ReadOther | QFile::WriteOther;
    QVERIFY(!(QFile::permissions(fileName()) & others));
    QVERIFY(QFile::permissions(fileName()).testFlag(QFile::WriteOwner));
}

void tst_SettingsStore::theFilesPermissionsStay()
{
    SaveSetting(Application, Section, u"Name"_s, u"Pat"_s);
    QVERIFY(QFile::setPermissions(fileName(), QFile::ReadOwner | QFile::WriteOwner | QFile::ReadGroup));
    const QFile::Permissions before = QFile::permissions(fileName());
    SaveSetting(Application, Section, u"Name"_s, u"Jo"_s);
    QCOMPARE(QFile::permissions(fileName()), before);
}

void tst_SettingsStore::aLinkToTheFileStaysALink()
{
    const QTemporaryDir elsewhere;
    const QString target = elsewhere.filePath(u"settings"_s);
    SaveSetting(Application, Section, u"Name"_s, u"Pat"_s);
    QVERIFY(QFile::rename(fileName(), target));
    QVERIFY(QFile::link(target, fileName()));
    SaveSetting(Application, Section, u"Name"_s, u"Jo"_s);
    QVERIFY(QFileInfo(fileName()).isSymLink());
    QCOMPARE(QFile::symLinkTarget(fileName()), target);
    QCOMPARE(valueFromDisk(u"Name"_s), u"Jo"_s);
}

void tst_SettingsStore::nothingIsLeftBesideTheFile()
{
    SaveSetting(Application, Section, u"Name"_s, u"Pat"_s);
    const auto everything = QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot;
    QCOMPARE(QDir(m_folder->path()).entryList(everything), QStringList{Application + u".ini"_s});
}

QTEST_GUILESS_MAIN(tst_SettingsStore)
#include "tst_SettingsStore.moc"
