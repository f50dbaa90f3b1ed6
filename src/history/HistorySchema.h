#pragma once

#include <QString>

#include <vector>

namespace kartella {

class Connection;

// The history of every change: one row of tbl_History per column of a row inserted,
// updated or deleted in the tables below, written by triggers of the register itself, so
// that a change and its history are one statement of one transaction, and another
// program's writes are recorded too. The triggers use SQLite's and PostgreSQL's own SQL
// only: the register stays readable and writable by any SQLite tool.
//
// Each history row carries the key of the document (RastasID) for documents, related
// documents and reminders, and the key of the contact (ContactID) for contacts, phones and
// web pages, each indexed with the row's order, so that one document's or one contact's
// history is one range of an index.
struct HistoryTable
{
    QString name;
    QString key; // the row's own key
    QString documentKey; // the column holding the document's key, or empty
    QString contactKey; // the column holding the contact's key, or empty
};

// The tables whose changes are recorded.
const std::vector<HistoryTable>& historyTables();

// The schema step that makes the history, on a register file and on a server.
void addHistory(Connection& connection);
void addServerHistory(Connection& connection);

// Makes the triggers of a table on a register file again from its columns as they are now,
// for a later step that adds a column to one of the tables (a server's need nothing).
void recreateHistoryTriggers(Connection& connection, const HistoryTable& table);

// Inside a transaction of connection: from pauseHistory to resumeHistory its writes are not
// recorded, for rows that are no change of anybody's (a register copied or migrated into a
// new one, whose history comes along as rows of its own). A rollback undoes the pause too.
// Nothing to do on a register without history.
void pauseHistory(Connection& connection);
void resumeHistory(Connection& connection);

} // namespace kartella
