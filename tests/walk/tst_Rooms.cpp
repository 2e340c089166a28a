// The rooms keep to themselves: they speak the platform's names only, and their headers don't lean on each other.

#include <QDirIterator>
#include <QRegularExpression>
#include <QTest>

class tst_Rooms : public QObject
{
    Q_OBJECT

private slots:
    void roomsIncludeNothingOfTheToolkit_data() { addRooms(); }
    void roomsIncludeNothingOfTheToolkit();
    void headersLeaveTheOtherRoomsAlone_data() { addRooms(); }
    void headersLeaveTheOtherRoomsAlone();
    void thePlatformKnowsNoRoom();
    void nothingSpeaksToANetwork();

private:
    static QStringList rooms();
    static void addRooms();
};

namespace
{
struct Include {
    QString file;
    QString target; // with its brackets or quotes
};

QList<Include> includesUnder(const QString &folder, const QStringList &patterns)
{
    static const QRegularExpression include(QStringLiteral(R"(^\s*#\s*include\s*([<"][^>"]*[>"]))"),
                                            QRegularExpression::MultilineOption);
    QList<Include> found;
    QDirIterator files(QStringLiteral(ORVANE_SOURCE_DIR "/src/") + folder, patterns, QDir::Files,
                       QDirIterator::Subdirectories);
    while (files.hasNext()) {
        QFile file(files.next());
        if (!file.open(QIODevice::ReadOnly)) continue;
        auto matches = include.globalMatch(QString::fromUtf8(file.readAll()));
        while (matches.hasNext())
            found.append({file.fileName(), matches.next().captured(1)});
    }
    return found;
}

QStringList sources()
{
    return {QStringLiteral("*.h"), QStringLiteral("*.cpp")};
}

QStringList headers()
{
    return {QStringLiteral("*.h")};
}
} // namespace

QStringList tst_Rooms::rooms()
{
    return {QStringLiteral("shell"), QStringLiteral("command_center"), QStringLiteral("documents"),
            QStringLiteral("printing"), QStringLiteral("tour")};
}

void tst_Rooms::addRooms()
{
    QTest::addColumn<QString>("room");
    for (const QString &room : rooms())
        QTest::newRow(qPrintable(room)) << room;
}

void tst_Rooms::roomsIncludeNothingOfTheToolkit()
{
    QFETCH(QString, room);
    const auto includes = includesUnder(room, sources());
    QVERIFY(!includes.isEmpty());
    for (const Include &include : includes)
        QVERIFY2(!include.target.startsWith(QStringLiteral("<Q")) || include.target == QStringLiteral("<QString>"),
                 qPrintable(include.file + u' ' + include.target));
}

void tst_Rooms::headersLeaveTheOtherRoomsAlone()
{
    QFETCH(QString, room);
    const auto includes = includesUnder(room, headers());
    QVERIFY(!includes.isEmpty());
    for (const Include &include : includes)
        for (const QString &other : rooms())
            QVERIFY2(other == room || !include.target.startsWith(u'"' + other + u'/'),
                     qPrintable(include.file + u' ' + include.target));
}

void tst_Rooms::thePlatformKnowsNoRoom()
{
    const auto includes = includesUnder(QStringLiteral("platform"), sources());
    QVERIFY(!includes.isEmpty());
    for (const Include &include : includes)
        QVERIFY2(include.target.startsWith(u'<') || include.target.startsWith(QStringLiteral("\"platform/")),
                 qPrintable(include.file + u' ' + include.target));
}

// The services of accounts count too: they may ask a directory on another machine.
void tst_Rooms::nothingSpeaksToANetwork()
{
    static const QRegularExpression network(QStringLiteral(
        R"(^<(Qt?Network|QHost|QTcp|QUdp|QSsl|QLocalS|QDns|QAbstractSocket|pwd\.h|grp\.h|netdb\.h|sys/socket|netinet|arpa))"));
    const auto includes = includesUnder(QString(), sources());
    QVERIFY(includes.size() > 500);
    for (const Include &include : includes)
        QVERIFY2(!network.match(include.target).hasMatch(), qPrintable(include.file + u' ' + include.target));
}

QTEST_GUILESS_MAIN(tst_Rooms)
#include "tst_Rooms.moc"
