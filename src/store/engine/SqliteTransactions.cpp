// The SQLite back end's transactions and key counters.
#include "store/StoreText.h"
#include "store/engine/EngineErrors.h"
#include "store/engine/SqliteBackend.h"

#include <sqlite3.h>

namespace kartella::engine {

namespace {

// Translated when it is told, not before: a translation may come after the start.
QString notCommitted()
{
    return kartella::StoreText::tr(
        "The changes were not stored: the register ended the transaction before its "
        "commit (after an earlier error), and nothing written in it was kept.");
}

} // namespace

void SqliteBackend::beginTransaction()
{
    // The outermost transaction takes the write lock at once, so that two writers queue
    // on the busy timeout instead of failing in the middle.
    const QString sql = m_depth == 0 ? QStringLiteral("BEGIN IMMEDIATE")
                                     : QStringLiteral("SAVEPOINT level") + QString::number(m_depth);
    execute(sql);
    ++m_depth;
    if (m_depth == 1 && writesWithContext() && hasContextTable()) {
        try {
            writeContext();
        } catch (...) {
            rollbackTransaction();
            throw;
        }
    }
}

bool SqliteBackend::hasContextTable()
{
    if (!m_hasContextTable) {
        const QString sql = QStringLiteral(
            "SELECT 1 FROM sqlite_master WHERE type = 'table' AND name = 'tbl_Write_Context'");
        const Statement statement = prepare(sql.toUtf8(), sql);
        const int code = sqlite3_step(statement.get());
        if (code != SQLITE_ROW && code != SQLITE_DONE)
            fail(code, sql);
        m_hasContextTable = code == SQLITE_ROW;
    }
    return *m_hasContextTable;
}

void SqliteBackend::writeContext()
{
    const QString sql = QStringLiteral(
        "INSERT OR REPLACE INTO tbl_Write_Context (ContextID, Who, Command) VALUES (1, ?1, ?2)");
    sqlite3_stmt* statement = cachedStatement(sql);
    bind(statement, 1, WriteContext::user(), sql);
    // An empty command is the program's all the same: only another program's is Null.
    const QString command = WriteContext::command();
    bind(statement, 2, command.isEmpty() ? QVariant(QStringLiteral("")) : QVariant(command), sql);
    run(statement, sql);
    m_contextWritten = true;
}

void SqliteBackend::withContext(const std::function<void()>& write)
{
    if (m_depth > 0 || !writesWithContext() || !hasContextTable()) {
        write();
        return;
    }
    beginTransaction();
    try {
        write();
        commitTransaction();
    } catch (...) {
        rollbackTransaction();
        throw;
    }
}

void SqliteBackend::commitTransaction()
{
    if (m_depth == 0)
        throwError(ErrorNumber::CommandFailed, QStringLiteral("There is no transaction to commit."),
            ConnectionSource);
    // SQLite rolls a whole transaction back by itself after some errors (a full disk, an
    // I/O error); a COMMIT then would commit nothing.
    if (sqlite3_get_autocommit(m_db) != 0) {
        m_depth = 0;
        m_contextWritten = false;
        throwError(ErrorNumber::CommandFailed, notCommitted(), ConnectionSource);
    }
    if (m_depth > 1) {
        execute(QStringLiteral("RELEASE level") + QString::number(m_depth - 1));
        --m_depth;
        return;
    }
    try {
        // The context is the writer's while it writes: another program writing after this
        // commit finds none.
        if (m_contextWritten) {
            m_contextWritten = false;
            const QString clear = QStringLiteral("DELETE FROM tbl_Write_Context");
            run(cachedStatement(clear), clear);
        }
        m_depth = 0;
        execute(QStringLiteral("COMMIT"));
    } catch (const Error&) {
        m_depth = 0;
        // A COMMIT that failed may leave the transaction open (a lock it could not get):
        // end it, so that the failure means the same whatever its cause.
        if (sqlite3_get_autocommit(m_db) == 0)
            sqlite3_exec(m_db, "ROLLBACK", nullptr, nullptr, nullptr);
        throw;
    }
}

void SqliteBackend::rollbackTransaction()
{
    // A failed commit ends the transaction: the caller's rollback after it has nothing to undo.
    if (m_depth == 0)
        return;
    if (sqlite3_get_autocommit(m_db) != 0) {
        // Rolled back already by the database, the outer levels with this one. They stay
        // counted, so that the caller's commit of them tells that nothing was kept.
        --m_depth;
        return;
    }
    if (m_depth == 1) {
        m_contextWritten = false;
        // A table the transaction made may be gone again.
        m_hasContextTable.reset();
        execute(QStringLiteral("ROLLBACK"));
    } else {
        const QString name = QStringLiteral("level") + QString::number(m_depth - 1);
        execute(QStringLiteral("ROLLBACK TO ") + name);
        execute(QStringLiteral("RELEASE ") + name);
    }
    --m_depth;
}

void SqliteBackend::lockForWriting(const QString&)
{
    // BEGIN IMMEDIATE holds the register's one write lock for the whole transaction already.
    if (m_depth == 0)
        throwError(ErrorNumber::CommandFailed, QStringLiteral("A write lock is taken inside a transaction."),
            ConnectionSource);
}

qint64 SqliteBackend::keyCounter(const QString& table)
{
    // The table of counters is there once a table with AUTOINCREMENT keys is.
    const QString sql = QStringLiteral("SELECT seq FROM sqlite_sequence WHERE name = ?1 COLLATE NOCASE");
    if (!hasCounterTable())
        return 0;
    const Statement statement = prepare(sql.toUtf8(), sql);
    bind(statement.get(), 1, table, sql);
    const int code = sqlite3_step(statement.get());
    if (code == SQLITE_ROW)
        return sqlite3_column_int64(statement.get(), 0);
    if (code != SQLITE_DONE)
        fail(code, sql);
    return 0;
}

void SqliteBackend::raiseKeyCounter(const QString& table, qint64 value)
{
    if (!hasCounterTable() || value <= keyCounter(table))
        return;
    const TableSchema& schema = tableSchema(table);
    if (!schema.keyGenerated)
        return;
    // The counter's row names the table as it was declared.
    const QString sql = QStringLiteral(
        "INSERT INTO sqlite_sequence (name, seq) SELECT name, ?2 FROM sqlite_master WHERE type = 'table' "
        "AND name = ?1 COLLATE NOCASE AND NOT EXISTS (SELECT 1 FROM sqlite_sequence WHERE name = ?1 COLLATE "
        "NOCASE)");
    const QString update
        = QStringLiteral("UPDATE sqlite_sequence SET seq = ?2 WHERE name = ?1 COLLATE NOCASE AND seq < ?2");
    for (const QString& text : {update, sql}) {
        const Statement statement = prepare(text.toUtf8(), text);
        bind(statement.get(), 1, table, text);
        bind(statement.get(), 2, value, text);
        run(statement.get(), text);
    }
}

bool SqliteBackend::hasCounterTable()
{
    const QString sql = QStringLiteral("SELECT 1 FROM sqlite_master WHERE name = 'sqlite_sequence'");
    const Statement statement = prepare(sql.toUtf8(), sql);
    const int code = sqlite3_step(statement.get());
    if (code != SQLITE_ROW && code != SQLITE_DONE)
        fail(code, sql);
    return code == SQLITE_ROW;
}

} // namespace kartella::engine
