// What this machine answers for a registry.
#include "platform/system/AccountRecord.h"
#include "platform/system/RegistryStandIn.h"

#include <QFile>
#include <QTemporaryDir>
#include <QTest>
#include <unistd.h>

using namespace Qt::Literals::StringLiterals;
using namespace orvane;

namespace
{
QString userInfo()
{
    return QStringLiteral(R"(.Default\Software\Microsoft\MS Setup (ACME)\User Info)");
}

QString systemInformation()
{
    return QStringLiteral(R"(SOFTWARE\Microsoft\Shared Tools\MSINFO)");
}

constexpr qsizetype Room = 255;

constexpr char Accounts[] = "root:x:0:0:root:/root:/bin/bash\n"
                            "broken line\n"
                            "ada:x:1000:1000:Ada Lindqvist,Room 4,555-0100:/home/ada:/bin/sh\n"
                            "bare:x:1001:1001::/home/bare:/bin/sh\n"
                            "jo:x:1002:1002:J\xC3\xB6rg Holm:/home/jo:/bin/sh\n"
                            "short:x:1003\n"
                            "noname:x:1004:1004:,Room 5:/home/noname:/bin/sh";
} // namespace

class tst_RegistryStandIn : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void aFullNameEndsAtTheFirstComma_data();
    void aFullNameEndsAtTheFirstComma();
    void anUnknownAccountHasNoRecord_data();
    void anUnknownAccountHasNoRecord();
    void withoutAFileOfAccountsThereIsNoRecord();
    void theUserInfoBearsTheFullNameOfTheAccount();
    void namesCompareWithoutCase();
    void noOrganizationIsKnown();
    void otherKeysCantBeOpened_data();
    void otherKeysCantBeOpened();
    void aValueLongerThanItsRoomIsNotRead();
    void theSystemInformationToolIsFoundInTheFoldersOfPrograms_data();
    void theSystemInformationToolIsFoundInTheFoldersOfPrograms();
    void theFirstOfSeveralToolsIsTaken();
    void withoutAToolThereIsNoKey();
    void aToolThatCantRunIsNone();
    void aRelativeFolderOfProgramsDoesNotCount();

private:
    QString inFolder(const QString &name) const { return m_folder.filePath(name); }
    void write(const QString &name, const QByteArray &bytes, QFile::Permissions permissions) const;
    void addTool(const QString &name) const;

    QTemporaryDir m_folder;
    QByteArray m_path = qgetenv("PATH");
    QString m_workingFolder = QDir::currentPath();
};

void tst_RegistryStandIn::init()
{
    m_folder = QTemporaryDir();
    QVERIFY(m_folder.isValid());
    qputenv("PATH", QFile::encodeName(m_folder.path()));
}

void tst_RegistryStandIn::cleanup()
{
    qputenv("PATH", m_path);
    QVERIFY(QDir::setCurrent(m_workingFolder));
}

void tst_RegistryStandIn::write(const QString &name, const QByteArray &bytes, QFile::Permissions permissions) const
{
    QFile file(inFolder(name));
    QVERIFY(file.open(QIODevice::WriteOnly));
    QCOMPARE(file.write(bytes), bytes.size());
    QVERIFY(file.setPermissions(permissions));
}

void tst_RegistryStandIn::addTool(const QString &name) const
{
    write(name, "#!/bin/sh\n", QFile::ReadOwner | QFile::ExeOwner);
}

void tst_RegistryStandIn::aFullNameEndsAtTheFirstComma_data()
{
    QTest::addColumn<quint32>("userId");
    QTest::addColumn<QString>("name");
    QTest::newRow("without details") << 0U << u"root"_s;
    QTest::newRow("with details") << 1000U << u"Ada Lindqvist"_s;
    QTest::newRow("empty") << 1001U << u""_s;
    QTest::newRow("not ASCII") << 1002U << u"Jörg Holm"_s;
    QTest::newRow("details alone") << 1004U << u""_s;
}

void tst_RegistryStandIn::aFullNameEndsAtTheFirstComma()
{
    QFETCH(quint32, userId);
    write(u"accounts"_s, Accounts, QFile::ReadOwner);
    const std::optional<QString> name = accountFullName(inFolder(u"accounts"_s), userId);
    QVERIFY(name);
    QTEST(*name, "name");
}

void tst_RegistryStandIn::anUnknownAccountHasNoRecord_data()
{
    QTest::addColumn<quint32>("userId");
    QTest::newRow("no line") << 100U;
    QTest::newRow("a line that ends too soon") << 1003U;
}

void tst_RegistryStandIn::anUnknownAccountHasNoRecord()
{
    QFETCH(quint32, userId);
    write(u"accounts"_s, Accounts, QFile::ReadOwner);
    QVERIFY(!accountFullName(inFolder(u"accounts"_s), userId));
}

void tst_RegistryStandIn::withoutAFileOfAccountsThereIsNoRecord()
{
    QVERIFY(!accountFullName(inFolder(u"accounts"_s), 0));
}

