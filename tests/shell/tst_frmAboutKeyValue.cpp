// The About box's own reader of the machine's record.
#include "shell/RegistryHost.h"
#include "shell/frmAbout.h"

#include <QTest>

using namespace Qt::Literals::StringLiterals;
using namespace orvane;

namespace
{
QString knownKey()
{
    return QStringLiteral(R"(SOFTWARE\Orvane)");
}

const QChar Nul(u'\0');
} // namespace

class tst_frmAboutKeyValue : public QObject
{
    Q_OBJECT

private slots:
    void init() { m_host.emplace(); }
    void cleanup() { m_host.reset(); }
    void aFoundValueIsReadByItsType_data();
    void aFoundValueIsReadByItsType();
    void whatIsNotThereIsEmpty_data();
    void whatIsNotThereIsEmpty();

private:
    void store(int type, const QString &data);

    std::optional<test::RegistryHost> m_host;
};

void tst_frmAboutKeyValue::store(int type, const QString &data)
{
    RegistryKey key;
    key.set(u"PATH"_s, {type, data});
    m_host->setKey(HKEY_LOCAL_MACHINE, knownKey(), key);
}

void tst_frmAboutKeyValue::aFoundValueIsReadByItsType_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<QString>("data");
    QTest::addColumn<QString>("before");
    QTest::addColumn<QString>("after");
    const int string = RegistryString;
    const int number = RegistryNumber;
    QTest::newRow("string") << string << u"/bin/x"_s + Nul << u"old"_s << u"/bin/x"_s;
    QTest::newRow("string without NUL") << string << u"/bin/x"_s << u""_s << u"/bin/x"_s;
    QTest::newRow("empty string") << string << u""_s << u"old"_s << u""_s;
    QTest::newRow("longest string") << string << QString(1024, u'x') << u""_s << QString(1024, u'x');
    QTest::newRow("longest with NUL") << string << QString(1023, u'x') + Nul << u""_s << QString(1023, u'x');
    QTest::newRow("number") << number << u"\u0078\u0056\u0034\u0012"_s << u""_s << u"&h12345678"_s;
    QTest::newRow("digits of one") << number << u"\u0001\u00AB\u0002\u0003"_s << u""_s << u"&h32AB1"_s;
    QTest::newRow("small number") << number << QString(u'\u0012') + Nul + Nul + Nul << u""_s << u"&h0012"_s;
    QTest::newRow("number after text") << number << u"\u0001\u0002"_s << u"7"_s << u"&h721"_s;
    QTest::newRow("another type") << static_cast<int>(RegistryBinary) << u"xyz"_s << u"old"_s << u"old"_s;
}

void tst_frmAboutKeyValue::aFoundValueIsReadByItsType()
{
    QFETCH(int, type);
    QFETCH(QString, data);
    QFETCH(QString, before);
    store(type, data);
    QVERIFY(frmAbout::GetKeyValue(HKEY_LOCAL_MACHINE, knownKey(), u"PATH"_s, before) == True);
    QTEST(before, "after");
}

void tst_frmAboutKeyValue::whatIsNotThereIsEmpty_data()
{
    QTest::addColumn<quint32>("rootKey");
    QTest::addColumn<QString>("subKey");
    QTest::addColumn<QString>("valueName");
    QTest::addColumn<qsizetype>("length");
    QTest::newRow("no such root") << HKEY_USERS << knownKey() << u"PATH"_s << qsizetype(3);
    QTest::newRow("no such key") << HKEY_LOCAL_MACHINE << u"SOFTWARE"_s << u"PATH"_s << qsizetype(3);
    QTest::newRow("no such value") << HKEY_LOCAL_MACHINE << knownKey() << u"MSINFO"_s << qsizetype(3);
    QTest::newRow("a value too long") << HKEY_LOCAL_MACHINE << knownKey() << u"PATH"_s << qsizetype(1025);
}

void tst_frmAboutKeyValue::whatIsNotThereIsEmpty()
{
    QFETCH(quint32, rootKey);
    QFETCH(QString, subKey);
    QFETCH(QString, valueName);
    QFETCH(qsizetype, length);
    store(RegistryString, QString(length, u'x'));
    QString result = u"old"_s;
    QVERIFY(frmAbout::GetKeyValue(rootKey, subKey, valueName, result) == False);
    QCOMPARE(result, u""_s);
}

QTEST_GUILESS_MAIN(tst_frmAboutKeyValue)
#include "tst_frmAboutKeyValue.moc"
