// The one program that this one starts, the tool for the machine's information: by its absolute path, without a shell.
#include "platform/system/RegistryStandIn.h"
#include "platform/system/StartProgram.h"

#include <QDirIterator>
#include <QFile>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTest>

#include <optional>

using namespace Qt::Literals::StringLiterals;
using namespace orvane;

class tst_OtherPrograms : public QObject
{
    Q_OBJECT

private slots:
    void onlyOnePlaceStartsPrograms();
    void theToolIsStartedByItsPathWithoutAShell();
    void aToolInAFolderNamedByARelativePathIsNotTaken();

private:
    QString makeTool(const QString &folder) const;

    QTemporaryDir m_folder;
};

namespace
{
class Path
{
public:
    explicit Path(const QByteArray &folders) : m_before(qgetenv("PATH")) { qputenv("PATH", folders); }
    ~Path() { qputenv("PATH", m_before); }
    Path(const Path &) = delete;
    Path &operator=(const Path &) = delete;

private:
    QByteArray m_before;
};

std::optional<QString> toolOfTheMachine()
{
    const auto key = openMachineKey(HKEY_LOCAL_MACHINE, QStringLiteral(R"(SOFTWARE\Microsoft\Shared Tools\MSINFO)"));
    if (!key) return {};
    const auto value = key->query(u"PATH"_s, 1024);
    return value ? QString(value->data).remove(QChar(0)) : std::optional<QString>();
}
} // namespace

// Puts down how it was called.
QString tst_OtherPrograms::makeTool(const QString &folder) const
{
    const QString path = m_folder.filePath(folder);
    if (!QDir().mkpath(path)) return {};
    QFile tool(path + u"/hardinfo"_s);
    if (!tool.open(QIODevice::WriteOnly)) return {};
    tool.write("#!/bin/sh\necho \"$0 $#\" >\"${0%/*}/called\"\n");
    tool.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    return path;
}

void tst_OtherPrograms::onlyOnePlaceStartsPrograms()
{
    static const QRegularExpression start(
        uR"(\b(QProcess|QDesktopServices|std::system|popen|execv|posix_spawn|QPluginLoader)\b)"_s);
    QStringList places;
    QDirIterator files(QStringLiteral(ORVANE_SOURCE_DIR "/src"), {u"*.cpp"_s, u"*.h"_s}, QDir::Files,
                       QDirIterator::Subdirectories);
    while (files.hasNext()) {
        QFile file(files.next());
        QVERIFY(file.open(QIODevice::ReadOnly));
        if (start.match(QString::fromUtf8(file.readAll())).hasMatch()) places << files.fileName();
    }
    QCOMPARE(places, QStringList{u"StartProgram.cpp"_s});
}

void tst_OtherPrograms::theToolIsStartedByItsPathWithoutAShell()
{
    const QString folder = makeTool(u"tools $(touch owned); touch owned & *"_s);
    const Path path(QFile::encodeName(folder));
    const auto tool = toolOfTheMachine();
    QCOMPARE(tool, folder + u"/hardinfo"_s);
    StartProgram(*tool);
    QFile called(folder + u"/called"_s);
    QTRY_VERIFY(called.size() > 0);
    QVERIFY(called.open(QIODevice::ReadOnly));
    QCOMPARE(QString::fromUtf8(called.readAll()), *tool + u" 0\n"_s);
    QVERIFY(!QFile::exists(u"owned"_s));
}

void tst_OtherPrograms::aToolInAFolderNamedByARelativePathIsNotTaken()
{
    makeTool(u"here"_s);
    const QString before = QDir::currentPath();
    QVERIFY(QDir::setCurrent(m_folder.path()));
    const Path path("here:.:");
    QCOMPARE(toolOfTheMachine(), std::optional<QString>());
    QVERIFY(QDir::setCurrent(before));
}

QTEST_GUILESS_MAIN(tst_OtherPrograms)
#include "tst_OtherPrograms.moc"
