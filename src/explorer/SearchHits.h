#pragma once

#include "explorer/DocumentSearch.h"

#include <QHash>
#include <QList>
#include <QString>

#include <vector>

namespace kartella {

class Connection;

// The documents a search finds on a register file, copied into a temporary table of the
// connection that reads its list, so that the indexes are searched once for the count and
// every page. The terms are taken rarest first, as the indexes count them: the documents
// of the first are copied, then each later term drops those without it, by a look-up of
// each document kept while few are, else by one reading of the term's documents. A prefix
// of the files' words is never looked up one document at a time: each use reads it whole.
class SearchHits
{
public:
    // Whether the indexes let the terms be searched this way: the fields' FTS5 index.
    static bool canKeep(const SearchIndexes& indexes);

    // Copies the ids of the documents that hold every term and meet `filter` (a condition on
    // tbl_Documents, or empty) into temp.`table` (RastasID INTEGER PRIMARY KEY, made empty
    // first). Throws kartella::Error.
    void keep(Connection& connection, const QString& table, const QList<SearchTerm>& terms,
        const SearchIndexes& indexes, const QString& filter, qint64 broadHits = BroadHits);

    // The hits of the queries of the files' text that were counted on the way (whole, or as
    // far as broadHitCount()), for prepareRanking().
    const QHash<QString, qint64>& contentHits() const { return m_contentHits; }

private:
    struct Term
    {
        QList<SearchPart> parts;
        qint64 estimate = 0;
        qint64 fieldHits = 0;
        bool inText = false;
    };
    bool keepByTheTextsIndex(Connection& connection, const std::vector<Term>& terms);
    qint64 estimate(Connection& connection, const SearchPart& part, qint64 broad);
    void copyFirst(Connection& connection, const Term& term);
    void dropWithout(Connection& connection, const Term& term);

    QString m_table;
    QHash<QString, qint64> m_contentHits;
};

} // namespace kartella
