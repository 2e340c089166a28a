#include "platform/controls/Palette.h"

#include <QTest>
#include <algorithm>
#include <cmath>

using namespace orvane;

class tst_Palette : public QObject
{
    Q_OBJECT

private slots:
    void everyTextCanBeRead_data();
    void everyTextCanBeRead();
};

void tst_Palette::everyTextCanBeRead_data()
{
    QTest::addColumn<QColor>("text");
    QTest::addColumn<QColor>("ground");
    for (const QColor &ground : {palette::Mist, palette::Paper, palette::White, palette::Sand}) {
        QTest::addRow("ink on %s", qPrintable(ground.name())) << palette::Ink << ground;
        QTest::addRow("grey on %s", qPrintable(ground.name())) << palette::GreyText << ground;
        QTest::addRow("disabled on %s", qPrintable(ground.name())) << palette::DisabledText << ground;
        QTest::addRow("teal on %s", qPrintable(ground.name())) << palette::DeepTeal << ground;
    }
    QTest::newRow("ink on what is pressed") << palette::Ink << palette::PressedMist;
    const QPalette looks = applicationPalette();
    QTest::newRow("selection") << looks.color(QPalette::HighlightedText) << looks.color(QPalette::Highlight);
    QTest::newRow("tool tip") << looks.color(QPalette::ToolTipText) << looks.color(QPalette::ToolTipBase);
}

void tst_Palette::everyTextCanBeRead()
{
    QFETCH(QColor, text);
    QFETCH(QColor, ground);
    const auto luminance = [](const QColor &colour) {
        const auto part = [](double value) {
            return value <= 0.03928 ? value / 12.92 : std::pow((value + 0.055) / 1.055, 2.4);
        };
        return 0.2126 * part(colour.redF()) + 0.7152 * part(colour.greenF()) + 0.0722 * part(colour.blueF());
    };
    const double lighter = std::max(luminance(text), luminance(ground)) + 0.05;
    const double darker = std::min(luminance(text), luminance(ground)) + 0.05;
    QVERIFY2(lighter / darker >= 4.5, qPrintable(QString::number(lighter / darker)));
}

QTEST_MAIN(tst_Palette)
#include "tst_Palette.moc"
