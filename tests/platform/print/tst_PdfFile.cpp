// A PDF file comes into being whole, or not at all.
#include "platform/print/PdfFile.h"
#include "platform/system/RunTimeError.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::Literals::StringLiterals;
using namespace orvane;

class tst_PdfFile : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void aWholeFileIsKept();
    void aWholeFileReplacesTheChosenOne();
    void whatIsNotWholeIsReported_data();
    void whatIsNotWholeIsReported();
    void aFileThatIsNotThereIsReported();
    void whatIsNotKeptLeavesNothing();

private:
    void write(const QString &name, const QByteArray &content) const;
    QByteArray read(const QString &name) const;
    QStringList files() const;

    std::unique_ptr<QTemporaryDir> m_folder;
};

namespace
{
const QByteArray &wholeFile()
{
    static const QByteArray content = "%PDF-1.4\nwords\n%%EOF\n";
    return content;
}

QString failureOf(PdfFile &file)
{
    try {
        file.keep();
    } catch (const RunTimeError &error) {
        return u"%1 %2"_s.arg(error.Number()).arg(error.Description());
    }
    return {};
}
} // namespace

void tst_PdfFile::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
}

void tst_PdfFile::write(const QString &name, const QByteArray &content) const
{
    QFile file(QDir(m_folder->path()).filePath(name)); // whole paths stay as they are
    if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size())
        QTest::qFail("a file of the test can't be written", __FILE__, __LINE__);
}

QByteArray tst_PdfFile::read(const QString &name) const
{
    QFile file(m_folder->filePath(name));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

QStringList tst_PdfFile::files() const
{
    return QDir(m_folder->path()).entryList(QDir::Files | QDir::Hidden);
}

void tst_PdfFile::aWholeFileIsKept()
{
    const auto file = PdfFile::named(m_folder->path(), u"Emergency plan"_s);
    write(file->workingName(), wholeFile());
    file->keep();
    QCOMPARE(files(), QStringList{u"Emergency plan.pdf"_s});
    QCOMPARE(read(u"Emergency plan.pdf"_s), wholeFile());
}

void tst_PdfFile::aWholeFileReplacesTheChosenOne()
{
    write(u"mine.pdf"_s, "the old one");
    const auto file = PdfFile::chosen(m_folder->filePath(u"mine.pdf"_s));
    write(file->workingName(), wholeFile());
    file->keep();
    QCOMPARE(files(), QStringList{u"mine.pdf"_s});
    QCOMPARE(read(u"mine.pdf"_s), wholeFile());
}

void tst_PdfFile::whatIsNotWholeIsReported_data()
{
    QTest::addColumn<qsizetype>("length");
    QTest::newRow("nothing") << qsizetype(0);
    QTest::newRow("half") << wholeFile().size() / 2;
    QTest::newRow("without its last word") << wholeFile().size() - 3;
}

void tst_PdfFile::whatIsNotWholeIsReported()
{
    QFETCH(const qsizetype, length);
    write(u"mine.pdf"_s, "the old one");
    auto file = PdfFile::chosen(m_folder->filePath(u"mine.pdf"_s));
    write(file->workingName(), wholeFile().first(length));
    QCOMPARE(failureOf(*file), u"482 The file \"mine.pdf\" can't be written in %1."_s.arg(m_folder->path()));
    file.reset();
    QCOMPARE(files(), QStringList{u"mine.pdf"_s});
    QCOMPARE(read(u"mine.pdf"_s), QByteArray("the old one"));
}

void tst_PdfFile::aFileThatIsNotThereIsReported()
{
    const auto file = PdfFile::named(m_folder->path(), u"Emergency plan"_s);
    QCOMPARE(failureOf(*file), u"482 The file \"Emergency plan\" can't be written in %1."_s.arg(m_folder->path()));
}

void tst_PdfFile::whatIsNotKeptLeavesNothing()
{
    auto file = PdfFile::named(m_folder->path(), u"Emergency plan"_s);
    write(file->workingName(), wholeFile());
    file.reset();
    QCOMPARE(files(), QStringList());
}

QTEST_GUILESS_MAIN(tst_PdfFile)
#include "tst_PdfFile.moc"
