#pragma once

#include "store/SearchIndex.h"

#include <QDate>
#include <QHash>
#include <QList>
#include <QString>

#include <map>
#include <vector>

namespace kartella {

class Connection;

// The search across the register. A document is found when every term searched for is in
// it: in its description, registration index, notes, contact name or file path (a piece of
// any of them, with case and the Lithuanian letters folded), or among the words of its
// file's text (whole words, with case and every diacritic folded: "siauliu" finds
// "Šiaulių"). Each term may be found in either place, so a document whose description holds
// one word and whose file holds the other is found.

// One term of a search text: a word, "a phrase in quotes" (its words one after the other in
// the file's text), or a word ending in * (a prefix of a word of the file's text). In the
// fields every term is a piece of text, as before.
struct SearchTerm
{
    QString text; // folded as the fields' index folds; without quotes or the star
    bool phrase = false;
    bool prefix = false;

    friend bool operator==(const SearchTerm&, const SearchTerm&) = default;
};

// The terms of a search text: split at white space, a term that starts with a double quote
// („ “ ” too) running to the closing one (or to the end), each term folded and kept once, in
// the order typed. Empty when the text holds no term.
QList<SearchTerm> searchTerms(const QString& text);

// The indexes a register has for the search.
struct SearchIndexes
{
    SearchIndexKind fields = SearchIndexKind::None;
    ContentIndexKind content = ContentIndexKind::None;
};

SearchIndexes searchIndexes(Connection& connection);
// The indexes of the register the options name. Throws kartella::Error when it can't be
// opened.
SearchIndexes registerSearchIndexes();

// The list query for the terms (at least one), in order of registration date. With the
// FTS5 index of a register file, fields' pieces of three characters or more are found
// through its trigrams, shorter ones by a scan of its folded text; with a server's table of
// folded texts, by Like; without an index, every document's text is folded and scanned. The
// files' text is searched where the register has its index. A direction of 0 adds no
// clause; the date range applies when withinDates is true.
QString searchListSql(const QList<SearchTerm>& terms, const SearchIndexes& indexes, int direction,
    bool withinDates, const QDate& start, const QDate& end);
// The part of the list query's WHERE clause that finds the terms; the direction and the
// dates follow it, after " AND ".
QString searchTermsCondition(const QList<SearchTerm>& terms, const SearchIndexes& indexes);

// One place where a term is looked for, on a register file whose fields have their FTS5
// index: the rows of an index (whose rowid is the document's id) that meet a condition.
struct SearchPart
{
    QString table;
    QString condition;
    // The FTS5 query of the files' text, as searchRanking() gives it; empty for the fields.
    QString contentQuery;
    // A word of the files' text alone: its documents are counted without reading its places.
    bool word = false;
    // A prefix of the files' words: the index reads every word it starts, for every
    // document, at each use, so it is never looked up one document at a time.
    bool wholeAtOnce = false;
    // A piece too short for the trigrams: every document's fields are read to find it.
    bool scans = false;

    // SELECT rowid FROM the index WHERE the condition.
    QString ids() const;
};
// The condition on a row of the fields' index (FoldedText) that finds the term there.
QString fieldsCondition(const SearchTerm& term, const SearchIndexes& indexes);

// Whether the document whose id is the expression `id` holds the term, looked up in each
// place by its id, on a server's table of folded fields and its vectors of the files' words;
// empty on a register with other indexes.
QString serverTermHeldBy(const SearchTerm& term, const SearchIndexes& indexes, const QString& id);

// The places of a term: its fields, then the files' text where the register has its index.
// Empty when the fields have no FTS5 index.
QList<SearchPart> searchParts(const SearchTerm& term, const SearchIndexes& indexes);

// The order of the results: the documents whose file's text holds a term first, best first
// (BM25 on a register file, ts_rank on a server), then the others by registration date (a
// document without one first). `join` joins the ranks to tbl_Documents, `key` is the
// expression to order by (ascending). Both are empty when the files' text is not searched.
struct SearchRanking
{
    QString join;
    QString key;
    // A query of one row at most: a document whose file's text holds a term.
    QString anyHit;
    // The query of every document ranked (hit_id): those whose file's text holds a term.
    QString hits;
    // On a register file, the terms as queries of the FTS5 table, for prepareRanking().
    QStringList fullTextQueries;
};

SearchRanking searchRanking(const QList<SearchTerm>& terms, const SearchIndexes& indexes);

// The temporary table of a search's ranks on a register file (hit_id, hit_rank).
inline constexpr const char* RankedHitsTable = "search_ranked_hits";

// The fewest hits that make a term broad, whatever the register's size.
inline constexpr qint64 BroadHits = 5000;

// The ranking of one search, made once on the connection that then reads its list. On a
// register file the ranks of the hits are kept in a temporary table of that connection, so
// that neither a page nor the position of a row ranks every hit again. A term found in the
// texts of at least half of the documents, and of `broadHits` or more, ranks nothing: BM25
// gives such a word no weight, and ranking nearly every document of a large register takes
// seconds. A search of such words alone lists its results by date. Elsewhere the ranking is
// given back as it is. Throws kartella::Error.
//
// `knownHits` gives the hits of queries already counted (as far as broadHitCount() or whole),
// which are then not counted again.
SearchRanking prepareRanking(Connection& connection, const SearchRanking& ranking,
    qint64 broadHits = BroadHits, const QHash<QString, qint64>& knownHits = {});
// The hits from which a term of the files' text is broad: `broadHits`, or half of the texts
// when that is more. Throws kartella::Error.
qint64 broadHitCount(Connection& connection, qint64 broadHits = BroadHits);
qint64 broadHitCount(qint64 texts, qint64 broadHits = BroadHits);
// The texts the FTS5 index of a register file holds. Throws kartella::Error.
qint64 textCount(Connection& connection);
// The number in the first column of a query's first row; 0 when it has no row. Throws
// kartella::Error.
qint64 firstNumber(Connection& connection, const QString& sql);

// The marks around the hit in a passage.
inline constexpr char16_t PassageHitStart = u'\x02';
inline constexpr char16_t PassageHitEnd = u'\x03';

// A short passage of text around the first place where a term is found in it, as the index
// finds words (case and diacritics folded), the hit between PassageHitStart and
// PassageHitEnd; white space runs are one blank. Empty when no term is found.
QString searchPassage(const QString& text, const QList<SearchTerm>& terms);

// The passages of the documents' files' texts, by document id; a document whose text holds
// no term has none. Reads tbl_Document_Text on the connection; throws kartella::Error.
std::map<qint32, QString> searchPassages(
    Connection& connection, const std::vector<qint32>& ids, const QList<SearchTerm>& terms);

} // namespace kartella
