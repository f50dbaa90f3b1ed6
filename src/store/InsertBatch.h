#pragma once

#include <QDate>
#include <QDateTime>
#include <QString>
#include <QStringList>
#include <QVariant>

namespace kartella {

class Connection;

// A value as a literal of Jet's dialect: Null, a number, 'text' with quotes doubled,
// #m/d/yyyy# for a date (#m/d/yyyy HH:mm:ss# with a time), -1/0 for a truth value.
QString sqlLiteral(const QVariant& value);

// Collects rows for one table and writes them as multi-row INSERT statements, a few
// hundred rows at a time, through Connection::Execute.
class InsertBatch
{
public:
    InsertBatch(Connection& connection, QString table, const QStringList& fields, int rowsPerStatement = 400);
    ~InsertBatch();
    InsertBatch(const InsertBatch&) = delete;
    InsertBatch& operator=(const InsertBatch&) = delete;

    // One row, its values in the order of the fields.
    void add(const QVariantList& values);
    // Writes the rows collected so far.
    void flush();
    int rowsWritten() const { return m_written; }

private:
    Connection& m_connection;
    QString m_head;
    int m_fieldCount;
    int m_rowsPerStatement;
    QString m_sql;
    int m_pending = 0;
    int m_written = 0;
};

} // namespace kartella
