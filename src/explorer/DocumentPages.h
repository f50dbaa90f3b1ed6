#pragma once

#include "explorer/DocumentPaging.h"
#include "explorer/DocumentSearch.h"
#include "explorer/ListModel.h"
#include "explorer/SearchHits.h"

#include <QHash>

#include <future>
#include <list>
#include <map>
#include <memory>
#include <vector>

namespace kartella {

class Connection;
class Recordset;

// The rows of the document list, read a page at a time as the list shows or uses them.
// The number of rows comes from a COUNT of its own; a page is read by seeking from the
// nearest row whose key is known (the end of a page read before, or either end of the
// list), so scrolling and Ctrl+End read a page, not every row before it. A few dozen
// pages stay at hand; the keys of every page read stay known.
//
// The constructor counts the rows and throws kartella::Error when the query fails; a
// failed page read later gives rows with empty texts, and the next use tries again.
class DocumentPages : public ListRowSource
{
public:
    // The terms of a search let a register file find its documents term by term.
    // A connection already open on the register may be given for the list to read through.
    DocumentPages(const QString& listSql, DocumentPaging::Mode mode, qint32 contactId = 0, QChar letter = {},
        const QList<SearchTerm>& searchTerms = {}, std::unique_ptr<Connection> open = nullptr);
    ~DocumentPages() override;

    // The rows of a search: in the ranking's order while the list has no sort of its own, each
    // with the passage of its file's text around the first term found there (the fifth
    // column after the first). Before the first row is read.
    // `knownHits` are hits of the files' text judged before, which decide over the counts.
    void setSearch(const SearchRanking& ranking, const QList<SearchTerm>& terms,
        const QHash<QString, qint64>& knownHits = {});
    // The first page of a search's results (searchListSql()'s list), read ahead of them when
    // SearchAhead allows it: its rows are those of the whole list's first page, in its order
    // (the ranked hits first when `byRank`, the list having no sort of its own, then by date),
    // and count() is theirs. Null when SearchAhead gives nothing, on a server, or when too few
    // of the first documents by date hold the terms for a page; else `contentHits` gets the
    // hits judged, for setSearch() of the whole list, and `whole` tells whether the page is the
    // whole list (every document was looked at). When it gives null, `spare` (when given) gets
    // the connection it opened, for the list. Throws kartella::Error.
    static std::unique_ptr<DocumentPages> firstPageAhead(const QString& listSql,
        const QList<SearchTerm>& terms, bool byRank, QHash<QString, qint64>& contentHits, bool& whole,
        std::unique_ptr<Connection>* spare = nullptr);
    // The hits of the files' text from which a term ranks nothing (for tests; BroadHits).
    static void setBroadHits(qint64 hits);
    // Whether a document's file's text holds a term of the search: the list has passages.
    bool hasPassages() const { return !m_passageTerms.isEmpty(); }

    // Whether the list query has rows before the letter's or the contact's condition.
    bool queryHasRows();

    int count() const override { return m_count; }
    ListItem item(int row) override;
    int rowOfKey(const QString& key) override;
    void setItemTag(int row, const QString& tag) override;
    void sort(int column, Qt::SortOrder order) override;
    int rowStartingWith(int from, const QString& text) override;

    // Rows per page, and the pages kept at hand (for tests; the defaults suit a window).
    static void setPageSize(int rows);
    static int pageSize();
    static constexpr int KeptPages = 40;
    // Pages read from the database since the start (for tests).
    int pagesRead() const { return m_pagesRead; }

private:
    DocumentPages(const QString& listSql, std::unique_ptr<Connection> connection);

    struct Page
    {
        std::vector<ListItem> items;
        std::vector<PageKey> keys;
    };
    Page& page(int number);
    Page readPage(int number);
    std::vector<ListItem> rowsOf(Recordset& rs, std::vector<PageKey>& keys);
    int rowOf(const PageKey& key);
    void dropPages();

    void addPassages(std::vector<ListItem>& rows);
    void rankEveryFoundRow();
    void readLastPageAhead();
    void keepFoundRows(const QList<SearchTerm>& terms);

    DocumentPaging m_paging;
    QList<SearchTerm> m_passageTerms;
    SearchHits m_hits;
    std::unique_ptr<Connection> m_connection;
    int m_count = 0;
    int m_pagesRead = 0;
    std::map<int, Page> m_pages;
    // Most recently used first.
    std::list<int> m_recent;
    // The first and the last key of every page read in the present order.
    std::map<int, std::pair<PageKey, PageKey>> m_bounds;
    // The ids of the last page in a text column's order, read on a connection of its own
    // while the first page is read: Ctrl+End then costs a page.
    std::future<std::vector<qint32>> m_lastPageIds;
    int m_lastPageAhead = -1;
    // Each day's text is made once.
    QHash<qint64, QString> m_dayTexts;
};

} // namespace kartella
