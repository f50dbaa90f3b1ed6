#pragma once

#include "store/engine/Connection.h"
#include "store/engine/RowStore.h"
#include "store/engine/WriteContext.h"

#include <QString>
#include <QStringList>
#include <QVariant>

#include <atomic>
#include <memory>
#include <vector>

namespace kartella {

namespace engine {

// A result column and where it comes from.
struct ColumnInfo
{
    QString name;
    QString table; // the table it was read from; empty for an expression
    QString origin; // the column of that table
    ValueKind declared = ValueKind::Null; // Null when nothing is declared
};

// All rows of a query. Columns past visibleColumns are hidden: the row key that the
// back end added for writing.
struct QueryResult
{
    std::vector<ColumnInfo> columns;
    int visibleColumns = 0;
    int keyColumn = -1; // the column holding the row key of the one source table, or -1
    QString keyName; // the name that selects that key in a WHERE clause
    RowStore rows;
};

struct TableColumn
{
    QString name;
    ValueKind declared = ValueKind::Null;
};

struct TableSchema
{
    QString name;
    QString key; // primary key column, or "rowid"
    bool keyGenerated = false; // the database makes the key of a new row
    std::vector<TableColumn> columns;

    const TableColumn* column(const QString& columnName) const
    {
        for (const TableColumn& c : columns) {
            if (c.name.compare(columnName, Qt::CaseInsensitive) == 0)
                return &c;
        }
        return nullptr;
    }
};

} // namespace engine

// The database behind a Connection. Statements come in Jet's dialect; each back end
// translates them for its database. Failures throw kartella::Error with
// ErrorNumber::CommandFailed.
class Backend
{
public:
    virtual ~Backend() = default;

    virtual SqlDialect dialect() const = 0;

    // Runs statements that return no rows.
    virtual void execute(const QString& sql) = 0;

    // Runs a SELECT and reads all its rows. When all columns come from one table and its
    // key isn't among them, the key is read as a hidden column.
    virtual engine::QueryResult query(const QString& sql) = 0;

    // Columns and key of a table; throws when there is no such table.
    virtual const engine::TableSchema& tableSchema(const QString& table) = 0;

    // Writes one new row and gives its key.
    virtual QVariant insertRow(
        const engine::TableSchema& table, const QStringList& columns, const QVariantList& values)
        = 0;
    // Changes the columns of the row whose keyName column holds key and whose columns still
    // hold originals, the values they had when the row was read (a Null original: the column
    // is Null). Throws ErrorNumber::RowChanged when the row is there but another program
    // changed one of those columns since, ErrorNumber::RowDeleted when no row has the key.
    virtual void updateRow(const engine::TableSchema& table, const QString& keyName, const QVariant& key,
        const QStringList& columns, const QVariantList& values, const QVariantList& originals)
        = 0;
    // A row that is already gone is no error: the user wanted it gone.
    virtual void deleteRow(const engine::TableSchema& table, const QString& keyName, const QVariant& key) = 0;
    // Reads the columns of the row whose keyName column holds key, as a query would read
    // them: no row when none has the key.
    virtual engine::QueryResult readRow(const engine::TableSchema& table, const QString& keyName,
        const QVariant& key, const QStringList& columns)
        = 0;

    // Transactions nest: the outermost one is the database's, inner ones are save points.
    // Inside one, a statement that fails undoes what it did and nothing else, on both back
    // ends. A commit that did not commit throws; after a failed commit of the outermost
    // transaction none is open any more, and nothing written in it is kept.
    virtual void beginTransaction() = 0;
    virtual void commitTransaction() = 0;
    virtual void rollbackTransaction() = 0;

    // The counter behind the generated keys of a table: the last key the database made or
    // was moved past (0 when none, or when the table's keys are not generated).
    virtual qint64 keyCounter(const QString& table) = 0;
    // Moves the counter to value unless it stands there or further already.
    virtual void raiseKeyCounter(const QString& table, qint64 value) = 0;

    // Inside a transaction: waits for, then holds until the transaction ends, the lock that
    // every writer taking the same name takes, so that a "look, then write" (a duplicate
    // check, a counter) sees no other writer's rows appear between its look and its write.
    virtual void lockForWriting(const QString& name) = 0;

    // While `flag` is set (from any thread), the statements of this connection stop as soon
    // as they can and fail. The connection shares the flag, so that whoever sets it never
    // reaches a connection that is gone. Null for none; ignored by a back end that can't stop
    // a statement.
    virtual void setStopFlag(std::shared_ptr<const std::atomic<bool>> flag) { Q_UNUSED(flag); }

    // Whether this connection's writes carry the program's user and command (see
    // WriteContext.h); one that does not writes as another program would.
    void setCarriesContext(bool carries) { m_carriesContext = carries; }

protected:
    bool writesWithContext() const { return m_carriesContext && !WriteContext::user().isEmpty(); }

private:
    bool m_carriesContext = true;
};

} // namespace kartella
