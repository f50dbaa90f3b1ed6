#pragma once

#include "harness/ServerDatabase.h"
#include "store/engine/Connection.h"
#include "store/engine/Recordset.h"

#include <QStringList>
#include <QTemporaryDir>

#include <memory>

namespace kartella::test {

// A register made by createRegister, with a connection open on it: a file in a temporary
// folder, or, when the tests run on the server, a database of its own there.
class EngineRegister
{
public:
    EngineRegister();

    bool isValid() const { return m_valid; }
    bool onServer() const { return m_server != nullptr; }
    // The register's location: the file's path, or the server database's.
    QString path() const { return m_path; }
    QString folder() const { return m_dir.path(); }
    QString connectionString() const;
    Connection& connection() { return *m_connection; }
    void execute(const QString& sql) { m_connection->execute(sql); }

    // Contacts 1 "Petras", 2 "Ąžuolas", 3 "Šarūnas", 4 "šilas", 5 "Saulius"; documents 1..3
    // of contact 1 (1, 2) and none (3), in categories 7, 7, 8; reminders 1, 2 of document 1.
    void fillSmall();

    // The value of the first row's first column of a SELECT.
    QVariant scalar(const QString& sql);
    // The first column of every row of a SELECT, joined by ",", Null as "-".
    QString joined(const QString& sql);
    // A table of no use to the program, with a key the database makes: (id, name NOT NULL).
    void createStrictTable();

private:
    QTemporaryDir m_dir;
    std::unique_ptr<ServerDatabase> m_server;
    QString m_path;
    std::unique_ptr<Connection> m_connection;
    bool m_valid = false;
};

// The fields of each row from the current one to the end, joined by "|", Null as "-".
QStringList rows(Recordset& recordset, const QStringList& fields);

} // namespace kartella::test
