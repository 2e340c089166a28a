// What an author's Save writes into the tour script.
#include "support/RunningSystem.h"
#include "tour/TourScriptFile.h"
#include "tour/modDemo.h"

#include <QDir>
#include <QFile>
#include <QTest>
#include <csignal>
#include <sys/resource.h>
#include <unistd.h>

using namespace Qt::Literals::StringLiterals;
using namespace orvane;
using namespace orvane::test;

namespace
{
constexpr uid_t Nobody = 65534;

// Root may write anywhere, so it works as somebody who may not.
class WithoutRights
{
public:
    explicit WithoutRights(const QString &folder) : m_folder(folder)
    {
        setRights(QFile::ReadOwner | QFile::ExeOwner | QFile::ReadOther | QFile::ExeOther,
                  QFile::ReadOwner | QFile::ReadOther);
        m_isRoot = geteuid() == 0 && seteuid(Nobody) == 0;
    }
    ~WithoutRights()
    {
        if (m_isRoot && seteuid(0) != 0) QTest::qFail("the rights don't come back", __FILE__, __LINE__);
        setRights(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner, QFile::ReadOwner | QFile::WriteOwner);
    }
    WithoutRights(const WithoutRights &) = delete;
    WithoutRights &operator=(const WithoutRights &) = delete;

private:
    void setRights(QFile::Permissions folder, QFile::Permissions file) const
    {
        const bool set =
            QFile::setPermissions(m_folder + u"/DemoData.ini"_s, file) && QFile::setPermissions(m_folder, folder);
        if (!set) QTest::qFail("the rights can't be set", __FILE__, __LINE__);
    }

    QString m_folder;
    bool m_isRoot = false;
};

// No file may grow beyond this, as on a disk that has room for no more.
class FullDisk
{
public:
    explicit FullDisk(rlim_t bytes) : m_signalBefore(std::signal(SIGXFSZ, SIG_IGN))
    {
        getrlimit(RLIMIT_FSIZE, &m_before);
        const rlimit room{bytes, m_before.rlim_max};
        setrlimit(RLIMIT_FSIZE, &room);
    }
    ~FullDisk()
    {
        setrlimit(RLIMIT_FSIZE, &m_before);
        std::signal(SIGXFSZ, m_signalBefore);
    }
    FullDisk(const FullDisk &) = delete;
    FullDisk &operator=(const FullDisk &) = delete;

private:
    void (*m_signalBefore)(int);
    rlimit m_before{};
};
} // namespace

class tst_SaveTourStep : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void headingAndBodyAreSavedUnderTheTag();
    void aNewSectionHasItsTwoKeysInOrder();
    void aFileThatIsMissingIsMade();
    void scriptsSurvive();
    void everyOtherByteStays();
    void theSectionIsTheLiteralTag();
    void lineEndsAndFormFeedsAreDropped_data();
    void lineEndsAndFormFeedsAreDropped();
    void aBodyOfSeveralLinesIsOneLineInTheFile();
    void aHeadingOutsideThePageIsSubstituted();
    void aHeadingKeepsItsHardBlanks();
    void aHeadingKeepsItsFormFeed();
    void aBodyOutsideThePageComesBack();
    void aBodyBeyondTheReadersLimitIsSavedWhole();
    void aFileWithoutRightsStaysAndNothingIsReported();
    void aFullDiskKeepsTheStepAndNothingIsReported_data();
    void aFullDiskKeepsTheStepAndNothingIsReported();
    void aFolderInItsPlaceIsNotReported();
    void saveIsBelowTheEdgeAndSavesTheStepOnShow();
    void aSaveBeforeAnyStepGoesUnderZero();

private:
    frmDemo &console() const { return m_system->console(); }
    QByteArray file() const { return m_system->host.readFile(u"DemoData.ini"_s); }
    void write(const QByteArray &script) const { m_system->host.writeFile(u"DemoData.ini"_s, script); }
    void type(const RichTextBox &box, const QString &text) const;
    void clickSave() const;

    std::optional<RunningSystem> m_system;
};

void tst_SaveTourStep::init()
{
    m_system.emplace();
    m_system->start();
}

void tst_SaveTourStep::cleanup()
{
    m_system.reset();
}

// In place of what the box holds.
void tst_SaveTourStep::type(const RichTextBox &box, const QString &text) const
{
    QTest::keyClick(&box.widget(), Qt::Key_A, Qt::ControlModifier);
    QTest::keyClicks(&box.widget(), text);
}

// An author makes the window taller to get at the button.
void tst_SaveTourStep::clickSave() const
{
    QWidget &shell = console().shell();
    shell.setFixedSize(shell.width(), 480);
    QVERIFY(shell.rect().contains(console().cmdSave.widget().geometry()));
    m_system->click(console().cmdSave);
}

