// What tourlint takes for the active window, against the program itself: both make the same moves.
#include "platform/forms/Wiring.h"
#include "support/RunningSystem.h"
#include "tour/TourDriver.h"
#include "tour/TourScript.h"
#include "tourlint/Bars.h"
#include "tourlint/Move.h"

#include <QTest>

using namespace Qt::Literals::StringLiterals;
using namespace orvane;

class tst_LintAgainstProgram : public QObject
{
    Q_OBJECT

private slots:
    void theSameWindowIsActive_data();
    void theSameWindowIsActive();
    void theSameToolsAreDisabled_data();
    void theSameToolsAreDisabled();
};

namespace
{
const QString OpenStep = u"0/cf/IG/STEP 17 - Emergency Preparedness and Response/127"_s;
const QString OpenIntroduction = u"0/cf/IG/Using this Guide/102"_s;
const QString OpenManual = u"0/cf/EM/Emergency Preparedness and Response/219"_s;
const QString OpenProcedure = u"0/cf/MP/Emergency Planning/311"_s;
const QString OpenTool = u"0/cf/AT/Emergency Plan Ideas/406"_s;
const QString OpenRecord = u"0/cf/RC/Emergency Plan/511"_s;
const QString Close = u"0/ml/mnuRelated/Close"_s;
const QString Print = u"0/ml/subPrint/prtPartial"_s;
const QString ClosePreview = u"0/pp/bndPreview/close"_s;
} // namespace

void tst_LintAgainstProgram::theSameWindowIsActive_data()
{
    QTest::addColumn<QStringList>("moves");
    QTest::newRow("open and close") << QStringList{OpenStep, Close};
    QTest::newRow("two, and the first again") << QStringList{OpenStep, OpenManual, OpenStep, Close, u"0/cc/3"_s};
    QTest::newRow("two titles of one module") << QStringList{OpenStep, OpenIntroduction, Close, OpenStep};
    QTest::newRow("links all round") << QStringList{
        OpenStep, u"0/ml/EMLink/btnEM"_s, u"0/ml/MPLink/btnemp"_s, u"0/ml/ATLink/btnepi"_s, u"0/ml/IGLink/btnIG"_s,
        Close};
    QTest::newRow("a tool's link to the records") << QStringList{OpenTool, u"0/ml/RCLink/btnRC"_s};
    QTest::newRow("preview over the guide") << QStringList{OpenStep, Print, u"0/pp/bndPreview/Next"_s, ClosePreview};
    QTest::newRow("preview over the manual") << QStringList{OpenStep, OpenManual, Print, ClosePreview, Close};
    QTest::newRow("preview over a procedure") << QStringList{OpenProcedure, Print, ClosePreview};
    QTest::newRow("preview left for a tool") << QStringList{OpenStep, Print, OpenTool, Print, ClosePreview, Close};
    QTest::newRow("preview behind a window") << QStringList{OpenManual, Print, OpenRecord};
    QTest::newRow("a record's tools") << QStringList{OpenRecord, u"0/ml/mnuRelated/vwOption"_s,
                                                     u"0/ml/subPrint/prtRecordFilled"_s, ClosePreview, Close};
    QTest::newRow("a record closes a preview")
        << QStringList{OpenStep, Print, OpenRecord, u"0/ml/mnuRelated/Open"_s, Close, OpenStep, Close};
    QTest::newRow("a record closes a preview behind it")
        << QStringList{OpenRecord, OpenStep, Print, OpenRecord, u"0/ml/mnuRelated/vwOption"_s, OpenStep, Close};
    QTest::newRow("by the menu") << QStringList{u"0/mm/CoreProcedures/EmergencyPlanning"_s,
                                                u"0/mm/mnuCommand/Procedures"_s, u"0/mm/subImpGuide/cmdUseGuide"_s,
                                                u"0/mm/mnuCommand/Records"_s};
    QTest::newRow("by the Window menu") << QStringList{OpenManual, OpenProcedure, u"0/mm/mnuWindow/Command Center"_s,
                                                       u"0/mm/mnuWindow/[Environmental Manual] - "
                                                       "Emergency Preparedness and Response"_s};
    QTest::newRow("details over the diagram") << QStringList{u"0/mm/mnuTools/properties"_s, u"0/po"_s};
    QTest::newRow("details over the manual") << QStringList{OpenManual, u"0/mm/mnuTools/properties"_s, u"0/po"_s};
    QTest::newRow("details over a tool") << QStringList{OpenTool, u"0/mm/mnuTools/properties"_s, u"0/po"_s};
}

void tst_LintAgainstProgram::theSameWindowIsActive()
{
    QFETCH(QStringList, moves);
    test::RunningSystem system;
    system.start();
    lint::OpenWindows windows;
    for (const QString &move : std::as_const(moves)) {
        const TourScript script(move);
        const auto fault = lint::move(script, Way::Forward, windows);
        QVERIFY2(!fault, qPrintable(move + u": "_s + fault.value_or(lint::MoveFault()).message));
        moveForward(script);
        QCOMPARE(move + u": "_s + windows.active().name, move + u": "_s + system.active()->Name());
        if (isModuleWindow(windows.active().name)) QCOMPARE(windows.active().tag, system.active()->Tag());
    }
}

void tst_LintAgainstProgram::theSameToolsAreDisabled_data()
{
    QTest::addColumn<QString>("move");
    QTest::newRow("step") << OpenStep;
    QTest::newRow("introduction") << OpenIntroduction;
    QTest::newRow("manual") << OpenManual;
    QTest::newRow("procedure") << OpenProcedure;
    QTest::newRow("tool") << OpenTool;
    QTest::newRow("record") << OpenRecord;
}

void tst_LintAgainstProgram::theSameToolsAreDisabled()
{
    QFETCH(QString, move);
    test::RunningSystem system;
    system.start();
    lint::OpenWindows windows;
    lint::move(TourScript(move), Way::Forward, windows);
    moveForward(TourScript(move));
    int tools = 0;
    for (const lint::BarRow &bar : lint::bars()) {
        if (lint::text(bar.window) != windows.active().name) continue;
        const ActiveBar &live = barOf(*system.active(), lint::text(bar.bar));
        for (const BandRow &band : bar.bands)
            for (const ToolRow &tool : band.tools) {
                const QString name = lint::text(tool.name);
                QCOMPARE(name + QString::number(!windows.isDisabled(lint::text(bar.bar), tool)),
                         name + QString::number(live.Bands(lint::text(band.name)).Tools(name).Enabled()));
                ++tools;
            }
    }
    QVERIFY(tools >= 10);
}

QTEST_MAIN(tst_LintAgainstProgram)
#include "tst_LintAgainstProgram.moc"
