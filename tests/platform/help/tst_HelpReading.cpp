// The ways to a page of the help: contents, index, search, links, back and forward.
#include "platform/help/HelpProject.h"
#include "support/HelpUser.h"

#include <QLabel>
#include <QScrollBar>
#include <QTreeWidget>
#include <optional>

using namespace Qt::Literals::StringLiterals;
using namespace orvane;
using namespace orvane::test;

class tst_HelpReading : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void theTreeIsThatOfTheProject();
    void aClickInTheTreeOpensThePage();
    void theKeyboardOpensAPageOfTheTree();
    void theTreeFollowsThePage();
    void theIndexListsAllKeywords();
    void theIndexNarrowsDown();
    void aKeywordOpensItsPlace();
    void theSearchFindsAWordOnItsPage_data();
    void theSearchFindsAWordOnItsPage();
    void theSearchFindsKeywords();
    void theSearchTakesNoLanguageOfItsOwn_data();
    void theSearchTakesNoLanguageOfItsOwn();
    void nothingIsFoundOfWhatIsNotThere_data();
    void nothingIsFoundOfWhatIsNotThere();
    void withoutAWordNothingIsSearched();
    void aSearchRepeatedAtOnceFindsTheSame();
    void aSearchLeftForAnotherDoesNotMixWithIt();
    void whatIsTypedAfterEnterWaitsForTheNext();
    void theWindowMayBeClosedInTheMiddleOfASearch();
    void theWindowMayBeClosedWhileItReadsThePages();
    void aFoundPageIsOpened();
    void backAndForwardGoThroughThePages();
    void aLinkWithAPlaceScrollsThere();
    void aPageGoesNowhereElse_data();
    void aPageGoesNowhereElse();
    void aPageLoadsNothingFromElsewhere_data() { aPageGoesNowhereElse_data(); }
    void aPageLoadsNothingFromElsewhere();

private:
    void openContents() const { m_user->openContents(); }
    void openSearch() const { m_user->openSearch(); }
    static QAbstractItemView &tree();
    static QModelIndex rowOf(const QString &title);
    static QStringList found(const QString &text);
    void askAtOnce(const QString &text) const; // before the engine can have read anything

    std::optional<TestHost> m_host;
    std::optional<HelpUser> m_user;
};

void tst_HelpReading::init()
{
    m_host.emplace();
    m_user.emplace(*m_host);
}

void tst_HelpReading::cleanup()
{
    m_user.reset();
    m_host.reset();
}

QAbstractItemView &tst_HelpReading::tree()
{
    return HelpUser::part<QAbstractItemView>(u"contentsTree"_s);
}

// An invalid one until the engine has read the contents.
QModelIndex tst_HelpReading::rowOf(const QString &title)
{
    const auto rows = tree().model()->match(tree().model()->index(0, 0), Qt::DisplayRole, title, 1,
                                            Qt::MatchExactly | Qt::MatchRecursive);
    return rows.value(0);
}

// What the search brings up, in its groups.
QStringList tst_HelpReading::found(const QString &text)
{
    auto &field = HelpUser::part<QLineEdit>(u"searchText"_s);
    field.setText(text);
    QTest::keyClick(&field, Qt::Key_Return);
    auto *count = HelpUser::window()->findChild<QLabel *>(u"searchCount"_s);
    const bool done = QTest::qWaitFor([count] { return count->text().contains(u" found"_s); });
    if (!done) return {u"the search doesn't end"_s};
    return rowsOf(*HelpUser::part<QTreeWidget>(u"searchFound"_s).model());
}

void tst_HelpReading::askAtOnce(const QString &text) const
{
    WinHelp(m_user->file(), HelpPartialKey);
    auto &field = HelpUser::part<QLineEdit>(u"searchText"_s);
    field.setText(text);
    QTest::keyClick(&field, Qt::Key_Return);
}

void tst_HelpReading::theTreeIsThatOfTheProject()
{
    QStringList expected;
    for (const HelpEntry &section : helpProject().sections)
        expected << QString(section.level, u' ') + section.name;
    QVERIFY(expected.size() > 20);
    openContents();
    QTRY_COMPARE(rowsOf(*tree().model()), expected);
}