void tst_SaveTourStep::headingAndBodyAreSavedUnderTheTag()
{
    write(step("127", "128/cc/1"));
    console().Header.setText(u"A new heading"_s);
    console().rtf.setTextRTF(uR"({\rtf1 A \b new\b0  body})"_s);
    const QString body = console().rtf.TextRTF();
    SaveTourStep(u"127"_s);
    ShowTourStep(u"101"_s);
    ShowTourStep(u"127"_s);
    QCOMPARE(console().Header.Text(), u"A new heading"_s);
    QCOMPARE(console().rtf.Text(), u"A new body"_s);
    QCOMPARE(console().rtf.TextRTF(), body);
}

void tst_SaveTourStep::aNewSectionHasItsTwoKeysInOrder()
{
    write("; the tour\r\n" + section("101", line("Header", "First")));
    console().Header.setText(u"Second"_s);
    console().rtf.setTextRTF(uR"({\rtf1 Body})"_s);
    SaveTourStep(u"102"_s);
    const QByteArray body = console().rtf.TextRTF().toLatin1();
    QCOMPARE(file(), "; the tour\r\n" + section("101", line("Header", "First")) +
                         section("102", line("RTF", body) + line("Header", "Second")));
}

void tst_SaveTourStep::aFileThatIsMissingIsMade()
{
    m_system->host.removeFile(u"DemoData.ini"_s);
    console().Header.setText(u"Heading"_s);
    SaveTourStep(u"127"_s);
    QVERIFY(file().startsWith("[127]\r\nRTF={\\rtf"));
    QVERIFY(file().endsWith("\r\nHeader=Heading\r\n"));
}

void tst_SaveTourStep::scriptsSurvive()
{
    write(step("127", "128/mn/Nav/Tips", "126/cc/4"));
    console().Header.setText(u"Other"_s);
    SaveTourStep(u"127"_s);
    ShowTourStep(u"127"_s);
    QCOMPARE(console().Header.Text(), u"Other"_s);
    QCOMPARE(console().cmdGoNext.Tag(), u"128/mn/Nav/Tips"_s);
    QCOMPARE(console().cmdGoBack.Tag(), u"126/cc/4"_s);
}

void tst_SaveTourStep::everyOtherByteStays()
{
    const QByteArray before = "\n; a word \x96 and more\n[126]\nHeader = kept \n\n[127] ; here\r\nNextRTF=(none)\n";
    const QByteArray between = "Other= \"x\"\n";
    const QByteArray after = "; trailing\n[128]\nRTF={}\n\nno key";
    write(before + "RTF=old\n" + between + "Header=old\r\n" + after);
    console().Header.setText(u"new"_s);
    console().rtf.setTextRTF(uR"({\rtf1 new})"_s);
    SaveTourStep(u"127"_s);
    const QByteArray body = console().rtf.TextRTF().toLatin1();
    QCOMPARE(file(), before + "RTF=" + body + '\n' + between + "Header=new\r\n" + after);
}

void tst_SaveTourStep::theSectionIsTheLiteralTag()
{
    write(section("127", line("Header", "Short")));
    console().Header.setText(u"Long"_s);
    SaveTourStep(u"0127"_s);
    QVERIFY(file().startsWith(section("127", line("Header", "Short")) + "[0127]\r\nRTF="));
}

void tst_SaveTourStep::lineEndsAndFormFeedsAreDropped_data()
{
    QTest::addColumn<QString>("body");
    QTest::addColumn<QString>("saved");
    QTest::newRow("nothing to drop") << u"{\\rtf1 a b}"_s << u"{\\rtf1 a b}"_s;
    QTest::newRow("carriage return") << u"a\rb"_s << u"ab"_s;
    QTest::newRow("line feed") << u"a\nb"_s << u"ab"_s;
    QTest::newRow("form feed") << u"a\fb"_s << u"ab"_s;
    QTest::newRow("at both ends") << u"\r\na\f\r\n"_s << u"a"_s;
    QTest::newRow("nothing else left") << u"\r\n\f"_s << QString();
    QTest::newRow("tab, vertical tab, escape and blank stay") << u"a\t\v\x1B b"_s << u"a\t\v\x1B b"_s;
    QTest::newRow("line and paragraph marks of other pages stay") << u"a\x2028\x2029\x85"_s << u"a\x2028\x2029\x85"_s;
}

void tst_SaveTourStep::lineEndsAndFormFeedsAreDropped()
{
    QFETCH(QString, body);
    QTEST(withoutLineEnds(body), "saved");
}

void tst_SaveTourStep::aBodyOfSeveralLinesIsOneLineInTheFile()
{
    write({});
    console().rtf.setTextRTF(u"{\\rtf1 one\\par\r\ntwo\\line three\\page\ffour}"_s);
    const QString text = console().rtf.Text();
    SaveTourStep(u"127"_s);
    QCOMPARE(file().count('\n'), 3); // section, body, heading
    QVERIFY(!file().contains('\f'));
    ShowTourStep(u"127"_s);
    QCOMPARE(console().rtf.Text(), text);
    QVERIFY(text.contains(u'\n'));
}

void tst_SaveTourStep::aHeadingOutsideThePageIsSubstituted()
{
    write({});
    console().Header.setText(u"a \u20AC \u00E9 \u2013 \u0416 z"_s);
    SaveTourStep(u"127"_s);
    QVERIFY(file().endsWith("Header=a \x80 \xE9 \x96 ? z\r\n"));
}

