// What stands on the diagram, as the tables in data/diagram lay it down. They have a line of column names; lengths are
// twips inside the frame of the panel.
#pragma once

#include <QFile>
#include <QStringList>
#include <QTest>
#include <vector>

namespace orvane::test
{

inline std::vector<QStringList> tabledRows(const QString &table)
{
    QFile file(QStringLiteral(ORVANE_TEST_DATA "/diagram/%1.tsv").arg(table));
    if (!file.open(QIODevice::ReadOnly)) QTest::qFail(qPrintable(file.fileName()), __FILE__, __LINE__);
    std::vector<QStringList> rows;
    for (const QString &line : QString::fromUtf8(file.readAll()).split(u'\n', Qt::SkipEmptyParts).mid(1))
        rows.push_back(line.split(u'\t'));
    return rows;
}

struct TabledButton {
    QString name;
    int panel = 0;
    double left = 0;
    double top = 0;
    QString tag;
    QString caption;
    QString tip;
    bool redDot = false;
    QString does; // guide or tools: opens a window of that module; report: tells its tag; else the band that it drops

    bool dropsMenu() const
    {
        return does != QStringLiteral("guide") && does != QStringLiteral("tools") && does != QStringLiteral("report");
    }
};

inline std::vector<TabledButton> tabledButtons()
{
    std::vector<TabledButton> buttons;
    for (const QStringList &row : tabledRows(QStringLiteral("buttons")))
        buttons.push_back({row[0], row[1].toInt(), row[2].toDouble(), row[3].toDouble(), row[4], row[5], row[6],
                           row[7] == QStringLiteral("dot"), row[8]});
    return buttons;
}

} // namespace orvane::test

Q_DECLARE_METATYPE(orvane::test::TabledButton)
