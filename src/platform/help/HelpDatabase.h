// A database file, opened for reading: what the help file is under its name.
#pragma once

#include <QByteArray>
#include <QList>
#include <QString>

namespace orvane
{

class HelpDatabase
{
public:
    explicit HelpDatabase(const QString &fileName); // error 53 where this machine can't read databases
    ~HelpDatabase();
    HelpDatabase(const HelpDatabase &) = delete;
    HelpDatabase &operator=(const HelpDatabase &) = delete;

    bool isSound() const;                                 // a database whose pages and rows hang together
    bool answers(const QString &query) const;             // also with no rows
    QList<QByteArray> column(const QString &query) const; // of all rows; nothing where the query fails

private:
    QString m_connection;
};

} // namespace orvane
