#pragma once

#include <QString>

namespace kartella {

// Who writes and in which command: what the register's history records beside every row
// the program inserts, updates or deletes. The history itself is written by the register's
// triggers; the engine hands them this context inside each write transaction of a
// connection (on a register file a one-row table it fills after BEGIN and empties before
// COMMIT, on a server settings local to the transaction). A write outside a transaction
// becomes a transaction of its own, so that no write goes without its context.
//
// A connection that carries no context (Connection::setCarriesContext) writes as the sqlite3
// shell does: the history records such writes as another program's.
class WriteContext
{
public:
    // The user this program writes as ("user@host"), for every connection from now on; the
    // desktop's user unless set (an empty one sets that again).
    static void setUser(const QString& who);
    static QString user();
    // The desktop's user and host name, as setUser wants them.
    static QString desktopUser();

    // The command this thread is in ("New Document", "Import"), empty outside any.
    static QString command();

private:
    friend class CommandScope;
    static void setCommand(const QString& command);
};

// While one lives, this thread's writes are recorded with its command; the command before
// comes back when it ends. A command that starts another (a dialog that imports) keeps the
// inner one's name for the inner writes.
class CommandScope
{
public:
    explicit CommandScope(const QString& command);
    ~CommandScope();
    CommandScope(const CommandScope&) = delete;
    CommandScope& operator=(const CommandScope&) = delete;

private:
    QString m_previous;
};

} // namespace kartella
