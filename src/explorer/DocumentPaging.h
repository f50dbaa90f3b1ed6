#pragma once

#include <QChar>
#include <QString>
#include <QVariant>

#include <vector>

namespace kartella {

// The position of a row in a document list's order: the value of the sort column and the
// document's id, which breaks ties (rows of one day come in the order of their ids).
struct PageKey
{
    QVariant value; // null when the row has none
    qint32 id = 0;
};

// The statements that read a document list a page at a time, so that no statement reads
// more rows than the list shows. They are built from a list query (documentSql() with a
// WHERE clause and the ordering by date) and seek by the key of a row (keyset paging):
// a page after the last row of the one before, or before the first row of the one after.
// A Null in the sort column sorts before every value, as the list's own sort puts it.
//
// The letter and contact modes narrow the query in the database: a letter keeps the
// documents of contacts whose name starts with it (in either case, the letter exactly,
// Lithuanian letters not folded), a contact its own documents.
class DocumentPaging
{
public:
    enum class Mode { Category, Letter, Contact };

    DocumentPaging(const QString& listSql, Mode mode, qint32 contactId = 0, QChar letter = {});
    // On a server: the letter's names found by the server's own LIKE of its two cases, which
    // its index of the names serves, instead of Like (ILIKE), which folds every name.
    void matchLetterOnServer();
    // On a server: the statement of the letter's contacts (their ContactID), and the list
    // narrowed to the contacts it found, named one by one. The server then knows how many
    // documents each has and picks its plan from them: a letter of one contact with many
    // documents is read through the index of the contacts' documents, not joined to every
    // document. For a letter of up to MostNamedContacts.
    static constexpr int MostNamedContacts = 10000;
    QString letterContactsSql() const { return m_letterContactsSql; }
    void matchLetterContacts(const QList<qint32>& contactIds);

    // The list's sort: a column of the list (0-4), or -1 for the query's own order (by
    // date); descending reverses the whole order, ids included.
    void setSort(int column, bool descending);
    int sortColumn() const { return m_sortColumn; }
    bool descending() const { return m_descending; }
    // The order of a search's results when the list has no sort of its own: `key` (an
    // expression never Null, ascending) over the rows of tbl_Documents with `join` added.
    void setRanking(const QString& join, const QString& key);
    // The ranks of every row of the list in temp.`table` (hit_id, hit_rank), the ranking's
    // key: a page is then chosen among the ranks alone and joined to its documents after.
    void setRankedRows(const QString& table);
    // Whether the list is a search through the index of the documents' fields or files.
    bool searchesIndexes() const;
    // The list query's condition (its WHERE clause).
    const QString& condition() const { return m_condition; }
    // Statements, separated by semicolons, that copy the ids of the list query's documents
    // (before the letter's or the contact's condition) into the temporary table `table`
    // (RastasID INTEGER PRIMARY KEY) of the connection that reads the list. A server's
    // statement is one: it drops what the parts of a union both found.
    QString keepRowsSql(const QString& table, bool server = false) const;
    // From now on the list's documents are those of that table: a search's indexes are
    // searched once, not again for the count and every page.
    void readKeptRows(const QString& table);
    bool hasKeptRows() const { return !m_keptTable.isEmpty(); }
    // How many rows the table kept: many of them are read in date order through the index
    // of the dates, a few by their ids.
    void setKeptRowCount(int count);
    // The field that holds the sort value in a page's rows.
    QString sortField() const;
    // Whether the sort column is a date.
    bool sortsByDate() const;

    // SELECT COUNT(*) AS RowCount: the rows of the list.
    QString countSql() const;
    // One row at most, of the list query without the letter's or the contact's condition
    // (the list shows its columns when that query has rows, else its empty state).
    QString anyRowSql() const;
    // Up to limit rows in the list's order, skipping offset first, after the row at `after`
    // (from the first row when null).
    QString pageSql(const PageKey* after, int limit, int offset = 0) const;
    // Up to limit rows in the reverse of the list's order, skipping offset first, before the
    // row at `before` (from the last row when null).
    QString reversePageSql(const PageKey* before, int limit, int offset = 0) const;
    // The list's row of the document id, when the list has it.
    QString rowByIdSql(qint32 id) const;
    // The list's rows of these document ids, in the list's order.
    QString rowsByIdsSql(const std::vector<qint32>& ids) const;
    Mode mode() const { return m_mode; }
    // SELECT COUNT(*) AS RowCount of the rows before `key` in the list's order: its row.
    QString rowOfKeySql(const PageKey& key) const;
    // The first row after `after` (from the first row when null) whose description starts
    // with text, without regard to case.
    QString startingWithSql(const PageKey* after, const QString& text) const;

    // A value as a literal of the engine's SQL.
    static QString literal(const QVariant& value);

private:
    QString select() const;
    QString from(bool withContacts, bool withRanks = false) const;
    bool ranked() const;
    QString sortColumnField() const;
    // counting: for a count, which may match the mode another way than a page does.
    QString where(const QStringList& more, bool counting = false) const;
    QString orderBy(bool reverse) const;
    QString page(const QStringList& more, bool reverse, int limit, int offset) const;
    QString sortExpression() const;
    // Rows that come after key in ascending order of (sort value, id), or before it.
    QString seek(const PageKey& key, bool greater) const;

    QString m_condition;
    QString m_modeCondition;
    QString m_countModeCondition;
    QString m_letterContactsSql;
    QChar m_letter;
    QString m_keptTable;
    bool m_keptMany = false;
    QString m_rankedTable;
    QString m_rankJoin;
    QString m_rankKey;
    Mode m_mode;
    int m_sortColumn = -1;
    bool m_descending = false;
};

} // namespace kartella
