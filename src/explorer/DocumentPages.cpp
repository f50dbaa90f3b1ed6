#include "explorer/DocumentPages.h"

#include "explorer/DocumentFills.h"
#include "explorer/DocumentQueries.h"
#include "explorer/IconCache.h"
#include "explorer/SearchAhead.h"
#include "store/Store.h"
#include "store/engine/Connection.h"
#include "store/engine/EngineErrors.h"
#include "store/engine/Recordset.h"
#include "store/engine/Value.h"
#include "support/BusyCursor.h"

#include <QDate>

#include <algorithm>
#include <optional>

namespace kartella {

namespace {

int g_pageSize = 100;
qint64 g_broadHits = BroadHits;

// The documents a search found, on the connection that reads its list.
const QString FoundTable = QStringLiteral("search_found");

// The part of a search's list condition after its terms' (the direction and the dates),
// empty when there is none; no value when the condition is not the search's of these terms.
std::optional<QString> conditionAfterTerms(
    const QString& condition, const QList<SearchTerm>& terms, const SearchIndexes& indexes)
{
    const QString byTerms = searchTermsCondition(terms, indexes);
    const QString And = QStringLiteral(" AND ");
    if (!condition.startsWith(byTerms))
        return std::nullopt;
    if (condition.size() == byTerms.size())
        return QString();
    if (!QStringView(condition).mid(byTerms.size()).startsWith(And))
        return std::nullopt;
    return condition.mid(byTerms.size() + And.size());
}

} // namespace

DocumentPages::DocumentPages(const QString& listSql, std::unique_ptr<Connection> connection)
    : m_paging(listSql, DocumentPaging::Mode::Category)
    , m_connection(std::move(connection))
{ }

std::unique_ptr<DocumentPages> DocumentPages::firstPageAhead(const QString& listSql,
    const QList<SearchTerm>& terms, bool byRank, QHash<QString, qint64>& contentHits, bool& whole,
    std::unique_ptr<Connection>* spare)
{
    auto connection = std::make_unique<Connection>();
    connection->setConnectionString(plainConnectionString());
    connection->setMode(ConnectModeEnum::ShareDenyNone);
    connection->open();
    // A search that can't be read ahead is read through the connection opened to look.
    const auto lookedOnly = [&] {
        if (spare)
            *spare = std::move(connection);
        return nullptr;
    };
    const SearchIndexes indexes = searchIndexes(*connection);
    const std::optional<QString> filter = conditionAfterTerms(
        DocumentPaging(listSql, DocumentPaging::Mode::Category).condition(), terms, indexes);
    if (!filter)
        return lookedOnly();
    const std::optional<SearchAhead> ahead = connection->dialect() == SqlDialect::Sqlite
        ? SearchAhead::of(*connection, terms, indexes, g_broadHits, byRank, 4 * g_broadHits)
        : SearchAhead::onServer(*connection, terms, indexes, g_broadHits, byRank, 4 * g_broadHits);
    if (!ahead)
        return lookedOnly();
    // Terms that are each in many documents may still be seldom together: the documents by
    // date are looked for among the first few pages of them.
    bool complete = false;
    const std::vector<qint32> ids
        = ahead->firstIds(*connection, *filter, g_pageSize, ahead->walked(g_pageSize), complete);
    if (ids.empty() || (!complete && int(ids.size()) < g_pageSize))
        return nullptr;
    QStringList list;
    for (const qint32 id : ids)
        list << QString::number(id);
    const QString sql = documentSql() + QStringLiteral("WHERE tbl_Documents.RastasID IN (") + list.join(u',')
        + QStringLiteral(") ORDER BY tbl_Documents.DokRegistracData");
    std::unique_ptr<DocumentPages> pages(new DocumentPages(sql, std::move(connection)));
    pages->m_paging.setRanking(ahead->ranking().join, ahead->ranking().key);
    if (ahead->anyContentHit())
        pages->m_passageTerms = terms;
    pages->m_count = int(ids.size());
    pages->page(0);
    contentHits = ahead->contentHits();
    // Every document looked at, and less than a page found: that is the whole list.
    whole = complete && int(ids.size()) < g_pageSize;
    return pages;
}

void DocumentPages::setBroadHits(qint64 hits)
{
    g_broadHits = std::max<qint64>(1, hits);
}

DocumentPages::DocumentPages(const QString& listSql, DocumentPaging::Mode mode, qint32 contactId,
    QChar letter, const QList<SearchTerm>& searchTerms, std::unique_ptr<Connection> open)
    : m_paging(listSql, mode, contactId, letter)
    , m_connection(open ? std::move(open) : std::make_unique<Connection>())
{
    if (!m_connection->isOpen()) {
        m_connection->setConnectionString(plainConnectionString());
        if (mode != DocumentPaging::Mode::Letter)
            m_connection->setMode(ConnectModeEnum::ShareDenyNone);
        m_connection->open();
    }
    if (m_connection->dialect() == SqlDialect::PostgreSql && mode == DocumentPaging::Mode::Letter) {
        m_paging.matchLetterOnServer();
        Recordset contacts;
        contacts.open(m_paging.letterContactsSql()
                + QStringLiteral(" LIMIT %1").arg(DocumentPaging::MostNamedContacts + 1),
            *m_connection, CursorTypeEnum::ForwardOnly, LockTypeEnum::Unspecified);
        QList<qint32> ids;
        for (; !contacts.eof(); contacts.moveNext())
            ids << contacts.fields(0).value().toInt();
        if (ids.size() <= DocumentPaging::MostNamedContacts)
            m_paging.matchLetterContacts(ids);
    }
    if (m_paging.searchesIndexes()) {
        // A server's session may be one a closed connection left, its table with it. The
        // table's statements stand as written there: its column is named as the server
        // names the documents' own.
        const bool server = m_connection->dialect() == SqlDialect::PostgreSql;
        m_connection->execute(QStringLiteral("DROP TABLE IF EXISTS ")
            + (server ? QStringLiteral("pg_temp.") : QStringLiteral("temp.")) + FoundTable);
        m_connection->execute(QStringLiteral("CREATE TEMP TABLE ") + FoundTable
            + (server ? QStringLiteral(" (\"RastasID\" integer PRIMARY KEY)")
                      : QStringLiteral(" (RastasID INTEGER PRIMARY KEY)")));
        keepFoundRows(searchTerms);
        m_paging.readKeptRows(FoundTable);
    }
    Recordset rs;
    rs.open(m_paging.countSql(), *m_connection, CursorTypeEnum::Static, LockTypeEnum::Unspecified);
    m_count = rs.eof() ? 0 : rs.fields(0).value().toInt();
    m_paging.setKeptRowCount(m_count);
}

DocumentPages::~DocumentPages() = default;

void DocumentPages::keepFoundRows(const QList<SearchTerm>& terms)
{
    if (!terms.isEmpty()) {
        const SearchIndexes indexes = searchIndexes(*m_connection);
        // The direction and the dates follow the terms' condition.
        const std::optional<QString> filter = conditionAfterTerms(m_paging.condition(), terms, indexes);
        if (SearchHits::canKeep(indexes) && filter) {
            m_hits.keep(*m_connection, FoundTable, terms, indexes, *filter, g_broadHits);
            return;
        }
    }
    m_connection->execute(
        m_paging.keepRowsSql(FoundTable, m_connection->dialect() == SqlDialect::PostgreSql));
}

void DocumentPages::setPageSize(int rows)
{
    g_pageSize = std::max(1, rows);
}

int DocumentPages::pageSize()
{
    return g_pageSize;
}

void DocumentPages::setSearch(
    const SearchRanking& ranking, const QList<SearchTerm>& terms, const QHash<QString, qint64>& knownHits)
{
    m_passageTerms.clear();
    QHash<QString, qint64> hits = m_hits.contentHits();
    hits.insert(knownHits);
    // On a register file the terms are counted as they are ranked: that tells whether any
    // file holds one.
    const SearchRanking prepared = prepareRanking(*m_connection, ranking, g_broadHits, hits);
    if (!prepared.anyHit.isEmpty() && ranking.fullTextQueries.isEmpty()) {
        Recordset rs;
        rs.open(prepared.anyHit, *m_connection, CursorTypeEnum::Static, LockTypeEnum::Unspecified);
        if (rs.eof()) {
            m_paging.setRanking({}, {});
            return;
        }
    }
    if (prepared.anyHit.isEmpty()) {
        // No file holds a term: the results are listed by date, nothing to rank.
        m_paging.setRanking({}, {});
        return;
    }
    m_passageTerms = terms;
    m_paging.setRanking(prepared.join, prepared.key);
    if (m_paging.hasKeptRows() && prepared.join.contains(QLatin1String(RankedHitsTable)))
        rankEveryFoundRow();
}

void DocumentPages::rankEveryFoundRow()
{
    // The ranks of the rows found and only theirs: a row without a hit in the texts ranks by
    // its date, after every hit, as the ranking's key orders it. Where many rows have no hit
    // (a term in few texts and many fields), each page sorts them by date instead.
    constexpr qint64 MostRankedByDate = 5000;
    const QString ranks = QLatin1String(RankedHitsTable);
    m_connection->execute(
        QStringLiteral("DELETE FROM temp.%1 WHERE NOT EXISTS (SELECT 1 FROM temp.%2 AS found "
                       "WHERE found.RastasID = temp.%1.hit_id)")
            .arg(ranks, FoundTable));
    if (m_count - firstNumber(*m_connection, QStringLiteral("SELECT COUNT(*) FROM temp.") + ranks)
        > MostRankedByDate)
        return;
    m_connection->execute(
        QStringLiteral("INSERT INTO temp.%1 (hit_id, hit_rank) SELECT found.RastasID, "
                       "coalesce(julianday(tbl_Documents.DokRegistracData), 0) FROM temp.%2 AS found "
                       "JOIN tbl_Documents ON tbl_Documents.RastasID = found.RastasID WHERE NOT EXISTS "
                       "(SELECT 1 FROM temp.%1 AS hit WHERE hit.hit_id = found.RastasID)")
            .arg(ranks, FoundTable));
    m_paging.setRankedRows(ranks);
}

void DocumentPages::addPassages(std::vector<ListItem>& rows)
{
    if (m_passageTerms.isEmpty() || rows.empty())
        return;
    std::vector<qint32> ids;
    ids.reserve(rows.size());
    for (const ListItem& row : rows)
        ids.push_back(DocumentFills::idOfKey(row.key));
    const std::map<qint32, QString> passages = searchPassages(*m_connection, ids, m_passageTerms);
    for (size_t i = 0; i < rows.size(); ++i) {
        auto found = passages.find(ids[i]);
        if (found != passages.end())
            rows[i].subItems[4] = found->second;
    }
}

bool DocumentPages::queryHasRows()
{
    if (m_count > 0)
        return true;
    Recordset rs;
    rs.open(m_paging.anyRowSql(), *m_connection, CursorTypeEnum::Static, LockTypeEnum::Unspecified);
    return !rs.eof();
}

ListItem DocumentPages::item(int row)
{
    if (row < 0 || row >= m_count)
        return {};
    const Page& rows = page(row / g_pageSize);
    const size_t at = size_t(row % g_pageSize);
    return at < rows.items.size() ? rows.items[at] : ListItem {};
}

DocumentPages::Page& DocumentPages::page(int number)
{
    auto found = m_pages.find(number);
    if (found != m_pages.end()) {
        if (m_recent.front() != number) {
            m_recent.remove(number);
            m_recent.push_front(number);
        }
        return found->second;
    }
    Page read;
    try {
        read = readPage(number);
    } catch (const Error&) {
        // The register went away under the list: show empty rows rather than fail a paint.
        read = {};
    }
    while (int(m_recent.size()) >= KeptPages) {
        m_pages.erase(m_recent.back());
        m_recent.pop_back();
    }
    m_recent.push_front(number);
    return m_pages.emplace(number, std::move(read)).first->second;
}

DocumentPages::Page DocumentPages::readPage(int number)
{
    const int first = number * g_pageSize;
    const int rows = std::min(g_pageSize, m_count - first);
    // Seek from the nearest known row: either end of the list, or a page read before.
    const PageKey* from = nullptr;
    bool forward = true;
    int skip = first;
    if (m_count - (first + rows) < skip) {
        forward = false;
        skip = m_count - (first + rows);
    }
    auto next = m_bounds.upper_bound(number);
    if (next != m_bounds.end() && next->first * g_pageSize - (first + rows) < skip) {
        forward = false;
        skip = next->first * g_pageSize - (first + rows);
        from = &next->second.first;
    }
    auto previous = m_bounds.lower_bound(number);
    if (previous != m_bounds.begin()) {
        --previous;
        const int after = first - (previous->first + 1) * g_pageSize;
        if (after < skip) {
            forward = true;
            skip = after;
            from = &previous->second.second;
        }
    }

    if (number == m_lastPageAhead && m_lastPageIds.valid()) {
        const std::vector<qint32> ids = m_lastPageIds.get();
        m_lastPageAhead = -1;
        if (!ids.empty()) {
            Recordset rs;
            rs.open(
                m_paging.rowsByIdsSql(ids), *m_connection, CursorTypeEnum::Static, LockTypeEnum::Unspecified);
            ++m_pagesRead;
            Page read;
            read.items = rowsOf(rs, read.keys);
            addPassages(read.items);
            if (!read.keys.empty())
                m_bounds[number] = {read.keys.front(), read.keys.back()};
            return read;
        }
    }
    // A sort by a text column reads every row of the list for each page.
    std::optional<BusyCursor> busy;
    if (!m_paging.sortsByDate())
        busy.emplace();
    Recordset rs;
    const QString sql
        = forward ? m_paging.pageSql(from, rows, skip) : m_paging.reversePageSql(from, rows, skip);
    rs.open(sql, *m_connection, CursorTypeEnum::Static, LockTypeEnum::Unspecified);
    ++m_pagesRead;
    Page read;
    read.items = rowsOf(rs, read.keys);
    addPassages(read.items);
    if (!forward) {
        std::reverse(read.items.begin(), read.items.end());
        std::reverse(read.keys.begin(), read.keys.end());
    }
    if (!read.keys.empty())
        m_bounds[number] = {read.keys.front(), read.keys.back()};
    return read;
}

std::vector<ListItem> DocumentPages::rowsOf(Recordset& rs, std::vector<PageKey>& keys)
{
    const int idColumn = rs.fields(QStringLiteral("RastasID")).index();
    const int pathColumn = rs.fields(QStringLiteral("RastoKel")).index();
    const int indexColumn = rs.fields(QStringLiteral("DokRegistracIndeksas")).index();
    const int nameColumn = rs.fields(QStringLiteral("FullName")).index();
    const int dateColumn = rs.fields(QStringLiteral("DokRegistracData")).index();
    const int notesColumn = rs.fields(QStringLiteral("DokPastaba")).index();
    const int titleColumn = rs.fields(QStringLiteral("DokAntraste")).index();
    const int sortColumn = rs.fields(m_paging.sortField()).index();
    const bool contactMode = rs.hasField(QStringLiteral("DokKategorija"));
    const int categoryColumn = contactMode ? rs.fields(QStringLiteral("DokKategorija")).index() : -1;

    std::vector<ListItem> rows;
    const int count = rs.recordCount();
    rows.reserve(size_t(count));
    keys.reserve(size_t(count));
    for (int row = 0; row < count; ++row) {
        const QVariant path = rs.rowValue(row, pathColumn);
        ListItem item;
        item.iconKey = getIconKey(nullToDefault(path, NoFilePath).toString());
        item.text = displayText(rs.rowValue(row, titleColumn));
        item.subItems[0] = displayText(rs.rowValue(row, indexColumn));
        item.subItems[1] = displayText(rs.rowValue(row, contactMode ? categoryColumn : nameColumn));
        const QVariant date = rs.rowValue(row, dateColumn);
        if (date.typeId() == QMetaType::QDate || date.typeId() == QMetaType::QDateTime) {
            item.date = date.toDate();
            const qint64 day = item.date.toJulianDay();
            auto text = m_dayTexts.constFind(day);
            if (text == m_dayTexts.constEnd() || date.typeId() != QMetaType::QDate)
                item.subItems[2] = displayText(date);
            else
                item.subItems[2] = *text;
            if (date.typeId() == QMetaType::QDate && text == m_dayTexts.constEnd())
                m_dayTexts.insert(day, item.subItems[2]);
        } else {
            item.subItems[2] = displayText(date);
        }
        item.subItems[3] = displayText(rs.rowValue(row, notesColumn));
        const qint32 id = rs.rowValue(row, idColumn).toInt();
        item.key = DocumentFills::itemKey(id);
        item.tagIsNull = isNull(path);
        item.tag = item.tagIsNull ? QString() : path.toString();
        rows.push_back(std::move(item));
        PageKey key;
        key.id = id;
        const QVariant value = rs.rowValue(row, sortColumn);
        if (!isNull(value))
            key.value = value;
        keys.push_back(std::move(key));
    }
    return rows;
}

int DocumentPages::rowOfKey(const QString& key)
{
    for (const auto& [number, rows] : m_pages) {
        for (size_t i = 0; i < rows.items.size(); ++i) {
            if (rows.items[i].key == key)
                return number * g_pageSize + int(i);
        }
    }
    // A row never read: its place in the order is the number of rows before it.
    const qint32 id = DocumentFills::idOfKey(key);
    if (id == 0 || !key.startsWith(u'a'))
        return -1;
    try {
        Recordset rs;
        rs.open(m_paging.rowByIdSql(id), *m_connection, CursorTypeEnum::Static, LockTypeEnum::Unspecified);
        if (rs.eof())
            return -1;
        std::vector<PageKey> keys;
        rowsOf(rs, keys);
        return rowOf(keys.front());
    } catch (const Error&) {
        return -1;
    }
}

void DocumentPages::setItemTag(int row, const QString& tag)
{
    auto found = m_pages.find(row / g_pageSize);
    if (found == m_pages.end() || size_t(row % g_pageSize) >= found->second.items.size())
        return;
    ListItem& item = found->second.items[size_t(row % g_pageSize)];
    item.tag = tag;
    item.tagIsNull = false;
}

void DocumentPages::sort(int column, Qt::SortOrder order)
{
    m_paging.setSort(column, order == Qt::DescendingOrder);
    dropPages();
    readLastPageAhead();
}

void DocumentPages::readLastPageAhead()
{
    // A text column's order reads every row for either end of the list: the last page is read
    // on another connection at the same time as the first, where that connection sees the
    // same rows (no rows kept by this one, no letter's lock).
    if (m_paging.sortsByDate() || m_paging.hasKeptRows() || m_paging.mode() == DocumentPaging::Mode::Letter
        || m_count <= 2 * g_pageSize)
        return;
    const int last = (m_count - 1) / g_pageSize;
    const QString sql = m_paging.reversePageSql(nullptr, m_count - last * g_pageSize);
    const QString connectionString = m_connection->connectionString();
    m_lastPageAhead = last;
    m_lastPageIds = std::async(std::launch::async, [sql, connectionString] {
        std::vector<qint32> ids;
        try {
            Connection connection;
            connection.setConnectionString(connectionString);
            connection.setMode(ConnectModeEnum::ShareDenyNone);
            connection.open();
            Recordset rs;
            rs.open(sql, connection, CursorTypeEnum::Static, LockTypeEnum::Unspecified);
            while (!rs.eof()) {
                ids.push_back(rs.fields(QStringLiteral("RastasID")).value().toInt());
                rs.moveNext();
            }
        } catch (const Error&) {
            // The page is read the usual way.
            ids.clear();
        }
        return ids;
    });
}

void DocumentPages::dropPages()
{
    if (m_lastPageIds.valid())
        m_lastPageIds.wait();
    m_lastPageIds = {};
    m_lastPageAhead = -1;
    m_pages.clear();
    m_recent.clear();
    m_bounds.clear();
}

int DocumentPages::rowOf(const PageKey& key)
{
    Recordset rs;
    rs.open(m_paging.rowOfKeySql(key), *m_connection, CursorTypeEnum::Static, LockTypeEnum::Unspecified);
    return rs.eof() ? -1 : rs.fields(0).value().toInt();
}

int DocumentPages::rowStartingWith(int from, const QString& text)
{
    if (m_count == 0 || text.isEmpty())
        return -1;
    from = std::clamp(from, 0, m_count - 1);
    if (item(from).text.startsWith(text, Qt::CaseInsensitive))
        return from;
    try {
        const Page& rows = page(from / g_pageSize);
        const size_t at = size_t(from % g_pageSize);
        const PageKey* after = at < rows.keys.size() ? &rows.keys[at] : nullptr;
        // After the start row, then once round from the top.
        for (const PageKey* start : {after, static_cast<const PageKey*>(nullptr)}) {
            Recordset rs;
            rs.open(m_paging.startingWithSql(start, text), *m_connection, CursorTypeEnum::Static,
                LockTypeEnum::Unspecified);
            if (rs.eof())
                continue;
            std::vector<PageKey> keys;
            rowsOf(rs, keys);
            const int row = rowOf(keys.front());
            if (start || row < from)
                return row;
            return -1;
        }
    } catch (const Error&) {
        return -1;
    }
    return -1;
}

} // namespace kartella
