// The program under locales with other digits, another sign for decimals, and a script that runs from right to left:
// its texts are English, and it looks and reads the same.
#include "printing/frmPrint.h"
#include "shell/modFunctions.h"
#include "walk/Walker.h"

#include <QComboBox>
#include <QLineEdit>
#include <QLocale>
#include <QTest>

using namespace Qt::Literals::StringLiterals;
using namespace orvane;
using namespace orvane::test;

namespace
{
using Pictures = QMap<QString, QImage>; // of the frame, by the step's tag

Pictures picturesUnder(const QLocale &locale)
{
    QLocale::setDefault(locale);
    Walker walker;
    walker.start();
    Pictures pictures{{walker.console().Tag(), walker.frame()}};
    while (!ShippedTour::isEnd(Walker::target(walker.console().cmdGoNext)) && !QTest::currentTestFailed()) {
        walker.take(walker.console().cmdGoNext);
        pictures.insert(walker.console().Tag(), walker.frame());
    }
    return pictures;
}

void type(frmPrint &preview, const QString &fieldName, const QString &text)
{
    auto *field = preview.mnuPrintPreview.widget().findChild<QWidget *>(fieldName);
    auto *line = qobject_cast<QLineEdit *>(field);
    if (!line) line = static_cast<QComboBox *>(field)->lineEdit();
    field->setFocus();
    line->selectAll();
    QTest::keyClicks(line, text);
    QTest::keyClick(field, Qt::Key_Return);
}
} // namespace

class tst_Locales : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { m_plain = picturesUnder(QLocale::c()); }
    void cleanup() { QLocale::setDefault(QLocale::c()); }
    void theTourLooksTheSame_data() { addLocales(); }
    void theTourLooksTheSame();
    void windowsRunFromLeftToRight_data() { addLocales(); }
    void windowsRunFromLeftToRight();
    void thePreviewsFieldsHavePlainDigits_data() { addLocales(); }
    void thePreviewsFieldsHavePlainDigits();

private:
    static void addLocales();

    Pictures m_plain;
};

void tst_Locales::addLocales()
{
    QTest::addColumn<QLocale>("locale");
    for (const QString &name : {u"ar_EG"_s, u"fa_IR"_s, u"de_DE"_s})
        QTest::newRow(qPrintable(name)) << QLocale(name);
}

void tst_Locales::theTourLooksTheSame()
{
    QFETCH(const QLocale, locale);
    QVERIFY(m_plain.size() > 20);
    const Pictures pictures = picturesUnder(locale);
    QCOMPARE(pictures.keys(), m_plain.keys());
    for (const auto &[tag, picture] : pictures.asKeyValueRange())
        QVERIFY2(picture == m_plain.value(tag), qPrintable(u"step "_s + tag));
}

void tst_Locales::windowsRunFromLeftToRight()
{
    QFETCH(const QLocale, locale);
    QLocale::setDefault(locale);
    RunningSystem system;
    system.start();
    system.click(system.diagram().cmdImp(1));
    const QWidgetList widgets = QApplication::allWidgets();
    QVERIFY(widgets.size() > 100);
    for (const QWidget *widget : widgets)
        QVERIFY2(widget->layoutDirection() == Qt::LeftToRight, widget->metaObject()->className());
}

void tst_Locales::thePreviewsFieldsHavePlainDigits()
{
    QFETCH(const QLocale, locale);
    QLocale::setDefault(locale);
    RunningSystem system;
    system.start();
    OpenProcedures(u"Emergency Planning"_s, u"311"_s);
    system.clickTool(*system.active(), u"mnuLinks"_s, u"subPrint"_s, u"prtComplete"_s);
    auto &preview = Default<frmPrint>();
    const auto text = [&preview](const QString &tool) { return preview.mnuPrintPreview.Bands(0).Tools(tool).Text(); };
    QVERIFY(preview.vs.PageCount() >= 2);
    type(preview, u"PageNumber"_s, u"2"_s);
    QCOMPARE(text(u"PageNumber"_s), u"2"_s);
    QCOMPARE(preview.vs.PreviewPage(), 2);
    type(preview, u"miZoom"_s, u"62.5%"_s); // and not 625
    QCOMPARE(text(u"miZoom"_s), u"62%"_s);
}

QTEST_MAIN(tst_Locales)
#include "tst_Locales.moc"