void tst_HelpReading::aClickInTheTreeOpensThePage()
{
    openContents();
    QTRY_VERIFY(rowOf(u"The Print Preview"_s).isValid());
    tree().scrollTo(rowOf(u"The Print Preview"_s));
    const QRect place = tree().visualRect(rowOf(u"The Print Preview"_s));
    QTest::mouseClick(tree().viewport(), Qt::LeftButton, {}, place.center());
    QCOMPARE(m_user->pageName(), u"preview.html"_s);
}

void tst_HelpReading::theKeyboardOpensAPageOfTheTree()
{
    openContents();
    QTRY_VERIFY(tree().currentIndex().isValid());
    QTest::keyClick(&tree(), Qt::Key_Down);
    QTest::keyClick(&tree(), Qt::Key_Return);
    QCOMPARE(m_user->pageName(), u"helpwindow.html"_s);
}

void tst_HelpReading::theTreeFollowsThePage()
{
    openContents();
    QTRY_VERIFY(rowOf(u"All keys"_s).isValid());
    m_user->goTo(u"keyboard.html#dialogs"_s);
    QCOMPARE(tree().currentIndex().data().toString(), u"All keys"_s);
}

void tst_HelpReading::theIndexListsAllKeywords()
{
    QStringList expected;
    for (const HelpEntry &keyword : helpProject().keywords)
        expected << keyword.name;
    expected.sort(Qt::CaseInsensitive);
    openContents();
    const auto &keywords = m_user->part<QAbstractItemView>(u"indexKeywords"_s);
    QTRY_COMPARE(keywords.model()->rowCount(), expected.size());
    QStringList listed = rowsOf(*keywords.model());
    listed.sort(Qt::CaseInsensitive);
    QCOMPARE(listed, expected);
}

void tst_HelpReading::theIndexNarrowsDown()
{
    openContents();
    const auto &keywords = m_user->part<QAbstractItemView>(u"indexKeywords"_s);
    QTRY_VERIFY(keywords.model()->rowCount() > 100);
    QTest::keyClicks(&m_user->part<QLineEdit>(u"indexFilter"_s), u"dealert"_s);
    QCOMPARE(rowsOf(*keywords.model()), QStringList{u"dealertext"_s});
}

void tst_HelpReading::aKeywordOpensItsPlace()
{
    openContents();
    QTRY_VERIFY(m_user->part<QAbstractItemView>(u"indexKeywords"_s).model()->rowCount() > 100);
    auto &filter = m_user->part<QLineEdit>(u"indexFilter"_s);
    QTest::keyClicks(&filter, u"cancel keys"_s);
    QTest::keyClick(&filter, Qt::Key_Return);
    QCOMPARE(m_user->page().source(), QUrl(u"qthelp://orvane.help/help/keyboard.html#dialogs"_s));
}

void tst_HelpReading::theSearchFindsAWordOnItsPage_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("title");
    QTest::newRow("a word") << u"thumbnails"_s << u" The Print Preview"_s;
    QTest::newRow("the beginning of a word") << u"thumbn"_s << u" The Print Preview"_s;
    QTest::newRow("whatever the case") << u"DEALERTEXT"_s << u" The dealer's text"_s;
    QTest::newRow("two words apart") << u"scramble terminal"_s << u" The dealer's text"_s;
    QTest::newRow("digits") << u"8190"_s << u" The author's strip"_s;
}

void tst_HelpReading::theSearchFindsAWordOnItsPage()
{
    QFETCH(QString, text);
    QFETCH(QString, title);
    openSearch();
    const QStringList rows = found(text);
    const auto pages = rows.indexOf(u"Pages"_s);
    QVERIFY2(pages >= 0 && rows.indexOf(title, pages) > pages, qPrintable(rows.join(u'\n')));
}

void tst_HelpReading::theSearchFindsKeywords()
{
    openSearch();
    const QStringList rows = found(u"verb"_s);
    QCOMPARE(rows.value(0), u"Keywords"_s);
    QVERIFY(rows.contains(u" cf verb"_s) && rows.contains(u" verbs"_s));
    QVERIFY(rows.indexOf(u" cf verb"_s) < rows.indexOf(u"Pages"_s));
}

