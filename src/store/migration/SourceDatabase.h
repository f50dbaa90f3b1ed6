#pragma once

#include <QList>
#include <QString>
#include <QStringList>
#include <QVariant>

#include <optional>

namespace kartella::migration {

// One table of an old register as its reader gives it: the column names in the file's
// order and every row, each value a QString in the reader's text form (dates as
// "yyyy-MM-dd HH:mm:ss", truth values as 1/0) or a null QVariant for Null.
struct SourceTable
{
    QString name;
    QStringList columns;
    QList<QVariantList> rows;
    // The row count the file keeps of the table, or -1 when the reader doesn't know one.
    int statedRows = -1;
};

// An old register opened for reading.
class SourceDatabase
{
public:
    virtual ~SourceDatabase() = default;
    // The names of the user tables, in the file's order.
    virtual QStringList tableNames() = 0;
    // The whole table, or nothing when the file has no table of that name (matched
    // without regard to case). Throws kartella::Error when the file can't be read.
    virtual std::optional<SourceTable> readTable(const QString& name) = 0;
};

} // namespace kartella::migration
