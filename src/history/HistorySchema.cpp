#include "history/HistorySchema.h"

#include "history/HistoryLog.h"
#include "store/engine/Backend.h"
#include "store/engine/Connection.h"

#include <QStringList>

namespace kartella {

namespace {

const QString HistoryColumns = QStringLiteral("ChangedAt, Who, Command, TableName, RowKey, Change, "
                                              "ColumnName, OldValue, NewValue, RastasID, ContactID");

// One statement per trigger: every column of the row as (name, before, after), of which
// those that differ become history rows. The writer's user and command come from the
// context row the engine holds during its transaction; a writer without one (the sqlite3
// shell) leaves them Null.
QString sqliteTrigger(const HistoryTable& table, const QStringList& columns, const QString& change)
{
    const bool inserts = change == QLatin1String("insert");
    const bool deletes = change == QLatin1String("delete");
    const QString row = deletes ? QStringLiteral("OLD.") : QStringLiteral("NEW.");
    QStringList values;
    for (const QString& column : columns) {
        const QString before = inserts ? QStringLiteral("NULL") : QStringLiteral("OLD.") + column;
        const QString after = deletes ? QStringLiteral("NULL") : QStringLiteral("NEW.") + column;
        values << QStringLiteral("SELECT '%1' AS c, %2 AS o, %3 AS n").arg(column, before, after);
    }
    const auto keyOf
        = [&row](const QString& column) { return column.isEmpty() ? QStringLiteral("NULL") : row + column; };
    const QString name
        = QStringLiteral("trg_History_") + table.name.mid(4) + u'_' + change.at(0).toUpper() + change.mid(1);
    return QStringLiteral("CREATE TRIGGER %1 AFTER %2 ON %3 BEGIN INSERT INTO tbl_History (%4) "
                          "SELECT strftime('%Y-%m-%d %H:%M:%f', 'now'), x.Who, x.Command, '%3', %5, '%6', "
                          "v.c, v.o, v.n, %7, %8 FROM (%9) AS v LEFT JOIN tbl_Write_Context AS x ON "
                          "x.ContextID = 1 WHERE v.o IS NOT v.n; END")
        .arg(name, change.toUpper(), table.name, HistoryColumns, keyOf(table.key), change,
            keyOf(table.documentKey), keyOf(table.contactKey), values.join(QStringLiteral(" UNION ALL ")));
}

void dropSqliteTriggers(Connection& connection, const HistoryTable& table)
{
    for (const char* change : {"Insert", "Update", "Delete"})
        connection.execute(QStringLiteral("DROP TRIGGER IF EXISTS trg_History_") + table.name.mid(4) + u'_'
            + QLatin1String(change));
}

void createSqliteTriggers(Connection& connection, const HistoryTable& table)
{
    QStringList columns;
    // The row's own key is the history row's RowKey already.
    for (const engine::TableColumn& column : connection.backend().tableSchema(table.name).columns) {
        if (column.name.compare(table.key, Qt::CaseInsensitive) != 0)
            columns << column.name;
    }
    for (const char* change : {"insert", "update", "delete"})
        connection.execute(sqliteTrigger(table, columns, QLatin1String(change)));
}

} // namespace

const std::vector<HistoryTable>& historyTables()
{
    static const std::vector<HistoryTable> tables = {
        {QStringLiteral("tbl_Documents"), QStringLiteral("RastasID"), QStringLiteral("RastasID"), {}},
        {QStringLiteral("tbl_Sub_Documents"), QStringLiteral("SubRastasID"), QStringLiteral("RastasID"), {}},
        {QStringLiteral("tbl_Tickler"), QStringLiteral("TicklerID"), QStringLiteral("RastasID"), {}},
        {QStringLiteral("tbl_Document_Categories"), QStringLiteral("KategID"), {}, {}},
        {QStringLiteral("tbl_Sub_Categories"), QStringLiteral("SubKategID"), {}, {}},
        {QStringLiteral("tbl_Contacts"), QStringLiteral("ContactID"), {}, QStringLiteral("ContactID")},
        {QStringLiteral("tbl_Phones"), QStringLiteral("PhoneID"), {}, QStringLiteral("ContactID")},
        {QStringLiteral("tbl_HomePages"), QStringLiteral("HomeID"), {}, QStringLiteral("ContactID")},
    };
    return tables;
}

void addHistory(Connection& connection)
{
    // The values keep the type they had (no affinity): a date stays the text it was, a number a number.
    connection.execute(QStringLiteral(
        "CREATE TABLE IF NOT EXISTS tbl_History (HistoryID INTEGER PRIMARY KEY, ChangedAt TEXT NOT NULL, "
        "Who TEXT, Command TEXT, TableName TEXT NOT NULL, RowKey INTEGER, Change TEXT NOT NULL, "
        "ColumnName TEXT, OldValue, NewValue, RastasID INTEGER, ContactID INTEGER)"));
    connection.execute(QStringLiteral("CREATE INDEX IF NOT EXISTS idx_History_RastasID ON tbl_History "
                                      "(RastasID, HistoryID) WHERE RastasID IS NOT NULL"));
    connection.execute(QStringLiteral("CREATE INDEX IF NOT EXISTS idx_History_ContactID ON tbl_History "
                                      "(ContactID, HistoryID) WHERE ContactID IS NOT NULL"));
    connection.execute(QStringLiteral("CREATE TABLE IF NOT EXISTS tbl_Write_Context (ContextID INTEGER "
                                      "PRIMARY KEY CHECK (ContextID = 1), Who TEXT, Command TEXT)"));
    for (const HistoryTable& table : historyTables())
        recreateHistoryTriggers(connection, table);
}

void addServerHistory(Connection& connection)
{
    connection.execute(QStringLiteral(
        "CREATE TABLE IF NOT EXISTS \"tbl_History\" (\"HistoryID\" bigint GENERATED BY DEFAULT AS IDENTITY "
        "PRIMARY KEY, \"ChangedAt\" text NOT NULL, \"Who\" text, \"Command\" text, \"TableName\" text NOT "
        "NULL, \"RowKey\" bigint, \"Change\" text NOT NULL, \"ColumnName\" text, \"OldValue\" text, "
        "\"NewValue\" text, \"RastasID\" bigint, \"ContactID\" bigint)"));
    connection.execute(
        QStringLiteral("CREATE INDEX IF NOT EXISTS \"idx_History_RastasID\" ON \"tbl_History\" "
                       "(\"RastasID\", \"HistoryID\") WHERE \"RastasID\" IS NOT NULL"));
    connection.execute(
        QStringLiteral("CREATE INDEX IF NOT EXISTS \"idx_History_ContactID\" ON \"tbl_History\" "
                       "(\"ContactID\", \"HistoryID\") WHERE \"ContactID\" IS NOT NULL"));
    // One function for every table: the row as JSON, each column whose text differs before
    // and after. The program's connections set kartella.who and kartella.command in their
    // transaction; a session without them is another program, known by its role alone.
    connection.execute(QStringLiteral(
        "CREATE OR REPLACE FUNCTION \"trg_History\"() RETURNS trigger LANGUAGE plpgsql AS $$ "
        "DECLARE before_row jsonb; after_row jsonb; present jsonb; BEGIN "
        "IF TG_OP <> 'INSERT' THEN before_row := to_jsonb(OLD); END IF; "
        "IF TG_OP <> 'DELETE' THEN after_row := to_jsonb(NEW); END IF; "
        "present := COALESCE(after_row, before_row); "
        "INSERT INTO \"tbl_History\" (\"ChangedAt\", \"Who\", \"Command\", \"TableName\", \"RowKey\", "
        "\"Change\", \"ColumnName\", \"OldValue\", \"NewValue\", \"RastasID\", \"ContactID\") "
        "SELECT to_char(clock_timestamp() AT TIME ZONE 'UTC', 'YYYY-MM-DD HH24:MI:SS.MS'), session_user, "
        "CASE WHEN COALESCE(current_setting('kartella.who', true), '') <> '' "
        "THEN COALESCE(current_setting('kartella.command', true), '') END, "
        "TG_TABLE_NAME, (present ->> TG_ARGV[0])::bigint, lower(TG_OP), k.key, before_row ->> k.key, "
        "after_row ->> k.key, (present ->> NULLIF(TG_ARGV[1], ''))::bigint, "
        "(present ->> NULLIF(TG_ARGV[2], ''))::bigint "
        "FROM jsonb_object_keys(present) AS k(key) "
        "WHERE k.key <> TG_ARGV[0] AND (before_row ->> k.key) IS DISTINCT FROM (after_row ->> k.key); "
        "RETURN NULL; END $$"));
    for (const HistoryTable& table : historyTables()) {
        connection.execute(
            QStringLiteral("DROP TRIGGER IF EXISTS \"trg_History\" ON \"%1\"").arg(table.name));
        connection.execute(
            QStringLiteral("CREATE TRIGGER \"trg_History\" AFTER INSERT OR UPDATE OR DELETE ON \"%1\" FOR "
                           "EACH ROW EXECUTE FUNCTION \"trg_History\"('%2', '%3', '%4')")
                .arg(table.name, table.key, table.documentKey, table.contactKey));
    }
}

void pauseHistory(Connection& connection)
{
    if (!registerHasHistory(connection))
        return;
    const bool server = connection.dialect() == SqlDialect::PostgreSql;
    for (const HistoryTable& table : historyTables()) {
        if (server)
            connection.execute(
                QStringLiteral("ALTER TABLE \"%1\" DISABLE TRIGGER \"trg_History\"").arg(table.name));
        else
            dropSqliteTriggers(connection, table);
    }
}

void resumeHistory(Connection& connection)
{
    if (!registerHasHistory(connection))
        return;
    const bool server = connection.dialect() == SqlDialect::PostgreSql;
    for (const HistoryTable& table : historyTables()) {
        if (server)
            connection.execute(
                QStringLiteral("ALTER TABLE \"%1\" ENABLE TRIGGER \"trg_History\"").arg(table.name));
        else
            recreateHistoryTriggers(connection, table);
    }
}

void recreateHistoryTriggers(Connection& connection, const HistoryTable& table)
{
    // A server's trigger reads whatever columns the row has.
    if (connection.dialect() == SqlDialect::PostgreSql)
        return;
    dropSqliteTriggers(connection, table);
    createSqliteTriggers(connection, table);
}

} // namespace kartella
