#pragma once

#include <QDateTime>
#include <QString>
#include <QVariant>

#include <vector>

namespace kartella {

class Connection;

// One column of one row as a change left it (see HistorySchema.h).
struct HistoryEntry
{
    qint64 id = 0; // the order of the changes
    QDateTime changedAt; // UTC
    QString who; // empty when the writer did not say
    QString command; // empty for a write outside a named command
    bool anotherProgram = false; // written by a program that did not say who and why
    QString table;
    qint64 rowKey = 0;
    QString change; // "insert", "update" or "delete"
    QString column;
    QVariant before;
    QVariant after;
    qint64 documentId = 0;
    qint64 contactId = 0;
};

// Whether the register records its history (an older one, before the step, does not).
bool registerHasHistory(Connection& connection);

// The changes, newest first: of one document with its related documents and reminders,
// of one contact with its phones and web pages, or of the whole register. Empty on a
// register without history.
std::vector<HistoryEntry> documentHistory(Connection& connection, qint64 documentId);
std::vector<HistoryEntry> contactHistory(Connection& connection, qint64 contactId);
std::vector<HistoryEntry> registerHistory(Connection& connection);

// The document whose registration index is regIndex; when none in the register has it, the
// newest deleted one in the trash (its history stays in the register); 0 when none has it.
qint64 documentWithRegIndex(Connection& connection, const QString& regIndex);

} // namespace kartella
