#pragma once

#include "store/migration/SourceDatabase.h"

#include <QList>
#include <QString>
#include <QStringList>

namespace kartella::migration {

// What became of one register table.
struct TableReport
{
    QString table;
    bool missing = false; // the old file has no such table
    QStringList missingFields; // fields of the table the old file lacks; they stay Null
    QStringList extraColumns; // columns of the old table that no field takes
    int stated = -1; // the row count the old file keeps, -1 when unknown
    int read = 0;
    int written = 0; // rows the new register holds afterwards

    bool complete() const
    {
        return !missing && missingFields.isEmpty() && extraColumns.isEmpty() && read == written
            && (stated < 0 || stated == read);
    }
};

struct MigrationReport
{
    QList<TableReport> tables;
    QStringList otherTables; // tables of the old file that aren't the register's

    // True only when every table, field and row arrived.
    bool complete() const;
    // One line per table ("tbl_Documents: 120 read, 120 written"), then what is missing.
    QStringList lines() const;
};

// Copies every register table of source into the empty register at registerPath (made by
// createRegister), keys kept, in one transaction: on a failure nothing is written and
// kartella::Error is thrown.
MigrationReport migrateRegister(SourceDatabase& source, const QString& registerPath);

} // namespace kartella::migration
