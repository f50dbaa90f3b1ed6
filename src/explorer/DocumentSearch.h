#pragma once

#include "store/SearchIndex.h"

#include <QDate>
#include <QString>
#include <QStringList>

namespace kartella {

// The query text of a search across the register: the documents whose description,
// registration index, notes, contact name or file path hold every word searched for, in
// any order, with case and the Lithuanian letters folded ("siauliu" finds "Šiaulių"). The
// rows are those of every document list, ordered by registration date, for the category
// mode fill.

// The words of a search text: split at white space, folded as the index folds, each once,
// in the order typed. Empty when the text holds no word.
QStringList searchWords(const QString& text);

// The list query for the words (as searchWords gives them; at least one). With the FTS5
// index of a register file, words of three characters or more are found through its
// trigrams, shorter ones by a scan of its folded text; with a server's table of folded
// texts, by Like; without an index, every document's text is folded and scanned. A direction of 0 adds no
// clause; the date range applies when withinDates is true.
QString searchListSql(const QStringList& words, SearchIndexKind index, int direction, bool withinDates,
    const QDate& start, const QDate& end);

// The search index of the register the options name. Throws kartella::Error when it
// can't be opened.
SearchIndexKind registerSearchIndex();

} // namespace kartella
