// The system's print dialog as a user works it.
#include "platform/forms/Window.h"
#include "platform/print/Printers.h"
#include "platform/print/dialog/PrintChoice.h"
#include "platform/print/dialog/WindowHandle.h"
#include "platform/system/RunTimeError.h"
#include "support/TestHost.h"

#include <QAbstractButton>
#include <QAccessible>
#include <QApplication>
#include <QComboBox>
#include <QDialog>
#include <QLineEdit>
#include <QPrinterInfo>
#include <QRadioButton>
#include <QSpinBox>
#include <QTabWidget>
#include <QTest>
#include <QTimer>
#include <algorithm>

using namespace Qt::Literals::StringLiterals;
using namespace orvane;
using namespace orvane::test;

namespace
{
constexpr int A3 = 8;
constexpr int A5 = 11;

PrintChoice choiceOfSevenPages()
{
    PrintChoice choice;
    choice.deviceName = pdfPrinterName();
    choice.paperSize = A3;
    choice.lastPage = 7;
    choice.maxPage = 7;
    return choice;
}

template <class Widget>
Widget &part(const QString &name)
{
    auto *widget = QApplication::activeModalWidget()->findChild<Widget *>(name);
    if (!widget) qFatal("the print dialog has no %s", qPrintable(name));
    return *widget;
}

void press(QDialog::DialogCode code)
{
    static_cast<QDialog *>(QApplication::activeModalWidget())->done(code);
}

// Clicks where the user would; the print dialog checks its file as it is accepted.
void accept()
{
    QMetaObject::invokeMethod(QApplication::activeModalWidget(), "accept");
}

bool work(PrintChoice &choice, const std::function<void()> &user, quint32 owner = 0)
{
    QTimer::singleShot(0, qApp, [&] {
        if (!QApplication::activeModalWidget()) qFatal("no print dialog is up");
        user();
    });
    return Host().printDialog(choice, owner);
}

void inProperties(const std::function<void()> &user)
{
    QTimer::singleShot(0, qApp, user);
    part<QAbstractButton>(u"properties"_s).click();
}

bool says(const QString &name)
{
    return std::any_of(name.begin(), name.end(), [](QChar character) { return character.isLetter(); });
}

class OwnerWindow : public Window
{
public:
    OwnerWindow() : Window(u"frmPrint"_s, FixedBorder) {}
};
} // namespace

class tst_PrintDialog : public QObject
{
    Q_OBJECT

private slots:
    void cancelChangesNothing();
    void okGivesBackWhatWentIn();
    void theDialogShowsWhatItWasOpenedWith();
    void copiesAndARangeComeBack();
    void theRangeIsBounded();
    void aRangeGoesIn();
    void theFileComesBack();
    void thePaperIsOnShowInTheProperties();
    void thePaperAndTheOrientationComeBack();
    void propertiesThatAreCancelledChangeNoPaper();
    void settingsWithoutEffectAreNotShown_data();
    void settingsWithoutEffectAreNotShown();
    void propertiesWithoutEffectAreNotShown();
    void everyPartIsSpokenOf();
    void withoutTheFolderNoFileIsOffered();
    void itStandsOverItsOwner();
    void anUnknownOwnerIsNone();
    void aPrinterThatIsGoneIsRefused();
};

void tst_PrintDialog::cancelChangesNothing()
{
    const TestHost host;
    PrintChoice choice = choiceOfSevenPages();
    QVERIFY(!work(choice, [] {
        part<QSpinBox>(u"copies"_s).setValue(4);
        press(QDialog::Rejected);
    }));
    QCOMPARE(choice.copies, 1);
    QCOMPARE(choice.paperSize, A3);
}

void tst_PrintDialog::okGivesBackWhatWentIn()
{
    const TestHost host;
    PrintChoice choice = choiceOfSevenPages();
    choice.copies = 2;
    choice.orientation = 2;
    QVERIFY(work(choice, accept));
    QCOMPARE(choice.deviceName, pdfPrinterName());
    QCOMPARE(choice.copies, 2);
    QCOMPARE(choice.orientation, 2);
    QCOMPARE(choice.paperSize, A3);
    QVERIFY(!choice.pageRange);
    QCOMPARE(choice.firstPage, 1);
    QCOMPARE(choice.lastPage, 7);
}

