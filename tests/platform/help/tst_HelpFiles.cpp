// Help files that are missing, damaged or not ours are refused with a sentence, and leave no window.
#include "platform/help/HelpFile.h"
#include "platform/system/RunTimeError.h"
#include "support/HelpUser.h"

#include <QDataStream>
#include <QDir>
#include <QDirIterator>
#include <QRandomGenerator>
#include <QSqlDatabase>
#include <QSqlQuery>
#include <optional>

using namespace Qt::Literals::StringLiterals;
using namespace orvane;
using namespace orvane::test;

class tst_HelpFiles : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void aMissingFileIsRefused_data();
    void aMissingFileIsRefused();
    void aFolderIsRefused();
    void aFileThatIsNoHelpFileIsRefused_data();
    void aFileThatIsNoHelpFileIsRefused();
    void aCutFileIsRefused_data();
    void aCutFileIsRefused();
    void aChangedFileIsRefused_data();
    void aChangedFileIsRefused();
    void aFileWithWrongBytesIsRefusedOrRead_data();
    void aFileWithWrongBytesIsRefusedOrRead();
    void afterARefusalTheRightFileOpens();
    void aFullDiskIsRefused();
    void aRefusalLeavesNoFolder();
    void aRefusalLeavesTheOpenWindow();
    void anOpenWindowOutlivesItsFile();

private:
    QString refusal(int number) const;
    void write(const QByteArray &bytes) const { m_host->writeFile(u"Orvane.hlp"_s, bytes); }
    QByteArray whole() const { return m_host->readFile(u"Orvane.hlp"_s); }

    std::optional<TestHost> m_host;
    std::optional<HelpUser> m_user;
};

namespace
{
// What the engine reads is in tables; a statement changes one of them.
void change(const QString &file, const QString &statement, const QByteArray &value = {})
{
    {
        QSqlDatabase database = QSqlDatabase::addDatabase(u"QSQLITE"_s, u"change"_s);
        database.setDatabaseName(file);
        QVERIFY(database.open());
        QSqlQuery query(database);
        QVERIFY(query.prepare(statement));
        if (statement.contains(u'?')) query.addBindValue(value);
        QVERIFY(query.exec());
    }
    QSqlDatabase::removeDatabase(u"change"_s);
}

QByteArray contents(const QList<int> &depths, const QString &title = u"A page"_s)
{
    QByteArray bytes;
    QDataStream stream(&bytes, QIODevice::WriteOnly);
    for (const int depth : depths)
        stream << depth << u"index.html"_s << title;
    return bytes;
}

QByteArray noise(int size)
{
    QByteArray bytes;
    auto random = QRandomGenerator(7);
    while (bytes.size() < size)
        bytes += char(random.bounded(256));
    return bytes;
}

const int Head = 100; // bytes of a database file before its first table
const int PageSize = 4096;
} // namespace

void tst_HelpFiles::init()
{
    m_host.emplace();
    m_user.emplace(*m_host);
}

void tst_HelpFiles::cleanup()
{
    m_user.reset();
    m_host.reset();
}

// The sentence, where the file is refused with that number and no window is left.
QString tst_HelpFiles::refusal(int number) const
{
    for (const int command : {HelpPartialKey, HelpContents}) {
        try {
            WinHelp(m_user->file(), command);
            return u"not refused"_s;
        } catch (const RunTimeError &error) {
            if (m_user->window()) return u"a window is left"_s;
            if (error.Number() != number) return u"number %1"_s.arg(error.Number());
            if (command == HelpContents) return error.Description();
        }
    }
    return {};
}

void tst_HelpFiles::aMissingFileIsRefused_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("no file") << u"Missing.hlp"_s;
    QTest::newRow("no folder") << u"missing/Orvane.hlp"_s;
    QTest::newRow("no name") << QString();
}

void tst_HelpFiles::aMissingFileIsRefused()
{
    QFETCH(QString, name);
    const QString file = name.isEmpty() ? QString() : m_host->folder() + u'/' + name;
    try {
        WinHelp(file, HelpContents);
        QFAIL("the file was taken");
    } catch (const RunTimeError &error) {
        QCOMPARE(error.Number(), 53);
        QVERIFY(error.Description().contains(file));
    }
    QVERIFY(!m_user->window());
}

void tst_HelpFiles::aFolderIsRefused()
{
    m_host->removeFile(u"Orvane.hlp"_s);
    QVERIFY(QDir(m_host->folder()).mkdir(u"Orvane.hlp"_s));
    QVERIFY(refusal(75).contains(u"Orvane.hlp"_s));
}

