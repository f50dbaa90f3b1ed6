#include "explorer/SearchHits.h"

#include "store/engine/Connection.h"
#include "store/engine/Recordset.h"
#include "store/engine/SqlText.h"

#include <algorithm>

namespace kartella {

namespace {

// Hits counted at most to tell a rare term from a common one.
constexpr qint64 EstimateLimit = 5000;
// Up to this many documents kept, a later term is looked up for each of them; past it, its
// documents are read once.
constexpr qint64 LookUpMost = 200;

// A term's documents read whole once, for the steps that follow.
const QString TermTable = QStringLiteral("search_term_hits");

qint64 countUpTo(Connection& connection, const QString& ids, qint64 limit)
{
    return firstNumber(connection,
        QStringLiteral("SELECT COUNT(*) AS N FROM (%1 LIMIT %2)").arg(ids, QString::number(limit)));
}

// The part's condition for the one document whose id is `id`.
QString holdsRow(const SearchPart& part, const QString& id)
{
    return QStringLiteral("EXISTS (SELECT 1 FROM %1 WHERE %2 AND rowid = %3)")
        .arg(part.table, part.condition, id);
}

// The part's condition for the one document of the kept row.
QString holdsKeptRow(const SearchPart& part, const QString& table)
{
    return holdsRow(part, QStringLiteral("temp.%1.RastasID").arg(table));
}

} // namespace

bool SearchHits::canKeep(const SearchIndexes& indexes)
{
    return indexes.fields == SearchIndexKind::FullText;
}

void SearchHits::keep(Connection& connection, const QString& table, const QList<SearchTerm>& terms,
    const SearchIndexes& indexes, const QString& filter, qint64 broadHits)
{
    m_table = table;
    m_contentHits.clear();
    connection.execute(QStringLiteral("DELETE FROM temp.") + table);
    const qint64 broad = indexes.content == ContentIndexKind::FullText ? broadHitCount(connection, broadHits)
                                                                       : EstimateLimit;
    std::vector<Term> ordered;
    for (const SearchTerm& term : terms) {
        Term counted {searchParts(term, indexes)};
        for (const SearchPart& part : counted.parts) {
            const qint64 hits = estimate(connection, part, broad);
            counted.estimate += hits;
            if (part.contentQuery.isEmpty())
                counted.fieldHits = hits;
            else
                counted.inText = true;
        }
        ordered.push_back(counted);
    }
    std::stable_sort(
        ordered.begin(), ordered.end(), [](const Term& a, const Term& b) { return a.estimate < b.estimate; });
    if (ordered.empty())
        return;
    if (!keepByTheTextsIndex(connection, ordered)) {
        copyFirst(connection, ordered.front());
        for (auto term = ordered.begin() + 1; term != ordered.end(); ++term)
            dropWithout(connection, *term);
    }
    if (!filter.isEmpty()) {
        connection.execute(QStringLiteral("DELETE FROM temp.%1 WHERE NOT EXISTS (SELECT 1 FROM tbl_Documents "
                                          "WHERE tbl_Documents.RastasID = temp.%1.RastasID AND (%2))")
                               .arg(table, filter));
    }
}

bool SearchHits::keepByTheTextsIndex(Connection& connection, const std::vector<Term>& terms)
{
    // Worth it for several terms that are all words of the texts and rare in the fields.
    qint64 inFields = 0;
    for (const Term& term : terms) {
        if (!term.inText || term.parts.front().scans)
            return false;
        inFields += term.fieldHits;
    }
    if (terms.size() < 2 || inFields > LookUpMost)
        return false;
    // The texts that hold every term, as the index joins its own lists.
    QStringList queries;
    for (const Term& term : terms)
        queries << term.parts.back().contentQuery;
    const QString& texts = terms.front().parts.back().table;
    connection.execute(QStringLiteral("INSERT INTO temp.%1 (RastasID) SELECT rowid FROM %2 WHERE %2 MATCH %3")
                           .arg(m_table, texts, sqlString(queries.join(QStringLiteral(" AND ")))));
    // Then the few documents whose fields hold a term, each looked up for the others.
    for (const Term& term : terms) {
        if (term.fieldHits == 0)
            continue;
        QStringList others;
        for (const Term& other : terms) {
            if (&other == &term)
                continue;
            QStringList places;
            for (const SearchPart& part : other.parts) {
                places << (part.wholeAtOnce ? QStringLiteral("candidate.id IN (") + part.ids() + u')'
                                            : holdsRow(part, QStringLiteral("candidate.id")));
            }
            others << u'(' + places.join(QStringLiteral(" OR ")) + u')';
        }
        // The index of an inner look-up may be the candidates' own: they are named apart.
        connection.execute(
            QStringLiteral("INSERT OR IGNORE INTO temp.%1 (RastasID) SELECT candidate.id FROM (SELECT "
                           "rowid AS id FROM %2 WHERE %3) AS candidate WHERE %4")
                .arg(m_table, term.parts.front().table, term.parts.front().condition,
                    others.join(QStringLiteral(" AND "))));
    }
    return true;
}

qint64 SearchHits::estimate(Connection& connection, const SearchPart& part, qint64 broad)
{
    // Neither is counted: a prefix reads every word it starts, a short piece every document.
    if (part.wholeAtOnce)
        return broad;
    if (part.scans)
        return EstimateLimit;
    if (part.word) {
        // As far as the ranking needs it counted.
        const qint64 hits = countUpTo(connection, part.ids(), broad);
        m_contentHits.insert(part.contentQuery, hits);
        return hits;
    }
    return countUpTo(connection, part.ids(), EstimateLimit);
}

void SearchHits::copyFirst(Connection& connection, const Term& term)
{
    QList<SearchPart> parts = term.parts;
    // The files' text first, into the empty table: what it holds then is that query's hits.
    std::stable_partition(
        parts.begin(), parts.end(), [](const SearchPart& part) { return !part.contentQuery.isEmpty(); });
    const QString into = QStringLiteral("INSERT OR IGNORE INTO temp.%1 (RastasID) ").arg(m_table);
    for (const SearchPart& part : parts) {
        if (part.scans) {
            // Only the documents not kept yet are read, by their ids in the index's own list
            // of its rows, which is small.
            connection.execute(into
                + QStringLiteral(
                    "SELECT rowid FROM %1 WHERE rowid IN (SELECT id FROM %1_docsize WHERE id NOT IN "
                    "(SELECT RastasID FROM temp.%2)) AND %3")
                      .arg(part.table, m_table, part.condition));
            continue;
        }
        connection.execute(into + part.ids());
        if (!part.contentQuery.isEmpty())
            m_contentHits.insert(part.contentQuery,
                firstNumber(connection, QStringLiteral("SELECT COUNT(*) AS N FROM temp.") + m_table));
    }
}

void SearchHits::dropWithout(Connection& connection, const Term& term)
{
    const qint64 kept = firstNumber(connection, QStringLiteral("SELECT COUNT(*) AS N FROM temp.") + m_table);
    if (kept == 0)
        return;
    const bool lookUp = kept <= LookUpMost
        && std::none_of(
            term.parts.cbegin(), term.parts.cend(), [](const SearchPart& p) { return p.wholeAtOnce; });
    QStringList holds;
    bool termTable = false;
    for (const SearchPart& part : term.parts) {
        if (lookUp || part.scans) {
            holds << holdsKeptRow(part, m_table);
        } else if (part.wholeAtOnce) {
            // Read once into a table of its own, which counts it too.
            connection.execute(QStringLiteral("DROP TABLE IF EXISTS temp.") + TermTable);
            connection.execute(
                QStringLiteral("CREATE TEMP TABLE %1 (RastasID INTEGER PRIMARY KEY)").arg(TermTable));
            connection.execute(QStringLiteral("INSERT INTO temp.%1 (RastasID) ").arg(TermTable) + part.ids());
            m_contentHits.insert(part.contentQuery,
                firstNumber(connection, QStringLiteral("SELECT COUNT(*) AS N FROM temp.") + TermTable));
            holds << QStringLiteral("RastasID IN (SELECT RastasID FROM temp.%1)").arg(TermTable);
            termTable = true;
        } else {
            holds << QStringLiteral("RastasID IN (") + part.ids() + u')';
        }
    }
    connection.execute(QStringLiteral("DELETE FROM temp.%1 WHERE NOT (%2)")
                           .arg(m_table, holds.join(QStringLiteral(" OR "))));
    if (termTable)
        connection.execute(QStringLiteral("DROP TABLE temp.") + TermTable);
}

} // namespace kartella
