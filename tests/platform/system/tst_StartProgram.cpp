// Programs of this machine, started for real.
#include "platform/system/RunTimeError.h"
#include "platform/system/StartProgram.h"

#include <QFile>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::Literals::StringLiterals;
using namespace orvane;

class tst_StartProgram : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void aStartedProgramIsNotWaitedFor();
    void aBlankInThePathIsPartOfIt();
    void whatCantBeStartedIsRefused_data();
    void whatCantBeStartedIsRefused();
    void aFileIsThereAndAFolderIsNone();

private:
    QString inFolder(const QString &name) const { return m_folder.filePath(name); }
    void write(const QString &name, const QByteArray &bytes, bool executable) const;

    QTemporaryDir m_folder;
};

void tst_StartProgram::init()
{
    m_folder = QTemporaryDir();
    QVERIFY(m_folder.isValid());
}

void tst_StartProgram::write(const QString &name, const QByteArray &bytes, bool executable) const
{
    QFile file(inFolder(name));
    QVERIFY(file.open(QIODevice::WriteOnly));
    QCOMPARE(file.write(bytes), bytes.size());
    if (executable) QVERIFY(file.setPermissions(QFile::ReadOwner | QFile::ExeOwner));
}

void tst_StartProgram::aStartedProgramIsNotWaitedFor()
{
    write(u"tool"_s,
          "#!/bin/sh\n"
          "cd \"$(dirname \"$0\")\" && until [ -e go ] || [ ! -e tool ]; do sleep 0.02; done; touch came\n",
          true);
    StartProgram(inFolder(u"tool"_s));
    QVERIFY(!QFile::exists(inFolder(u"came"_s)));
    write(u"go"_s, "", false);
    QTRY_VERIFY(QFile::exists(inFolder(u"came"_s)));
}

void tst_StartProgram::aBlankInThePathIsPartOfIt()
{
    write(u"the tool"_s, "#!/bin/sh\ntouch \"$(dirname \"$0\")/came$#\"\n", true);
    StartProgram(inFolder(u"the tool"_s));
    QTRY_VERIFY(QFile::exists(inFolder(u"came0"_s)));
}

void tst_StartProgram::whatCantBeStartedIsRefused_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("missing") << u"missing"_s;
    QTest::newRow("a folder") << u"."_s;
    QTest::newRow("not executable") << u"text"_s;
    QTest::newRow("nothing") << QString();
}

void tst_StartProgram::whatCantBeStartedIsRefused()
{
    QFETCH(QString, name);
    write(u"text"_s, "#!/bin/sh\n", false);
    const QString path = name.isEmpty() ? name : inFolder(name);
    try {
        StartProgram(path);
    } catch (const RunTimeError &error) {
        QCOMPARE(error.Number(), static_cast<int>(FileNotFound));
        QVERIFY(error.Description().contains(path));
        return;
    }
    QFAIL("It was started.");
}

void tst_StartProgram::aFileIsThereAndAFolderIsNone()
{
    write(u"text"_s, "", false);
    QVERIFY(FileExists(inFolder(u"text"_s)));
    QVERIFY(!FileExists(inFolder(u"missing"_s)));
    QVERIFY(!FileExists(m_folder.path()));
    QVERIFY(!FileExists(QString()));
}

QTEST_GUILESS_MAIN(tst_StartProgram)
#include "tst_StartProgram.moc"
