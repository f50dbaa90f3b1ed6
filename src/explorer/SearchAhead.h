#pragma once

#include "explorer/DocumentSearch.h"

#include <QHash>
#include <QList>
#include <QString>

#include <optional>
#include <vector>

namespace kartella {

class Connection;

// A search whose results come by date can show its first page before every result is
// found: no term ranks when each is in the texts of broadHitCount() documents or more, and
// then most of the first documents by date hold every term. The first page is found by
// looking each of those documents up in the indexes, which costs a page, not the register.
// The index reads a prefix of its words whole at each look-up, so a prefix is looked for in
// the document's text by the program instead, as the index finds words.
class SearchAhead
{
public:
    // Empty when a term ranks (it is in some texts, fewer than broadHitCount()), when a term
    // in no text is in the fields of a tenth of the first 1 000 documents or fewer, or on a
    // register without the fields' FTS5 index. A word's texts are counted as far as
    // broadHitCount(); a phrase's are judged by the first 2 000 texts, a prefix's by the first
    // 200. Throws kartella::Error.
    static std::optional<SearchAhead> of(Connection& connection, const QList<SearchTerm>& terms,
        const SearchIndexes& indexes, qint64 broadHits = BroadHits);

    // The ids of the first `rows` documents by date (then id) that hold every term and meet
    // `filter` (a condition on tbl_Documents, or empty), looked for among the first `walked`
    // documents by date that meet it. `complete` tells whether those were all of them.
    // Throws kartella::Error.
    std::vector<qint32> firstIds(
        Connection& connection, const QString& filter, int rows, int walked, bool& complete) const;

    // The hits judged for each query of the files' text (searchRanking()'s), for
    // prepareRanking() when the whole list is found: its order is then the first page's.
    const QHash<QString, qint64>& contentHits() const { return m_contentHits; }
    // Whether a term is in the texts: the list has their passages.
    bool anyContentHit() const { return m_anyContentHit; }

private:
    // A prefix: its fields in the index, its words in the document's text.
    QStringList m_conditions;
    // Looked for by the program in the document's text, by the database in its fields.
    QList<SearchTerm> m_prefixes;
    QHash<QString, qint64> m_contentHits;
    bool m_anyContentHit = false;
};

} // namespace kartella
