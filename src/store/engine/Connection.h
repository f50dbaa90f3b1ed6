#pragma once

#include "store/engine/Constants.h"

#include <QString>

#include <atomic>
#include <memory>

namespace kartella {

class Backend;

// The SQL a connection's database speaks beyond the Jet dialect that every back end
// translates: what schema statements and catalog queries have to be written in.
enum class SqlDialect { Sqlite, PostgreSql };

// Whether a Data Source names a register on a database server (postgresql://user@host:port/db,
// also postgres://) rather than a register file.
bool isServerLocation(const QString& dataSource);

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

    void setConnectionString(const QString& connectionString);
    QString connectionString() const;
    void setMode(int mode);
    int Mode() const;
    void setCursorLocation(int location);
    int cursorLocation() const;

    // Opens with the given string, or with the one set before when it is empty. Opening
    // never creates a file.
    void open(const QString& connectionString = {});
    void close();
    bool isOpen() const;

    // Runs one statement that returns no rows.
    void execute(const QString& sql);

    // Transactions, for the tools that load many rows; the program itself uses none. A
    // statement that fails inside one undoes only itself. commitTrans throws when the
    // transaction did not commit, and then no transaction is open any more; rollbackTrans
    // with none open does nothing, so that a caller may roll back after any failure.
    void beginTrans();
    void commitTrans();
    void rollbackTrans();

    // The counter behind a table's generated keys (see Backend::keyCounter), and moving it
    // forward, so that a copied register gives no new row the key of a deleted one.
    qint64 keyCounter(const QString& table);
    void raiseKeyCounter(const QString& table, qint64 value);

    // Inside a transaction, the lock that writers of the same name queue on until it ends
    // (see Backend::lockForWriting).
    void lockForWriting(const QString& name);

    // While `flag` is set, from any thread, the statements of this connection stop and throw
    // (see Backend::setStopFlag). Null for none.
    void setStopFlag(std::shared_ptr<const std::atomic<bool>> flag);

    // Whether the writes of this connection carry the program's user and command into the
    // register's history (see WriteContext.h); true unless set. One that does not stands for
    // another program.
    void setCarriesContext(bool carries);

    // The dialect of the open back end; throws when the connection is closed.
    SqlDialect dialect();

    // The open back end; throws when the connection is closed.
    Backend& backend();

    // How long a statement waits for a register (a file's write lock, a server's row or
    // lock) that another program holds, before it is refused as in use: for connections
    // opened from now on. 10 seconds unless set.
    static int lockWaitMs();
    static void setLockWaitMs(int milliseconds);

private:
    QString m_connectionString;
    int m_mode = ConnectModeEnum::Unknown;
    int m_cursorLocation = CursorLocationEnum::UseServer;
    bool m_carriesContext = true;
    std::unique_ptr<Backend> m_backend;
};

} // namespace kartella
