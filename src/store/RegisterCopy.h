#pragma once

#include <QList>
#include <QString>
#include <QStringList>

#include <functional>

namespace kartella {

// One table of a register copy, its rows counted in both registers after the copying.
struct TableCopyCount
{
    QString table;
    qint64 sourceRows = 0;
    qint64 targetRows = 0;
    // Columns of the source table that the new register's table lacks (added by hand).
    QStringList columnsLeftOut;
    // Dates with a time of day written to a server register, which keeps the day only.
    qint64 timesOfDayDropped = 0;

    bool matches() const { return sourceRows == targetRows; }
};

struct RegisterCopyReport
{
    QList<TableCopyCount> tables;
    // Empty when the copy was kept; otherwise what became of the new register, for a copy
    // undone because a count differed.
    QString undone;

    bool complete() const;
    // One line per table, "tbl_Documents: 400 copied" or the two counts that differ, then
    // the columns left out and the times of day dropped.
    QStringList lines() const;
};

// Called as the rows of a table are written: the table, the rows written so far and the rows
// read from the source. An exception thrown from it stops the copy as any failure does.
using RegisterCopyProgress = std::function<void(const QString& table, qint64 written, qint64 rows)>;

// Copies a whole register from one location to a new one: each a register file or a server
// location (postgresql://user@host:port/db), in any of the four pairings. Every row of the
// eight tables goes over with its key and every column the new register has, and the
// counter of each table's keys with them (a new row gets no key a deleted one had); the search
// index of the new register is filled by its own triggers. A register on a server keeps
// dates without a time of day: a file's date with one arrives as its day, and the report
// counts them. `to` is made by createRegister,
// so a file there, or a server database holding tables, is refused and left as it is.
//
// A source of an older schema than this program's is refused (it is to be upgraded first),
// as is one that is not a register of Kartella's or made by a newer one.
//
// The rows go in one transaction on `to`, and the rows of each table are counted in both
// registers before it is committed. When a count differs nothing is kept and the report
// says so; a failure throws kartella::Error, also with nothing kept. Nothing kept means: a
// new register file is removed again, a server database is left as createRegister made it
// (the register's tables, without rows).
RegisterCopyReport copyRegister(
    const QString& from, const QString& to, const RegisterCopyProgress& progress = {});

} // namespace kartella
