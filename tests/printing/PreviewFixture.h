// The whole system with the print preview in it, and what a user does to the preview.
#pragma once

#include "platform/print/PrintFixture.h"
#include "platform/system/Application.h"
#include "platform/system/SettingsStore.h"
#include "printing/frmPrint.h"
#include "support/RunningSystem.h"
#include "support/UserOnBars.h"

#include <QComboBox>
#include <QLineEdit>
#include <algorithm>

namespace orvane::test
{

enum PrintModules { GuideModule = 1, ManualModule = 2, ProcedureModule = 3, ToolModule = 4, RecordModule = 5 };
enum PrintVersions { MasterVersion = 1, OwnVersion = 2 };

// One queue "LASER" for Letter paper is installed.
class PreviewedSystem
{
public:
    PreviewedSystem()
    {
        system.host.setPrintQueues({{QStringLiteral("LASER"), QStringLiteral("Fast"), {}, true, LetterPaper}});
        system.writeScript({QStringLiteral("101"), QStringLiteral("127"), QStringLiteral("206"), QStringLiteral("311"),
                            QStringLiteral("406")});
        system.start();
    }

    RunningSystem system;

    frmPrint &window() const { return Default<frmPrint>(); }
    VSPrinter &vs() const { return window().vs; }
    void preview(int module, int version = MasterVersion) const
    {
        window().PrintPreview(module, QStringLiteral("1"), 1, version, QStringLiteral("C11"),
                              QStringLiteral("Emergency Planning"));
    }
    void saveCompany(const QString &name) const
    {
        SaveSetting(App().Title(), QStringLiteral("UserDetails"), QStringLiteral("Company"), name);
    }

    Tool &tool(const QString &name) const
    {
        return window().mnuPrintPreview.Bands(QStringLiteral("bndPreview")).Tools(name);
    }
    void press(const QString &name) const { pressButton(window().mnuPrintPreview, name); }
    void pick(const QString &entry) const
    {
        auto *box = window().mnuPrintPreview.widget().findChild<QComboBox *>(QStringLiteral("miZoom"));
        const int index = box->findText(entry);
        QVERIFY2(index >= 0, qPrintable(entry));
        box->setCurrentIndex(index);
        emit box->activated(index);
    }
    // The text replaces what stands in the field, and Enter follows.
    void enter(const QString &fieldName, const QString &text) const
    {
        QWidget *field = window().mnuPrintPreview.widget().findChild<QWidget *>(fieldName);
        auto *line = qobject_cast<QLineEdit *>(field);
        if (!line) line = static_cast<QComboBox *>(field)->lineEdit();
        field->setFocus();
        line->selectAll();
        if (text.isEmpty()) QTest::keyClick(line, Qt::Key_Delete);
        QTest::keyClicks(line, text);
        QTest::keyClick(field, Qt::Key_Return);
    }

    // All pages as they come out on paper.
    std::vector<PrintedPage> printed() const
    {
        vs().setDevice(QStringLiteral("LASER"));
        vs().PrintDoc(1, vs().PageCount());
        return readPdf(system.host.printedFile(QStringLiteral("LASER")));
    }
};

// The words line by line, across all columns.
inline QString wordsOf(PrintedPage page)
{
    constexpr double LineHeight = 150; // twips: less than any line's
    const auto line = [](const PrintedWord &word) { return qRound(word.place.center().y() / LineHeight); };
    std::sort(page.words.begin(), page.words.end(), [&](const PrintedWord &a, const PrintedWord &b) {
        return std::pair(line(a), a.place.left()) < std::pair(line(b), b.place.left());
    });
    return page.texts().join(u' ');
}

// A sheet in one colour.
inline PictureObject sheet(Qt::GlobalColor colour)
{
    QImage image(76, 58, QImage::Format_RGB32);
    image.fill(colour);
    return PictureObject(image);
}

} // namespace orvane::test
