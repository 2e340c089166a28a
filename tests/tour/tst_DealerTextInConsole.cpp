// The dealer's lines, from their file into the console.
#include "support/RunningSystem.h"
#include "tour/DealerText.h"
#include "tour/modDemo.h"

#include <QDir>
#include <QTest>

using namespace Qt::Literals::StringLiterals;
using namespace orvane;
using namespace orvane::test;

class tst_DealerTextInConsole : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void theTextComesInClearWithALineEndBehind();
    void everyLineOfTheTextIsThere();
    void theTextIsAddedToTheOldText();
    void aSecondReadAppends();
    void oneByteIsAText();
    void theTextIsHiddenUntilTheEnd();
    void atTheEndItStandsUnderItsOwnStep();
    void anEmptyFileIsNoText();
    void anEmptiedFileTakesTheMarkBackAndLeavesTheText();
    void aMissingFileEndsTheProgram();
    void aMissingFileLeavesTheMarkAlone();
    void aMegabyteComesWhole();
    void aByteWithoutCharacterEndsTheProgram_data();
    void aByteWithoutCharacterEndsTheProgram();
    void theTextIsReadBeforeTheFirstStep();
    void theTextIsNotReadWhenTheIntroRunsOut();
    void theUserCanNotChangeTheText();

private:
    frmDemo &console() const { return m_system->console(); }
    QString info() const;
    void dealerSays(const QString &text) const
    {
        m_system->host.writeFile(u"DealerData.dat"_s, ScrambleDealerData(text));
    }

    std::optional<RunningSystem> m_system;
    QString m_infoAtFirstStep;
};

void tst_DealerTextInConsole::init()
{
    m_system.emplace();
}

void tst_DealerTextInConsole::cleanup()
{
    m_system.reset();
}

// The lines as the box holds them, whatever it ends a line with.
QString tst_DealerTextInConsole::info() const
{
    return console().txtInfo.Text().remove(u'\r');
}

void tst_DealerTextInConsole::theTextComesInClearWithALineEndBehind()
{
    dealerSays(u"Harbour Office Supplies"_s);
    ReadDealerData();
    QCOMPARE(info(), u"Harbour Office Supplies\n"_s);
    QVERIFY(Shared().DealerTextPresent == True);
}

void tst_DealerTextInConsole::everyLineOfTheTextIsThere()
{
    dealerSays(u"Harbour Office Supplies\r\n12 Quay Road\r\n\r\nCall us"_s);
    ReadDealerData();
    QCOMPARE(info(), u"Harbour Office Supplies\n12 Quay Road\n\nCall us\n"_s);
}

void tst_DealerTextInConsole::theTextIsAddedToTheOldText()
{
    console().txtInfo.setText(u"Old: "_s);
    dealerSays(u"new"_s);
    ReadDealerData();
    QCOMPARE(info(), u"Old: new\n"_s);
}

void tst_DealerTextInConsole::aSecondReadAppends()
{
    dealerSays(u"One"_s);
    ReadDealerData();
    dealerSays(u"Two"_s);
    ReadDealerData();
    QCOMPARE(info(), u"One\nTwo\n"_s);
}

void tst_DealerTextInConsole::oneByteIsAText()
{
    m_system->host.writeFile(u"DealerData.dat"_s, "\x42");
    ReadDealerData();
    QCOMPARE(info(), u"A\n"_s);
    QVERIFY(Shared().DealerTextPresent == True);
}

void tst_DealerTextInConsole::theTextIsHiddenUntilTheEnd()
{
    dealerSays(u"Call us"_s);
    m_system->start();
    QVERIFY(!console().txtInfo.Visible());
    ShowTourStep(u"602"_s);
    QVERIFY(!console().txtInfo.Visible());
    ShowTourStep(u"603"_s);
    QVERIFY(console().txtInfo.Visible());
}

void tst_DealerTextInConsole::atTheEndItStandsUnderItsOwnStep()
{
    dealerSays(u"Call us"_s);
    m_system->start();
    m_system->clickTool(m_system->frame(), u"mnuMain"_s, u"mnuFile"_s, u"exit"_s);
    QCOMPARE(console().Tag(), u"604"_s);
    QCOMPARE(console().rtf.Text(), u"Text of 604"_s);
    QCOMPARE(info(), u"Call us\n"_s);
    QVERIFY(console().cmdQuit.Visible());
}

