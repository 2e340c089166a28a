// Dates as users type them, and as the documents show them.
#include "platform/system/DateReader.h"
#include "platform/system/Dates.h"
#include "support/TestHost.h"

#include <QLocale>
#include <QTest>

using namespace Qt::Literals::StringLiterals;
using namespace orvane;
using namespace orvane::test;

namespace
{
// Every locale of the toolkit, once for each script and country.
QList<QLocale> allLocales()
{
    return QLocale::matchingLocales(QLocale::AnyLanguage, QLocale::AnyScript, QLocale::AnyCountry);
}

QString isoDate(const QString &text)
{
    const auto date = readDate(text);
    return date ? date->toString(Qt::ISODate) : u"none"_s;
}
} // namespace

class tst_Dates : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup() const;

    void aDateIsReadInEachForm_data();
    void aDateIsReadInEachForm();
    void numbersAreTakenInTheLocalesOrder_data();
    void numbersAreTakenInTheLocalesOrder();
    void otherDigitsAndNamesAreRead_data();
    void otherDigitsAndNamesAreRead();
    void twoDigitsOfAYearMeanTheNearestCentury_data();
    void twoDigitsOfAYearMeanTheNearestCentury();
    void whatIsNoDateIsRefused_data();
    void whatIsNoDateIsRefused();
    void hugeTextsAreRefusedAtOnce();

    void aDateIsPutIntoAPattern_data();
    void aDateIsPutIntoAPattern();
    void aTextThatIsNoDateComesBackUnchanged_data();
    void aTextThatIsNoDateComesBackUnchanged();
    void eachDayComesBackFromBothPatterns();
    void theNamesAreEnglishUnderAnyLocale();

    void todayIsTheHostsInTheShortForm_data();
    void todayIsTheHostsInTheShortForm();
    void theMachineKnowsToday();
    void everyLocalesShortFormIsRead();

private:
    QLocale m_before;
};

void tst_Dates::init()
{
    m_before = QLocale();
    QLocale::setDefault(QLocale(QLocale::English, QLocale::UnitedStates));
}

void tst_Dates::cleanup() const
{
    QLocale::setDefault(m_before);
}

void tst_Dates::aDateIsReadInEachForm_data()
{
    QTest::addColumn<QString>("text");
    for (const auto &text :
         {u"99/03/31"_s,       u"99/3/31"_s,           u"1999/03/31"_s,    u"1999-03-31"_s,         u"1999.3.31"_s,
          u"March 31, 1999"_s, u"March 31 1999"_s,     u"31 March 1999"_s, u"31 march, 1999"_s,     u"MARCH 31, 1999"_s,
          u"Mar 31, 1999"_s,   u"Mar. 31, 1999"_s,     u"31-Mar-1999"_s,   u"31-Mar-99"_s,          u"31Mar99"_s,
          u"1999 March 31"_s,  u"1999-Mar-31"_s,       u"March 31, 99"_s,  u"31 March 99"_s,        u"3/31/99"_s,
          u"3/31/1999"_s,      u"03/31/1999"_s,        u"31/3/1999"_s,     u"31.3.1999"_s,          u"31.03.99"_s,
          u"31. 3. 1999."_s,   u"31 3 1999"_s,         u"3-31-1999"_s,     u"  March 31, 1999  "_s, u"31 / 3 / 1999"_s,
          u"31\t3\t1999"_s,    u"31 March\u00a01999"_s})
        QTest::addRow("%s", qPrintable(text)) << text;
}

void tst_Dates::aDateIsReadInEachForm()
{
    QFETCH(QString, text);
    QCOMPARE(isoDate(text), u"1999-03-31"_s);
    QVERIFY(IsDate(text));
}

