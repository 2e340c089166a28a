#include "platform/help/HelpDatabase.h"

#include "platform/system/RunTimeError.h"

#include <QSqlDatabase>
#include <QSqlQuery>
#include <QVariant>

namespace orvane
{

namespace
{
QString driver()
{
    return QStringLiteral("QSQLITE");
}
} // namespace

HelpDatabase::HelpDatabase(const QString &fileName) : m_connection(QStringLiteral("orvane help file"))
{
    if (!QSqlDatabase::isDriverAvailable(driver()))
        throw RunTimeError(
            FileNotFound,
            QStringLiteral("The help can't be shown: Qt's SQLite driver isn't installed on this machine."));
    QSqlDatabase database = QSqlDatabase::addDatabase(driver(), m_connection);
    database.setConnectOptions(QStringLiteral("QSQLITE_OPEN_READONLY"));
    database.setDatabaseName(fileName);
    database.open(); // succeeds on most files; the first query tells
}

HelpDatabase::~HelpDatabase()
{
    QSqlDatabase::database(m_connection, false).close();
    QSqlDatabase::removeDatabase(m_connection);
}

bool HelpDatabase::isSound() const
{
    return column(QStringLiteral("PRAGMA integrity_check(1)")) == QList<QByteArray>{QByteArrayLiteral("ok")};
}

bool HelpDatabase::answers(const QString &query) const
{
    return QSqlQuery(QSqlDatabase::database(m_connection, false)).exec(query);
}

QList<QByteArray> HelpDatabase::column(const QString &query) const
{
    QSqlQuery rows(QSqlDatabase::database(m_connection, false));
    rows.setForwardOnly(true);
    QList<QByteArray> values;
    if (!rows.exec(query)) return values;
    while (rows.next())
        values << rows.value(0).toByteArray();
    return values;
}

} // namespace orvane
