// The running system with a window of one of the two modules that have versions.
#pragma once

#include "documents/VersionedWindow.h"
#include "shell/modFunctions.h"
#include "support/ReportedTags.h"
#include "support/RunningSystem.h"
#include "support/UserOnBars.h"

#include <QLineEdit>
#include <QTest>
#include <QTextEdit>

namespace orvane::test
{

enum class Sister { Manual, Procedures };

// What differs between the two, as far as a test has to know it.
struct SisterFacts {
    QString title;
    QStringList pages; // the tools of mnuNav that show one
    QString second;    // the beginning of the second page
    QString modeTag;   // of the tool Mode
    QString shellName;
    QStringList tabOrder; // of the fields
};

inline SisterFacts factsOf(Sister sister)
{
    if (sister == Sister::Manual)
        return {QStringLiteral("Emergency Preparedness and Response"),
                {QStringLiteral("Commitment"), QStringLiteral("Procedures"), QStringLiteral("References")},
                QStringLiteral("Procedures\n"),
                QStringLiteral("201"),
                QStringLiteral("frmEMMain"),
                {QStringLiteral("txtIssue"), QStringLiteral("txtDate"), QStringLiteral("txtAuthorized")}};
    return {QStringLiteral("Emergency Planning"),
            {QStringLiteral("Aim"), QStringLiteral("Responsibility"), QStringLiteral("Method"),
             QStringLiteral("Records"), QStringLiteral("References")},
            QStringLiteral("Responsibility\n"),
            QStringLiteral("302"),
            QStringLiteral("frmMPMain"),
            {QStringLiteral("txtAuthorized"), QStringLiteral("txtDate"), QStringLiteral("txtIssue")}};
}

class VersionedSystem
{
public:
    explicit VersionedSystem(Sister which) : sister(which), facts(factsOf(which))
    {
        system.host.setToday(QDate(2026, 11, 21));
        system.start();
        system.frame().SetFocus();
        if (!QTest::qWaitForWindowActive(&system.frame().shell())) qFatal("the frame doesn't become active");
        open();
        tags = std::make_unique<ReportedTags>(system.console());
    }

    void open()
    {
        const QString section = sister == Sister::Manual ? QStringLiteral("219") : QStringLiteral("311");
        if (sister == Sister::Manual)
            OpenManual(facts.title, section);
        else
            OpenProcedures(facts.title, section);
        window = dynamic_cast<VersionedWindow *>(system.active());
        if (!window) qFatal("the window didn't open");
    }

    Tool &link(const QString &name) const { return window->mnuLinks.Bands(0).Tools(name); }
    Tool &mode() const { return link(QStringLiteral("Mode")); }
    bool saveEnabled() const { return link(QStringLiteral("Save")).Enabled(); }
    void pressLink(const QString &name) const { pressButton(window->mnuLinks, name); }
    void pressPage(const QString &name) const { pressButton(window->mnuNav, name); }
    void toOwn() const { pressLink(QStringLiteral("Mode")); }

    // Pages that have no page of their own behind them bring up the notice.
    void pressPaging(const QString &name)
    {
        system.whileModal([&] { pressPage(name); }, [&] { system.host.advance(2000); });
    }

    QTextEdit &page() const { return static_cast<QTextEdit &>(window->rtfData.widget()); }
    void typeInPage(const QString &text) const
    {
        window->rtfData.SetFocus();
        QTest::keyClicks(&page(), text);
    }
    void type(TextBox &box, const QString &text) const
    {
        box.SetFocus();
        static_cast<QLineEdit &>(box.widget()).selectAll();
        QTest::keyClicks(&box.widget(), text);
    }
    QStringList fields() const
    {
        return {window->txtIssue.Text(), window->txtDate.Text(), window->txtAuthorized.Text()};
    }
    QList<bool> fieldsEnabled() const
    {
        return {window->txtIssue.Enabled(), window->txtDate.Enabled(), window->txtAuthorized.Enabled()};
    }
    QStringList checkedPages() const
    {
        QStringList names;
        for (const auto &tool : window->mnuNav.Bands(0).Tools())
            if (tool->Checked()) names << tool->Name();
        return names;
    }

    // Pixels inside.
    void resizeInside(const QSize &size) const
    {
        window->setWindowState(Normal);
        QTRY_COMPARE(window->WindowState(), int(Normal));
        const QSize frame = window->shell().size() - window->surface().size();
        window->shell().setMinimumSize(0, 0);
        window->shell().resize(size + frame);
        QTRY_COMPARE(window->surface().size(), size);
    }

    RunningSystem system;
    Sister sister;
    SisterFacts facts;
    VersionedWindow *window = nullptr;
    std::unique_ptr<ReportedTags> tags; // since the window is open
};

inline QStringList masterFields()
{
    return {QStringLiteral("1"), QStringLiteral("March 31, 1999"), QStringLiteral("T Hallows")};
}

inline void addSisters()
{
    QTest::addColumn<Sister>("sister");
    QTest::newRow("manual") << Sister::Manual;
    QTest::newRow("procedures") << Sister::Procedures;
}

} // namespace orvane::test

Q_DECLARE_METATYPE(orvane::test::Sister)
