#pragma once

#include "store/engine/Backend.h"

#include <QHash>

#include <functional>
#include <map>
#include <memory>
#include <optional>

struct sqlite3;
struct sqlite3_stmt;

namespace kartella::engine {

// The embedded back end: a register file read and written through the sqlite3 C API.
// Every connection gets the NAMEFOLD collation, the engine's LIKE and a busy timeout, so
// that two programs on one file wait for each other.
class SqliteBackend;

// While one lives, opening a register waits at most timeoutMs in all for another
// program's lock before it fails (the start uses it, so that a locked register is
// reported soon). Statements of an open connection keep the normal wait.
class OpeningWait
{
public:
    explicit OpeningWait(int timeoutMs);
    ~OpeningWait();
    OpeningWait(const OpeningWait&) = delete;
    OpeningWait& operator=(const OpeningWait&) = delete;

private:
    int m_previous;
};

class SqliteBackend final : public Backend
{
public:
    // Opens an existing register file; never creates one. An empty file opens as an empty
    // database, for the schema to be made in it. Throws ErrorNumber::ConnectionFailed.
    static std::unique_ptr<SqliteBackend> open(const QString& path);
    ~SqliteBackend() override;

    SqlDialect dialect() const override { return SqlDialect::Sqlite; }
    void execute(const QString& sql) override;
    QueryResult query(const QString& sql) override;
    const TableSchema& tableSchema(const QString& table) override;
    QVariant insertRow(
        const TableSchema& table, const QStringList& columns, const QVariantList& values) override;
    void updateRow(const TableSchema& table, const QString& keyName, const QVariant& key,
        const QStringList& columns, const QVariantList& values, const QVariantList& originals) override;
    void deleteRow(const TableSchema& table, const QString& keyName, const QVariant& key) override;
    QueryResult readRow(const TableSchema& table, const QString& keyName, const QVariant& key,
        const QStringList& columns) override;
    void beginTransaction() override;
    void commitTransaction() override;
    void rollbackTransaction() override;
    qint64 keyCounter(const QString& table) override;
    void raiseKeyCounter(const QString& table, qint64 value) override;
    void lockForWriting(const QString& name) override;
    void setStopFlag(std::shared_ptr<const std::atomic<bool>> flag) override;

private:
    explicit SqliteBackend(sqlite3* db);

    // A prepared statement that finalizes itself.
    struct StatementDeleter
    {
        void operator()(sqlite3_stmt* statement) const;
    };
    using Statement = std::unique_ptr<sqlite3_stmt, StatementDeleter>;

    Statement prepare(const QByteArray& sql, const QString& shownSql, const char** tail = nullptr);
    // A cached statement for the writes of recordsets, reset and with its bindings cleared.
    sqlite3_stmt* cachedStatement(const QString& sql);
    void bind(sqlite3_stmt* statement, int index, const QVariant& value, const QString& shownSql);
    // Steps a statement that returns no rows; gives the number of rows it changed.
    int run(sqlite3_stmt* statement, const QString& shownSql);
    [[noreturn]] void fail(int code, const QString& shownSql) const;
    // Whether the register has SQLite's table of key counters.
    bool hasCounterTable();
    // The one-row table that hands the writer's user and command to the history's triggers
    // (see WriteContext.h): false on a register older than the history.
    bool hasContextTable();
    void writeContext();
    // Runs a write in a transaction of its own when it carries a context and none is open.
    void withContext(const std::function<void()>& write);
    void readRows(
        sqlite3_stmt* statement, QueryResult& result, const std::vector<int>& order, const QString& shownSql);

    sqlite3* m_db;
    std::shared_ptr<const std::atomic<bool>> m_stop;
    int m_busyTimeoutMs = 0; // how long a statement waits for another program's lock
    int m_depth = 0;
    std::map<QString, TableSchema> m_schemas; // by lower-case name
    QHash<QString, sqlite3_stmt*> m_writeStatements;
    std::optional<bool> m_hasContextTable;
    bool m_contextWritten = false;
};

// Registers NAMEFOLD and like() on a connection; false when SQLite refused.
bool registerTextFunctions(sqlite3* db);

} // namespace kartella::engine
