#pragma once

#include "store/migration/SourceDatabase.h"

#include <QList>
#include <QString>
#include <QVariant>

namespace kartella::migration {

enum class FieldKind { Integer, Text, Date };

struct FieldMapping
{
    QString name;
    FieldKind kind;
};

// A register table and its fields, the key first.
struct TableMapping
{
    QString table;
    QList<FieldMapping> fields;
    QStringList fieldNames() const;
};

// Every table of the register, parents before their children.
const QList<TableMapping>& registerTables();

// A reader's value converted for a field: a number for Integer, a QDate for a date at
// midnight, the stored date text ("yyyy-MM-dd HH:mm:ss") for a date with a time, text as
// it stands. Null stays Null. Gives an invalid QVariant and sets problem when the value
// doesn't fit the field.
QVariant convertValue(const QVariant& raw, FieldKind kind, QString& problem);

// Where the table's fields sit among the source's columns (matched without regard to
// case); -1 for a field the source lacks.
QList<int> columnPositions(const TableMapping& mapping, const QStringList& sourceColumns);

// The source's columns that no field of the table takes.
QStringList unmappedColumns(const TableMapping& mapping, const QStringList& sourceColumns);

// One source row as the values of the table's fields, in their order; a field the
// source lacks gets Null. Throws kartella::Error naming the table, the row's key and the
// field when a value doesn't fit.
QVariantList mapRow(const TableMapping& mapping, const QList<int>& positions, const QVariantList& row);

} // namespace kartella::migration
