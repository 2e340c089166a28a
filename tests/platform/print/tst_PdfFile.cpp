// A PDF file comes into being whole, or not at all.
#include "platform/print/PdfFile.h"
#include "support/ErrorOf.h"
#include "support/TestHost.h"

#include <QDir>
#include <QFileInfo>
#include <QTest>

using namespace Qt::Literals::StringLiterals;
using namespace orvane;
using namespace orvane::test;

class tst_PdfFile : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void aWholeFileIsKept();
    void aWholeFileReplacesTheChosenOne();
    void whatIsNotWholeIsReported_data();
    void whatIsNotWholeIsReported();
    void aFileThatIsNotThereIsReported();
    void whatIsNotKeptLeavesNothing();

private:
    void write(const PdfFile &file, const QByteArray &content) const; // as the printer does
    QStringList files() const;

    std::unique_ptr<TestHost> m_host;
};

namespace
{
const QByteArray &wholeFile()
{
    static const QByteArray content = "%PDF-1.4\nwords\n%%EOF\n";
    return content;
}
} // namespace

void tst_PdfFile::init()
{
    m_host = std::make_unique<TestHost>();
    m_host->removeFile(u"DealerData.dat"_s);
}

void tst_PdfFile::cleanup()
{
    m_host.reset();
}

void tst_PdfFile::write(const PdfFile &file, const QByteArray &content) const
{
    m_host->writeFile(QFileInfo(file.workingName()).fileName(), content);
}

QStringList tst_PdfFile::files() const
{
    return QDir(m_host->folder()).entryList(QDir::Files | QDir::Hidden);
}

void tst_PdfFile::aWholeFileIsKept()
{
    const auto file = PdfFile::named(m_host->folder(), u"Emergency plan"_s);
    write(*file, wholeFile());
    file->keep();
    QCOMPARE(files(), QStringList{u"Emergency plan.pdf"_s});
    QCOMPARE(m_host->readFile(u"Emergency plan.pdf"_s), wholeFile());
}

void tst_PdfFile::aWholeFileReplacesTheChosenOne()
{
    m_host->writeFile(u"mine.pdf"_s, "the old one");
    const auto file = PdfFile::chosen(m_host->folder() + u"/mine.pdf"_s);
    write(*file, wholeFile());
    file->keep();
    QCOMPARE(files(), QStringList{u"mine.pdf"_s});
    QCOMPARE(m_host->readFile(u"mine.pdf"_s), wholeFile());
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
    m_host->writeFile(u"mine.pdf"_s, "the old one");
    auto file = PdfFile::chosen(m_host->folder() + u"/mine.pdf"_s);
    write(*file, wholeFile().first(length));
    QCOMPARE(failureOf([&] { file->keep(); }),
             u"482 The file \"mine.pdf\" can't be written in %1."_s.arg(m_host->folder()));
    file.reset();
    QCOMPARE(files(), QStringList{u"mine.pdf"_s});
    QCOMPARE(m_host->readFile(u"mine.pdf"_s), QByteArray("the old one"));
}

void tst_PdfFile::aFileThatIsNotThereIsReported()
{
    const auto file = PdfFile::named(m_host->folder(), u"Emergency plan"_s);
    QCOMPARE(failureOf([&] { file->keep(); }),
             u"482 The file \"Emergency plan\" can't be written in %1."_s.arg(m_host->folder()));
}

void tst_PdfFile::whatIsNotKeptLeavesNothing()
{
    auto file = PdfFile::named(m_host->folder(), u"Emergency plan"_s);
    write(*file, wholeFile());
    file.reset();
    QCOMPARE(files(), QStringList());
}

QTEST_GUILESS_MAIN(tst_PdfFile)
#include "tst_PdfFile.moc"
