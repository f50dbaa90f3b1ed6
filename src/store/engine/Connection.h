#pragma once

#include "store/engine/Constants.h"

#include <QString>

#include <memory>

namespace kartella {

class Backend;

// A connection to a register, made from a connection string of the forms the program
// builds ("Provider=...;Data Source= <path>", and the MSDataShape forms). The provider
// picks the back end: the two Jet providers open the file at Data Source with the
// embedded back end; a Data Source of the form postgresql://user@host:port/db selects
// PostgreSQL. Statements are accepted in Jet's dialect and translated for the back end.
//
// Failures throw kartella::Error: opening with ErrorNumber::ConnectionFailed, statements
// with ErrorNumber::CommandFailed, each with a description a user can act on.
class Connection
{
public:
    Connection();
    explicit Connection(const QString& connectionString);
    ~Connection();
    Connection(const Connection&) = delete;
    Connection& operator=(const Connection&) = delete;

    void SetConnectionString(const QString& connectionString);
    QString ConnectionString() const;
    void SetMode(int mode);
    int Mode() const;
    void SetCursorLocation(int location);
    int CursorLocation() const;

    // Opens with the given string, or with the one set before when it is empty. Opening
    // never creates a file.
    void Open(const QString& connectionString = {});
    void Close();
    bool IsOpen() const;

    // Runs one statement that returns no rows.
    void Execute(const QString& sql);

    // Transactions, for the tools that load many rows; the program itself uses none.
    void BeginTrans();
    void CommitTrans();
    void RollbackTrans();

    // The open back end; throws when the connection is closed.
    Backend& backend();

private:
    QString m_connectionString;
    int m_mode = ConnectModeEnum::Unknown;
    int m_cursorLocation = CursorLocationEnum::UseServer;
    std::unique_ptr<Backend> m_backend;
};

} // namespace kartella