void tst_Dates::numbersAreTakenInTheLocalesOrder_data()
{
    QTest::addColumn<QString>("locale");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("date");
    const auto row = [](const char *locale, const char *text, const char *date) {
        QTest::addRow("%s in %s", text, locale)
            << QString::fromLatin1(locale) << QString::fromUtf8(text) << QString::fromLatin1(date);
    };
    row("en_US", "3/4/1999", "1999-03-04");
    row("en_GB", "3/4/1999", "1999-04-03");
    row("de_DE", "3.4.1999", "1999-04-03");
    row("fr_FR", "03/04/99", "1999-04-03");
    row("C", "3/4/1999", "1999-04-03");
    row("sv_SE", "03-04-05", "2003-04-05");
    row("ja_JP", "03/04/05", "2003-04-05");
    row("en_US", "03/04/05", "2005-03-04");
    row("de_DE", "03.04.05", "2005-04-03");
    row("en_US", "13/4/1999", "1999-04-13"); // the other order where it alone makes a date
    row("en_GB", "4/13/1999", "1999-04-13");
    row("de_DE", "2/29/2000", "2000-02-29");
    row("sv_SE", "31/3/1999", "1999-03-31");
    row("sv_SE", "3/31/1999", "1999-03-31");
    for (const char *locale : {"en_US", "en_GB", "de_DE", "sv_SE", "C", "ar_EG", "fa_IR", "ja_JP", "tr_TR"}) {
        row(locale, "99/03/31", "1999-03-31");
        row(locale, "99/3/31", "1999-03-31");
        row(locale, "1999/03/31", "1999-03-31");
        row(locale, "March 31, 1999", "1999-03-31");
        row(locale, "2001/02/03", "2001-02-03");
        row(locale, "1999-4-3", "1999-04-03");
    }
}

void tst_Dates::numbersAreTakenInTheLocalesOrder()
{
    QFETCH(QString, locale);
    QFETCH(QString, text);
    QLocale::setDefault(QLocale(locale));
    QTEST(isoDate(text), "date");
}

void tst_Dates::otherDigitsAndNamesAreRead_data()
{
    QTest::addColumn<QString>("locale");
    QTest::addColumn<QString>("text");
    const auto row = [](const char *name, const QString &locale, const QString &text) {
        QTest::addRow("%s", name) << locale << text;
    };
    row("Arabic digits", u"ar_EG"_s, u"\u0663\u0661\u200f/\u0663\u200f/\u0661\u0669\u0669\u0669"_s);
    row("Arabic digits elsewhere", u"en_US"_s, u"\u0661\u0669\u0669\u0669/\u0663/\u0663\u0661"_s);
    row("Persian digits", u"fa_IR"_s, u"\u06f1\u06f9\u06f9\u06f9/\u06f3/\u06f3\u06f1"_s);
    row("Hindi digits", u"hi_IN"_s, u"\u0969\u0967/\u0969/\u0967\u096f\u096f\u096f"_s);
    row("full-width digits", u"ja_JP"_s, u"\uff11\uff19\uff19\uff19/\uff13/\uff13\uff11"_s);
    row("digits beyond 16 bits", u"en_US"_s,
        u"\U0001E951\U0001E959\U0001E959\U0001E959-\U0001E953-\U0001E953\U0001E951"_s);
    row("German", u"de_DE"_s, u"31. M\u00e4rz 1999"_s);
    row("French", u"fr_FR"_s, u"31 mars 1999"_s);
    row("Spanish, with its words", u"es_ES"_s, u"31 de marzo de 1999"_s);
    row("Russian", u"ru_RU"_s, u"31 \u043c\u0430\u0440\u0442\u0430 1999 \u0433."_s);
    row("Japanese", u"ja_JP"_s, u"1999\u5e743\u670831\u65e5"_s);
    row("Hindi", u"hi_IN"_s, u"31 \u092e\u093e\u0930\u094d\u091a 1999"_s);
    row("English under German", u"de_DE"_s, u"31 March 1999"_s);
}

void tst_Dates::otherDigitsAndNamesAreRead()
{
    QFETCH(QString, locale);
    QFETCH(QString, text);
    QLocale::setDefault(QLocale(locale));
    QCOMPARE(isoDate(text), u"1999-03-31"_s);
    QCOMPARE(Format(text, u"yyyy/mm/dd"_s), u"1999/03/31"_s);
}

