// MainWindow: the search across the register. While a search shows, the list's refills
// (direction, dates, a delete) run it again instead of the node's query; an empty search
// or a node click goes back to the nodes.
#include "explorer/DocumentFills.h"
#include "explorer/DocumentQueries.h"
#include "explorer/DocumentSearch.h"
#include "explorer/DocumentSearchDelegate.h"
#include "explorer/ExplorerList.h"
#include "explorer/MainWindow.h"
#include "explorer/SearchBox.h"
#include "support/SelectionState.h"

#include <QAction>
#include <QComboBox>
#include <QDateEdit>
#include <QToolBar>
#include <QTreeView>

namespace kartella {

namespace {

constexpr int PassageColumn = 5;

} // namespace

void MainWindow::buildSearch()
{
    m_search = new SearchBox(m_band);
    m_band->addSeparator();
    m_band->addWidget(m_search);
    connect(m_search, &SearchBox::searchRequested, this, &MainWindow::search);

    auto* find = new QAction(tr("Find Documents"), this);
    find->setObjectName(QStringLiteral("actFindDocuments"));
    find->setShortcut(QKeySequence::Find);
    find->setShortcutContext(Qt::WindowShortcut);
    addAction(find);
    connect(find, &QAction::triggered, this, [this] {
        m_search->setFocus(Qt::ShortcutFocusReason);
        m_search->selectAll();
    });
}

void MainWindow::search(const QString& text)
{
    const QString shown = text.simplified();
    if (shown.isEmpty()) {
        if (!leaveSearch())
            return;
        // Back to the node last clicked, as its click filled the list.
        onDirectionChanged();
    } else {
        if (!isSearching()) {
            m_titleBeforeSearch = windowTitle();
            m_searchWithinDates = false;
        }
        m_searchText = shown;
        runSearch();
        setWindowTitle(tr("Search — %1").arg(shown));
    }
    m_state.selectedDocumentId = 0;
    disableDocumentCommands();
    fillRelatedList();
}

void MainWindow::runSearch()
{
    // The column of the passages, which only a search's results have.
    QTreeView* details = m_documents->detailsView();
    if (!qobject_cast<PassageDelegate*>(details->itemDelegateForColumn(PassageColumn)))
        details->setItemDelegateForColumn(PassageColumn, new PassageDelegate(details));
    runFill([&] {
        const SearchIndexes indexes = registerSearchIndexes();
        const QList<SearchTerm> terms = searchTerms(m_searchText);
        m_fills->fillSearchList(
            searchListSql(terms, indexes, direction(), m_searchWithinDates || filterOptionOn(),
                m_startDate->date(), m_endDate->date()),
            searchRanking(terms, indexes), terms);
    });
}

bool MainWindow::refillSearch(bool datesChanged)
{
    if (!isSearching())
        return false;
    // A change of dates narrows the search from then on, as it narrows a node's list.
    if (datesChanged)
        m_searchWithinDates = true;
    runSearch();
    return true;
}

bool MainWindow::leaveSearch()
{
    if (!isSearching())
        return false;
    m_searchText.clear();
    m_search->clearQuietly();
    setWindowTitle(m_titleBeforeSearch);
    return true;
}

} // namespace kartella
