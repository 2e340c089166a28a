// What of a section of the tour script comes to stand in the console.
#include "support/RunningSystem.h"
#include "tour/TourScriptFile.h"
#include "tour/modDemo.h"

#include <QTest>

using namespace Qt::Literals::StringLiterals;
using namespace orvane;
using namespace orvane::test;

namespace
{
QString none()
{
    return u"(none)"_s;
}
} // namespace

class tst_TourStepTexts : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void aStepFillsTheConsole();
    void theConsoleIsFilledInItsOrder();
    void aSectionIsFoundByItsLiteralTag();
    void whatIsAbsentShowsNone_data();
    void whatIsAbsentShowsNone();
    void bytesOfAnyKindShowNone_data();
    void bytesOfAnyKindShowNone();
    void aScriptBehindAHundredMegabytesIsRead();
    void anEmptyValueShowsNothing();
    void aLongValueIsCut_data();
    void aLongValueIsCut();
    void theFileIsReadAnewForEachStep();

private:
    frmDemo &console() const { return m_system->console(); }

    std::optional<RunningSystem> m_system;
};

void tst_TourStepTexts::init()
{
    m_system.emplace();
    m_system->start();
}

void tst_TourStepTexts::cleanup()
{
    m_system.reset();
}

void tst_TourStepTexts::aStepFillsTheConsole()
{
    m_system->host.writeFile(u"DemoData.ini"_s,
                             section("127", line("Header", "The heading") + line("RTF", R"({\rtf1 The \b body})") +
                                                line("NextRTF", "128/mn/Nav/Tips") + line("PrevRTF", "126/cc/1")));
    ShowTourStep(u"127"_s);
    QCOMPARE(console().Tag(), u"127"_s);
    QCOMPARE(console().Header.Text(), u"The heading"_s);
    QCOMPARE(console().rtf.Text(), u"The body"_s);
    QCOMPARE(console().cmdGoNext.Tag(), u"128/mn/Nav/Tips"_s);
    QCOMPARE(console().cmdGoBack.Tag(), u"126/cc/1"_s);
    QCOMPARE(console().txtNext.Text(), u"128/mn/Nav/Tips"_s);
    QCOMPARE(console().txtPrev.Text(), u"126/cc/1"_s);
    QCOMPARE(console().txtTag.Text(), u"127"_s);
}

void tst_TourStepTexts::theConsoleIsFilledInItsOrder()
{
    m_system->host.writeFile(u"DemoData.ini"_s, step("127", "next", "back"));
    frmDemo &window = console();
    QStringList seen;
    const QObject watch;
    const auto note = [&](const QString &what) {
        const QString line = QStringList{what, window.Tag(), window.cmdGoNext.Tag(), window.cmdGoBack.Tag()}.join(u' ');
        if (seen.isEmpty() || seen.last() != line) seen << line;
    };
    connect(&window.Header, &RichTextBox::Change, &watch, [&] { note(u"Header"_s); });
    connect(&window.rtf, &RichTextBox::Change, &watch, [&] { note(u"rtf"_s); });
    connect(&window.txtNext, &TextBox::Change, &watch, [&] { note(u"txtNext"_s); });
    connect(&window.txtPrev, &TextBox::Change, &watch, [&] { note(u"txtPrev"_s); });
    connect(&window.txtTag, &TextBox::Change, &watch, [&] { note(u"txtTag"_s); });
    ShowTourStep(u"127"_s);
    const QStringList order{u"Header 127 (none) (none)"_s, u"rtf 127 (none) (none)"_s, u"txtNext 127 next back"_s,
                            u"txtPrev 127 next back"_s, u"txtTag 127 next back"_s};
    QCOMPARE(seen, order);
}

void tst_TourStepTexts::aSectionIsFoundByItsLiteralTag()
{
    m_system->host.writeFile(u"DemoData.ini"_s, section("127", line("Header", "Short")));
    ShowTourStep(u"0127"_s);
    QCOMPARE(console().Tag(), u"0127"_s);
    QCOMPARE(console().Header.Text(), none());
    m_system->host.writeFile(u"DemoData.ini"_s,
                             section("127", line("Header", "Short")) + section("0127", line("Header", "Long")));
    ShowTourStep(u"0127"_s);
    QCOMPARE(console().Header.Text(), u"Long"_s);
}

void tst_TourStepTexts::whatIsAbsentShowsNone_data()
{
    QTest::addColumn<QByteArray>("script");
    QTest::addColumn<QString>("heading");
    QTest::addColumn<QString>("next");
    const QByteArray heading = line("Header", "Here");
    QTest::newRow("the section") << section("128", heading) << none() << none();
    QTest::newRow("all keys") << section("127", {}) << none() << none();
    QTest::newRow("all keys but one") << section("127", heading) << u"Here"_s << none();
    QTest::newRow("all keys but the script") << section("127", line("NextRTF", "1/cc/1")) << none() << u"1/cc/1"_s;
    QTest::newRow("everything in the file") << QByteArray() << none() << none();
    QTest::newRow("the file") << QByteArray("gone") << none() << none();
}

