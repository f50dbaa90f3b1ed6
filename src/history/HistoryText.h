#pragma once

#include "history/HistoryLog.h"

#include <QString>

#include <optional>

namespace kartella {

// A change as a clerk reads it, the same in the History tab and in kartella-db history.
struct HistoryLine
{
    QString when; // local time, yyyy-MM-dd HH:mm:ss
    QString who;
    QString command; // "another program" for a write that did not say
    QString what; // "Reminder added", "Document changed"
    QString change; // Description changed from "A" to "B"
};

// Null when the entry says nothing to a reader: the key of a row being added or deleted,
// which the row's own lines stand for.
std::optional<HistoryLine> historyLine(const HistoryEntry& entry);

// The caption of a column as the dialogs show it, or the column's name when none does.
QString columnCaption(const QString& table, const QString& column);

// What a table's row is called: "Document", "Related document", "Reminder", ...
QString rowNoun(const QString& table);

} // namespace kartella