void tst_RegistryStandIn::theUserInfoBearsTheFullNameOfTheAccount()
{
    const std::optional<QString> name = accountFullName(u"/etc/passwd"_s, getuid());
    if (!name) QSKIP("The user who runs this has no local account.");
    const std::optional<RegistryKey> key = openMachineKey(HKEY_USERS, userInfo());
    QVERIFY(key);
    const std::optional<RegistryValue> value = key->query(u"DefName"_s, Room);
    QVERIFY(value);
    QCOMPARE(value->type, static_cast<int>(RegistryString));
    QCOMPARE(value->data, *name + QChar(u'\0'));
}

void tst_RegistryStandIn::namesCompareWithoutCase()
{
    addTool(u"hardinfo"_s);
    const std::optional<RegistryKey> key = openMachineKey(HKEY_LOCAL_MACHINE, systemInformation().toLower());
    QVERIFY(key);
    QVERIFY(key->query(u"Path"_s, Room));
    QVERIFY(!key->query(u"Paths"_s, Room));
}

void tst_RegistryStandIn::noOrganizationIsKnown()
{
    const std::optional<RegistryKey> key = openMachineKey(HKEY_USERS, userInfo());
    if (!key) QSKIP("The user who runs this has no local account.");
    QVERIFY(!key->query(u"DefCompany"_s, Room));
}

void tst_RegistryStandIn::otherKeysCantBeOpened_data()
{
    QTest::addColumn<quint32>("rootKey");
    QTest::addColumn<QString>("subKey");
    QTest::newRow("another root") << HKEY_LOCAL_MACHINE << userInfo();
    QTest::newRow("the tool under the users") << HKEY_USERS << systemInformation();
    QTest::newRow("the tool's other place")
        << HKEY_LOCAL_MACHINE << QStringLiteral(R"(SOFTWARE\Microsoft\Shared Tools Location)");
    QTest::newRow("a longer name") << HKEY_USERS << userInfo() + u"\\More"_s;
    QTest::newRow("no name") << HKEY_USERS << QString();
}

void tst_RegistryStandIn::otherKeysCantBeOpened()
{
    QFETCH(quint32, rootKey);
    QFETCH(QString, subKey);
    addTool(u"hardinfo"_s);
    QVERIFY(!openMachineKey(rootKey, subKey));
}

void tst_RegistryStandIn::aValueLongerThanItsRoomIsNotRead()
{
    RegistryKey key;
    key.set(u"DefName"_s, {RegistryString, QString(Room, u'x')});
    QVERIFY(key.query(u"DefName"_s, Room));
    key.set(u"defname"_s, {RegistryString, QString(Room + 1, u'x')});
    QVERIFY(!key.query(u"DefName"_s, Room));
}

void tst_RegistryStandIn::theSystemInformationToolIsFoundInTheFoldersOfPrograms_data()
{
    QTest::addColumn<QString>("tool");
    for (const QString &tool : {u"hardinfo2"_s, u"hardinfo"_s, u"kinfocenter"_s, u"gnome-system-monitor"_s})
        QTest::addRow("%s", qPrintable(tool)) << tool;
}

void tst_RegistryStandIn::theSystemInformationToolIsFoundInTheFoldersOfPrograms()
{
    QFETCH(QString, tool);
    addTool(tool);
    const std::optional<RegistryKey> key = openMachineKey(HKEY_LOCAL_MACHINE, systemInformation());
    QVERIFY(key);
    const std::optional<RegistryValue> path = key->query(u"PATH"_s, Room);
    QVERIFY(path);
    QCOMPARE(path->data, inFolder(tool) + QChar(u'\0'));
}

void tst_RegistryStandIn::theFirstOfSeveralToolsIsTaken()
{
    addTool(u"gnome-system-monitor"_s);
    addTool(u"hardinfo"_s);
    const std::optional<RegistryKey> key = openMachineKey(HKEY_LOCAL_MACHINE, systemInformation());
    QVERIFY(key);
    QCOMPARE(key->query(u"PATH"_s, Room)->data, inFolder(u"hardinfo"_s) + QChar(u'\0'));
}

void tst_RegistryStandIn::withoutAToolThereIsNoKey()
{
    QVERIFY(!openMachineKey(HKEY_LOCAL_MACHINE, systemInformation()));
    qunsetenv("PATH");
    QVERIFY(!openMachineKey(HKEY_LOCAL_MACHINE, systemInformation()));
}

void tst_RegistryStandIn::aToolThatCantRunIsNone()
{
    write(u"hardinfo"_s, "#!/bin/sh\n", QFile::ReadOwner);
    QVERIFY(!openMachineKey(HKEY_LOCAL_MACHINE, systemInformation()));
}

void tst_RegistryStandIn::aRelativeFolderOfProgramsDoesNotCount()
{
    addTool(u"hardinfo"_s);
    QVERIFY(QDir::setCurrent(m_folder.path()));
    qputenv("PATH", ".:");
    QVERIFY(!openMachineKey(HKEY_LOCAL_MACHINE, systemInformation()));
}

QTEST_GUILESS_MAIN(tst_RegistryStandIn)
#include "tst_RegistryStandIn.moc"
