// The whole program, walked by its own tour script from the first step to the last and back.
#include "documents/frmIGSteps.h"
#include "shell/modFunctions.h"
#include "support/RunningSystem.h"
#include "tour/modDemo.h"

#include <QFile>
#include <QRegularExpression>
#include <QTest>

using namespace Qt::Literals::StringLiterals;
using namespace orvane;
using namespace orvane::test;

namespace
{
constexpr int MostSteps = 200; // a script that goes round in circles ends here
QString none()
{
    return u"(none)"_s;
}

QByteArray tourScript()
{
    QFile file(QStringLiteral(ORVANE_SOURCE_DIR "/data/DemoData.ini"));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

QStringList sections()
{
    QStringList tags;
    static const QRegularExpression heading(u"^\\[(\\d+)\\]"_s, QRegularExpression::MultilineOption);
    for (auto match = heading.globalMatch(QString::fromLatin1(tourScript())); match.hasNext();)
        tags << match.next().captured(1);
    return tags;
}

bool isEnd(const QString &tag)
{
    return tag == u"603"_s || tag == u"604"_s;
}
} // namespace

class tst_Walk : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void nextLeadsFromTheFirstStepToTheLast();
    void backLeadsFromTheLastStepToTheFirst();
    void aClickInTheOpeningTextLeadsToTheLastStepToo();
    void everyTabIsSeenOnTheWay();
    void theWalkEndsWithTheDealersLines();
    void everyStepCanBeLeftByItsButtons_data();
    void everyStepCanBeLeftByItsButtons();

private:
    frmDemo &console() const { return m_system->console(); }
    QString target(const CommandButton &button) const { return button.Tag().section(u'/', 0, 0); }
    void take(CommandButton &button);
    void walkUntil(const QString &lastTag, CommandButton &button);

    std::optional<RunningSystem> m_system;
    QStringList m_path; // tags, in the order in which they were on show
    QSet<int> m_tabs;
};

void tst_Walk::init()
{
    m_system.emplace();
    const QByteArray script = tourScript();
    QVERIFY(!script.isEmpty());
    m_system->host.writeFile(u"DemoData.ini"_s, script);
    m_system->start();
    m_path = QStringList{console().Tag()};
    m_tabs.clear();
}

void tst_Walk::cleanup()
{
    m_system.reset();
}

// One press, which has to bring up the step that the script names, and one that the user can tell from the last.
void tst_Walk::take(CommandButton &button)
{
    const QString wanted = target(button);
    const QString before = console().Header.Text();
    const QString from = console().Tag();
    QVERIFY2(wanted != none(), qPrintable(u"no way on from step "_s + from));
    m_system->click(button);
    QVERIFY2(console().Tag() == wanted || isEnd(wanted), qPrintable(from + u" led to "_s + console().Tag()));
    QVERIFY2(console().Header.Text() != before, qPrintable(u"the same heading after "_s + from));
    QVERIFY(console().Header.Text() != none() && !console().Header.Text().isEmpty());
    QVERIFY(console().rtf.Text() != none() && !console().rtf.Text().isEmpty());
    QVERIFY(m_system->active());
    m_path << console().Tag();
    for (int tab = 1; tab <= 5; ++tab)
        if (m_system->active() == &m_system->diagram() && m_system->diagram().SSRibbon1(tab).Value()) m_tabs << tab;
}

void tst_Walk::walkUntil(const QString &lastTag, CommandButton &button)
{
    for (int i = 0; i < MostSteps && target(button) != lastTag && console().Tag() != lastTag; ++i) {
        take(button);
        if (QTest::currentTestFailed()) return;
    }
}

void tst_Walk::nextLeadsFromTheFirstStepToTheLast()
{
    QCOMPARE(console().Tag(), u"101"_s);
    walkUntil(u"603"_s, console().cmdGoNext);
    take(console().cmdGoNext);
    QCOMPARE(console().Tag(), u"603"_s);
    QVERIFY(console().cmdQuit.Visible());
    QVERIFY(m_path.contains(u"102"_s));
    QCOMPARE(QSet<QString>(m_path.begin(), m_path.end()).size(), m_path.size()); // no step twice
    QVERIFY(m_system->host.messages().empty());
    QCOMPARE(countWindows(u"frmError"_s), 0);
}

void tst_Walk::backLeadsFromTheLastStepToTheFirst()
{
    walkUntil(u"603"_s, console().cmdGoNext);
    QCOMPARE(target(console().cmdGoNext), u"603"_s);
    m_path = QStringList{console().Tag()};
    walkUntil(u"101"_s, console().cmdGoBack);
    take(console().cmdGoBack);
    QCOMPARE(console().Tag(), u"101"_s);
    QCOMPARE(console().cmdGoBack.Tag(), none());
    QCOMPARE(QSet<QString>(m_path.begin(), m_path.end()).size(), m_path.size());
    QVERIFY(m_system->host.messages().empty());
    QCOMPARE(m_system->active(), &m_system->diagram());
}

void tst_Walk::aClickInTheOpeningTextLeadsToTheLastStepToo()
{
    m_system->click(console().rtf);
    QCOMPARE(console().Tag(), u"102"_s);
    walkUntil(u"603"_s, console().cmdGoNext);
    take(console().cmdGoNext);
    QCOMPARE(console().Tag(), u"603"_s);
}

void tst_Walk::everyTabIsSeenOnTheWay()
{
    walkUntil(u"603"_s, console().cmdGoNext);
    QCOMPARE(m_tabs, (QSet<int>{1, 2, 3, 4, 5}));
}

void tst_Walk::theWalkEndsWithTheDealersLines()
{
    Shared().DealerTextPresent = True;
    walkUntil(u"603"_s, console().cmdGoNext);
    take(console().cmdGoNext);
    QCOMPARE(console().Tag(), u"604"_s);
    QVERIFY(console().txtInfo.Visible());
    QVERIFY(console().cmdQuit.Visible());
}

void tst_Walk::everyStepCanBeLeftByItsButtons_data()
{
    QTest::addColumn<QString>("tag");
    QTest::addColumn<bool>("forward");
    QVERIFY(sections().size() > 20);
    for (const QString &tag : sections()) {
        if (isEnd(tag)) continue; // nothing leads out of these
        QTest::addRow("%s Next", qPrintable(tag)) << tag << true;
        QTest::addRow("%s Back", qPrintable(tag)) << tag << false;
    }
}

void tst_Walk::everyStepCanBeLeftByItsButtons()
{
    QFETCH(QString, tag);
    QFETCH(bool, forward);
    CommandButton &button = forward ? console().cmdGoNext : console().cmdGoBack;
    ShowTourStep(tag);
    QCOMPARE(console().Tag(), tag);
    QVERIFY(console().Header.Text() != none());
    const QString script = button.Tag();
    if (script == none()) {
        m_system->click(button);
        QCOMPARE(console().Tag(), tag);
        return;
    }
    // A user who reads of a page or a link of the guide has that open.
    const QString verb = script.section(u'/', 1, 1);
    if (QStringList{u"mn"_s, u"ml"_s, u"rc"_s, u"cb"_s}.contains(verb))
        OpenGuide(u"STEP 17 - Emergency Preparedness and Response"_s, u"127"_s);
    take(button);
}

QTEST_MAIN(tst_Walk)
#include "tst_Walk.moc"
