#pragma once

#include "store/engine/Backend.h"
#include "store/engine/JetDialect.h"

#include <QHash>
#include <QSet>

#include <map>
#include <memory>

struct pg_conn;
struct pg_result;

namespace kartella::engine {

// The server back end: a register in a PostgreSQL database, reached through libpq. The
// location is a URI, postgresql://user@host:port/database; the password comes from libpq's
// own sources (~/.pgpass, PGPASSWORD), never from the location. Statements in Jet's dialect
// are translated for PostgreSQL (see JetDialect.h) against the names the database declares.
class PostgresBackend final : public Backend
{
public:
    // Connects, or takes a session a closed connection to the same location left (see
    // PostgresSessions.h), waiting at most ConnectTimeoutSeconds for the server unless the
    // location sets connect_timeout itself. A database without tables opens, for the schema to be
    // made in it; one with tables but no tbl_Documents is refused. Throws
    // ErrorNumber::ConnectionFailed.
    static std::unique_ptr<PostgresBackend> open(const QString& location);
    ~PostgresBackend() override;

    static constexpr int ConnectTimeoutSeconds = 5;

    // For keeping the session after its connection closes (see PostgresSessions.h).
    QString location() const { return m_location; }
    int lockWaitMs() const { return m_lockWaitMs; }
    // Connected, outside any transaction: a session another connection may use as it is.
    bool isIdle() const;
    // Asks the server whether the session is still there: a round trip.
    bool stillConnected();

    SqlDialect dialect() const override { return SqlDialect::PostgreSql; }
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

private:
    explicit PostgresBackend(pg_conn* connection, QString location);
    // A new session with the server.
    static std::unique_ptr<PostgresBackend> connect(const QString& location, int lockWait);

    // A result that clears itself.
    struct ResultDeleter
    {
        void operator()(pg_result* result) const;
    };
    using Result = std::unique_ptr<pg_result, ResultDeleter>;

    // A relation of the current schema: its columns by attribute number.
    struct Relation
    {
        TableSchema schema;
        std::map<int, QString> columnsByNumber;
    };

    // While one lives, the statements of a call inside a transaction can fail without
    // aborting the transaction: it sets a save point, and rolls back to it when the call
    // ends by an exception.
    class StatementGuard
    {
    public:
        explicit StatementGuard(PostgresBackend& backend);
        ~StatementGuard();
        StatementGuard(const StatementGuard&) = delete;
        StatementGuard& operator=(const StatementGuard&) = delete;

    private:
        PostgresBackend& m_backend;
        int m_exceptions;
    };

    // Ends the outermost transaction whatever state it is in, rolling back what it holds.
    void endTransaction();

    // Runs server SQL as it stands, with text parameters (nullptr for Null); throws on failure.
    Result run(const QByteArray& sql, const std::vector<QByteArray>& parameters, const QString& shownSql);
    Result runText(const QString& sql, const QString& shownSql);
    [[noreturn]] void fail(pg_result* result, const QString& shownSql) const;
    // The programs that hold write locks in the register now, as the server names them;
    // empty when it can't tell.
    QString lockHolders() const;
    void reconnectIfLost();

    void loadCatalog();
    const ServerNames& names();
    QString translate(const QString& sql);
    // The statement's table when it is an INSERT, for the key generators to follow.
    void noteInsert(const QString& translatedSql);
    void noteExplicitKey(const TableSchema& table);
    void advanceKeyGenerators();

    static std::vector<QByteArray> textParameters(const QVariantList& values);
    void describe(pg_result* description, QueryResult& result);
    void readRows(pg_result* rows, QueryResult& result, const std::vector<int>& order);

    pg_conn* m_connection;
    QString m_location;
    int m_lockWaitMs = 0; // how long a statement waits for another program's lock
    int m_depth = 0;
    bool m_guardOpen = false; // a statement's save point is set and not yet released
    int m_guardNesting = 0;
    bool m_catalogLoaded = false;
    ServerNames m_names;
    std::map<QString, Relation> m_relations; // by lower-case name
    QHash<unsigned, QString> m_relationByOid; // lower-case name
    QSet<QString> m_explicitKeys; // lower-case names of tables written with keys given
};

} // namespace kartella::engine
