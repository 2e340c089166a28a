// The About box: what it says, how it goes, and what it starts.
#include "platform/system/Application.h"
#include "shell/RegistryHost.h"
#include "shell/frmAbout.h"
#include "support/RunningSystem.h"

#include <QApplication>
#include <QFile>
#include <QKeyEvent>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::Literals::StringLiterals;
using namespace orvane;

namespace
{
QString unavailable()
{
    return QStringLiteral("System Information Is Unavailable At This Time");
}

QString toolRecord()
{
    return QStringLiteral(R"(SOFTWARE\Microsoft\Shared Tools\MSINFO)");
}

QString sharedTools()
{
    return QStringLiteral(R"(SOFTWARE\Microsoft\Shared Tools Location)");
}

const QChar Nul(u'\0');

frmAbout &about()
{
    return Default<frmAbout>();
}

bool isLoaded()
{
    return test::countWindows(u"frmAbout"_s) == 1;
}

void show()
{
    about().Show();
    QVERIFY(QTest::qWaitForWindowActive(&about().shell()));
}
} // namespace

class tst_frmAbout : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void theCaptionNamesTheProgram();
    void theVersionHasTwoNumbers();
    void okUnloadsTheWindow();
    void enterAndEscapePressOk_data();
    void enterAndEscapePressOk();
    void enterOnTheOtherButtonPressesThatOne();
    void escapePressesOkFromAnywhere_data();
    void escapePressesOkFromAnywhere();
    void theButtonsBearTheirCaptions();
    void theWindowIsModalAndGoesWithOk();
    void theMenuShowsItModally();
    void withoutToolThereIsAMessageAndNothingElse();
    void theAccessKeyAsksForTheToolToo();
    void aRecordedToolIsStarted();
    void aRecordedToolWinsOverTheSharedTools();
    void aRecordedToolThatCantBeStartedGivesTheMessage();
    void aSharedToolIsStarted();
    void aSharedToolWithoutSuchAFileGivesTheMessage();
    void aSharedToolThatCantBeStartedGivesTheMessage();
    void theKeysOfTheCreditsShowThem_data();
    void theKeysOfTheCreditsShowThem();
    void otherKeysShowNoCredits_data();
    void otherKeysShowNoCredits();
    void pressingTheKeysAloneShowsNoCredits();
    void holdingTheKeysDownShowsNoCredits();

private:
    QString inFolder(const QString &name) const { return m_folder->filePath(name); }
    void writeTool(const QString &name, const QString &mark) const;
    void record(const QString &subKey, const QString &valueName, const QString &path);
    void askForTool();

    std::optional<test::RunningSystem> m_system;
    std::optional<test::RegistryHost> m_registry;
    std::optional<QTemporaryDir> m_folder;
};

void tst_frmAbout::init()
{
    m_system.emplace();
    m_registry.emplace();
    m_folder.emplace();
    QVERIFY(m_folder->isValid());
}

void tst_frmAbout::cleanup()
{
    m_folder.reset();
    m_registry.reset();
    m_system.reset();
}

// A program that leaves an empty file of the mark's name.
void tst_frmAbout::writeTool(const QString &name, const QString &mark) const
{
    QFile file(inFolder(name));
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write("#!/bin/sh\n: > '" + QFile::encodeName(inFolder(mark)) + "'\n");
    QVERIFY(file.setPermissions(QFile::ReadOwner | QFile::ExeOwner));
}

void tst_frmAbout::record(const QString &subKey, const QString &valueName, const QString &path)
{
    RegistryKey key;
    key.set(valueName, {RegistryString, path + Nul});
    m_registry->setKey(HKEY_LOCAL_MACHINE, subKey, key);
}

void tst_frmAbout::askForTool()
{
    show();
    m_system->click(about().cmdSysInfo);
}

void tst_frmAbout::theCaptionNamesTheProgram()
{
    QCOMPARE(about().Caption(), u"About orvane Quillmark CD"_s);
    QCOMPARE(about().shell().windowTitle(), u"About orvane Quillmark CD"_s);
}

void tst_frmAbout::theVersionHasTwoNumbers()
{
    QCOMPARE(about().lblVersion.Caption(), QStringLiteral("Version " ORVANE_VERSION));
}

void tst_frmAbout::okUnloadsTheWindow()
{
    show();
    m_system->click(about().cmdOK);
    QVERIFY(!isLoaded());
}

