#pragma once

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

// The list query for the words (as searchWords gives them; at least one). With `indexed`
// the register's search index finds the rows (words of three characters or more through
// its trigrams, shorter ones by a scan of its folded text); without, every document's text
// is folded and scanned. A direction of 0 adds no clause; the date range applies when
// withinDates is true.
QString searchListSql(const QStringList& words, bool indexed, int direction, bool withinDates,
    const QDate& start, const QDate& end);

// Whether the register the options name has the search index. Throws kartella::Error
// when it can't be opened.
bool registerHasSearchIndex();

} // namespace kartella
