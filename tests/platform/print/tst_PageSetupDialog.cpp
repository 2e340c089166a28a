// The dialog for the paper and its margins, by its controls.
#include "platform/print/PrintFixture.h"
#include "platform/print/Printers.h"
#include "platform/print/preview/PageSetupDialog.h"

#include <QComboBox>
#include <QDialogButtonBox>
#include <QDoubleSpinBox>
#include <QLabel>
#include <QPageSize>
#include <QPushButton>
#include <QRadioButton>

using namespace Qt::Literals::StringLiterals;
using namespace orvane;
using namespace orvane::test;

namespace
{
PageChoice letter(bool withPrinters = false)
{
    PageChoice choice;
    choice.withPrinters = withPrinters;
    choice.setup.paperSize = LetterPaper;
    return choice;
}

template <class W>
W &in(const QDialog &dialog, const QString &name)
{
    auto *found = dialog.findChild<W *>(name);
    if (!found) qFatal("no such control");
    return *found;
}
} // namespace

class tst_PageSetupDialog : public QObject
{
    Q_OBJECT

private slots:
    void whatIsLeftAloneComesBackAsItWas();
    void thePaperIsChosenByItsName();
    void everyPaperOnOfferCanBeChosen();
    void aPaperThatFewPrintersTakeIsOfferedWhileInUse();
    void theOrientationIsChosen();
    void aMarginIsChosen();
    void marginsLeaveRoomOnThePaper();
    void thePrinterIsChosenInThePrintersDialog();
    void okAndCancel_data();
    void okAndCancel();
    void everyFieldHasALabelWithAnAccessKey();
};

void tst_PageSetupDialog::whatIsLeftAloneComesBackAsItWas()
{
    PageChoice asked = letter();
    asked.setup.left = 1234.5;
    asked.setup.bottom = 17;
    const PageChoice chosen = PageSetupDialog(asked).choice();
    QCOMPARE(chosen.setup.left, 1234.5);
    QCOMPARE(chosen.setup.bottom, 17.0);
    QCOMPARE(chosen.setup.paperSize, LetterPaper);
    QVERIFY(!chosen.setup.landscape);
}

void tst_PageSetupDialog::thePaperIsChosenByItsName()
{
    PageSetupDialog dialog(letter());
    auto &papers = in<QComboBox>(dialog, u"cboPaper"_s);
    QVERIFY(papers.currentText().startsWith(u"Letter"_s));
    papers.setCurrentIndex(papers.findText(u"A4"_s, Qt::MatchStartsWith));
    QCOMPARE(dialog.choice().setup.paperSize, A4Paper);
}

void tst_PageSetupDialog::everyPaperOnOfferCanBeChosen()
{
    PageSetupDialog dialog(letter());
    auto &papers = in<QComboBox>(dialog, u"cboPaper"_s);
    for (int index = 0; index < papers.count(); ++index) {
        papers.setCurrentIndex(index);
        const QString name = QPageSize::name(QPageSize::id(dialog.choice().setup.paperSize));
        QCOMPARE(name, papers.currentText());
        QVERIFY2(!dialog.choice().setup.page().isEmpty(), qPrintable(name));
    }
}

void tst_PageSetupDialog::aPaperThatFewPrintersTakeIsOfferedWhileInUse()
{
    PageChoice asked = letter();
    asked.setup.paperSize = QPageSize::windowsId(QPageSize::A3Extra);
    PageSetupDialog dialog(asked);
    QCOMPARE(dialog.choice().setup.paperSize, asked.setup.paperSize);
    QCOMPARE(in<QComboBox>(dialog, u"cboPaper"_s).currentText(), QPageSize::name(QPageSize::A3Extra));
}

void tst_PageSetupDialog::theOrientationIsChosen()
{
    PageSetupDialog dialog(letter());
    QVERIFY(in<QRadioButton>(dialog, u"optPortrait"_s).isChecked());
    in<QRadioButton>(dialog, u"optLandscape"_s).click();
    QVERIFY(dialog.choice().setup.landscape);
    in<QRadioButton>(dialog, u"optPortrait"_s).click();
    QVERIFY(!dialog.choice().setup.landscape);
}