void tst_frmAbout::enterAndEscapePressOk_data()
{
    QTest::addColumn<Qt::Key>("key");
    QTest::newRow("Enter") << Qt::Key_Return;
    QTest::newRow("Escape") << Qt::Key_Escape;
}

void tst_frmAbout::enterAndEscapePressOk()
{
    QFETCH(Qt::Key, key);
    show();
    QTest::keyClick(&about().shell(), key);
    QVERIFY(!isLoaded());
}

void tst_frmAbout::enterOnTheOtherButtonPressesThatOne()
{
    m_system->host.expectMessage(unavailable());
    show();
    about().cmdSysInfo.SetFocus();
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
    QCOMPARE(m_system->host.messages().size(), 1U);
    QVERIFY(isLoaded());
}

void tst_frmAbout::escapePressesOkFromAnywhere_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("cmdOK") << u"cmdOK"_s;
    QTest::newRow("cmdSysInfo") << u"cmdSysInfo"_s;
}

void tst_frmAbout::escapePressesOkFromAnywhere()
{
    QFETCH(QString, name);
    show();
    about().control(name)->SetFocus();
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Escape);
    QVERIFY(!isLoaded());
    QVERIFY(m_system->host.messages().empty());
}

void tst_frmAbout::theButtonsBearTheirCaptions()
{
    QCOMPARE(about().cmdOK.Caption(), u"OK"_s);
    QCOMPARE(about().cmdSysInfo.Caption(), u"&System Info..."_s);
    QCOMPARE(about().lblVersion.Caption(), u"Version 1.0"_s);
}

void tst_frmAbout::theWindowIsModalAndGoesWithOk()
{
    bool wasModal = false;
    m_system->whileModal([] { about().Show(Modal); },
                         [&] {
                             wasModal = about().shell().windowModality() == Qt::ApplicationModal && about().Visible();
                             m_system->click(about().cmdOK);
                         });
    QVERIFY(wasModal);
    QVERIFY(!isLoaded());
}

void tst_frmAbout::theMenuShowsItModally()
{
    m_system->start();
    bool wasModal = false;
    m_system->whileModal([this] { m_system->clickTool(m_system->frame(), u"mnuMain"_s, u"mnuHelp"_s, u"miHAbout"_s); },
                         [&] {
                             wasModal = about().shell().isModal() && about().Visible();
                             about().shell().close();
                         });
    QVERIFY(wasModal);
    QVERIFY(!isLoaded());
}

void tst_frmAbout::withoutToolThereIsAMessageAndNothingElse()
{
    m_system->host.expectMessage(unavailable());
    askForTool();
    QCOMPARE(m_system->host.messages().size(), 1U);
    QCOMPARE(m_system->host.messages()[0].style, static_cast<int>(NoIcon));
    QCOMPARE(m_registry->timesOpened(), 2);
    QVERIFY(about().Visible());
}

void tst_frmAbout::theAccessKeyAsksForTheToolToo()
{
    m_system->host.expectMessage(unavailable());
    show();
    QTest::keyClick(&about().shell(), Qt::Key_S, Qt::AltModifier);
    QTRY_COMPARE(m_system->host.messages().size(), 1U);
}

void tst_frmAbout::aRecordedToolIsStarted()
{
    writeTool(u"the tool"_s, u"started"_s);
    record(toolRecord(), u"PATH"_s, inFolder(u"the tool"_s));
    askForTool();
    QTRY_VERIFY(QFile::exists(inFolder(u"started"_s)));
    QVERIFY(about().Visible());
}

void tst_frmAbout::aRecordedToolWinsOverTheSharedTools()
{
    writeTool(u"tool"_s, u"started"_s);
    writeTool(uR"(\MSINFO32.EXE)"_s, u"other"_s);
    record(toolRecord(), u"PATH"_s, inFolder(u"tool"_s));
    record(sharedTools(), u"MSINFO"_s, m_folder->path() + u'/');
    askForTool();
    QTRY_VERIFY(QFile::exists(inFolder(u"started"_s)));
    QCOMPARE(m_registry->timesOpened(), 1);
    QVERIFY(!QFile::exists(inFolder(u"other"_s)));
}

// The failure goes straight to the message; the shared tools aren't tried.
void tst_frmAbout::aRecordedToolThatCantBeStartedGivesTheMessage()
{
    writeTool(uR"(\MSINFO32.EXE)"_s, u"other"_s);
    record(toolRecord(), u"PATH"_s, inFolder(u"missing"_s));
    record(sharedTools(), u"MSINFO"_s, m_folder->path() + u'/');
    m_system->host.expectMessage(unavailable());
    askForTool();
    QCOMPARE(m_registry->timesOpened(), 1);
    QVERIFY(!QFile::exists(inFolder(u"other"_s)));
}