void tst_HelpFiles::aFileThatIsNoHelpFileIsRefused_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::newRow("nothing") << QByteArray();
    QTest::newRow("one byte") << QByteArray("S");
    QTest::newRow("text") << QByteArray("This is no help file.\r\n");
    QTest::newRow("noise") << noise(50000);
    QTest::newRow("zeros") << QByteArray(90112, '\0');
    QTest::newRow("a head alone") << QByteArray("SQLite format 3\0", 16);
    QTest::newRow("a head before noise") << QByteArray("SQLite format 3\0", 16) + noise(50000);
    QTest::newRow("a head before zeros") << QByteArray("SQLite format 3\0", 16) + QByteArray(50000, '\0');
}

void tst_HelpFiles::aFileThatIsNoHelpFileIsRefused()
{
    QFETCH(QByteArray, bytes);
    write(bytes);
    QCOMPARE(refusal(321), u"The help file \"%1\" is damaged, or is no help file at all."_s.arg(m_user->file()));
}

void tst_HelpFiles::aCutFileIsRefused_data()
{
    QTest::addColumn<double>("part");
    QTest::addColumn<int>("more");
    QTest::newRow("in the head") << 0.0 << Head / 2;
    QTest::newRow("behind the head") << 0.0 << Head;
    QTest::newRow("behind the first page") << 0.0 << PageSize;
    for (const double part : {0.1, 0.25, 0.5, 0.75, 0.9}) {
        QTest::addRow("at %g", part) << part << 0;
        QTest::addRow("at %g and a byte", part) << part << 1;
    }
    QTest::newRow("the last page") << 1.0 << -PageSize;
    QTest::newRow("the last byte") << 1.0 << -1;
}

void tst_HelpFiles::aCutFileIsRefused()
{
    QFETCH(double, part);
    QFETCH(int, more);
    const QByteArray bytes = whole();
    const auto pages = qsizetype(part * double(bytes.size()) / PageSize);
    write(bytes.left(pages * PageSize + more));
    QVERIFY(refusal(321).startsWith(u"The help file \"%1\" is damaged"_s.arg(m_user->file())));
}

void tst_HelpFiles::aChangedFileIsRefused_data()
{
    QTest::addColumn<QString>("statement");
    QTest::addColumn<QByteArray>("value");
    QTest::addColumn<QString>("reason");
    const QString setContents = u"UPDATE ContentsTable SET Data = ?"_s;
    const QString damaged = u"is damaged."_s;
    const QString noHelp = u"is damaged, or is no help file at all."_s;
    QTest::newRow("another program's") << u"UPDATE NamespaceTable SET Name = 'other.help'"_s << QByteArray()
                                       << u"is not the help of this program."_s;
    QTest::newRow("two names") << u"INSERT INTO NamespaceTable (Name) VALUES ('other.help')"_s << QByteArray()
                               << u"is not the help of this program."_s;
    QTest::newRow("no name") << u"DELETE FROM NamespaceTable"_s << QByteArray() << noHelp;
    for (const auto &table : {u"NamespaceTable"_s})
        QTest::newRow(qPrintable(table)) << u"DROP TABLE "_s + table << QByteArray() << noHelp;
    for (const auto &table : {u"FileDataTable"_s, u"FileNameTable"_s, u"ContentsTable"_s, u"FolderTable"_s})
        QTest::newRow(qPrintable(table)) << u"DROP TABLE "_s + table << QByteArray() << damaged;
    for (const auto &column : {u"ContentsTable RENAME COLUMN Id"_s, u"FileNameTable RENAME COLUMN Title"_s,
                               u"IndexTable RENAME COLUMN Anchor"_s, u"FolderTable RENAME COLUMN Name"_s})
        QTest::newRow(qPrintable(column)) << u"ALTER TABLE "_s + column + u" TO Other"_s << QByteArray() << damaged;
    QTest::newRow("no pages") << u"DELETE FROM FileDataTable"_s << QByteArray() << damaged;
    QTest::newRow("no first page") << u"DELETE FROM FileNameTable WHERE Name = 'index.html'"_s << QByteArray()
                                   << damaged;
    QTest::newRow("a page of noise") << u"UPDATE FileDataTable SET Data = ? WHERE Id = 9"_s << noise(500) << damaged;
    QTest::newRow("a page cut off") << u"UPDATE FileDataTable SET Data = substr(Data, 1, 90) WHERE Id = 9"_s
                                    << QByteArray() << damaged;
    QTest::newRow("no contents") << u"DELETE FROM ContentsTable"_s << QByteArray() << damaged;
    QTest::newRow("empty contents") << setContents << QByteArray("") << damaged;
    QTest::newRow("contents of noise") << setContents << noise(500) << damaged;
    QTest::newRow("contents cut off") << setContents << contents({0, 1, 1}).chopped(3) << damaged;
    QTest::newRow("a first depth of one") << setContents << contents({1, 1}) << damaged;
    QTest::newRow("a leap of depths") << setContents << contents({0, 2}) << damaged;
    QTest::newRow("a depth below zero") << setContents << contents({0, -1, -2}) << damaged;
    QTest::newRow("a depth beyond all") << setContents << contents({0, 2147483647}) << damaged;
    QTest::newRow("an entry without title") << setContents << contents({0, 1}, {}) << damaged;
}

