#include "store/RegisterCopy.h"

#include "base/Error.h"
#include "history/HistorySchema.h"
#include "store/InsertBatch.h"
#include "store/Schema.h"
#include "store/SchemaSteps.h"
#include "store/Store.h"
#include "store/StoreText.h"
#include "store/engine/Connection.h"
#include "store/engine/Recordset.h"
#include "store/migration/TableMapping.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

namespace kartella {

namespace {

const QString JetProvider = QStringLiteral("Microsoft.Jet.OLEDB.4.0");

// How often the progress hears of a table's rows.
constexpr qint64 ProgressStep = 5000;

QString shown(const QString& location)
{
    return isServerLocation(location) ? location : QDir::toNativeSeparators(location);
}

void requireNewestSchema(Connection& source, const QString& from)
{
    const int version = schemaVersion(source);
    const int newest = newestSchemaVersion();
    if (version <= 0)
        throw Error(ErrorNumber::CommandFailed,
            kartella::StoreText::tr(
                "\"%1\" is no Kartella register: it carries no schema version. Nothing was copied.")
                .arg(shown(from)));
    if (version < newest)
        throw Error(ErrorNumber::CommandFailed,
            kartella::StoreText::tr(
                "The register \"%1\" has an older form (schema version %2; this program's is %3). "
                "Bring it up to date with \"kartella-db upgrade\" first, then copy it. Nothing "
                "was copied.")
                .arg(shown(from))
                .arg(version)
                .arg(newest));
    if (version > newest)
        throw Error(ErrorNumber::CommandFailed,
            kartella::StoreText::tr(
                "The register \"%1\" was made by a newer Kartella (schema version %2; this program "
                "knows versions up to %3). Nothing was copied.")
                .arg(shown(from))
                .arg(version)
                .arg(newest));
}

qint64 countRows(Connection& connection, const QString& table)
{
    Recordset count;
    count.open(QStringLiteral("SELECT COUNT(*) AS N FROM ") + table, connection);
    const qint64 rows = count.fields(QStringLiteral("N")).value().toLongLong();
    count.close();
    return rows;
}

QStringList columnsOf(Connection& connection, const QString& table)
{
    Recordset none;
    none.open(QStringLiteral("SELECT * FROM ") + table + QStringLiteral(" WHERE 1 = 0"), connection);
    const QStringList names = none.fieldNames();
    none.close();
    return names;
}

// The register's records of its own past, copied after its tables: the history of changes
// and the trash (both of the newest schema, which a copy's source has).
const QList<migration::TableMapping>& keptRecordTables()
{
    static const QList<migration::TableMapping> tables = {
        {QStringLiteral("tbl_History"), {{QStringLiteral("HistoryID"), migration::FieldKind::Integer}}},
        {QStringLiteral("tbl_Trash"), {{QStringLiteral("TrashID"), migration::FieldKind::Integer}}},
    };
    return tables;
}

// The rows of one table, in the order of their keys, written with their keys.
TableCopyCount copyTable(Connection& source, Connection& target, const migration::TableMapping& mapping,
    const RegisterCopyProgress& progress)
{
    TableCopyCount count;
    count.table = mapping.table;
    const QString key = mapping.fields.first().name;
    const QStringList targetColumns = columnsOf(target, mapping.table);
    QStringList columns;
    for (const QString& column : columnsOf(source, mapping.table)) {
        if (targetColumns.contains(column, Qt::CaseInsensitive))
            columns << column;
        else
            count.columnsLeftOut << column;
    }
    if (!columns.contains(key, Qt::CaseInsensitive))
        throw Error(ErrorNumber::CommandFailed,
            kartella::StoreText::tr("The table %1 of the source has no key column %2.")
                .arg(mapping.table, key));

    // The date fields, when the target keeps days only.
    QList<bool> dayOnly;
    const bool serverTarget = target.dialect() == SqlDialect::PostgreSql;
    for (const QString& column : std::as_const(columns)) {
        bool date = false;
        for (const migration::FieldMapping& field : mapping.fields)
            date = date
                || (field.kind == migration::FieldKind::Date
                    && field.name.compare(column, Qt::CaseInsensitive) == 0);
        dayOnly << (serverTarget && date);
    }

    Recordset rows;
    rows.open(QStringLiteral("SELECT ") + columns.join(QStringLiteral(", ")) + QStringLiteral(" FROM ")
            + mapping.table + QStringLiteral(" ORDER BY ") + key,
        source);
    const int total = rows.recordCount();
    InsertBatch batch(target, mapping.table, columns);
    QVariantList values;
    for (int row = 0; row < total; ++row) {
        values.clear();
        for (int column = 0; column < columns.size(); ++column) {
            QVariant value = rows.rowValue(row, column);
            // A register holds no binary data; written as text it would not be the same value.
            if (value.typeId() == QMetaType::QByteArray)
                throw Error(ErrorNumber::TypeMismatch,
                    kartella::StoreText::tr(
                        "%1, row %2, field %3 holds binary data, which a register doesn't keep.")
                        .arg(mapping.table, rows.rowValue(row, int(columns.indexOf(key))).toString(),
                            columns.at(column)));
            if (dayOnly.at(column) && value.typeId() == QMetaType::QDateTime) {
                value = value.toDateTime().date();
                ++count.timesOfDayDropped;
            }
            values << value;
        }
        batch.add(values);
        if (progress && (row + 1) % ProgressStep == 0)
            progress(mapping.table, row + 1, total);
    }
    batch.flush();
    rows.close();
    // The keys of rows deleted from the source's end stay used: no new row gets one of
    // them, nor the reminders or related rows that may still point at it.
    target.raiseKeyCounter(mapping.table, source.keyCounter(mapping.table));
    if (progress)
        progress(mapping.table, total, total);

    count.sourceRows = countRows(source, mapping.table);
    count.targetRows = countRows(target, mapping.table);
    return count;
}

void rollbackQuietly(Connection& connection)
{
    try {
        connection.rollbackTrans();
    } catch (const Error&) {
        // The transaction is gone already (a lost server ends it, a closed file never commits it).
    }
}

// Takes back what the copy made at `to`; gives the sentence that tells the user.
QString undoTarget(const QString& to)
{
    if (isServerLocation(to))
        return kartella::StoreText::tr(
            "Nothing was copied: the database \"%1\" holds the register's tables without rows.")
            .arg(to);
    if (QFile::remove(to))
        return kartella::StoreText::tr("Nothing was copied: the new register \"%1\" is removed again.")
            .arg(shown(to));
    return kartella::StoreText::tr(
        "Nothing was copied, but the new register \"%1\" could not be removed; delete it.")
        .arg(shown(to));
}

} // namespace

bool RegisterCopyReport::complete() const
{
    if (!undone.isEmpty())
        return false;
    for (const TableCopyCount& table : tables) {
        if (!table.matches())
            return false;
    }
    return true;
}

QStringList RegisterCopyReport::lines() const
{
    QStringList lines;
    for (const TableCopyCount& table : tables) {
        if (table.matches())
            lines << kartella::StoreText::tr("%1: %2 copied")
                         .arg(table.table, QString::number(table.sourceRows));
        else
            lines << kartella::StoreText::tr("%1: %2 in the source, %3 in the copy: the counts differ")
                         .arg(table.table, QString::number(table.sourceRows),
                             QString::number(table.targetRows));
        if (!table.columnsLeftOut.isEmpty())
            lines << kartella::StoreText::tr("  columns the new register lacks, not copied: %1")
                         .arg(table.columnsLeftOut.join(QStringLiteral(", ")));
        if (table.timesOfDayDropped > 0)
            lines << kartella::StoreText::tr(
                "  dates that lost their time of day (a register on a server keeps the day): %1")
                         .arg(table.timesOfDayDropped);
    }
    return lines;
}

RegisterCopyReport copyRegister(const QString& from, const QString& to, const RegisterCopyProgress& progress)
{
    // The source is opened and checked first, so a source that can't be copied leaves no new register.
    Connection source;
    source.open(plainConnectionString(
        JetProvider, isServerLocation(from) ? from : QFileInfo(from).absoluteFilePath()));
    requireNewestSchema(source, from);

    try {
        createRegister(to);
    } catch (const Error& error) {
        throw Error(error.number(),
            error.description() + u' '
                + kartella::StoreText::tr("A copy goes into a new register only. Nothing was copied."),
            error.source());
    }
    const QString target = isServerLocation(to) ? to : QFileInfo(to).absoluteFilePath();
    RegisterCopyReport report;
    bool counted = false;
    try {
        Connection connection;
        connection.open(plainConnectionString(JetProvider, target));
        connection.beginTrans();
        try {
            // The copied rows are no one's change: the source's history comes along as rows
            // of its own, with its trash.
            pauseHistory(connection);
            // Parents before their children: a new document's search text takes its contact's name.
            for (const migration::TableMapping& mapping : migration::registerTables())
                report.tables << copyTable(source, connection, mapping, progress);
            for (const migration::TableMapping& mapping : keptRecordTables())
                report.tables << copyTable(source, connection, mapping, progress);
            resumeHistory(connection);
            counted = true;
            // The engine moves a server's key generators past the copied keys as it commits.
            if (report.complete())
                connection.commitTrans();
            else
                connection.rollbackTrans();
        } catch (...) {
            rollbackQuietly(connection);
            throw;
        }
        connection.close();
    } catch (const Error& error) {
        throw Error(error.number(), error.description() + u' ' + undoTarget(target), error.source());
    } catch (...) {
        undoTarget(target);
        throw;
    }
    if (counted && !report.complete())
        report.undone = undoTarget(target);
    source.close();
    return report;
}

} // namespace kartella
