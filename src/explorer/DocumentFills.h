#pragma once

#include "explorer/DocumentSearch.h"
#include "explorer/ListModel.h"
#include "explorer/SearchFinder.h"

#include <QCoreApplication>
#include <QString>

#include <functional>

namespace kartella {

class Connection;
struct SelectionState;

// Turns a document query into the rows, columns, icons and count of the document list,
// in its three modes: by the query alone (category tree), by letter and by contact.
// Each fill rebuilds the list from nothing; an empty query result gives the empty state.
// The rows are read as they come into view (DocumentPages); the letter and contact modes
// narrow the query in the database.
class DocumentFills
{
    Q_DECLARE_TR_FUNCTIONS(kartella::DocumentFills)

public:
    DocumentFills(ListModel& model, SelectionState& selection);

    // Called with the text of the count panel ("12 object(s)").
    std::function<void(const QString&)> setCount;
    // Called by the empty state: no document is selected any more.
    std::function<void()> disableDocumentCommands;
    // Called with the hand-over of a search's whole list, which replaces its first page; the
    // window keeps its selection around it.
    std::function<void(const std::function<void()>& handOver)> handOverSearch;
    // Called when finding a search's whole list failed.
    std::function<void(long number, const QString& description)> reportError;

    // The fills throw kartella::Error when the query fails; the list then stays as it was.
    void fillDocumentList(const QString& sql);
    // The results of a search (searchListSql's query): ranked, and with a column of the
    // passages of the files' texts when a document's file holds a term. A search whose
    // results come by date shows its first page at once while the whole list is found on a
    // thread of its own (the count says "Searching…" until then).
    void fillSearchList(const QString& sql, const SearchRanking& ranking, const QList<SearchTerm>& terms);
    // Whether a search's whole list is still being found.
    bool findingSearch() const { return m_finder.finding(); }
    // The finder of searches' whole lists (for tests and benchmarks: its found signal).
    const SearchFinder& searchFinder() const { return m_finder; }
    void fillLetterList(const QString& sql, qint16 letterCode);
    void fillContactDocumentList(const QString& sql);
    void showEmptyList();

    void setDocumentColumns(bool withPassages = false);
    void setContactColumns();

    static const QString EmptyKey; // "Empty"
    // The English of the empty state's row and of the passages' column; the list shows
    // their translation.
    static const QString EmptyText; // "There aren't any data to display!"
    static const QString PassageCaption; // "Found in the file"
    // The key of a list item: "a" and the id with one leading blank.
    static QString itemKey(qint32 id);
    // The id in an item key, read from its second character on; 0 when there is none.
    static qint32 idOfKey(const QString& key);

private:
    enum class Mode { Category, Letter, Contact };
    void fill(const QString& sql, Mode mode, qint16 letterCode, const SearchRanking& ranking = {},
        const QList<SearchTerm>& terms = {}, std::unique_ptr<Connection> open = nullptr);

    void showFoundSearch(const std::shared_ptr<FoundSearch>& search);

    ListModel& m_model;
    SelectionState& m_selection;
    SearchFinder m_finder;
};

} // namespace kartella
