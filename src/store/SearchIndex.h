#pragma once

#include <QString>

namespace kartella {

class Connection;

// The documents' search index: one row per document in the full-text table
// tbl_Documents_Search (rowid = RastasID), holding the document's description,
// registration index, notes, contact name and file path in one folded text. The folding is
// that of names (case, and the Lithuanian letters onto their base letters) and is done by
// SQLite's own replace() and lower() in triggers, so the index stays right whoever writes
// the register: this program, a second one, or the sqlite3 shell. The table is FTS5 with
// the trigram tokenizer, which finds any piece of three characters or more; shorter
// pieces are found by instr() over the same folded text.

inline constexpr const char* SearchTable = "tbl_Documents_Search";

// The schema step that makes the table and its triggers and indexes the documents there are.
// The triggers sit on tbl_Documents and tbl_Contacts: a later step that makes either table
// again (as rebuilding a table does) must make them again too.
void createSearchIndex(Connection& connection);

// Folds a text as the index folds it: the Lithuanian letters onto their base letters,
// then ASCII letters onto lower case. Other letters stay as they are (SQLite's lower()
// leaves them), so the query and the index always agree.
QString foldSearchText(const QString& text);

// A plain SQL expression (SQLite's, and PostgreSQL's too) giving the folded, searchable
// text of a document: `document` is how the document's columns are reached ("NEW",
// "tbl_Documents"), `contactName` an expression for the name of its contact. The column
// names are written between `quote` characters (PostgreSQL needs " for names declared in
// mixed case).
QString foldedDocumentText(const QString& document, const QString& contactName, const QString& quote = {});

// How a register finds documents by their text.
enum class SearchIndexKind {
    None, // a register file of an older schema: every document's text is folded and scanned
    FullText, // a register file: the FTS5 trigram table
    Table, // a server: the table of folded texts, with a pg_trgm index where the server has one
};

SearchIndexKind searchIndexKind(Connection& connection);

// Whether the open register has the search index (a register of an older schema has not).
bool hasSearchIndex(Connection& connection);

// The index of the words of the documents' files (the Body of tbl_Document_Text). On a
// register file it is the FTS5 table tbl_Document_Text_Search over that column (its content
// is read from tbl_Document_Text, not copied: the text of a register's files is its largest
// part), with the unicode61 tokenizer folding case and every diacritic ("siauliu" finds
// "Šiaulių"); triggers on tbl_Document_Text keep it, in any program that writes the register.
// On a server it is the tsvector column BodyWords of tbl_Document_Text with a GIN index, of
// the `simple` configuration over the text as fold_search_text() folds it (unaccent where
// the server has it, else case and the Lithuanian letters).
inline constexpr const char* ContentSearchTable = "tbl_Document_Text_Search";

enum class ContentIndexKind {
    None, // a register of an older schema: the files' text is not searched
    FullText, // a register file: the FTS5 table
    TextVector, // a server: the tsvector column
};

ContentIndexKind contentIndexKind(Connection& connection);

// The schema step that makes the index, with its triggers, of the texts there are.
void createContentIndex(Connection& connection);
void createServerContentIndex(Connection& connection);

} // namespace kartella
