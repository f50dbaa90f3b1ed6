#include "explorer/DocumentSearch.h"

#include "explorer/DocumentQueries.h"
#include "store/SearchIndex.h"
#include "store/Store.h"
#include "store/engine/Connection.h"
#include "store/engine/Recordset.h"
#include "store/engine/SqlText.h"

#include <algorithm>

namespace kartella {

namespace {

// The trigram index finds no piece shorter than this.
constexpr qsizetype IndexedLength = 3;

bool isOpeningQuote(QChar c)
{
    return c == u'"' || c == u'„' || c == u'“' || c == u'”';
}

bool isClosingQuote(QChar c)
{
    return c == u'"' || c == u'“' || c == u'”';
}

// A text as one FTS5 string: between double quotes, a double quote doubled.
QString ftsString(const QString& text)
{
    return u'"' + QString(text).replace(u'"', QStringLiteral("\"\"")) + u'"';
}

bool indexable(const QString& piece)
{
    return piece.toUcs4().size() >= IndexedLength;
}

// Whether the files' index has a word of the term: a term of punctuation alone has none.
bool hasWord(const SearchTerm& term)
{
    for (const QChar c : term.text) {
        if (c.isLetterOrNumber())
            return true;
    }
    return false;
}

QString contains(const QString& text, const QString& piece)
{
    return QStringLiteral("instr(") + text + QStringLiteral(", ") + sqlString(piece)
        + QStringLiteral(") > 0");
}

// The condition on the fields' index that finds the term there.
QString fieldCondition(const SearchTerm& term, SearchIndexKind index)
{
    switch (index) {
    case SearchIndexKind::FullText:
        return indexable(term.text)
            ? QLatin1String(SearchTable) + QStringLiteral(" MATCH ") + sqlString(ftsString(term.text))
            : contains(QStringLiteral("FoldedText"), term.text);
    case SearchIndexKind::Table: {
        // The server's LIKE finds the piece, through the trigram index where there is one.
        // Its own operator, not Like: the text and the piece are folded already, and Like
        // would fold both again (ILIKE), for every row the index gives. Its escape is the
        // backslash, as sqlLikeText() writes.
        const QString escape = QStringLiteral(" ESCAPE '\\'");
        QString pattern = sqlLikeText(term.text, LikeMatch::Anywhere);
        if (pattern.endsWith(escape))
            pattern.chop(escape.size());
        return QStringLiteral("FoldedText ~~ ") + pattern;
    }
    case SearchIndexKind::None:
        break;
    }
    return {};
}

// The documents whose fields hold the term, as a query of their ids; empty without an index.
QString fieldIds(const SearchTerm& term, SearchIndexKind index)
{
    if (index == SearchIndexKind::None)
        return {};
    const QString id
        = index == SearchIndexKind::FullText ? QStringLiteral("rowid") : QStringLiteral("RastasID");
    return QStringLiteral("SELECT %1 FROM %2 WHERE ").arg(id, QLatin1String(SearchTable))
        + fieldCondition(term, index);
}

// The term as an FTS5 query: a string is a phrase of the words the tokenizer finds in it.
QString ftsQuery(const SearchTerm& term)
{
    return term.prefix ? ftsString(term.text) + QStringLiteral(" *") : ftsString(term.text);
}

// The term as a tsquery of the server, its words folded as the index's.
QString textQuery(const SearchTerm& term)
{
    bool plainWord = term.prefix;
    for (const QChar c : term.text)
        plainWord = plainWord && c.isLetterOrNumber();
    // The word alone, so that no character of the query syntax can come with it.
    if (plainWord)
        return QStringLiteral("to_tsquery('simple', fold_search_text(%1) || ':*')").arg(sqlString(term.text));
    return QStringLiteral("phraseto_tsquery('simple', fold_search_text(%1))").arg(sqlString(term.text));
}

// The condition on the FTS5 index of the files' text that finds the term there.
QString contentMatch(const SearchTerm& term)
{
    return QStringLiteral("%1 MATCH %2").arg(QLatin1String(ContentSearchTable), sqlString(ftsQuery(term)));
}

// The documents whose file's text holds the term, as a query of their ids; empty without
// an index, or for a term without a word.
QString contentIds(const SearchTerm& term, ContentIndexKind index)
{
    if (!hasWord(term))
        return {};
    switch (index) {
    case ContentIndexKind::FullText:
        return QStringLiteral("SELECT rowid FROM %1 WHERE ").arg(QLatin1String(ContentSearchTable))
            + contentMatch(term);
    case ContentIndexKind::TextVector:
        return QStringLiteral("SELECT RastasID FROM tbl_Document_Text WHERE BodyWords @@ ") + textQuery(term);
    case ContentIndexKind::None:
        break;
    }
    return {};
}

// One query of ids (a union where the term may be in either place), so that the documents
// are read by their key, not scanned.
QString termCondition(const SearchTerm& term, const SearchIndexes& indexes)
{
    const QString inFields = fieldIds(term, indexes.fields);
    const QString inFile = contentIds(term, indexes.content);
    const QString ids = QStringLiteral("tbl_Documents.RastasID IN (");
    if (inFields.isEmpty()) {
        const QString scan = contains(
            foldedDocumentText(QStringLiteral("tbl_Documents"), QStringLiteral("tbl_Contacts.FullName")),
            term.text);
        return inFile.isEmpty() ? scan
                                : u'(' + scan + QStringLiteral(" OR ") + ids + inFile + QStringLiteral("))");
    }
    if (inFile.isEmpty())
        return ids + inFields + u')';
    return ids + inFields + QStringLiteral(" UNION ") + inFile + u')';
}

} // namespace

qint64 firstNumber(Connection& connection, const QString& sql)
{
    Recordset rs;
    rs.open(sql, connection, CursorTypeEnum::Static, LockTypeEnum::Unspecified);
    return rs.eof() ? 0 : rs.fields(0).value().toLongLong();
}

QList<SearchTerm> searchTerms(const QString& text)
{
    QList<SearchTerm> terms;
    const auto add = [&terms](const QString& piece, bool quoted) {
        SearchTerm term;
        term.text = foldSearchText(piece.simplified());
        term.phrase = quoted && term.text.contains(u' ');
        if (!quoted && term.text.size() > 1 && term.text.endsWith(u'*')) {
            term.prefix = true;
            term.text.chop(1);
        }
        if (!term.text.isEmpty() && !terms.contains(term))
            terms << term;
    };
    qsizetype at = 0;
    while (at < text.size()) {
        if (text[at].isSpace()) {
            ++at;
            continue;
        }
        if (isOpeningQuote(text[at])) {
            qsizetype end = at + 1;
            while (end < text.size() && !isClosingQuote(text[end]))
                ++end;
            add(text.mid(at + 1, end - at - 1), true);
            at = end + 1;
            continue;
        }
        qsizetype end = at;
        while (end < text.size() && !text[end].isSpace())
            ++end;
        add(text.mid(at, end - at), false);
        at = end;
    }
    return terms;
}

SearchIndexes searchIndexes(Connection& connection)
{
    return {searchIndexKind(connection), contentIndexKind(connection)};
}

SearchIndexes registerSearchIndexes()
{
    Connection connection;
    connection.setMode(ConnectModeEnum::ShareDenyNone);
    connection.open(plainConnectionString());
    const SearchIndexes indexes = searchIndexes(connection);
    connection.close();
    return indexes;
}

QString SearchPart::ids() const
{
    return QStringLiteral("SELECT rowid FROM ") + table + QStringLiteral(" WHERE ") + condition;
}

QString searchTermsCondition(const QList<SearchTerm>& terms, const SearchIndexes& indexes)
{
    QStringList conditions;
    for (const SearchTerm& term : terms)
        conditions << termCondition(term, indexes);
    return conditions.isEmpty() ? QStringLiteral("0 = 1") : conditions.join(QStringLiteral(" AND "));
}

QString fieldsCondition(const SearchTerm& term, const SearchIndexes& indexes)
{
    return fieldCondition(term, indexes.fields);
}

QString serverTermHeldBy(const SearchTerm& term, const SearchIndexes& indexes, const QString& id)
{
    if (indexes.fields != SearchIndexKind::Table)
        return {};
    // OFFSET 0 keeps the server from reading every match of the term once to hash them: each
    // document is looked up by its id.
    QString held = QStringLiteral("EXISTS (SELECT 1 FROM %1 WHERE RastasID = %2 AND %3 OFFSET 0)")
                       .arg(QLatin1String(SearchTable), id, fieldCondition(term, indexes.fields));
    if (indexes.content == ContentIndexKind::TextVector && hasWord(term))
        held = QStringLiteral("(%1 OR EXISTS (SELECT 1 FROM tbl_Document_Text WHERE RastasID = %2 AND "
                              "BodyWords @@ %3 OFFSET 0))")
                   .arg(held, id, textQuery(term));
    return held;
}

QList<SearchPart> searchParts(const SearchTerm& term, const SearchIndexes& indexes)
{
    if (indexes.fields != SearchIndexKind::FullText)
        return {};
    SearchPart fields;
    fields.table = QLatin1String(SearchTable);
    fields.condition = fieldCondition(term, indexes.fields);
    fields.scans = !indexable(term.text);
    QList<SearchPart> parts {fields};
    if (indexes.content == ContentIndexKind::FullText && hasWord(term)) {
        SearchPart content;
        content.table = QLatin1String(ContentSearchTable);
        content.condition = contentMatch(term);
        content.contentQuery = ftsQuery(term);
        content.wholeAtOnce = term.prefix;
        content.word = !term.prefix && std::all_of(term.text.cbegin(), term.text.cend(), [](QChar c) {
            return c.isLetterOrNumber();
        });
        parts << content;
    }
    return parts;
}

QString searchListSql(const QList<SearchTerm>& terms, const SearchIndexes& indexes, int direction,
    bool withinDates, const QDate& start, const QDate& end)
{
    QString sql = documentSql() + QStringLiteral("WHERE ") + searchTermsCondition(terms, indexes);
    if (direction != 0)
        sql += QStringLiteral(" AND tbl_Documents.KryptisID=") + QString::number(direction);
    if (withinDates)
        sql += QStringLiteral(" AND tbl_Documents.DokRegistracData between #") + jetDate(start)
            + QStringLiteral("# and #") + jetDate(end) + u'#';
    return sql + QStringLiteral(" ORDER BY tbl_Documents.DokRegistracData");
}

SearchRanking searchRanking(const QList<SearchTerm>& terms, const SearchIndexes& indexes)
{
    QStringList queries;
    for (const SearchTerm& term : terms) {
        if (!hasWord(term))
            continue;
        queries << (indexes.content == ContentIndexKind::FullText ? ftsQuery(term) : textQuery(term));
    }
    if (queries.isEmpty() || indexes.content == ContentIndexKind::None)
        return {};
    // The names are in lower case: a server reads them so, quoted or not.
    SearchRanking ranking;
    if (indexes.content == ContentIndexKind::FullText) {
        // BM25 is below 0, lower for a better match; a date's day number is above.
        const QString table = QLatin1String(ContentSearchTable);
        ranking.join
            = QStringLiteral(" LEFT JOIN (SELECT rowid AS hit_id, bm25(%1) AS hit_rank FROM %1 WHERE %1 "
                             "MATCH %2) AS hits ON hits.hit_id = tbl_Documents.RastasID")
                  .arg(table, sqlString(queries.join(QStringLiteral(" OR "))));
        ranking.key = QStringLiteral("coalesce(hits.hit_rank, julianday(tbl_Documents.DokRegistracData), 0)");
        ranking.hits = QStringLiteral("SELECT rowid AS hit_id FROM %1 WHERE %1 MATCH %2")
                           .arg(table, sqlString(queries.join(QStringLiteral(" OR "))));
        ranking.anyHit = ranking.hits + QStringLiteral(" LIMIT 1");
        ranking.fullTextQueries = queries;
    } else {
        const QString query = u'(' + queries.join(QStringLiteral(" || ")) + u')';
        ranking.join
            = QStringLiteral(" LEFT JOIN (SELECT RastasID AS hit_id, CAST(-1 - ts_rank(BodyWords, %1) AS "
                             "double precision) AS hit_rank FROM tbl_Document_Text WHERE BodyWords @@ %1) "
                             "AS hits ON hits.hit_id = tbl_Documents.RastasID")
                  .arg(query);
        ranking.hits
            = QStringLiteral("SELECT RastasID AS hit_id FROM tbl_Document_Text WHERE BodyWords @@ %1")
                  .arg(query);
        ranking.anyHit = ranking.hits + QStringLiteral(" LIMIT 1");
        ranking.key = QStringLiteral("coalesce(hits.hit_rank, CAST(tbl_Documents.DokRegistracData - DATE "
                                     "'0001-01-01' AS double precision), 0)");
    }
    return ranking;
}

qint64 textCount(Connection& connection)
{
    // The index's own count of its rows (one per text) is small to read; the texts are not.
    return firstNumber(connection,
        QStringLiteral("SELECT COUNT(*) AS N FROM %1_docsize").arg(QLatin1String(ContentSearchTable)));
}

qint64 broadHitCount(qint64 texts, qint64 broadHits)
{
    return std::max(broadHits, (texts + 1) / 2);
}

qint64 broadHitCount(Connection& connection, qint64 broadHits)
{
    return broadHitCount(textCount(connection), broadHits);
}

SearchRanking prepareRanking(Connection& connection, const SearchRanking& ranking, qint64 broadHits,
    const QHash<QString, qint64>& knownHits)
{
    if (ranking.fullTextQueries.isEmpty())
        return ranking;
    const QString table = QLatin1String(ContentSearchTable);
    const qint64 broad = broadHitCount(connection, broadHits);
    QStringList ranked;
    bool anyHit = false;
    for (const QString& query : ranking.fullTextQueries) {
        // Counted only as far as it takes to know the term is broad.
        const auto known = knownHits.constFind(query);
        const qint64 hits = known != knownHits.cend()
            ? *known
            : firstNumber(connection,
                QStringLiteral("SELECT COUNT(*) AS N FROM (SELECT rowid FROM %1 WHERE %1 MATCH %2 LIMIT %3)")
                    .arg(table, sqlString(query), QString::number(broad)));
        anyHit = anyHit || hits > 0;
        if (hits > 0 && hits < broad)
            ranked << query;
    }
    SearchRanking prepared = ranking;
    prepared.fullTextQueries.clear();
    if (!anyHit)
        prepared.anyHit.clear();
    if (ranked.isEmpty()) {
        prepared.join.clear();
        prepared.key.clear();
        prepared.hits.clear();
        return prepared;
    }
    const QString hits = QLatin1String(RankedHitsTable);
    connection.execute(QStringLiteral("DROP TABLE IF EXISTS temp.") + hits);
    connection.execute(
        QStringLiteral("CREATE TEMP TABLE %1 (hit_id INTEGER PRIMARY KEY, hit_rank REAL NOT NULL)")
            .arg(hits));
    connection.execute(QStringLiteral("INSERT INTO temp.%1 (hit_id, hit_rank) SELECT rowid, bm25(%2) FROM %2 "
                                      "WHERE %2 MATCH %3")
                           .arg(hits, table, sqlString(ranked.join(QStringLiteral(" OR ")))));
    prepared.join
        = QStringLiteral(" LEFT JOIN temp.%1 AS hits ON hits.hit_id = tbl_Documents.RastasID").arg(hits);
    prepared.hits = QStringLiteral("SELECT hit_id FROM temp.") + hits;
    return prepared;
}

} // namespace kartella