// What means something to the engine is no more than the letters around it.
void tst_HelpReading::theSearchTakesNoLanguageOfItsOwn_data()
{
    QTest::addColumn<QString>("text");
    for (const auto &text : {u"\"thumbnails"_s, u"thumbnails*"_s, u"thumbnails )"_s, u"-thumbnails"_s,
                             u"title:thumbnails"_s, u"thumbnails'; DROP TABLE x"_s, u"^thumbnails"_s, u"(thumbnails"_s})
        QTest::newRow(qPrintable(text)) << text;
}

void tst_HelpReading::theSearchTakesNoLanguageOfItsOwn()
{
    QFETCH(QString, text);
    openSearch();
    const bool oneWord = !text.contains(u':') && !text.contains(u';');
    QCOMPARE(found(text).contains(u" The Print Preview"_s), oneWord);
}

void tst_HelpReading::nothingIsFoundOfWhatIsNotThere_data()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("another word") << u"xylophone"_s;
    QTest::newRow("one of two") << u"thumbnails xylophone"_s;
    QTest::newRow("other letters") << u"\u043f\u0435\u0447\u0430\u0442\u044c"_s;
    QTest::newRow("long") << QString(100000, u'x');
}

void tst_HelpReading::nothingIsFoundOfWhatIsNotThere()
{
    QFETCH(QString, text);
    openSearch();
    QCOMPARE(found(text), QStringList());
}

void tst_HelpReading::withoutAWordNothingIsSearched()
{
    openSearch();
    found(u"thumbnails"_s);
    auto &field = m_user->part<QLineEdit>(u"searchText"_s);
    field.setText(u" ?! "_s);
    QTest::keyClick(&field, Qt::Key_Return);
    QCOMPARE(m_user->part<QTreeWidget>(u"searchFound"_s).topLevelItemCount(), 0);
    QCOMPARE(m_user->part<QLabel>(u"searchCount"_s).text(), QString());
}

void tst_HelpReading::aSearchRepeatedAtOnceFindsTheSame()
{
    openSearch();
    const QStringList once = found(u"verb"_s);
    auto &field = m_user->part<QLineEdit>(u"searchText"_s);
    for (int times = 0; times < 20; ++times) {
        QTest::keyClick(&field, Qt::Key_Return);
        QTest::keyClick(&field, Qt::Key_Return);
        QCOMPARE(found(u"verb"_s), once);
    }
}

void tst_HelpReading::aSearchLeftForAnotherDoesNotMixWithIt()
{
    openSearch();
    const QStringList verbs = found(u"verb"_s);
    const QStringList thumbnails = found(u"thumbnails"_s);
    auto &field = m_user->part<QLineEdit>(u"searchText"_s);
    for (int times = 0; times < 20; ++times) {
        QTest::keyClick(&field, Qt::Key_Return);
        QCOMPARE(found(u"verb"_s), verbs);
        QTest::keyClick(&field, Qt::Key_Return);
        QCOMPARE(found(u"thumbnails"_s), thumbnails);
    }
}

void tst_HelpReading::whatIsTypedAfterEnterWaitsForTheNext()
{
    openSearch();
    const QStringList once = found(u"verb"_s);
    QVERIFY(m_user->closeAndWait());
    askAtOnce(u"verb"_s);
    QTest::keyClicks(&m_user->part<QLineEdit>(u"searchText"_s), u"thumbnails"_s);
    QTRY_VERIFY(m_user->part<QLabel>(u"searchCount"_s).text().contains(u" found"_s));
    QCOMPARE(rowsOf(*m_user->part<QTreeWidget>(u"searchFound"_s).model()), once);
}

void tst_HelpReading::theWindowMayBeClosedInTheMiddleOfASearch()
{
    for (int times = 0; times < 20; ++times) {
        openSearch();
        found(u"verb"_s);
        QTest::keyClick(&m_user->part<QLineEdit>(u"searchText"_s), Qt::Key_Return);
        QVERIFY(m_user->closeAndWait());
    }
}

