#pragma once

#include "explorer/DocumentSearch.h"

#include <QHash>
#include <QList>
#include <QString>

#include <optional>
#include <vector>

namespace kartella {

class Connection;

// A search can show its first page before every result is found when that page costs a
// page, not the register. Its results come by date when no term ranks (each is in the texts
// of broadHitCount() documents or more); then most of the first documents by date hold every
// term, and each of them is looked up in the indexes. A word in few texts ranks them: its
// hits come first, best first, and there are few of them to look up; the documents by date
// follow. The index reads a prefix of its words whole at each look-up, so a prefix is looked
// for in the document's text by the program instead, as the index finds words.
class SearchAhead
{
public:
    // The documents found from which a search's first page is sooner read ahead than its
    // whole list is found.
    static constexpr qint64 BroadList = 4 * BroadHits;

    // Empty when a phrase or a prefix ranks (it is in some texts, fewer than
    // broadHitCount()), when a word ranks `broadHits` texts or more, when a term in few texts or
    // in none is in the fields of fewer than one in 25 of the first 1 000 documents or of fewer
    // than about `broadList` documents in all, or on a register without the fields' FTS5
    // index. When `byRank` is false the list is by date (its own order), and nothing ranks. A
    // word's texts are counted as far as broadHitCount(); a phrase's are judged by the first
    // 2 000 texts, a prefix's by the first 200. When a term ranks, the ranks are prepared on
    // the connection (prepareRanking()). Throws kartella::Error.
    static std::optional<SearchAhead> of(Connection& connection, const QList<SearchTerm>& terms,
        const SearchIndexes& indexes, qint64 broadHits = BroadHits, bool byRank = true,
        qint64 broadList = BroadList);

    // The same on a server's register (its table of folded fields and its vectors of the
    // files' words): every term is looked up in each document; each term's fields are to hold
    // one in 50 of the first 1 000 documents, and about `broadList` documents in all; a search
    // ranks the hits of the files' text, of which there are to be fewer than `broadHits`.
    // Empty on a register file. Throws kartella::Error.
    static std::optional<SearchAhead> onServer(Connection& connection, const QList<SearchTerm>& terms,
        const SearchIndexes& indexes, qint64 broadHits = BroadHits, bool byRank = true,
        qint64 broadList = BroadList);

    // The ids of the first `rows` documents of the list that hold every term and meet
    // `filter` (a condition on tbl_Documents, or empty): the ranked hits best first, then the
    // documents by date (then id), these looked for among the first `walked` documents by
    // date that meet the filter. `complete` tells whether those were all of them.
    // Throws kartella::Error.
    std::vector<qint32> firstIds(
        Connection& connection, const QString& filter, int rows, int walked, bool& complete) const;

    // The documents by date to look at for the first `rows`: enough for two pages where the
    // fields hold a term, ten pages at least and 50 at most (100 on a server, which stops
    // looking at the page).
    int walked(int rows) const;

    // The query of the ranked hits that hold every term and meet `filter`, best first, as
    // firstIds() reads them (for their plan); empty when nothing ranks.
    QString rankedQuery(const QString& filter) const;

    // The ranking prepared on the connection, for the first page's order; empty when no term
    // ranks.
    const SearchRanking& ranking() const { return m_ranking; }

    // The hits judged for each query of the files' text (searchRanking()'s), for
    // prepareRanking() when the whole list is found: its order is then the first page's.
    const QHash<QString, qint64>& contentHits() const { return m_contentHits; }
    // Whether a term is in the texts: the list has their passages.
    bool anyContentHit() const { return m_anyContentHit; }

private:
    QString bodyColumn() const;
    std::vector<qint32> matchingIds(Connection& connection, const QString& sql, int rows) const;

    // A prefix: its fields in the index, its words in the document's text.
    QStringList m_conditions;
    // The same for the walk by date past the ranked hits.
    QStringList m_walkConditions;
    // Looked for by the program in the document's text, by the database in its fields.
    QList<SearchTerm> m_prefixes;
    QHash<QString, qint64> m_contentHits;
    bool m_anyContentHit = false;
    SearchRanking m_ranking;
    // The least share of the first documents whose fields hold a term in few texts or none.
    double m_leastShare = 1;
    // The ranked hits are read through the ranking's join (a server's), not its table.
    bool m_server = false;
};

} // namespace kartella