void tst_DealerTextInConsole::anEmptyFileIsNoText()
{
    m_system->start();
    QVERIFY(Shared().DealerTextPresent == False);
    QCOMPARE(console().txtInfo.Text(), QString());
    ShowTourStep(u"603"_s);
    QCOMPARE(console().Tag(), u"603"_s);
    QVERIFY(!console().txtInfo.Visible());
}

void tst_DealerTextInConsole::anEmptiedFileTakesTheMarkBackAndLeavesTheText()
{
    dealerSays(u"Call us"_s);
    ReadDealerData();
    m_system->host.writeFile(u"DealerData.dat"_s, {});
    ReadDealerData();
    QVERIFY(Shared().DealerTextPresent == False);
    QCOMPARE(info(), u"Call us\n"_s);
}

void tst_DealerTextInConsole::aMissingFileEndsTheProgram()
{
    m_system->host.removeFile(u"DealerData.dat"_s);
    m_system->host.expectAnyMessage();
    m_system->host.expectEnd(1);
    m_system->showSplash();
    m_system->leaveIntro();
    QCOMPARE(m_system->host.exitCode(), std::optional(1));
    QVERIFY(m_system->host.messages().back().text.startsWith(u"Error 53: "_s));
    QCOMPARE(console().Tag(), u"0"_s);
}

void tst_DealerTextInConsole::aMissingFileLeavesTheMarkAlone()
{
    Shared().DealerTextPresent = True;
    m_system->host.removeFile(u"DealerData.dat"_s);
    QVERIFY_THROWS_EXCEPTION(RunTimeError, ReadDealerData());
    QVERIFY(Shared().DealerTextPresent == True);
}

// Lines of any dealer, a great many of them.
void tst_DealerTextInConsole::aMegabyteComesWhole()
{
    const QString text = u"Harbor Office Supplies, 12 Quay Road\r\n"_s.repeated(27'595);
    QVERIFY(text.size() > 1 << 20);
    dealerSays(text);
    m_system->start();
    QVERIFY(Shared().DealerTextPresent == True);
    QVERIFY(info() == QString(text + u'\n').remove(u'\r'));
    ShowTourStep(u"603"_s);
    QCOMPARE(console().Tag(), u"604"_s);
}

void tst_DealerTextInConsole::aByteWithoutCharacterEndsTheProgram_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::newRow("at the front") << QByteArray(1, '\0');
    QTest::newRow("far inside") << QByteArray(1'000'000, 'z') + QByteArray(64, '\0');
    QTest::newRow("text that was never scrambled") << QByteArray("Harbor Office Supplies\r\n");
}

void tst_DealerTextInConsole::aByteWithoutCharacterEndsTheProgram()
{
    QFETCH(QByteArray, bytes);
    m_system->host.writeFile(u"DealerData.dat"_s, bytes);
    m_system->host.expectAnyMessage();
    m_system->host.expectEnd(1);
    m_system->showSplash();
    m_system->leaveIntro();
    QVERIFY(m_system->host.messages().back().text.startsWith(u"Error 5: "_s));
    QCOMPARE(info(), QString());
    QVERIFY(Shared().DealerTextPresent == False);
}

void tst_DealerTextInConsole::theTextIsReadBeforeTheFirstStep()
{
    dealerSays(u"Call us"_s);
    m_system->showSplash();
    connect(&console().Header, &RichTextBox::Change, this, [this] { m_infoAtFirstStep = info(); });
    m_system->leaveIntro();
    QCOMPARE(console().Tag(), u"101"_s);
    QCOMPARE(m_infoAtFirstStep, u"Call us\n"_s);
}

void tst_DealerTextInConsole::theTextIsNotReadWhenTheIntroRunsOut()
{
    dealerSays(u"Call us"_s);
    m_system->showSplash();
    m_system->host.advance(45000);
    QVERIFY(console().Visible());
    QCOMPARE(info(), QString());
    ShowTourStep(u"603"_s);
    QCOMPARE(console().Tag(), u"603"_s);
}

void tst_DealerTextInConsole::theUserCanNotChangeTheText()
{
    dealerSays(u"Call us"_s);
    m_system->start();
    ShowTourStep(u"603"_s);
    QTest::keyClicks(&console().txtInfo.widget(), u"not"_s);
    QCOMPARE(info(), u"Call us\n"_s);
}

QTEST_MAIN(tst_DealerTextInConsole)
#include "tst_DealerTextInConsole.moc"
