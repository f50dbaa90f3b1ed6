// The trash's items: listing them, putting them back and deleting them for good.
#include "history/Trash.h"
#include "history/TrashParts.h"
#include "store/engine/Connection.h"
#include "store/engine/Recordset.h"
#include "store/engine/WriteContext.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QJsonDocument>

namespace kartella {

using namespace trash;

namespace {

const QString ItemColumns
    = QStringLiteral("SELECT TrashID, Kind, ItemKey, ItemIndex, Title, DeletedBy, DeletedAt FROM tbl_Trash");

QString textField(const Recordset& rows, const QString& name)
{
    const QVariant value = rows.collect(name);
    return isNull(value) ? QString() : value.toString();
}

QList<TrashItem> readItems(Connection& connection, const QString& sql)
{
    QList<TrashItem> items;
    Recordset rows;
    rows.open(sql, connection, CursorTypeEnum::Static, LockTypeEnum::Unspecified);
    while (!rows.eof()) {
        items.append({rows.collect(QStringLiteral("TrashID")).toLongLong(),
            textField(rows, QStringLiteral("Kind")), rows.collect(QStringLiteral("ItemKey")).toLongLong(),
            textField(rows, QStringLiteral("ItemIndex")), textField(rows, QStringLiteral("Title")),
            textField(rows, QStringLiteral("DeletedBy")),
            QDateTime::fromString(textField(rows, QStringLiteral("DeletedAt")), Qt::ISODate)});
        rows.moveNext();
    }
    rows.close();
    return items;
}

QJsonObject filesObject(const QString& json)
{
    return QJsonDocument::fromJson(json.toUtf8()).object();
}

// Gives the row of rows whose key is key the value for column.
void setColumn(
    QList<TableRows>& tables, const QString& table, qint64 key, const QString& column, const QString& value)
{
    for (TableRows& rows : tables) {
        if (rows.table != table)
            continue;
        for (qsizetype i = 0; i < rows.rows.size(); ++i) {
            QJsonObject row = rows.rows[i].toObject();
            if (keyOf(row, rows.key) == key) {
                row.insert(column, value);
                rows.rows[i] = row;
            }
        }
    }
}

} // namespace

QList<TrashItem> Trash::items()
{
    return readItems(m_connection, ItemColumns + QStringLiteral(" ORDER BY TrashID DESC"));
}

qint64 Trash::findDocument(const QString& registrationIndex)
{
    const QList<TrashItem> found = readItems(m_connection,
        ItemColumns
            + QStringLiteral(" WHERE Kind=%1 AND ItemIndex=%2 ORDER BY TrashID DESC")
                  .arg(quoted(TrashKind::Document), quoted(registrationIndex)));
    return found.isEmpty() ? 0 : found.first().id;
}

TrashItem Trash::item(qint64 itemId)
{
    const QList<TrashItem> found
        = readItems(m_connection, ItemColumns + QStringLiteral(" WHERE TrashID=") + QString::number(itemId));
    if (found.isEmpty())
        throw gone(QCoreApplication::translate("kartella::Trash",
            "The deleted item is no longer in the register: another user may have deleted it."));
    return found.first();
}

bool Trash::rowExists(const QString& table, const QString& key, qint64 value)
{
    Recordset row;
    row.open(QStringLiteral("SELECT COUNT(*) AS N FROM %1 WHERE %2=%3").arg(table, key).arg(value),
        m_connection, CursorTypeEnum::Static, LockTypeEnum::Unspecified);
    const bool there = row.collect(QStringLiteral("N")).toInt() > 0;
    row.close();
    return there;
}

RestoreOutcome Trash::restore(qint64 itemId)
{
    // The history records what comes back as the restore's, whoever asked for it.
    const CommandScope command(QStringLiteral("Restore"));
    RestoreOutcome outcome;
    QList<QPair<QString, QString>> moved;
    QStringList emptied;
    try {
        Transaction transaction(m_connection);
        restoreInside(itemId, outcome, moved);
        transaction.commit();
    } catch (...) {
        moveBack(moved);
        throw;
    }
    // The folders the files left behind.
    for (const auto& [stored, target] : std::as_const(moved))
        QDir().rmdir(QFileInfo(stored).absolutePath());
    return outcome;
}

void Trash::restoreInside(qint64 itemId, RestoreOutcome& outcome, QList<QPair<QString, QString>>& moved)
{
    const TrashItem restored = item(itemId);
    Recordset stored;
    stored.open(
        QStringLiteral("SELECT ItemRows, ItemFiles FROM tbl_Trash WHERE TrashID=") + QString::number(itemId),
        m_connection, CursorTypeEnum::Static, LockTypeEnum::Unspecified);
    QList<TableRows> rows = rowsFromJson(stored.collect(QStringLiteral("ItemRows")).toString().toUtf8());
    const QJsonObject files = filesObject(stored.collect(QStringLiteral("ItemFiles")).toString());
    stored.close();
    // The item leaves the trash first, so that a category it brings back doesn't bring it
    // back a second time.
    m_connection.execute(QStringLiteral("DELETE FROM tbl_Trash WHERE TrashID=") + QString::number(itemId));
    restoreCategoryOf(rows, outcome, moved);

    QList<QPair<QString, QString>> toMove;
    if (m_folder.isEmpty() && !files.value(QStringLiteral("files")).toArray().isEmpty())
        throw Error(ErrorNumber::PathFileAccess,
            QCoreApplication::translate("kartella::Trash",
                "No folder is named for the trash of this register: the files of \"%1\" can't be put back.")
                .arg(restored.title));
    for (const QJsonValue& value : files.value(QStringLiteral("files")).toArray()) {
        const QJsonObject file = value.toObject();
        const QString path = file.value(QStringLiteral("path")).toString();
        const QString from = QDir(m_folder).filePath(file.value(QStringLiteral("stored")).toString());
        if (!QFileInfo::exists(from))
            throw Error(ErrorNumber::PathFileAccess,
                QCoreApplication::translate(
                    "kartella::Trash", "The file of \"%1\" is missing from the trash:\n%2")
                    .arg(restored.title, QDir::toNativeSeparators(from)));
        const QString target = freePath(path);
        if (target != path) {
            outcome.renamed.append({path, target});
            setColumn(rows, file.value(QStringLiteral("table")).toString(),
                file.value(QStringLiteral("key")).toInteger(),
                file.value(QStringLiteral("column")).toString(), target);
        }
        toMove.append({from, target});
    }
    for (const TableRows& table : std::as_const(rows))
        insertRows(m_connection, table);
    for (const auto& [from, target] : std::as_const(toMove)) {
        if (!moveFile(from, target))
            throw Error(ErrorNumber::PathFileAccess,
                QCoreApplication::translate("kartella::Trash", "The file could not be put back:\n%1")
                    .arg(QDir::toNativeSeparators(target)));
        moved.append({from, target});
    }
    outcome.restored.append(restored);
}

void Trash::restoreCategoryOf(
    const QList<TableRows>& rows, RestoreOutcome& outcome, QList<QPair<QString, QString>>& moved)
{
    // What a row names that the trash holds: a category, a subcategory, a related document's
    // document.
    struct Owner
    {
        QString table;
        QString column;
        QString ownerTable;
        QString kind;
    };
    const Owner owners[] = {
        {QStringLiteral("tbl_Documents"), QStringLiteral("KategID"),
            QStringLiteral("tbl_Document_Categories"), TrashKind::Category},
        {QStringLiteral("tbl_Documents"), QStringLiteral("SubKategID"), QStringLiteral("tbl_Sub_Categories"),
            TrashKind::SubCategory},
        {QStringLiteral("tbl_Sub_Categories"), QStringLiteral("KategID"),
            QStringLiteral("tbl_Document_Categories"), TrashKind::Category},
        {QStringLiteral("tbl_Sub_Documents"), QStringLiteral("RastasID"), QStringLiteral("tbl_Documents"),
            TrashKind::Document},
    };
    for (const Owner& owner : owners) {
        const TableRows* table = rowsOf(rows, owner.table);
        if (!table)
            continue;
        for (const QJsonValue& value : table->rows) {
            const QVariant key = valueFromJson(value.toObject().value(owner.column));
            if (isNull(key))
                continue;
            const QString ownerKey = owner.ownerTable == QLatin1String("tbl_Documents")
                ? QStringLiteral("RastasID")
                : owner.ownerTable == QLatin1String("tbl_Sub_Categories") ? QStringLiteral("SubKategID")
                                                                          : QStringLiteral("KategID");
            if (rowExists(owner.ownerTable, ownerKey, key.toLongLong()))
                continue;
            const QList<TrashItem> found = readItems(m_connection,
                ItemColumns
                    + QStringLiteral(" WHERE Kind=%1 AND ItemKey=%2 ORDER BY TrashID DESC")
                          .arg(quoted(owner.kind))
                          .arg(key.toLongLong()));
            if (!found.isEmpty())
                restoreInside(found.first().id, outcome, moved);
        }
    }
}

void Trash::deleteForGood(qint64 itemId)
{
    item(itemId);
    removeItems(QStringLiteral("TrashID=") + QString::number(itemId));
}

void Trash::empty()
{
    removeItems(QStringLiteral("TrashID>0"));
}

int Trash::purgeOlderThan(int days, const QDateTime& nowUtc)
{
    const QString before = nowUtc.toUTC().addDays(-days).toString(Qt::ISODate);
    return removeItems(QStringLiteral("DeletedAt<") + quoted(before));
}

int Trash::removeItems(const QString& where)
{
    Transaction transaction(m_connection);
    Recordset stored;
    stored.open(QStringLiteral("SELECT TrashID, Kind, ItemKey, ItemFiles FROM tbl_Trash WHERE ") + where,
        m_connection, CursorTypeEnum::Static, LockTypeEnum::Unspecified);
    QStringList folders;
    QStringList versionFolders;
    QList<qint64> ids;
    while (!stored.eof()) {
        ids << stored.collect(QStringLiteral("TrashID")).toLongLong();
        // A document gone for good takes its earlier files with it.
        if (!m_versionsFolder.isEmpty()
            && stored.collect(QStringLiteral("Kind")).toString() == TrashKind::Document)
            versionFolders
                << QDir(m_versionsFolder).filePath(stored.collect(QStringLiteral("ItemKey")).toString());
        folders << filesObject(stored.collect(QStringLiteral("ItemFiles")).toString())
                       .value(QStringLiteral("folder"))
                       .toString();
        stored.moveNext();
    }
    stored.close();
    for (qint64 id : std::as_const(ids))
        m_connection.execute(QStringLiteral("DELETE FROM tbl_Trash WHERE TrashID=") + QString::number(id));
    transaction.commit();
    // The rows are gone for good; their files follow.
    for (const QString& folder : std::as_const(versionFolders))
        QDir(folder).removeRecursively();
    if (!m_folder.isEmpty()) {
        for (const QString& folder : std::as_const(folders)) {
            if (!folder.isEmpty())
                QDir(QDir(m_folder).filePath(folder)).removeRecursively();
        }
    }
    return int(ids.size());
}

} // namespace kartella
