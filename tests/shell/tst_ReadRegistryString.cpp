// Texts from the machine's own record, by length and by ending.
#include "shell/ReadRegistryString.h"
#include "shell/RegistryHost.h"

#include <QTest>

using namespace Qt::Literals::StringLiterals;
using namespace orvane;

namespace
{
QString knownKey()
{
    return QStringLiteral(R"(Software\Orvane)");
}

const QChar Nul(u'\0');
} // namespace

class tst_ReadRegistryString : public QObject
{
    Q_OBJECT

private slots:
    void init() { m_host.emplace(); }
    void cleanup() { m_host.reset(); }
    void aKeyThatCantBeOpenedGivesASentence_data();
    void aKeyThatCantBeOpenedGivesASentence();
    void aMissingValueIsEmpty();
    void aValueLosesItsFinalNulAlone_data();
    void aValueLosesItsFinalNulAlone();
    void aValueLongerThanTheBufferIsEmpty();
    void trimmingTakesTheFirstCharacters_data();
    void trimmingTakesTheFirstCharacters();

private:
    void store(const QString &data);

    std::optional<test::RegistryHost> m_host;
};

void tst_ReadRegistryString::store(const QString &data)
{
    RegistryKey key;
    key.set(u"DefName"_s, {RegistryString, data});
    m_host->setKey(HKEY_USERS, knownKey(), key);
}

void tst_ReadRegistryString::aKeyThatCantBeOpenedGivesASentence_data()
{
    QTest::addColumn<quint32>("rootKey");
    QTest::addColumn<QString>("subKey");
    QTest::newRow("another root") << HKEY_LOCAL_MACHINE << knownKey();
    QTest::newRow("another key") << HKEY_USERS << u"Software"_s;
}

void tst_ReadRegistryString::aKeyThatCantBeOpenedGivesASentence()
{
    QFETCH(quint32, rootKey);
    QFETCH(QString, subKey);
    store(u"Ada"_s);
    QCOMPARE(ReadRegistryString(subKey, rootKey, u"DefName"_s), u"This machine has no record."_s);
}

void tst_ReadRegistryString::aMissingValueIsEmpty()
{
    store(u"Ada"_s);
    QCOMPARE(ReadRegistryString(knownKey(), HKEY_USERS, u"DefCompany"_s), u""_s);
}

void tst_ReadRegistryString::aValueLosesItsFinalNulAlone_data()
{
    QTest::addColumn<QString>("data");
    QTest::addColumn<QString>("text");
    QTest::newRow("as strings are stored") << u"Ada"_s + Nul << u"Ada"_s;
    QTest::newRow("without NUL") << u"Ada"_s << u"Ada"_s;
    QTest::newRow("two NULs") << u"Ada"_s + Nul + Nul << u"Ada"_s + Nul;
    QTest::newRow("blanks") << u" Ada "_s + Nul << u" Ada "_s;
    QTest::newRow("the NUL alone") << QString(Nul) << u""_s;
    QTest::newRow("nothing") << u""_s << u""_s;
    QTest::newRow("255 characters without NUL") << QString(255, u'x') << QString(255, u'x');
    QTest::newRow("255 characters with NUL") << QString(254, u'x') + Nul << QString(254, u'x');
}

void tst_ReadRegistryString::aValueLosesItsFinalNulAlone()
{
    QFETCH(QString, data);
    store(data);
    QTEST(ReadRegistryString(knownKey(), HKEY_USERS, u"DefName"_s), "text");
}

void tst_ReadRegistryString::aValueLongerThanTheBufferIsEmpty()
{
    store(QString(255, u'x') + Nul);
    QCOMPARE(ReadRegistryString(knownKey(), HKEY_USERS, u"DefName"_s), u""_s);
}

void tst_ReadRegistryString::trimmingTakesTheFirstCharacters_data()
{
    QTest::addColumn<QString>("buffer");
    QTest::addColumn<int>("length");
    QTest::addColumn<QString>("text");
    QTest::newRow("NUL at the length") << u"Ada"_s + Nul + u"  "_s << 4 << u"Ada"_s;
    QTest::newRow("no NUL at the length") << u"Ada"_s + Nul + u"  "_s << 3 << u"Ada"_s;
    QTest::newRow("NUL before the length") << u"A"_s + Nul + u"da"_s << 3 << u"A"_s + Nul + u"d"_s;
    QTest::newRow("NUL alone") << QString(Nul) << 1 << u""_s;
    QTest::newRow("no length") << u"Ada"_s << 0 << u""_s;
    QTest::newRow("a length behind the end") << u"Ada"_s + Nul << 9 << u"Ada"_s + Nul;
}

void tst_ReadRegistryString::trimmingTakesTheFirstCharacters()
{
    QFETCH(QString, buffer);
    QFETCH(int, length);
    QTEST(TrimNul(buffer, length), "text");
}

QTEST_GUILESS_MAIN(tst_ReadRegistryString)
#include "tst_ReadRegistryString.moc"
