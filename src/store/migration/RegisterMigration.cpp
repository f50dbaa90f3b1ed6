#include "store/migration/RegisterMigration.h"

#include "history/HistorySchema.h"
#include "store/InsertBatch.h"
#include "store/Store.h"
#include "store/StoreText.h"
#include "store/engine/Connection.h"
#include "store/engine/Recordset.h"
#include "store/migration/TableMapping.h"

#include <QFileInfo>

namespace kartella::migration {

namespace {

int countRows(Connection& connection, const QString& table)
{
    Recordset count;
    count.open(QStringLiteral("SELECT COUNT(*) AS N FROM ") + table, connection);
    return int(count.fields(QStringLiteral("N")).value().toLongLong());
}

TableReport copyTable(SourceDatabase& source, Connection& connection, const TableMapping& mapping)
{
    TableReport report;
    report.table = mapping.table;
    const std::optional<SourceTable> table = source.readTable(mapping.table);
    if (!table) {
        report.missing = true;
        return report;
    }
    const QList<int> positions = columnPositions(mapping, table->columns);
    for (int i = 0; i < positions.size(); ++i) {
        if (positions.at(i) < 0)
            report.missingFields << mapping.fields.at(i).name;
    }
    report.extraColumns = unmappedColumns(mapping, table->columns);
    report.read = int(table->rows.size());
    report.stated = table->statedRows;

    InsertBatch batch(connection, mapping.table, mapping.fieldNames());
    for (const QVariantList& row : table->rows)
        batch.add(mapRow(mapping, positions, row));
    batch.flush();
    report.written = countRows(connection, mapping.table);
    return report;
}

} // namespace

bool MigrationReport::complete() const
{
    for (const TableReport& table : tables) {
        if (!table.complete())
            return false;
    }
    return true;
}

QStringList MigrationReport::lines() const
{
    QStringList lines;
    for (const TableReport& table : tables) {
        if (table.missing) {
            lines << kartella::StoreText::tr("%1: missing from the old file").arg(table.table);
            continue;
        }
        lines << kartella::StoreText::tr("%1: %2 read, %3 written")
                     .arg(table.table, QString::number(table.read), QString::number(table.written));
        if (table.stated >= 0 && table.stated != table.read)
            lines << kartella::StoreText::tr("  the old file counts %1 rows in this table").arg(table.stated);
        if (!table.missingFields.isEmpty())
            lines << kartella::StoreText::tr("  fields missing from the old file (left empty): %1")
                         .arg(table.missingFields.join(QStringLiteral(", ")));
        if (!table.extraColumns.isEmpty())
            lines << kartella::StoreText::tr("  fields of the old file not migrated: %1")
                         .arg(table.extraColumns.join(QStringLiteral(", ")));
    }
    if (!otherTables.isEmpty())
        lines << kartella::StoreText::tr("Other tables of the old file, not migrated: %1")
                     .arg(otherTables.join(QStringLiteral(", ")));
    return lines;
}

MigrationReport migrateRegister(SourceDatabase& source, const QString& registerPath)
{
    MigrationReport report;
    const QStringList sourceTables = source.tableNames();
    const QList<TableMapping>& mappings = registerTables();
    for (const QString& name : sourceTables) {
        bool known = false;
        for (const TableMapping& mapping : mappings)
            known = known || mapping.table.compare(name, Qt::CaseInsensitive) == 0;
        if (!known)
            report.otherTables << name;
    }

    Connection connection;
    connection.open(plainConnectionString(QStringLiteral("Microsoft.Jet.OLEDB.4.0"),
        isServerLocation(registerPath) ? registerPath : QFileInfo(registerPath).absoluteFilePath()));
    connection.beginTrans();
    try {
        // The old register's rows are no one's change in this one.
        pauseHistory(connection);
        for (const TableMapping& mapping : mappings)
            report.tables << copyTable(source, connection, mapping);
        resumeHistory(connection);
        connection.commitTrans();
    } catch (...) {
        connection.rollbackTrans();
        throw;
    }
    connection.close();
    return report;
}

} // namespace kartella::migration