void tst_PageSetupDialog::aMarginIsChosen()
{
    PageSetupDialog dialog(letter());
    auto &left = in<QDoubleSpinBox>(dialog, u"numLeft"_s);
    left.setValue(left.value() * 2);
    const double twips = dialog.choice().setup.left;
    QVERIFY2(std::abs(twips - 2880) < 3, qPrintable(QString::number(twips)));
    QCOMPARE(dialog.choice().setup.right, 1440.0);
}

void tst_PageSetupDialog::marginsLeaveRoomOnThePaper()
{
    PageSetupDialog dialog(letter());
    for (const QString &name : {u"numLeft"_s, u"numRight"_s, u"numTop"_s, u"numBottom"_s})
        in<QDoubleSpinBox>(dialog, name).setValue(1e6);
    in<QRadioButton>(dialog, u"optLandscape"_s).click();
    const PageSetup setup = dialog.choice().setup;
    QVERIFY(setup.left + setup.right < setup.page().width() - 1400);
    QVERIFY(setup.top + setup.bottom < setup.page().height() - 1400);
}

void tst_PageSetupDialog::thePrinterIsChosenInThePrintersDialog()
{
    TestHost host;
    InstalledPrinter queue;
    queue.deviceName = u"Laser"_s;
    host.setPrintQueues({queue});
    PageChoice asked = letter(true);
    asked.deviceName = pdfPrinterName();
    PageSetupDialog dialog(asked);
    auto &printers = in<QComboBox>(dialog, u"cboPrinter"_s);
    QCOMPARE(printers.currentText(), pdfPrinterName());
    QCOMPARE(printers.count(), 2);
    printers.setCurrentText(u"Laser"_s);
    QCOMPARE(dialog.choice().deviceName, u"Laser"_s);
    QVERIFY(!dialog.findChild<QDoubleSpinBox *>());
}

void tst_PageSetupDialog::okAndCancel_data()
{
    QTest::addColumn<QDialogButtonBox::StandardButton>("button");
    QTest::addColumn<bool>("taken");
    QTest::newRow("OK") << QDialogButtonBox::Ok << true;
    QTest::newRow("Cancel") << QDialogButtonBox::Cancel << false;
}

void tst_PageSetupDialog::okAndCancel()
{
    QFETCH(QDialogButtonBox::StandardButton, button);
    QFETCH(bool, taken);
    QTimer watch;
    connect(&watch, &QTimer::timeout, this, [&] {
        auto *dialog = qobject_cast<PageSetupDialog *>(QApplication::activeModalWidget());
        if (!dialog) return;
        watch.stop();
        in<QRadioButton>(*dialog, u"optLandscape"_s).click();
        QTest::mouseClick(dialog->findChild<QDialogButtonBox *>()->button(button), Qt::LeftButton);
    });
    watch.start(1);
    PageChoice choice = letter();
    QCOMPARE(Host().pageSetupDialog(choice), taken);
    QCOMPARE(choice.setup.landscape, taken);
}

void tst_PageSetupDialog::everyFieldHasALabelWithAnAccessKey()
{
    TestHost host;
    for (const bool withPrinters : {false, true}) {
        const PageSetupDialog dialog(letter(withPrinters));
        QStringList keys;
        const auto take = [&](const QString &text) { keys << text.mid(text.indexOf(u'&'), 2).toUpper(); };
        for (const QLabel *label : dialog.findChildren<QLabel *>())
            if (label->buddy()) take(label->text());
        for (const QRadioButton *button : dialog.findChildren<QRadioButton *>())
            take(button->text());
        QCOMPARE(keys.size(), withPrinters ? 4 : 7);
        QVERIFY(!keys.contains(QString()));
        QCOMPARE(keys.removeDuplicates(), 0);
    }
}

QTEST_MAIN(tst_PageSetupDialog)
#include "tst_PageSetupDialog.moc"