void tst_HelpFiles::aChangedFileIsRefused()
{
    QFETCH(QString, statement);
    QFETCH(QByteArray, value);
    QFETCH(QString, reason);
    change(m_user->file(), statement, value);
    QCOMPARE(refusal(321), u"The help file \"%1\" %2"_s.arg(m_user->file(), reason));
}

// Not every byte matters; what opens has to be a whole window with a page.
void tst_HelpFiles::aFileWithWrongBytesIsRefusedOrRead_data()
{
    QTest::addColumn<int>("seed");
    for (int seed = 0; seed < 60; ++seed)
        QTest::addRow("%d", seed) << seed;
}

void tst_HelpFiles::aFileWithWrongBytesIsRefusedOrRead()
{
    QFETCH(int, seed);
    QByteArray bytes = whole();
    auto random = QRandomGenerator(quint32(seed));
    for (int i = 0; i < 1 + seed % 8; ++i)
        bytes[random.bounded(seed % 2 == 0 ? int(bytes.size()) : 2 * PageSize)] = char(random.bounded(256));
    write(bytes);
    try {
        WinHelp(m_user->file(), HelpPartialKey);
        QVERIFY(m_user->page().toPlainText().contains(u"orvane"_s));
        QTRY_VERIFY(m_user->part<QAbstractItemView>(u"contentsTree"_s).model()->rowCount() > 0);
    } catch (const RunTimeError &error) {
        QVERIFY(error.Description().contains(u"Orvane.hlp"_s));
        QVERIFY(!m_user->window());
    }
}

void tst_HelpFiles::afterARefusalTheRightFileOpens()
{
    const QByteArray right = whole();
    write("wrong");
    refusal(321);
    write(right);
    m_user->openContents();
    QCOMPARE(m_user->pageName(), u"index.html"_s);
}

// The device is as full as a disk can be.
void tst_HelpFiles::aFullDiskIsRefused()
{
    try {
        copyHelpFile(m_user->file(), u"/dev/full"_s);
        QFAIL("a copy without room was taken for good");
    } catch (const RunTimeError &error) {
        QCOMPARE(error.Number(), int(PathAccessError));
        QCOMPARE(error.Description(), u"The help can't be shown: there is no room for its index."_s);
    }
}

void tst_HelpFiles::aRefusalLeavesNoFolder()
{
    write("wrong");
    refusal(321);
    QDirIterator left(m_user->cache(), QDir::Files | QDir::Hidden, QDirIterator::Subdirectories);
    QVERIFY2(!left.hasNext(), qPrintable(left.next()));
}

void tst_HelpFiles::aRefusalLeavesTheOpenWindow()
{
    m_user->openContents();
    m_user->goTo(u"printing.html"_s);
    m_host->writeFile(u"Other.hlp"_s, "wrong");
    QVERIFY_THROWS_EXCEPTION(RunTimeError, WinHelp(m_host->folder() + u"/Other.hlp"_s, HelpContents));
    QCOMPARE(m_user->pageName(), u"printing.html"_s);
}

void tst_HelpFiles::anOpenWindowOutlivesItsFile()
{
    m_user->openContents();
    m_host->removeFile(u"Orvane.hlp"_s);
    m_user->goTo(u"preview.html"_s);
    QVERIFY(m_user->page().toPlainText().contains(u"Thumbnails"_s));
    m_user->openContents();
    QCOMPARE(m_user->pageName(), u"index.html"_s);
}

QTEST_MAIN(tst_HelpFiles)
#include "tst_HelpFiles.moc"