void tst_PrintDialog::theDialogShowsWhatItWasOpenedWith()
{
    const TestHost host;
    PrintChoice choice = choiceOfSevenPages();
    choice.copies = 2;
    work(choice, [&] {
        QCOMPARE(part<QComboBox>(u"printers"_s).currentText(), pdfPrinterName());
        QCOMPARE(part<QLineEdit>(u"filename"_s).text(), host.folder() + u"/Documents/Document.pdf"_s);
        QCOMPARE(part<QSpinBox>(u"copies"_s).value(), 2);
        QVERIFY(part<QRadioButton>(u"printAll"_s).isChecked());
        press(QDialog::Rejected);
    });
}

void tst_PrintDialog::copiesAndARangeComeBack()
{
    const TestHost host;
    PrintChoice choice = choiceOfSevenPages();
    QVERIFY(work(choice, [] {
        part<QSpinBox>(u"copies"_s).setValue(3);
        part<QRadioButton>(u"printRange"_s).click();
        part<QSpinBox>(u"from"_s).setValue(2);
        part<QSpinBox>(u"to"_s).setValue(4);
        accept();
    }));
    QCOMPARE(choice.copies, 3);
    QVERIFY(choice.pageRange);
    QCOMPARE(choice.firstPage, 2);
    QCOMPARE(choice.lastPage, 4);
}

void tst_PrintDialog::theRangeIsBounded()
{
    const TestHost host;
    PrintChoice choice = choiceOfSevenPages();
    work(choice, [] {
        part<QRadioButton>(u"printRange"_s).click();
        part<QSpinBox>(u"from"_s).setValue(0);
        part<QSpinBox>(u"to"_s).setValue(99);
        accept();
    });
    QCOMPARE(choice.firstPage, 1);
    QCOMPARE(choice.lastPage, 7);
}

void tst_PrintDialog::aRangeGoesIn()
{
    const TestHost host;
    PrintChoice choice = choiceOfSevenPages();
    choice.pageRange = true;
    choice.firstPage = 3;
    choice.lastPage = 5;
    work(choice, [] {
        QVERIFY(part<QRadioButton>(u"printRange"_s).isChecked());
        QCOMPARE(part<QSpinBox>(u"from"_s).value(), 3);
        QCOMPARE(part<QSpinBox>(u"to"_s).value(), 5);
        press(QDialog::Rejected);
    });
}

void tst_PrintDialog::theFileComesBack()
{
    const TestHost host;
    PrintChoice choice = choiceOfSevenPages();
    const QString file = host.folder() + u"/Documents/plan.pdf"_s;
    QVERIFY(work(choice, [&] {
        part<QLineEdit>(u"filename"_s).setText(file);
        accept();
    }));
    QCOMPARE(pdfFileName(), file);
}

void tst_PrintDialog::thePaperIsOnShowInTheProperties()
{
    const TestHost host;
    PrintChoice choice = choiceOfSevenPages();
    work(choice, [] {
        inProperties([] {
            QCOMPARE(part<QComboBox>(u"pageSizeCombo"_s).currentText(), u"A3"_s);
            press(QDialog::Rejected);
        });
        press(QDialog::Rejected);
    });
}

void tst_PrintDialog::thePaperAndTheOrientationComeBack()
{
    const TestHost host;
    PrintChoice choice = choiceOfSevenPages();
    QVERIFY(work(choice, [] {
        inProperties([] {
            auto &papers = part<QComboBox>(u"pageSizeCombo"_s);
            papers.setCurrentIndex(papers.findText(u"A5"_s));
            part<QRadioButton>(u"landscape"_s).click();
            press(QDialog::Accepted);
        });
        accept();
    }));
    QCOMPARE(choice.paperSize, A5);
    QCOMPARE(choice.orientation, 2);
}

