#include "history/TrashRows.h"

#include "base/Error.h"
#include "store/engine/Backend.h"
#include "store/engine/Connection.h"
#include "store/engine/Recordset.h"

#include <QCoreApplication>
#include <QDate>
#include <QDateTime>
#include <QJsonDocument>

namespace kartella {

QJsonValue valueToJson(const QVariant& value)
{
    if (isNull(value))
        return QJsonValue::Null;
    switch (value.typeId()) {
    case QMetaType::QString:
        return value.toString();
    case QMetaType::Int:
    case QMetaType::LongLong:
    case QMetaType::UInt:
    case QMetaType::ULongLong:
    case QMetaType::Short:
        return QJsonValue(value.toLongLong());
    case QMetaType::Bool:
        return value.toBool();
    case QMetaType::Double:
    case QMetaType::Float:
        return QJsonObject {{QStringLiteral("real"), value.toDouble()}};
    case QMetaType::QDate:
        return QJsonObject {{QStringLiteral("date"), value.toDate().toString(Qt::ISODate)}};
    case QMetaType::QDateTime:
        return QJsonObject {{QStringLiteral("datetime"), value.toDateTime().toString(Qt::ISODateWithMs)}};
    case QMetaType::QByteArray:
        return QJsonObject {{QStringLiteral("bytes"), QString::fromLatin1(value.toByteArray().toBase64())}};
    default:
        return value.toString();
    }
}

QVariant valueFromJson(const QJsonValue& json)
{
    if (json.isNull() || json.isUndefined())
        return {};
    if (json.isString())
        return json.toString();
    if (json.isBool())
        return json.toBool();
    if (json.isDouble())
        return json.toInteger();
    const QJsonObject tagged = json.toObject();
    if (tagged.contains(QStringLiteral("real")))
        return tagged.value(QStringLiteral("real")).toDouble();
    if (tagged.contains(QStringLiteral("date")))
        return QDate::fromString(tagged.value(QStringLiteral("date")).toString(), Qt::ISODate);
    if (tagged.contains(QStringLiteral("datetime")))
        return QDateTime::fromString(tagged.value(QStringLiteral("datetime")).toString(), Qt::ISODateWithMs);
    if (tagged.contains(QStringLiteral("bytes")))
        return QByteArray::fromBase64(tagged.value(QStringLiteral("bytes")).toString().toLatin1());
    return {};
}

namespace {

QString keyList(const QList<qint64>& keys)
{
    QStringList texts;
    for (qint64 key : keys)
        texts << QString::number(key);
    return texts.join(u',');
}

} // namespace

TableRows readRows(Connection& connection, const QString& table, const QString& key, const QString& where,
    const QList<qint64>& keys)
{
    TableRows read {table, key, {}};
    if (keys.isEmpty())
        return read;
    Recordset rows;
    rows.open(
        QStringLiteral("SELECT * FROM %1 WHERE %2 IN (%3) ORDER BY %4").arg(table, where, keyList(keys), key),
        connection, CursorTypeEnum::Static, LockTypeEnum::Unspecified);
    const QStringList names = rows.fieldNames();
    for (int row = 0; row < rows.recordCount(); ++row) {
        QJsonObject values;
        for (int column = 0; column < names.size(); ++column)
            values.insert(names[column], valueToJson(rows.rowValue(row, column)));
        read.rows.append(values);
    }
    rows.close();
    return read;
}

void deleteRows(Connection& connection, const TableRows& rows)
{
    QList<qint64> keys;
    for (const QJsonValue& row : rows.rows)
        keys << valueFromJson(row.toObject().value(rows.key)).toLongLong();
    if (keys.isEmpty())
        return;
    connection.execute(
        QStringLiteral("DELETE FROM %1 WHERE %2 IN (%3)").arg(rows.table, rows.key, keyList(keys)));
}

void insertRows(Connection& connection, const TableRows& rows)
{
    Backend& backend = connection.backend();
    const engine::TableSchema& schema = backend.tableSchema(rows.table);
    for (const QJsonValue& row : rows.rows) {
        const QJsonObject values = row.toObject();
        QStringList columns;
        QVariantList data;
        for (auto it = values.begin(); it != values.end(); ++it) {
            // A column the table no longer has (a later schema dropped it) stays behind.
            if (!schema.column(it.key()))
                continue;
            columns << schema.column(it.key())->name;
            data << valueFromJson(it.value());
        }
        backend.insertRow(schema, columns, data);
    }
}

QByteArray rowsToJson(const QList<TableRows>& tables)
{
    QJsonArray all;
    for (const TableRows& rows : tables) {
        if (rows.rows.isEmpty())
            continue;
        all.append(QJsonObject {{QStringLiteral("table"), rows.table}, {QStringLiteral("key"), rows.key},
            {QStringLiteral("rows"), rows.rows}});
    }
    return QJsonDocument(all).toJson(QJsonDocument::Compact);
}

QList<TableRows> rowsFromJson(const QByteArray& json)
{
    QJsonParseError error;
    const QJsonDocument document = QJsonDocument::fromJson(json, &error);
    if (error.error != QJsonParseError::NoError || !document.isArray())
        throw Error(ErrorNumber::CommandFailed,
            QCoreApplication::translate("kartella::Trash", "The rows of a deleted item could not be read: %1")
                .arg(error.errorString()));
    QList<TableRows> tables;
    for (const QJsonValue& table : document.array()) {
        const QJsonObject object = table.toObject();
        tables.append({object.value(QStringLiteral("table")).toString(),
            object.value(QStringLiteral("key")).toString(), object.value(QStringLiteral("rows")).toArray()});
    }
    return tables;
}

} // namespace kartella
