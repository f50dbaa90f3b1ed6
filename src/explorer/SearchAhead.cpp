#include "explorer/SearchAhead.h"

#include "explorer/DocumentPaging.h"
#include "store/engine/Connection.h"
#include "store/engine/Recordset.h"
#include "store/engine/SqlText.h"
#include "store/engine/Value.h"

#include <QStringList>

#include <algorithm>
#include <cmath>
#include <optional>

namespace kartella {

namespace {

// The texts a phrase is judged by, and a prefix (whose texts are read).
constexpr qint64 PhraseSample = 2000;
constexpr qint64 PrefixSample = 200;

// The rowid of the index of the texts after which `sample` texts come, or 0 without them.
qint64 lastOfSample(Connection& connection, qint64 sample)
{
    return firstNumber(connection,
        QStringLiteral("SELECT id FROM %1_docsize ORDER BY id LIMIT 1 OFFSET %2")
            .arg(QLatin1String(ContentSearchTable))
            .arg(sample - 1));
}

// The hits of a phrase in the whole register, judged by the first texts.
qint64 judgedPhraseHits(Connection& connection, const QString& match, qint64 texts)
{
    const qint64 sample = std::min(texts, PhraseSample);
    if (sample <= 0)
        return 0;
    const qint64 hits = firstNumber(connection,
        QStringLiteral("SELECT COUNT(*) FROM %1 WHERE %2 AND rowid <= %3")
            .arg(QLatin1String(ContentSearchTable), match)
            .arg(lastOfSample(connection, sample)));
    return hits * texts / sample;
}

// The hits of a prefix in the whole register, judged by reading the first texts.
qint64 judgedPrefixHits(Connection& connection, const SearchTerm& prefix, qint64 texts)
{
    Recordset rs;
    rs.open(QStringLiteral("SELECT Body FROM tbl_Document_Text ORDER BY RastasID LIMIT %1").arg(PrefixSample),
        connection, CursorTypeEnum::Static, LockTypeEnum::Unspecified);
    if (rs.eof())
        return 0;
    qint64 hits = 0;
    while (!rs.eof()) {
        if (!searchPassage(rs.fields(0).value().toString(), {prefix}).isEmpty())
            ++hits;
        rs.moveNext();
    }
    return hits * texts / rs.recordCount();
}

// The pages of documents by date looked at for a first page, at most: two pages' worth of
// the fewest documents expected to hold the terms.
constexpr int LongestWalk = 100;
constexpr int ShortestWalk = 10;
// A server stops its walk at the page, whatever its length: it may be longer.
constexpr int LongestServerWalk = 100;

// The share of the first documents (1 000 at most) whose fields hold the piece.
double fieldsShare(Connection& connection, const SearchTerm& term)
{
    constexpr int Sample = 1000;
    const QString index = QLatin1String(SearchTable);
    const qint64 documents = firstNumber(connection,
        QStringLiteral("SELECT COUNT(*) FROM (SELECT id FROM %1_docsize LIMIT %2)").arg(index).arg(Sample));
    if (documents == 0)
        return 0;
    const qint64 last = firstNumber(connection,
        QStringLiteral("SELECT id FROM %1_docsize ORDER BY id LIMIT 1 OFFSET %2")
            .arg(index)
            .arg(documents - 1));
    const qint64 hits = firstNumber(connection,
        QStringLiteral("SELECT COUNT(*) FROM %1 WHERE rowid <= %2 AND instr(FoldedText, %3) > 0")
            .arg(index)
            .arg(last)
            .arg(sqlString(term.text)));
    return double(hits) / double(documents);
}

// The share of the first documents (1 000 at most) whose fields hold the piece, in a
// server's table of folded fields.
double serverFieldsShare(Connection& connection, const SearchTerm& term, const SearchIndexes& indexes)
{
    constexpr int Sample = 1000;
    // Any thousand: an order would sort every row first, Nulls first as the server is asked.
    const QString sample = QStringLiteral("(SELECT FoldedText FROM %1 LIMIT %2) AS sample")
                               .arg(QLatin1String(SearchTable))
                               .arg(Sample);
    const qint64 documents = firstNumber(connection, QStringLiteral("SELECT COUNT(*) FROM ") + sample);
    if (documents == 0)
        return 0;
    const qint64 hits = firstNumber(connection,
        QStringLiteral("SELECT COUNT(*) FROM %1 WHERE %2").arg(sample, fieldsCondition(term, indexes)));
    return double(hits) / double(documents);
}

// Whether the fields of the document whose id is `id` hold the piece, read from the
// document's own row of their index.
QString fieldsHold(const SearchTerm& term, const QString& id)
{
    return QStringLiteral("EXISTS (SELECT 1 FROM %1 WHERE rowid = %2 AND instr(FoldedText, %3) > 0)")
        .arg(QLatin1String(SearchTable), id, sqlString(term.text));
}

QString heldBy(const QString& table, const QString& condition)
{
    return QStringLiteral("EXISTS (SELECT 1 FROM %1 WHERE %2 AND rowid = tbl_Documents.RastasID)")
        .arg(table, condition);
}

// " WHERE " and the conditions joined by AND; empty without one.
QString whereClause(const QStringList& conditions)
{
    return conditions.isEmpty() ? QString()
                                : QStringLiteral(" WHERE ") + conditions.join(QStringLiteral(" AND "));
}

} // namespace

std::optional<SearchAhead> SearchAhead::of(Connection& connection, const QList<SearchTerm>& terms,
    const SearchIndexes& indexes, qint64 broadHits, bool byRank, qint64 broadList)
{
    if (terms.isEmpty() || indexes.fields != SearchIndexKind::FullText)
        return std::nullopt;
    const bool withTexts = indexes.content == ContentIndexKind::FullText;
    const qint64 texts = withTexts ? textCount(connection) : 0;
    const qint64 broad = withTexts ? broadHitCount(texts, broadHits) : broadHits;
    SearchAhead ahead;
    bool anyRanks = false;
    // About the number of documents, read when a term first needs it.
    std::optional<qint64> documents;
    for (const SearchTerm& term : terms) {
        const QList<SearchPart> parts = searchParts(term, indexes);
        const QString inFields = fieldsHold(term, QStringLiteral("tbl_Documents.RastasID"));
        qint64 hits = 0;
        bool ranks = false;
        if (parts.size() > 1) {
            const SearchPart& text = parts.back();
            if (text.word)
                hits = firstNumber(connection,
                    QStringLiteral("SELECT COUNT(*) FROM (%1 LIMIT %2)").arg(text.ids()).arg(broad));
            else if (text.wholeAtOnce)
                hits = judgedPrefixHits(connection, term, texts);
            else
                hits = judgedPhraseHits(connection, text.condition, texts);
            // A term of a few texts ranks them, unless the list has an order of its own: a
            // word's hits are few to rank and look up; a phrase's or a prefix's count is only
            // judged.
            ranks = hits > 0 && hits < broad;
            if (ranks && byRank && (!text.word || hits >= broadHits))
                return std::nullopt;
            ahead.m_contentHits.insert(text.contentQuery, hits);
        }
        // Found in few texts or none: worth looking for among the first documents by date only
        // when enough of them hold it in their fields for a page within the longest walk, and
        // when that makes a broad list (the fields' share of about every document).
        if (hits == 0 || ranks) {
            const double share = fieldsShare(connection, term);
            if (share < 2.0 / LongestWalk)
                return std::nullopt;
            if (!documents)
                documents
                    = firstNumber(connection, QStringLiteral("SELECT MAX(RastasID) FROM tbl_Documents"));
            if (share * double(*documents) < double(broadList))
                return std::nullopt;
            ahead.m_leastShare = std::min(ahead.m_leastShare, share);
        }
        anyRanks = anyRanks || ranks;
        if (hits == 0) {
            ahead.m_conditions << inFields;
            ahead.m_walkConditions << inFields;
        } else if (parts.back().wholeAtOnce) {
            ahead.m_prefixes << term;
        } else {
            ahead.m_conditions << QStringLiteral("(%1 OR %2)")
                                      .arg(heldBy(parts.back().table, parts.back().condition), inFields);
            // Every text that holds a ranked word is one of the ranked hits, which the walk
            // leaves out: there the word is looked for in the fields alone, not matched in
            // the texts' index for each document.
            ahead.m_walkConditions << (ranks && byRank ? inFields : ahead.m_conditions.back());
        }
        ahead.m_anyContentHit = ahead.m_anyContentHit || hits > 0;
    }
    if (anyRanks && byRank)
        ahead.m_ranking
            = prepareRanking(connection, searchRanking(terms, indexes), broadHits, ahead.m_contentHits);
    return ahead;
}

std::optional<SearchAhead> SearchAhead::onServer(Connection& connection, const QList<SearchTerm>& terms,
    const SearchIndexes& indexes, qint64 broadHits, bool byRank, qint64 broadList)
{
    if (terms.isEmpty() || indexes.fields != SearchIndexKind::Table
        || connection.dialect() != SqlDialect::PostgreSql)
        return std::nullopt;
    SearchAhead ahead;
    ahead.m_server = true;
    const qint64 documents
        = firstNumber(connection, QStringLiteral("SELECT MAX(RastasID) FROM tbl_Documents"));
    for (const SearchTerm& term : terms) {
        // Worth looking for among the first documents by date only when enough of them hold it
        // for a page within the longest walk, and when that makes a broad list.
        const double share = serverFieldsShare(connection, term, indexes);
        if (share < 2.0 / LongestServerWalk || share * double(documents) < double(broadList))
            return std::nullopt;
        ahead.m_leastShare = std::min(ahead.m_leastShare, share);
        ahead.m_conditions << serverTermHeldBy(term, indexes, QStringLiteral("tbl_Documents.RastasID"));
    }
    ahead.m_walkConditions = ahead.m_conditions;
    const SearchRanking ranking = searchRanking(terms, indexes);
    if (ranking.hits.isEmpty())
        return ahead;
    const qint64 hits = firstNumber(connection,
        QStringLiteral("SELECT COUNT(*) FROM (%1 LIMIT %2) AS hit").arg(ranking.hits).arg(broadHits));
    ahead.m_anyContentHit = hits > 0;
    if (hits > 0 && byRank) {
        // The whole list ranks every hit: a page of them is chosen among few.
        if (hits >= broadHits)
            return std::nullopt;
        ahead.m_ranking = ranking;
    }
    return ahead;
}

QString SearchAhead::bodyColumn() const
{
    // The text is read where a prefix is looked for in it by the program.
    return m_prefixes.isEmpty()
        ? QString()
        : QStringLiteral(", (SELECT Body FROM tbl_Document_Text WHERE "
                         "tbl_Document_Text.RastasID = tbl_Documents.RastasID) AS Body");
}

QString SearchAhead::rankedQuery(const QString& filter) const
{
    if (m_ranking.join.isEmpty())
        return {};
    QStringList conditions = m_conditions;
    if (!filter.isEmpty())
        conditions << u'(' + filter + u')';
    const QString where = whereClause(conditions);
    // The ranked hits, best first, as the whole list orders them: through the ranking's join on
    // a server; from the ranks kept on a register file, with CROSS JOIN, so that SQLite reads
    // the few ranks and looks their documents up, whatever it guesses of a table without
    // statistics.
    if (m_server)
        return QStringLiteral(
            "SELECT tbl_Documents.RastasID%1 FROM tbl_Documents%2%3 ORDER BY hits.hit_rank, "
            "tbl_Documents.RastasID")
            .arg(bodyColumn(),
                QString(m_ranking.join).replace(QStringLiteral(" LEFT JOIN "), QStringLiteral(" JOIN ")),
                where);
    return QStringLiteral("SELECT tbl_Documents.RastasID%1 FROM temp.%2 AS ranks CROSS JOIN tbl_Documents ON "
                          "tbl_Documents.RastasID = ranks.hit_id%3 ORDER BY ranks.hit_rank, ranks.hit_id")
        .arg(bodyColumn(), QLatin1String(RankedHitsTable), where);
}

std::vector<qint32> SearchAhead::firstIds(
    Connection& connection, const QString& filter, int rows, int walked, bool& complete) const
{
    // The terms, and the ranked hits left out of the walk by date.
    QStringList conditions = m_conditions;
    std::vector<qint32> ids;
    if (!m_ranking.join.isEmpty()) {
        const QString ranked = rankedQuery(filter);
        ids = matchingIds(connection, ranked, rows);
        if (int(ids.size()) == rows) {
            complete = false;
            return ids;
        }
        conditions = m_walkConditions;
        conditions << QStringLiteral("tbl_Documents.RastasID NOT IN (%1)").arg(m_ranking.hits);
    }
    // The walk: the first `walked` documents by date that meet the filter.
    const QString walking = filter.isEmpty() ? QString() : QStringLiteral(" WHERE ") + filter;
    Recordset last;
    last.open(
        QStringLiteral("SELECT DokRegistracData FROM tbl_Documents%1 ORDER BY DokRegistracData, RastasID "
                       "LIMIT 1 OFFSET %2")
            .arg(walking)
            .arg(walked - 1),
        connection, CursorTypeEnum::Static, LockTypeEnum::Unspecified);
    complete = last.eof();
    QString documents = QStringLiteral("tbl_Documents");
    if (m_server) {
        // A server is given the documents of the walk themselves, in their order, so that it
        // looks each up until it has the page, not every document of the walk's last day.
        documents = QStringLiteral("(SELECT * FROM tbl_Documents%1 ORDER BY DokRegistracData, RastasID LIMIT "
                                   "%2) AS tbl_Documents")
                        .arg(walking)
                        .arg(walked);
    } else {
        if (!filter.isEmpty())
            conditions << u'(' + filter + u')';
        // A register file's walk ends at the date of the last document it may look at.
        if (!complete) {
            const QVariant date = last.fields(0).value();
            conditions << (isNull(date) ? QStringLiteral("tbl_Documents.DokRegistracData IS NULL")
                                        : QStringLiteral("(tbl_Documents.DokRegistracData IS NULL OR "
                                                         "tbl_Documents.DokRegistracData <= %1)")
                                              .arg(DocumentPaging::literal(date)));
        }
    }
    last.close();
    const std::vector<qint32> byDate = matchingIds(connection,
        QStringLiteral("SELECT tbl_Documents.RastasID%1 FROM %2%3 ORDER BY "
                       "tbl_Documents.DokRegistracData, tbl_Documents.RastasID")
            .arg(bodyColumn(), documents, whereClause(conditions)),
        rows - int(ids.size()));
    ids.insert(ids.end(), byDate.begin(), byDate.end());
    return ids;
}

int SearchAhead::walked(int rows) const
{
    const int pages = int(std::ceil(2.0 / m_leastShare));
    return rows * std::clamp(pages, ShortestWalk, m_server ? LongestServerWalk : LongestWalk);
}

std::vector<qint32> SearchAhead::matchingIds(Connection& connection, const QString& query, int rows) const
{
    const QString sql = query + QStringLiteral(" LIMIT ") + QString::number(rows);
    std::vector<qint32> ids;
    // Without a prefix the database finds the page; with one, the program reads the texts a
    // page at a time until it has one, and looks up the fields of a text without the prefix.
    for (int offset = 0; int(ids.size()) < rows; offset += rows) {
        Recordset rs;
        rs.open(offset > 0 ? sql + QStringLiteral(" OFFSET ") + QString::number(offset) : sql, connection,
            CursorTypeEnum::Static, LockTypeEnum::Unspecified);
        const bool lastPage = rs.recordCount() < rows;
        while (!rs.eof() && int(ids.size()) < rows) {
            const qint32 id = rs.fields(0).value().toInt();
            bool holds = true;
            for (const SearchTerm& prefix : m_prefixes) {
                holds = !searchPassage(rs.fields(1).value().toString(), {prefix}).isEmpty()
                    || firstNumber(
                           connection, QStringLiteral("SELECT ") + fieldsHold(prefix, QString::number(id)))
                        != 0;
                if (!holds)
                    break;
            }
            if (holds)
                ids.push_back(id);
            rs.moveNext();
        }
        if (m_prefixes.isEmpty() || lastPage)
            break;
    }
    return ids;
}

} // namespace kartella
