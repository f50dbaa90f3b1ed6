#pragma once

#include "store/engine/Backend.h"

#include <QDateTime>
#include <QString>

namespace kartella::engine {

// What both back ends do alike around a query.

// A name in double quotes, a double quote inside doubled.
QString quotedName(const QString& name);

// Whether a SELECT may have the row key added to its columns: a plain one, with no
// grouping, DISTINCT or compound part.
bool acceptsHiddenKey(const QString& sql);

// The one table every column of the result comes from, or an empty text when the columns
// come from several tables or from expressions.
QString singleSourceTable(const std::vector<ColumnInfo>& columns);

// An update found no row with the key: ErrorNumber::RowDeleted.
[[noreturn]] void failRowGone(const TableSchema& table, const QString& keyName, const QVariant& key);

// An update found the row with the key, but not with the values its columns were read with:
// ErrorNumber::RowChanged.
[[noreturn]] void failRowChanged(const TableSchema& table, const QString& keyName, const QVariant& key);

// Whether a value stands for Null.
inline bool isNullValue(const QVariant& value)
{
    return !value.isValid() || value.isNull();
}

// A date and time as an original to compare with: to the millisecond, as it was read.
QString originalDateTimeText(const QDateTime& dateTime);

// A wait as a message tells it: "10 seconds", "1 second", "0.5 seconds".
QString waitText(int milliseconds);

// Sets the result's key column and name when the table's key is among its visible columns.
void findKeyColumn(QueryResult& result, const TableSchema& schema);

// Whether a statement inserts, updates or deletes rows of the register (and so is recorded
// in the history); a write to a temporary table named temp.name is not one.
bool writesRows(const QString& sql);

} // namespace kartella::engine