void tst_frmAbout::aSharedToolIsStarted()
{
    writeTool(uR"(common\MSINFO32.EXE)"_s, u"started"_s);
    record(sharedTools(), u"MSINFO"_s, inFolder(u"common"_s));
    askForTool();
    QTRY_VERIFY(QFile::exists(inFolder(u"started"_s)));
}

void tst_frmAbout::aSharedToolWithoutSuchAFileGivesTheMessage()
{
    record(sharedTools(), u"MSINFO"_s, inFolder(u"common"_s));
    m_system->host.expectMessage(unavailable());
    askForTool();
    QCOMPARE(m_system->host.messages().size(), 1U);
}

void tst_frmAbout::aSharedToolThatCantBeStartedGivesTheMessage()
{
    writeTool(uR"(common\MSINFO32.EXE)"_s, u"started"_s);
    QVERIFY(QFile::setPermissions(inFolder(uR"(common\MSINFO32.EXE)"_s), QFile::ReadOwner));
    record(sharedTools(), u"MSINFO"_s, inFolder(u"common"_s));
    m_system->host.expectMessage(unavailable());
    askForTool();
    QVERIFY(!QFile::exists(inFolder(u"started"_s)));
}

void tst_frmAbout::theKeysOfTheCreditsShowThem_data()
{
    escapePressesOkFromAnywhere_data();
}

void tst_frmAbout::theKeysOfTheCreditsShowThem()
{
    QFETCH(QString, name);
    m_system->host.expectAnyMessage();
    show();
    about().control(name)->SetFocus();
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_A, Qt::ShiftModifier | Qt::ControlModifier | Qt::AltModifier);
    QCOMPARE(m_system->host.messages().size(), 1U);
    QVERIFY(m_system->host.messages()[0].text.endsWith(u'.'));
    QCOMPARE(m_system->host.messages()[0].style, static_cast<int>(NoIcon));
    QVERIFY(about().Visible());
}

void tst_frmAbout::otherKeysShowNoCredits_data()
{
    QTest::addColumn<Qt::Key>("key");
    QTest::addColumn<Qt::KeyboardModifiers>("modifiers");
    const Qt::KeyboardModifiers all = Qt::ShiftModifier | Qt::ControlModifier | Qt::AltModifier;
    QTest::newRow("A alone") << Qt::Key_A << Qt::KeyboardModifiers();
    QTest::newRow("without Shift") << Qt::Key_A << (Qt::ControlModifier | Qt::AltModifier);
    QTest::newRow("without Ctrl") << Qt::Key_A << (Qt::ShiftModifier | Qt::AltModifier);
    QTest::newRow("without Alt") << Qt::Key_A << (Qt::ShiftModifier | Qt::ControlModifier);
    QTest::newRow("another letter") << Qt::Key_B << all;
}

void tst_frmAbout::otherKeysShowNoCredits()
{
    QFETCH(Qt::Key, key);
    QFETCH(Qt::KeyboardModifiers, modifiers);
    show();
    QTest::keyClick(&about().shell(), key, modifiers);
    QVERIFY(m_system->host.messages().empty());
}

void tst_frmAbout::pressingTheKeysAloneShowsNoCredits()
{
    show();
    QTest::keyPress(&about().shell(), Qt::Key_A, Qt::ShiftModifier | Qt::ControlModifier | Qt::AltModifier);
    QVERIFY(m_system->host.messages().empty());
}

void tst_frmAbout::holdingTheKeysDownShowsNoCredits()
{
    show();
    const Qt::KeyboardModifiers all = Qt::ShiftModifier | Qt::ControlModifier | Qt::AltModifier;
    QTest::keyPress(&about().shell(), Qt::Key_A, all);
    for (const auto type : {QEvent::KeyRelease, QEvent::KeyPress}) {
        QKeyEvent repeated(type, Qt::Key_A, all, QString(), true);
        QCoreApplication::sendEvent(&about().shell(), &repeated);
        QVERIFY(m_system->host.messages().empty());
    }
    m_system->host.expectAnyMessage();
    QTest::keyRelease(&about().shell(), Qt::Key_A, all);
    QCOMPARE(m_system->host.messages().size(), 1U);
}

QTEST_MAIN(tst_frmAbout)
#include "tst_frmAbout.moc"