void tst_SaveTourStep::aHeadingKeepsItsHardBlanks()
{
    write(section("127", line("Header", "5\xA0m")));
    ShowTourStep(u"127"_s);
    QCOMPARE(console().Header.Text(), u"5\u00A0m"_s);
    SaveTourStep(u"127"_s);
    QVERIFY(file().contains(line("Header", "5\xA0m")));
}

// Only the body is cleaned.
void tst_SaveTourStep::aHeadingKeepsItsFormFeed()
{
    write({});
    console().Header.setText(u"a\fb"_s);
    SaveTourStep(u"127"_s);
    QVERIFY(file().endsWith("Header=a\fb\r\n"));
}

void tst_SaveTourStep::aBodyOutsideThePageComesBack()
{
    write({});
    console().rtf.setText(u"a \u20AC \u00E9 \u0416 z"_s);
    SaveTourStep(u"127"_s);
    console().rtf.setText(QString());
    ShowTourStep(u"127"_s);
    QCOMPARE(console().rtf.Text(), u"a \u20AC \u00E9 \u0416 z"_s);
}

void tst_SaveTourStep::aBodyBeyondTheReadersLimitIsSavedWhole()
{
    write({});
    console().rtf.setText(QString(9000, u'a') + u'z');
    const QByteArray body = console().rtf.TextRTF().toLatin1();
    QVERIFY(body.size() > 9000);
    SaveTourStep(u"127"_s);
    QVERIFY(file().contains("RTF=" + body + "\r\n"));
    ShowTourStep(u"127"_s);
    QVERIFY(console().rtf.Text().size() < 8190);
    QVERIFY(!console().rtf.Text().contains(u'z'));
}

void tst_SaveTourStep::aFileWithoutRightsStaysAndNothingIsReported()
{
    const QByteArray before = step("127", "128/cc/1");
    write(before);
    console().Header.setText(u"Other"_s);
    {
        const WithoutRights rights(m_system->host.folder());
        SaveTourStep(u"127"_s);
    }
    QCOMPARE(file(), before);
    QVERIFY(m_system->host.messages().empty());
    QVERIFY(!m_system->host.exitCode());
}

void tst_SaveTourStep::aFullDiskKeepsTheStepAndNothingIsReported_data()
{
    QTest::addColumn<int>("filler");
    QTest::newRow("a short file") << 0;
    QTest::newRow("a long file") << 100'000;
}

void tst_SaveTourStep::aFullDiskKeepsTheStepAndNothingIsReported()
{
    QFETCH(int, filler);
    const QByteArray before = step("127", "128/cc/1") + ';' + QByteArray(filler, '-') + "\r\n";
    write(before);
    ShowTourStep(u"127"_s);
    console().Header.setText(u"A heading that is longer than the one before"_s);
    {
        const FullDisk disk(rlim_t(before.size()));
        clickSave();
    }
    QCOMPARE(file(), before);
    QVERIFY(m_system->host.messages().empty());
    QVERIFY(!m_system->host.exitCode());
    QCOMPARE(QDir(m_system->host.folder()).entryList({u"DemoData.ini*"_s}), QStringList{u"DemoData.ini"_s});
}

void tst_SaveTourStep::aFolderInItsPlaceIsNotReported()
{
    m_system->host.removeFile(u"DemoData.ini"_s);
    QVERIFY(QDir(m_system->host.folder()).mkdir(u"DemoData.ini"_s));
    clickSave();
    QVERIFY(m_system->host.messages().empty());
    QCOMPARE(console().Tag(), u"101"_s);
}

void tst_SaveTourStep::saveIsBelowTheEdgeAndSavesTheStepOnShow()
{
    QVERIFY(!console().shell().rect().intersects(console().cmdSave.widget().geometry()));
    write(step("127", "128/cc/1", "126/cc/2"));
    ShowTourStep(u"127"_s);
    type(console().Header, u"Typed heading"_s);
    type(console().rtf, u"Typed body"_s);
    clickSave();
    ShowTourStep(u"101"_s);
    ShowTourStep(u"127"_s);
    QCOMPARE(console().Header.Text(), u"Typed heading"_s);
    QCOMPARE(console().rtf.Text(), u"Typed body"_s);
    QCOMPARE(console().cmdGoNext.Tag(), u"128/cc/1"_s);
    QCOMPARE(console().cmdGoBack.Tag(), u"126/cc/2"_s);
}

void tst_SaveTourStep::aSaveBeforeAnyStepGoesUnderZero()
{
    m_system.reset();
    m_system.emplace(); // nothing is started
    write({});
    console().Show();
    console().Header.setText(u"Nowhere"_s);
    clickSave();
    QVERIFY(file().startsWith("[0]\r\nRTF="));
    QVERIFY(file().endsWith("Header=Nowhere\r\n"));
}

QTEST_MAIN(tst_SaveTourStep)
#include "tst_SaveTourStep.moc"
