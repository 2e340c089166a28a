// What the windows are made of, against the table in data/design: each control, what holds it, and its place at design
// time in twips where that is laid down.
#include "documents/frmATMain.h"
#include "documents/frmEMMain.h"
#include "documents/frmIGSteps.h"
#include "documents/frmMPMain.h"
#include "documents/frmRCMain.h"
#include "printing/frmPrint.h"
#include "support/RunningSystem.h"

#include <QFile>
#include <QTest>

using namespace Qt::Literals::StringLiterals;
using namespace orvane;
using namespace orvane::test;

namespace
{

enum Column { Owner, Name, Holder, Kind, Place, ColumnCount };

QList<QStringList> tabledControls()
{
    QFile file(QStringLiteral(ORVANE_TEST_DATA "/design/controls.tsv"));
    if (!file.open(QIODevice::ReadOnly)) QTest::qFail(qPrintable(file.fileName()), __FILE__, __LINE__);
    QList<QStringList> rows;
    for (const QString &line : QString::fromUtf8(file.readAll()).split(u'\n', Qt::SkipEmptyParts).mid(1))
        rows << line.split(u'\t');
    return rows;
}

// As it is made, before any Load.
std::unique_ptr<Form> made(const QString &window)
{
    static const QMap<QString, std::function<Form *()>> makers{
        {u"frmIGSteps"_s, [] { return new frmIGSteps; }}, {u"frmEMMain"_s, [] { return new frmEMMain; }},
        {u"frmMPMain"_s, [] { return new frmMPMain; }},   {u"frmATMain"_s, [] { return new frmATMain; }},
        {u"frmRCMain"_s, [] { return new frmRCMain; }},   {u"frmPrint"_s, [] { return new frmPrint; }},
        {u"mdiMain"_s, [] { return new mdiMain; }}};
    return std::unique_ptr<Form>(makers[window]());
}

template <class Wanted>
bool isOne(const Control &control)
{
    return dynamic_cast<const Wanted *>(&control);
}

bool isOfKind(const Control &control, const QString &kind)
{
    static const QMap<QString, bool (*)(const Control &)> kinds{{u"ActiveBar"_s, isOne<ActiveBar>},
                                                                {u"CommandButton"_s, isOne<CommandButton>},
                                                                {u"Image"_s, isOne<Image>},
                                                                {u"Label"_s, isOne<Label>},
                                                                {u"PictureBox"_s, isOne<PictureBox>},
                                                                {u"SSPanel"_s, isOne<SSPanel>},
                                                                {u"SSScroll"_s, isOne<SSScroll>},
                                                                {u"TextBox"_s, isOne<TextBox>},
                                                                {u"VSPrinter"_s, isOne<VSPrinter>},
                                                                {u"zelGradient"_s, isOne<zelGradient>},
                                                                {u"RichTextBox"_s, isOne<RichTextBox>},
                                                                {u"zelRich"_s, isOne<zelRich>}};
    return kinds[kind](control) && (kind == u"zelRich") == isOne<zelRich>(control);
}

QString placeOf(const Control &control)
{
    return u"%1 %2 %3 %4"_s.arg(control.Left()).arg(control.Top()).arg(control.Width()).arg(control.Height());
}

} // namespace

class tst_WindowDesigns : public QObject
{
    Q_OBJECT

private slots:
    void aControlIsAsTabled_data();
    void aControlIsAsTabled();
};

void tst_WindowDesigns::aControlIsAsTabled_data()
{
    QTest::addColumn<QStringList>("row");
    for (const QStringList &row : tabledControls()) {
        QCOMPARE(row.size(), int(ColumnCount));
        QTest::addRow("%s.%s", qPrintable(row[Owner]), qPrintable(row[Name])) << row;
    }
}

void tst_WindowDesigns::aControlIsAsTabled()
{
    QFETCH(QStringList, row);
    const RunningSystem system;
    const std::unique_ptr<Form> window = made(row[Owner]);
    const Control *control = window->control(row[Name]);
    QVERIFY(control);
    QVERIFY2(isOfKind(*control, row[Kind]), qPrintable(row[Kind]));
    const Control *holder = Control::of(control->widget().parentWidget());
    QCOMPARE(holder ? holder->Name() : QString(), row[Holder]);
    if (row[Place] != u"-") QCOMPARE(placeOf(*control), row[Place]);
}

QTEST_MAIN(tst_WindowDesigns)
#include "tst_WindowDesigns.moc"
