// The manual and the procedures as they are designed: what they show and answer to before they are loaded.
#include "documents/VersionedFixture.h"
#include "documents/frmEMMain.h"
#include "documents/frmMPMain.h"

using namespace Qt::Literals::StringLiterals;
using namespace orvane;
using namespace orvane::test;

namespace
{

struct Designed {
    explicit Designed(Sister sister)
    {
        system.start();
        if (sister == Sister::Manual)
            window = std::make_unique<frmEMMain>();
        else
            window = std::make_unique<frmMPMain>();
    }

    RunningSystem system;
    std::unique_ptr<VersionedWindow> window;
};

} // namespace

class tst_VersionedDesign : public QObject
{
    Q_OBJECT

private slots:
    void theWindowBearsItsModuleAndIsMaster_data();
    void theWindowBearsItsModuleAndIsMaster();
    void theFieldsAreLabelledAndDisabled_data() { addSisters(); }
    void theFieldsAreLabelledAndDisabled();
    void thePanelsNameTheirFields_data() { addSisters(); }
    void thePanelsNameTheirFields();
    void onlyTheProceduresHaveAPanelOfTools();
    void onlyTheProceduresAreQuitByName();
};

void tst_VersionedDesign::theWindowBearsItsModuleAndIsMaster_data()
{
    QTest::addColumn<Sister>("sister");
    QTest::addColumn<QString>("caption");
    QTest::newRow("manual") << Sister::Manual << u"Environment Manual"_s;
    QTest::newRow("procedures") << Sister::Procedures << u"Management Procedures"_s;
}

void tst_VersionedDesign::theWindowBearsItsModuleAndIsMaster()
{
    QFETCH(Sister, sister);
    const Designed design(sister);
    QTEST(design.window->Caption(), "caption");
    QCOMPARE(design.window->OwnMode, 0);
    QVERIFY(design.window->Dirty == False);
    QCOMPARE(design.window->mnuLinks.Bands(0).Tools(2).Caption(), u" Go to Own "_s);
    QCOMPARE(design.window->mnuLinks.Bands(0).Tools(2).Description(), u"Mode"_s);
}

void tst_VersionedDesign::theFieldsAreLabelledAndDisabled()
{
    QFETCH(Sister, sister);
    const Designed design(sister);
    QCOMPARE(design.window->lblIssue.Caption(), u"Issue:"_s);
    QCOMPARE(design.window->lblDate.Caption(), u"Date:"_s);
    QCOMPARE(design.window->lblAuthorized.Caption(), u"Authorized by:"_s);
    for (const TextBox *box : {&design.window->txtIssue, &design.window->txtDate, &design.window->txtAuthorized})
        QVERIFY2(!box->Enabled(), qPrintable(box->Name()));
}

void tst_VersionedDesign::thePanelsNameTheirFields()
{
    QFETCH(Sister, sister);
    const Designed design(sister);
    QCOMPARE(design.window->pnlNumber.DataField(), u"Section"_s);
    QCOMPARE(design.window->pnlHeading.DataField(), u"Title"_s);
    QCOMPARE(design.window->pnlNumber.Caption() + design.window->pnlHeading.Caption(), QString());
}

void tst_VersionedDesign::onlyTheProceduresHaveAPanelOfTools()
{
    const Designed manual(Sister::Manual);
    QVERIFY(!manual.window->control(u"pnlTools"_s));
    const Designed procedures(Sister::Procedures);
    QVERIFY(procedures.window->control(u"pnlTools"_s));
}

void tst_VersionedDesign::onlyTheProceduresAreQuitByName()
{
    const Designed procedures(Sister::Procedures);
    procedures.window->Dirty = True;
    procedures.window->names().call(u"QuitSaveData"_s);
    QVERIFY(procedures.window->Dirty == False);
    const Designed manual(Sister::Manual);
    QVERIFY_THROWS_EXCEPTION(RunTimeError, manual.window->names().call(u"QuitSaveData"_s));
}

QTEST_MAIN(tst_VersionedDesign)
#include "tst_VersionedDesign.moc"