void tst_Dates::twoDigitsOfAYearMeanTheNearestCentury_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("year");
    QTest::newRow("00") << u"3/31/00"_s << 2000;
    QTest::newRow("9") << u"3/31/9"_s << 2009;
    QTest::newRow("29") << u"3/31/29"_s << 2029;
    QTest::newRow("30") << u"3/31/30"_s << 1930;
    QTest::newRow("99") << u"3/31/99"_s << 1999;
    QTest::newRow("three digits") << u"3/31/999"_s << 999;
    QTest::newRow("in full") << u"3/31/1929"_s << 1929;
}

void tst_Dates::twoDigitsOfAYearMeanTheNearestCentury()
{
    QFETCH(QString, text);
    QTEST(readDate(text).value_or(QDate()).year(), "year");
}

void tst_Dates::whatIsNoDateIsRefused_data()
{
    QTest::addColumn<QString>("text");
    for (const auto &text : {u""_s,
                             u" "_s,
                             u"\t \n"_s,
                             u"0/0/0"_s,
                             u"0/1/1999"_s,
                             u"31 June 1999"_s,
                             u"31/6/1999"_s,
                             u"6/31/1999"_s,
                             u"13/13/1999"_s,
                             u"1999/13/01"_s,
                             u"1999/31/03"_s,
                             u"29 February 1999"_s,
                             u"2/29/1900"_s,
                             u"32 March 1999"_s,
                             u"letters"_s,
                             u"March"_s,
                             u"March 1999"_s,
                             u"3/31"_s,
                             u"1999"_s,
                             u"19990331"_s,
                             u"3/31/99999"_s,
                             u"3/31/0000"_s,
                             u"3/31/099"_s,
                             u"031/3/1999"_s,
                             u"12:30"_s,
                             u"3/31/1999 12:30"_s,
                             u"12:30 3/31/1999"_s,
                             u"1999-03-31T12:30"_s,
                             u"3/31/1999 pm"_s,
                             u"3//31/1999"_s,
                             u"/3/31/1999"_s,
                             u"3/31/1999/"_s,
                             u"3/31/1999/1"_s,
                             u"-3/31/1999"_s,
                             u"3/-31/1999"_s,
                             u"3.5/31/1999"_s,
                             u"1e3/3/31"_s,
                             u"0x1/3/1999"_s,
                             u"March March 1999"_s,
                             u"March 31 April 1999"_s,
                             u"31 Marchy 1999"_s,
                             u"31 M 1999"_s,
                             u"31 de March 1999"_s,
                             u"99999999999999999999/3/31"_s,
                             u"3+31+1999"_s,
                             u"(3/31/1999)"_s,
                             u"3/31/1999x"_s,
                             u"$3/31/1999"_s})
        QTest::addRow("\"%s\"", qPrintable(text)) << text;
    QTest::newRow("half a pair of surrogates") << u"31 March 1999"_s + QChar(0xD835);
    QTest::newRow("NUL") << u"31 March 1999"_s + QChar(0);
}

void tst_Dates::whatIsNoDateIsRefused()
{
    QFETCH(QString, text);
    QVERIFY2(!IsDate(text), qPrintable(isoDate(text)));
}

void tst_Dates::hugeTextsAreRefusedAtOnce()
{
    for (const auto &piece : {u"3"_s, u"/"_s, u"3/"_s, u"March "_s, u" "_s, u"\u0301"_s, u"31 March 1999 "_s, u"x"_s})
        QVERIFY2(!IsDate(piece.repeated(10000)), qPrintable(piece));
    QVERIFY(!IsDate(u" "_s.repeated(10000) + u"3/31/1999"_s));
}

void tst_Dates::aDateIsPutIntoAPattern_data()
{
    QTest::addColumn<QString>("pattern");
    QTest::addColumn<QString>("expected");
    QTest::newRow("long") << u"mmmm d, yyyy"_s << u"March 5, 1999"_s;
    QTest::newRow("long, in capitals") << u"MMMM D, YYYY"_s << u"March 5, 1999"_s;
    QTest::newRow("sortable") << u"yyyy/mm/dd"_s << u"1999/03/05"_s;
    QTest::newRow("short") << u"m/d/yy"_s << u"3/5/99"_s;
    QTest::newRow("names") << u"ddd dddd mmm"_s << u"Fri Friday Mar"_s;
    QTest::newRow("other characters") << u"(dd.mm)"_s << u"(05.03)"_s;
    QTest::newRow("none") << u""_s << u""_s;
}

