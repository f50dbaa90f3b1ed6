#include "history/HistoryLog.h"

#include "history/Trash.h"
#include "store/SchemaSteps.h"
#include "store/engine/Backend.h"
#include "store/engine/Connection.h"

#include <QTimeZone>

namespace kartella {

namespace {

// The schema step that made the history.
constexpr int HistoryStep = 9;

const QString Columns
    = QStringLiteral("SELECT HistoryID, ChangedAt, Who, Command, TableName, RowKey, Change, "
                     "ColumnName, OldValue, NewValue, RastasID, ContactID FROM tbl_History");

QDateTime utcTime(const QVariant& value)
{
    if (value.typeId() == QMetaType::QDateTime) {
        QDateTime time = value.toDateTime();
        time.setTimeZone(QTimeZone::utc());
        return time;
    }
    QDateTime time = QDateTime::fromString(value.toString(), QStringLiteral("yyyy-MM-dd HH:mm:ss.zzz"));
    if (!time.isValid())
        time = QDateTime::fromString(value.toString(), Qt::ISODateWithMs);
    time.setTimeZone(QTimeZone::utc());
    return time;
}

std::vector<HistoryEntry> read(Connection& connection, const QString& where)
{
    if (!registerHasHistory(connection))
        return {};
    const engine::QueryResult result
        = connection.backend().query(Columns + where + QStringLiteral(" ORDER BY HistoryID DESC"));
    const engine::RowStore& rows = result.rows;
    std::vector<HistoryEntry> entries;
    entries.reserve(std::size_t(rows.rowCount()));
    for (int row = 0; row < rows.rowCount(); ++row) {
        HistoryEntry entry;
        entry.id = rows.value(row, 0).toLongLong();
        entry.changedAt = utcTime(rows.value(row, 1));
        entry.who = rows.value(row, 2).toString();
        const QVariant command = rows.value(row, 3);
        entry.command = command.toString();
        entry.anotherProgram = command.isNull();
        entry.table = rows.value(row, 4).toString();
        entry.rowKey = rows.value(row, 5).toLongLong();
        entry.change = rows.value(row, 6).toString();
        entry.column = rows.value(row, 7).toString();
        entry.before = rows.value(row, 8);
        entry.after = rows.value(row, 9);
        entry.documentId = rows.value(row, 10).toLongLong();
        entry.contactId = rows.value(row, 11).toLongLong();
        entries.push_back(std::move(entry));
    }
    return entries;
}

} // namespace

bool registerHasHistory(Connection& connection)
{
    return schemaVersion(connection) >= HistoryStep;
}

std::vector<HistoryEntry> documentHistory(Connection& connection, qint64 documentId)
{
    return read(connection, QStringLiteral(" WHERE RastasID = ") + QString::number(documentId));
}

std::vector<HistoryEntry> contactHistory(Connection& connection, qint64 contactId)
{
    return read(connection, QStringLiteral(" WHERE ContactID = ") + QString::number(contactId));
}

std::vector<HistoryEntry> registerHistory(Connection& connection)
{
    return read(connection, {});
}

qint64 documentWithRegIndex(Connection& connection, const QString& regIndex)
{
    QString quoted = regIndex;
    quoted.replace(u'\'', QStringLiteral("''"));
    const engine::QueryResult result = connection.backend().query(
        QStringLiteral("SELECT RastasID FROM tbl_Documents WHERE DokRegistracIndeksas = '") + quoted
        + QStringLiteral("' ORDER BY RastasID"));
    if (result.rows.rowCount() > 0)
        return result.rows.value(0, 0).toLongLong();
    if (!Trash::inRegister(connection))
        return 0;
    const engine::QueryResult deleted = connection.backend().query(QStringLiteral(
        "SELECT ItemKey FROM tbl_Trash WHERE Kind = '%1' AND ItemIndex = '%2' ORDER BY TrashID DESC")
                                                                       .arg(TrashKind::Document, quoted));
    return deleted.rows.rowCount() == 0 ? 0 : deleted.rows.value(0, 0).toLongLong();
}

} // namespace kartella
