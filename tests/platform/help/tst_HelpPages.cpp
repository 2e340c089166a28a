// The help's pages hang together: contents, keywords, links and files name the same things.
#include "platform/help/HelpProject.h"

#include <QTest>
#include <QTextBlock>
#include <QTextDocument>

using namespace Qt::Literals::StringLiterals;
using namespace orvane::test;

class tst_HelpPages : public QObject
{
    Q_OBJECT

private slots:
    void everyPageIsPacked();
    void everyPageIsInTheContentsOnce();
    void thePageHasItsTitleInTheContents_data() { addPages(); }
    void thePageHasItsTitleInTheContents();
    void everyLinkLeadsSomewhere_data() { addPages(); }
    void everyLinkLeadsSomewhere();
    void aPageLoadsNothingButTheStyleSheet_data() { addPages(); }
    void aPageLoadsNothingButTheStyleSheet();
    void everyKeywordLeadsSomewhere();
    void noKeywordIsThereTwice();
    void theStyleSheetLoadsNothing();

private:
    static void addPages();
};

void tst_HelpPages::addPages()
{
    QTest::addColumn<QString>("page");
    for (const QString &page : helpPages())
        QTest::newRow(qPrintable(page)) << page;
}

void tst_HelpPages::everyPageIsPacked()
{
    QStringList expected = helpPages() << u"style.css"_s;
    QStringList packed = helpProject().files;
    expected.sort();
    packed.sort();
    QCOMPARE(packed, expected);
}

void tst_HelpPages::everyPageIsInTheContentsOnce()
{
    QStringList pages;
    for (const HelpEntry &section : helpProject().sections)
        pages << section.target;
    pages.sort();
    QCOMPARE(pages, helpPages());
}

void tst_HelpPages::thePageHasItsTitleInTheContents()
{
    QFETCH(QString, page);
    QTextDocument document;
    document.setHtml(helpSource(page));
    for (const HelpEntry &section : helpProject().sections)
        if (section.target == page) QCOMPARE(document.metaInformation(QTextDocument::DocumentTitle), section.name);
    QCOMPARE(document.firstBlock().text(), document.metaInformation(QTextDocument::DocumentTitle));
    QCOMPARE(document.firstBlock().blockFormat().headingLevel(), 1);
}

void tst_HelpPages::everyLinkLeadsSomewhere()
{
    QFETCH(QString, page);
    const QStringList links = attributesOf(page, u"href"_s);
    QVERIFY(links.contains(u"style.css"_s));
    for (const QString &link : links)
        QVERIFY2(isThere(link, page), qPrintable(link));
}

void tst_HelpPages::aPageLoadsNothingButTheStyleSheet()
{
    QFETCH(QString, page);
    const QString source = helpSource(page);
    QCOMPARE(source.count(u"<link "_s), 1);
    for (const auto &way : {u"<img"_s, u"<script"_s, u"<style"_s, u"src="_s, u"url("_s, u"://"_s, u"style=\""_s})
        QVERIFY2(!source.contains(way), qPrintable(way));
}

void tst_HelpPages::everyKeywordLeadsSomewhere()
{
    const auto keywords = helpProject().keywords;
    QVERIFY(keywords.size() > 100);
    for (const HelpEntry &keyword : keywords)
        QVERIFY2(isThere(keyword.target, {}), qPrintable(keyword.name));
}

void tst_HelpPages::noKeywordIsThereTwice()
{
    QStringList names;
    for (const HelpEntry &keyword : helpProject().keywords)
        names << keyword.name.toLower();
    QCOMPARE(names.removeDuplicates(), 0);
}

void tst_HelpPages::theStyleSheetLoadsNothing()
{
    const QString sheet = helpSource(u"style.css"_s);
    QVERIFY(!sheet.isEmpty());
    QVERIFY(!sheet.contains(u"url("_s) && !sheet.contains(u"@import"_s));
}

QTEST_MAIN(tst_HelpPages)
#include "tst_HelpPages.moc"