void tst_HelpReading::theWindowMayBeClosedWhileItReadsThePages()
{
    for (int times = 0; times < 20; ++times) {
        askAtOnce(u"verb"_s);
        QCOMPARE(m_user->part<QLabel>(u"searchCount"_s).text(), u"Reading the pages..."_s);
        QVERIFY(m_user->closeAndWait());
    }
}

void tst_HelpReading::aFoundPageIsOpened()
{
    openSearch();
    found(u"thumbnails"_s);
    auto &rows = m_user->part<QTreeWidget>(u"searchFound"_s);
    const auto items = rows.findItems(u"The Print Preview"_s, Qt::MatchExactly | Qt::MatchRecursive);
    QCOMPARE(items.size(), 1);
    QTest::mouseClick(rows.viewport(), Qt::LeftButton, {}, rows.visualItemRect(items.front()).center());
    QCOMPARE(m_user->pageName(), u"preview.html"_s);
}

void tst_HelpReading::backAndForwardGoThroughThePages()
{
    openContents();
    const auto &back = *m_user->window()->findChild<QAction *>(u"back"_s);
    const auto &forward = *m_user->window()->findChild<QAction *>(u"forward"_s);
    QVERIFY(!back.isEnabled() && !forward.isEnabled());
    m_user->goTo(u"printing.html"_s);
    m_user->goTo(u"preview.html"_s);
    QTest::mouseClick(m_user->window()->findChild<QWidget *>(u"backButton"_s), Qt::LeftButton);
    QCOMPARE(m_user->pageName(), u"printing.html"_s);
    m_user->press(Qt::Key_Left, Qt::AltModifier);
    QCOMPARE(m_user->pageName(), u"index.html"_s);
    QVERIFY(!back.isEnabled() && forward.isEnabled());
    QTest::mouseClick(m_user->window()->findChild<QWidget *>(u"forwardButton"_s), Qt::LeftButton);
    m_user->press(Qt::Key_Right, Qt::AltModifier);
    QCOMPARE(m_user->pageName(), u"preview.html"_s);
    QVERIFY(back.isEnabled() && !forward.isEnabled());
}

void tst_HelpReading::aLinkWithAPlaceScrollsThere()
{
    openContents();
    m_user->window()->resize(500, 320);
    m_user->goTo(u"keyboard.html"_s);
    QCOMPARE(m_user->page().verticalScrollBar()->value(), 0);
    m_user->goTo(u"keyboard.html#help"_s);
    QVERIFY(m_user->page().verticalScrollBar()->value() > 300);
}

void tst_HelpReading::aPageGoesNowhereElse_data()
{
    QTest::addColumn<QUrl>("target");
    QTest::newRow("network") << QUrl(u"https://www.orvane.example/"_s);
    QTest::newRow("file") << QUrl::fromLocalFile(QStringLiteral(ORVANE_SOURCE_DIR "/README.md"));
    QTest::newRow("resource") << QUrl(u"qrc:/helpwindow/back.svg"_s);
    QTest::newRow("data") << QUrl(u"data:text/html,other"_s);
    QTest::newRow("another help") << QUrl(u"qthelp://other.help/help/index.html"_s);
    QTest::newRow("no such page") << QUrl(u"missing.html"_s);
    QTest::newRow("out of the folder") << QUrl(u"../../../../etc/passwd"_s);
}

void tst_HelpReading::aPageGoesNowhereElse()
{
    QFETCH(QUrl, target);
    openContents();
    m_user->goTo(u"printing.html"_s);
    const QString before = m_user->page().toPlainText();
    m_user->page().setSource(target);
    QCOMPARE(m_user->pageName(), u"printing.html"_s);
    QCOMPARE(m_user->page().toPlainText(), before);
}

void tst_HelpReading::aPageLoadsNothingFromElsewhere()
{
    QFETCH(QUrl, target);
    openContents();
    for (const int type :
         {QTextDocument::HtmlResource, QTextDocument::ImageResource, QTextDocument::StyleSheetResource})
        QCOMPARE(m_user->page().loadResource(type, target).toByteArray(), QByteArray());
    QVERIFY(
        !m_user->page().loadResource(QTextDocument::StyleSheetResource, QUrl(u"style.css"_s)).toByteArray().isEmpty());
}

QTEST_MAIN(tst_HelpReading)
#include "tst_HelpReading.moc"
