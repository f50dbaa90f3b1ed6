#pragma once

#include "history/HistoryLog.h"

#include <QHash>
#include <QString>

#include <optional>
#include <vector>

namespace kartella {

class Connection;

// A change as a clerk reads it, the same in the History tab and in kartella-db history, in the
// interface's language (the register keeps its command names and values as they were written).
struct HistoryLine
{
    QString when; // local time, yyyy-MM-dd HH:mm:ss
    QString who;
    QString command; // "another program" for a write that did not say
    QString what; // "Reminder added", "Document changed"
    QString change; // Description changed from "A" to "B"
};

// The names behind the keys that history rows hold (a sender, a category), so that a line
// says "Sender/Receiver changed from "Ona" to "Jonas"" rather than two numbers.
struct HistoryNames
{
    QHash<qint64, QString> contacts;
    QHash<qint64, QString> categories;
    QHash<qint64, QString> subCategories;
};

// Reads the names of the keys the entries name, in one query per kind.
HistoryNames historyNames(Connection& connection, const std::vector<HistoryEntry>& entries);

// Null when the entry says nothing to a reader: the key of a row being added or deleted,
// which the row's own lines stand for. A key with no name in names (or without names)
// shows as its number.
std::optional<HistoryLine> historyLine(const HistoryEntry& entry, const HistoryNames* names = nullptr);

// The caption of a column as the dialogs show it, or the column's name when none does.
QString columnCaption(const QString& table, const QString& column);

// What a table's row is called: "Document", "Related document", "Reminder", ...
QString rowNoun(const QString& table);

} // namespace kartella
