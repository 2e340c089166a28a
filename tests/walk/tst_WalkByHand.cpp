// Whoever works the program by hand comes to any step of the tour, and is led on from there.
#include "shell/modFunctions.h"
#include "tour/modDemo.h"
#include "walk/Walker.h"

#include <QTest>

using namespace Qt::Literals::StringLiterals;
using namespace orvane;
using namespace orvane::test;

class tst_WalkByHand : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup() { m_walker.reset(); }
    void everyStepCanBeLeftByItsButtons_data();
    void everyStepCanBeLeftByItsButtons();
    void everyStepLeadsOnToTheEnd_data();
    void everyStepLeadsOnToTheEnd();

private:
    frmDemo &console() { return m_walker->console(); }
    void arriveAt(const QString &tag);
    void openDocument(QChar module, const QString &tag);
    void showPreview(QChar module);

    std::optional<Walker> m_walker;
};

namespace
{
void addSteps(const std::function<void(const QString &)> &add)
{
    for (const QString &tag : ShippedTour::tags())
        if (!ShippedTour::isEnd(tag)) add(tag); // nothing leads out of these
}
} // namespace

void tst_WalkByHand::init()
{
    m_walker.emplace();
    m_walker->start();
}

void tst_WalkByHand::openDocument(QChar module, const QString &tag)
{
    switch (module.unicode()) {
    case u'1':
        return OpenGuide(u"STEP 17 - Emergency Preparedness and Response"_s, u"127"_s);
    case u'2':
        return OpenManual(u"Emergency Preparedness and Response"_s, u"219"_s);
    case u'3':
        return OpenProcedures(u"Emergency Planning"_s, u"311"_s);
    case u'4':
        return OpenTools(u"Emergency Plan Ideas"_s, u"406"_s);
    case u'5':
        if (tag == u"519"_s) return OpenRecords(u"Significant Aspects and Impacts Summary"_s, tag);
        return OpenRecords(u"Emergency Plan"_s, u"511"_s);
    default:
        return;
    }
}

void tst_WalkByHand::showPreview(QChar module)
{
    const QString tool = module == u'5' ? u"prtRecordBlank"_s : u"prtPartial"_s;
    m_walker->system().clickTool(*m_walker->system().active(), u"mnuLinks"_s, u"subPrint"_s, tool);
}

// A user who reads of a page, a link or a preview has that before him.
void tst_WalkByHand::arriveAt(const QString &tag)
{
    const TourSection section = ShippedTour::section(tag);
    const QString verbs = section.next.section(u'/', 1, 1) + u' ' + section.back.section(u'/', 1, 1);
    const bool ofDocument = verbs.contains(u"mn"_s) || verbs.contains(u"ml"_s) || verbs.contains(u"rc"_s) ||
                            verbs.contains(u"cb"_s) || verbs.contains(u"pp"_s);
    if (ofDocument) openDocument(tag.at(0), tag);
    if (ofDocument && verbs.contains(u"pp"_s) && m_walker->system().active()->Name() != u"frmCommandCentre"_s)
        showPreview(tag.at(0));
    ShowTourStep(QString(tag));
    QCOMPARE(console().Tag(), tag);
    QVERIFY(console().Header.Text() != ShippedTour::none());
}

void tst_WalkByHand::everyStepCanBeLeftByItsButtons_data()
{
    QTest::addColumn<QString>("tag");
    QTest::addColumn<bool>("forward");
    addSteps([](const QString &tag) {
        QTest::addRow("%s Next", qPrintable(tag)) << tag << true;
        if (tag != u"101"_s) QTest::addRow("%s Back", qPrintable(tag)) << tag << false;
    });
}

void tst_WalkByHand::everyStepCanBeLeftByItsButtons()
{
    QFETCH(QString, tag);
    QFETCH(bool, forward);
    arriveAt(tag);
    if (!QTest::currentTestFailed()) m_walker->take(forward ? console().cmdGoNext : console().cmdGoBack);
}

void tst_WalkByHand::everyStepLeadsOnToTheEnd_data()
{
    QTest::addColumn<QString>("tag");
    addSteps([](const QString &tag) { QTest::addRow("%s", qPrintable(tag)) << tag; });
}

void tst_WalkByHand::everyStepLeadsOnToTheEnd()
{
    QFETCH(QString, tag);
    arriveAt(tag);
    m_walker->walkTo({}, console().cmdGoNext);
    if (!QTest::currentTestFailed()) m_walker->take(console().cmdGoNext);
    QCOMPARE(console().Tag(), u"603"_s);
    QVERIFY(m_walker->system().host.messages().empty());
}

QTEST_MAIN(tst_WalkByHand)
#include "tst_WalkByHand.moc"