void tst_Dates::aDateIsPutIntoAPattern()
{
    QFETCH(QString, pattern);
    QTEST(Format(u"1999-3-5"_s, pattern), "expected");
}

void tst_Dates::aTextThatIsNoDateComesBackUnchanged_data()
{
    QTest::addColumn<QString>("text");
    for (const auto &text : {u""_s, u" "_s, u"soon"_s, u"31 June 1999"_s, u" 12:30 "_s, u"0/0/0"_s})
        QTest::addRow("\"%s\"", qPrintable(text)) << text;
}

void tst_Dates::aTextThatIsNoDateComesBackUnchanged()
{
    QFETCH(QString, text);
    QCOMPARE(Format(text, u"mmmm d, yyyy"_s), text);
    QCOMPARE(Format(text, u"yyyy/mm/dd"_s), text);
}

void tst_Dates::eachDayComesBackFromBothPatterns()
{
    for (QDate day(1996, 1, 1); day.year() < 2005; day = day.addDays(1)) {
        const QString sortable = Format(day.toString(Qt::ISODate), u"yyyy/mm/dd"_s);
        const QString written = Format(sortable, u"mmmm d, yyyy"_s);
        QCOMPARE(Format(written, u"yyyy/mm/dd"_s), sortable);
        QCOMPARE(readDate(written).value_or(QDate()), day);
    }
}

void tst_Dates::theNamesAreEnglishUnderAnyLocale()
{
    for (const auto &locale : {u"de_DE"_s, u"ar_EG"_s, u"ja_JP"_s}) {
        QLocale::setDefault(QLocale(locale));
        QCOMPARE(Format(u"99/03/31"_s, u"mmmm d, yyyy"_s), u"March 31, 1999"_s);
    }
}

void tst_Dates::todayIsTheHostsInTheShortForm_data()
{
    QTest::addColumn<QString>("locale");
    QTest::addColumn<QString>("expected");
    QTest::newRow("American") << u"en_US"_s << u"11/5/2031"_s;
    QTest::newRow("British") << u"en_GB"_s << u"05/11/2031"_s;
    QTest::newRow("German") << u"de_DE"_s << u"05.11.2031"_s;
    QTest::newRow("Swedish") << u"sv_SE"_s << u"2031-11-05"_s;
    QTest::newRow("Persian") << u"fa_IR"_s << u"\u06f2\u06f0\u06f3\u06f1/\u06f1\u06f1/\u06f5"_s;
}

void tst_Dates::todayIsTheHostsInTheShortForm()
{
    QFETCH(QString, locale);
    TestHost host;
    host.setToday(QDate(2031, 11, 5));
    QLocale::setDefault(QLocale(locale));
    QTEST(Date(), "expected");
    QCOMPARE(Format(Date(), u"mmmm d, yyyy"_s), u"November 5, 2031"_s);
}

void tst_Dates::theMachineKnowsToday()
{
    const QDate before = QDate::currentDate();
    const QDate today = readDate(Date()).value_or(QDate());
    QVERIFY(today >= before && today <= QDate::currentDate());
}

void tst_Dates::everyLocalesShortFormIsRead()
{
    TestHost host;
    const QList<QLocale> locales = allLocales();
    QVERIFY(locales.size() > 200);
    for (const QDate day : {QDate(1999, 3, 31), QDate(2004, 5, 6), QDate(2031, 12, 1)}) {
        host.setToday(day);
        for (const QLocale &locale : locales) {
            QLocale::setDefault(locale);
            QVERIFY2(readDate(Date()) == day, qPrintable(locale.name() + u' ' + Date()));
        }
    }
}

QTEST_GUILESS_MAIN(tst_Dates)
#include "tst_Dates.moc"