void tst_PrintDialog::propertiesThatAreCancelledChangeNoPaper()
{
    const TestHost host;
    PrintChoice choice = choiceOfSevenPages();
    QVERIFY(work(choice, [] {
        inProperties([] {
            part<QComboBox>(u"pageSizeCombo"_s).setCurrentIndex(0);
            press(QDialog::Rejected);
        });
        accept();
    }));
    QCOMPARE(choice.paperSize, A3);
}

void tst_PrintDialog::settingsWithoutEffectAreNotShown_data()
{
    QTest::addColumn<QString>("name");
    for (const char *name : {"pagesRadioButton", "pagesLineEdit", "pageSetCombo", "collate", "reverse", "colorMode"})
        QTest::newRow(name) << QString::fromLatin1(name);
}

void tst_PrintDialog::settingsWithoutEffectAreNotShown()
{
    QFETCH(const QString, name);
    const TestHost host;
    PrintChoice choice = choiceOfSevenPages();
    work(choice, [&] {
        QVERIFY(part<QWidget>(name).isHidden());
        press(QDialog::Rejected);
    });
}

void tst_PrintDialog::propertiesWithoutEffectAreNotShown()
{
    const TestHost host;
    PrintChoice choice = choiceOfSevenPages();
    work(choice, [] {
        inProperties([] {
            QVERIFY(!part<QComboBox>(u"pagesPerSheetCombo"_s).isVisible());
            QVERIFY(part<QComboBox>(u"pageSizeCombo"_s).isVisible());
            auto &tabs = part<QTabWidget>(u"tabs"_s);
            for (int index = 0; index < tabs.count(); ++index)
                QCOMPARE(tabs.isTabVisible(index), tabs.tabText(index) == u"Page"_s);
            press(QDialog::Rejected);
        });
        press(QDialog::Rejected);
    });
}

void tst_PrintDialog::everyPartIsSpokenOf()
{
    const TestHost host;
    PrintChoice choice = choiceOfSevenPages();
    QStringList silent;
    work(choice, [&] {
        const auto widgets = QApplication::activeModalWidget()->findChildren<QWidget *>();
        for (QWidget *widget : widgets) {
            if (widget->focusPolicy() == Qt::NoFocus || widget->isHidden() || widget->focusProxy()) continue;
            const auto *spoken = QAccessible::queryAccessibleInterface(widget);
            if (spoken && !says(spoken->text(QAccessible::Name))) silent << widget->objectName();
        }
        press(QDialog::Rejected);
    });
    QCOMPARE(silent.join(u' '), QString());
}

void tst_PrintDialog::withoutTheFolderNoFileIsOffered()
{
    TestHost host;
    host.setPrintQueues({{u"Office"_s, {}, {}}});
    host.setDocumentsFolder(host.folder() + u"/DealerData.dat"_s);
    PrintChoice choice = choiceOfSevenPages();
    choice.deviceName = u"Office"_s;
    work(choice, [] {
        QCOMPARE(part<QComboBox>(u"printers"_s).findText(pdfPrinterName()), -1);
        press(QDialog::Rejected);
    });
}

void tst_PrintDialog::itStandsOverItsOwner()
{
    const TestHost host;
    OwnerWindow owner;
    owner.Show();
    PrintChoice choice = choiceOfSevenPages();
    work(
        choice,
        [&] {
            QCOMPARE(QApplication::activeModalWidget()->parentWidget(), &owner.shell());
            press(QDialog::Rejected);
        },
        hWnd(owner));
}

void tst_PrintDialog::anUnknownOwnerIsNone()
{
    QVERIFY(!windowOfHandle(0));
    QVERIFY(!windowOfHandle(0xFFFFFFF0));
}

void tst_PrintDialog::aPrinterThatIsGoneIsRefused()
{
    const TestHost host;
    PrintChoice choice = choiceOfSevenPages();
    choice.deviceName = u"Gone"_s;
    try {
        Host().printDialog(choice, 0);
        QFAIL("no failure");
    } catch (const RunTimeError &error) {
        QCOMPARE(error.Number(), int(PrinterFailure));
    }
}

QTEST_MAIN(tst_PrintDialog)
#include "tst_PrintDialog.moc"
