#pragma once

// The pieces the trash's delete and restore share.
#include "base/Error.h"
#include "history/TrashRows.h"
#include "store/engine/Connection.h"

#include <QList>
#include <QPair>
#include <QString>

namespace kartella::trash {

inline const QString TrashTable = QStringLiteral("tbl_Trash");

// The transaction of one delete or restore: rolled back unless committed.
class Transaction
{
public:
    explicit Transaction(Connection& connection)
        : m_connection(connection)
    {
        m_connection.beginTrans();
    }
    ~Transaction()
    {
        if (!m_done) {
            try {
                m_connection.rollbackTrans();
            } catch (const Error&) { }
        }
    }
    Transaction(const Transaction&) = delete;
    Transaction& operator=(const Transaction&) = delete;
    void commit()
    {
        m_done = true;
        m_connection.commitTrans();
    }

private:
    Connection& m_connection;
    bool m_done = false;
};

// A text as an SQL literal, quotes doubled.
QString quoted(const QString& text);
// Moves a file, across file systems too; makes the target's folder.
bool moveFile(const QString& from, const QString& to);
// Moves every (from, to) pair back, the last first.
void moveBack(const QList<QPair<QString, QString>>& moved);
// The first of "name.ext", "name (2).ext", "name (3).ext", ... that no file has.
QString freePath(const QString& path);
// A column of a row read by readRows: its text (Null as empty), its whole number.
QString textOf(const QJsonObject& row, const QString& column);
qint64 keyOf(const QJsonObject& row, const QString& column);
// The rows of one table among tables; null when none.
const TableRows* rowsOf(const QList<TableRows>& tables, const QString& table);
QList<qint64> keysOf(const QList<TableRows>& tables, const QString& table);
bool hasTable(Connection& connection, const QString& table);
// The error of a row another user deleted meanwhile, saying so in message.
Error gone(const QString& message);

} // namespace kartella::trash
