// Somebody who walks the shipped tour by the console's buttons and looks at what each step brings up.
#pragma once

#include "platform/forms/Wiring.h"
#include "printing/frmPrint.h"
#include "support/HelpUser.h"
#include "support/RunningSystem.h"
#include "support/ShippedTour.h"

#include <QImage>
#include <QSet>
#include <optional>

namespace orvane::test
{

// Which document is in front, on which page, in which version.
struct Sight {
    QString window;
    QString page;
    QString version;

    bool operator==(const Sight &) const = default;
};

class Walker
{
public:
    Walker() : m_help(m_system.host) { m_system.host.writeFile(QStringLiteral("DemoData.ini"), ShippedTour::bytes()); }

    RunningSystem &system() { return m_system; }
    frmDemo &console() const { return m_system.console(); }
    void start()
    {
        m_system.start();
        m_path = QStringList{console().Tag()};
    }

    const QStringList &path() const { return m_path; } // tags, in the order in which they were on show
    void forgetPath() { m_path = QStringList{console().Tag()}; }

    // One press, which has to bring up the step that the script names, and one that the user can tell from the last.
    void take(CommandButton &button);
    // Up to the step of that tag, or to the one before the end.
    void walkTo(const QString &tag, CommandButton &button);

    Sight sight() const;
    QImage frame() const { return m_system.frame().shell().grab().toImage(); }
    static QString target(const CommandButton &button) { return ShippedTour::target(button.Tag()); }

private:
    static QString checkedTool(const ActiveBar &bar);

    RunningSystem m_system;
    HelpUser m_help;
    QStringList m_path;
};

inline void Walker::take(CommandButton &button)
{
    const QString wanted = target(button);
    const QString from = console().Tag();
    const QString heading = console().Header.Text();
    const QImage seen = console().shell().grab().toImage();
    QVERIFY2(!wanted.isEmpty(), qPrintable(QStringLiteral("no way on from step ") + from));
    m_system.click(button);
    const QString to = console().Tag();
    QVERIFY2(to == wanted || ShippedTour::isEnd(wanted), qPrintable(from + QStringLiteral(" led to ") + to));
    QVERIFY2(console().Header.Text() != heading, qPrintable(QStringLiteral("the same heading after ") + from));
    QVERIFY2(console().shell().grab().toImage() != seen, qPrintable(QStringLiteral("the same look after ") + from));
    QVERIFY(console().Header.Text() != ShippedTour::none() && !console().Header.Text().isEmpty());
    QVERIFY(console().rtf.Text() != ShippedTour::none() && !console().rtf.Text().isEmpty());
    QVERIFY(m_system.active());
    QCOMPARE(countWindows(QStringLiteral("frmError")), 0);
    m_path << to;
}

inline void Walker::walkTo(const QString &tag, CommandButton &button)
{
    constexpr int MostSteps = 200; // a script that goes round in circles ends here
    for (int i = 0; i < MostSteps && console().Tag() != tag && !ShippedTour::isEnd(target(button)); ++i) {
        take(button);
        if (QTest::currentTestFailed()) return;
    }
}

inline QString Walker::checkedTool(const ActiveBar &bar)
{
    for (int i = 0; i < bar.Bands(0).Tools().Count(); ++i)
        if (const Tool &tool = bar.Bands(0).Tools(i); tool.Checked()) return tool.Name();
    return {};
}

inline Sight Walker::sight() const
{
    MDIChild &window = *m_system.active();
    Sight seen{window.Caption(), {}, {}};
    const QString name = window.Name();
    if (name == QStringLiteral("frmIGSteps") || name == QStringLiteral("frmEMMain") ||
        name == QStringLiteral("frmMPMain"))
        seen.page = checkedTool(barOf(window, QStringLiteral("mnuNav")));
    if (name == QStringLiteral("frmEMMain") || name == QStringLiteral("frmMPMain"))
        seen.version = barOf(window, QStringLiteral("mnuLinks")).Bands(0).Tools(QStringLiteral("Mode")).Caption();
    if (name == QStringLiteral("frmPrint")) seen.page = QString::number(Default<frmPrint>().vs.PreviewPage());
    return seen;
}

} // namespace orvane::test