void tst_TourStepTexts::whatIsAbsentShowsNone()
{
    QFETCH(QByteArray, script);
    m_system->host.writeFile(u"DemoData.ini"_s, script);
    if (script == "gone") m_system->host.removeFile(u"DemoData.ini"_s);
    ShowTourStep(u"127"_s);
    QCOMPARE(console().Tag(), u"127"_s);
    QTEST(console().Header.Text(), "heading");
    QCOMPARE(console().rtf.Text(), none());
    QTEST(console().cmdGoNext.Tag(), "next");
    QTEST(console().txtNext.Text(), "next");
    QCOMPARE(console().cmdGoBack.Tag(), none());
    QCOMPARE(console().txtPrev.Text(), none());
}

void tst_TourStepTexts::bytesOfAnyKindShowNone_data()
{
    QTest::addColumn<QByteArray>("script");
    QByteArray every;
    for (int code = 0; code < 256; ++code)
        every += static_cast<char>(code);
    QTest::newRow("zeros") << QByteArray(100'000, '\0');
    QTest::newRow("every code") << every.repeated(1000);
    QTest::newRow("a picture") << QByteArray("\x89PNG\r\n\x1A\n") + every;
    QTest::newRow("keys of no section") << line("Header", "Lost") + line("RTF", "Lost");
    QTest::newRow("text in two bytes a character") << QByteArray("\xFF\xFE[\0001\0002\0007\0]\0\n\0", 14);
}

void tst_TourStepTexts::bytesOfAnyKindShowNone()
{
    QFETCH(QByteArray, script);
    m_system->host.writeFile(u"DemoData.ini"_s, script);
    ShowTourStep(u"127"_s);
    QCOMPARE(console().Tag(), u"127"_s);
    for (const QString &text : {console().Header.Text(), console().rtf.Text(), console().txtNext.Text()})
        QCOMPARE(text, none());
    m_system->click(console().cmdGoNext);
    QCOMPARE(console().Tag(), u"127"_s);
}

void tst_TourStepTexts::aScriptBehindAHundredMegabytesIsRead()
{
    m_system->host.writeFile(u"DemoData.ini"_s, QByteArray(100 << 20, ';') + "\r\n" + step("127", "a", "b"));
    ShowTourStep(u"127"_s);
    QCOMPARE(console().Tag(), u"127"_s);
    QCOMPARE(console().cmdGoNext.Tag(), u"a"_s);
    QCOMPARE(console().cmdGoBack.Tag(), u"b"_s);
}

void tst_TourStepTexts::anEmptyValueShowsNothing()
{
    m_system->host.writeFile(u"DemoData.ini"_s, section("127", "Header=\r\nRTF=\r\nNextRTF=\r\nPrevRTF=\r\n"));
    ShowTourStep(u"127"_s);
    QCOMPARE(console().Tag(), u"127"_s);
    QCOMPARE(console().Header.Text(), QString());
    QCOMPARE(console().rtf.Text(), QString());
    QCOMPARE(console().cmdGoNext.Tag(), QString());
    QCOMPARE(console().txtPrev.Text(), QString());
}

void tst_TourStepTexts::aLongValueIsCut_data()
{
    QTest::addColumn<QByteArray>("key");
    QTest::addColumn<int>("length");
    QTest::addColumn<int>("kept");
    for (const char *key : {"Header", "NextRTF", "PrevRTF"}) {
        QTest::addRow("%s whole", key) << QByteArray(key) << 1022 << 1022;
        QTest::addRow("%s cut", key) << QByteArray(key) << 1023 << 1022;
    }
    QTest::newRow("RTF whole") << QByteArray("RTF") << 8190 << 8190;
    QTest::newRow("RTF cut") << QByteArray("RTF") << 8191 << 8190;
}

void tst_TourStepTexts::aLongValueIsCut()
{
    QFETCH(QByteArray, key);
    QFETCH(int, length);
    QByteArray value;
    for (int i = 1; i < length; ++i)
        value += i % 16 == 0 ? ' ' : 'a'; // words, as in any text
    value += 'z';
    m_system->host.writeFile(u"DemoData.ini"_s, section("127", line(key, value)));
    ShowTourStep(u"127"_s);
    const std::map<QByteArray, QString> arrived{{"Header", console().Header.Text()},
                                                {"RTF", console().rtf.Text()},
                                                {"NextRTF", console().cmdGoNext.Tag()},
                                                {"PrevRTF", console().cmdGoBack.Tag()}};
    QTEST(static_cast<int>(arrived.at(key).size()), "kept");
    QCOMPARE(arrived.at(key).endsWith(u'z'), length == arrived.at(key).size());
}

void tst_TourStepTexts::theFileIsReadAnewForEachStep()
{
    ShowTourStep(u"127"_s);
    m_system->host.writeFile(u"DemoData.ini"_s, section("127", line("Header", "Changed")));
    ShowTourStep(u"127"_s);
    QCOMPARE(console().Header.Text(), u"Changed"_s);
}

QTEST_MAIN(tst_TourStepTexts)
#include "tst_TourStepTexts.moc"
