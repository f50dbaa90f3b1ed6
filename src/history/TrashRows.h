#pragma once

#include <QJsonArray>
#include <QJsonObject>
#include <QJsonValue>
#include <QString>
#include <QStringList>
#include <QVariant>

namespace kartella {

class Connection;

// A database value as JSON and back, the type kept, so that a restored row holds what the
// deleted one held: text as a string, a whole number as a number (exact up to 2^53), Null as
// null, and the rest tagged: {"date": "2024-03-08"}, {"datetime": ...}, {"real": 1.5},
// {"bytes": base64}.
QJsonValue valueToJson(const QVariant& value);
QVariant valueFromJson(const QJsonValue& json);

// The rows of one table that a delete takes away, each as an object of column to value.
struct TableRows
{
    QString table;
    QString key; // the key column
    QJsonArray rows;
};

// Reads the rows of table whose column `where` holds one of keys (every column of them).
TableRows readRows(Connection& connection, const QString& table, const QString& key, const QString& where,
    const QList<qint64>& keys);

// Deletes the rows read by readRows.
void deleteRows(Connection& connection, const TableRows& rows);

// Writes the rows back with the keys and values they had.
void insertRows(Connection& connection, const TableRows& rows);

// The rows of several tables as one JSON document, and back.
QByteArray rowsToJson(const QList<TableRows>& tables);
QList<TableRows> rowsFromJson(const QByteArray& json);

} // namespace kartella
