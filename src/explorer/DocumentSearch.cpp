#include "explorer/DocumentSearch.h"

#include "explorer/DocumentQueries.h"
#include "store/SearchIndex.h"
#include "store/Store.h"
#include "store/engine/Connection.h"
#include "store/engine/SqlText.h"

#include <QRegularExpression>

namespace kartella {

namespace {

// The trigram index finds no piece shorter than this.
constexpr qsizetype IndexedLength = 3;

// A word as one FTS5 phrase: between double quotes, a double quote doubled.
QString ftsPhrase(const QString& word)
{
    return u'"' + QString(word).replace(u'"', QStringLiteral("\"\"")) + u'"';
}

bool indexable(const QString& word)
{
    return word.toUcs4().size() >= IndexedLength;
}

QString contains(const QString& text, const QString& word)
{
    return QStringLiteral("instr(") + text + QStringLiteral(", ") + sqlString(word) + QStringLiteral(") > 0");
}

QString indexedCondition(const QStringList& words)
{
    const QString table = QLatin1String(SearchTable);
    QStringList phrases;
    QStringList conditions;
    for (const QString& word : words) {
        if (indexable(word))
            phrases << ftsPhrase(word);
    }
    if (!phrases.isEmpty())
        conditions << table + QStringLiteral(" MATCH ") + sqlString(phrases.join(QStringLiteral(" AND ")));
    for (const QString& word : words) {
        if (!indexable(word))
            conditions << contains(QStringLiteral("FoldedText"), word);
    }
    return QStringLiteral("tbl_Documents.RastasID IN (SELECT rowid FROM ") + table + QStringLiteral(" WHERE ")
        + conditions.join(QStringLiteral(" AND ")) + u')';
}

// The table of folded texts on a server: Like finds every word, through the trigram index
// where there is one.
QString tableCondition(const QStringList& words)
{
    QStringList conditions;
    for (const QString& word : words)
        conditions << QStringLiteral("FoldedText LIKE ") + sqlLikeText(word, LikeMatch::Anywhere);
    return QStringLiteral("tbl_Documents.RastasID IN (SELECT RastasID FROM ") + QLatin1String(SearchTable)
        + QStringLiteral(" WHERE ") + conditions.join(QStringLiteral(" AND ")) + u')';
}

QString scanCondition(const QStringList& words)
{
    const QString text
        = foldedDocumentText(QStringLiteral("tbl_Documents"), QStringLiteral("tbl_Contacts.FullName"));
    QStringList conditions;
    for (const QString& word : words)
        conditions << contains(text, word);
    return conditions.join(QStringLiteral(" AND "));
}

} // namespace

QStringList searchWords(const QString& text)
{
    static const QRegularExpression blanks(QStringLiteral("\\s+"));
    QStringList words;
    for (const QString& word : text.split(blanks, Qt::SkipEmptyParts)) {
        const QString folded = foldSearchText(word);
        if (!words.contains(folded))
            words << folded;
    }
    return words;
}

QString searchListSql(const QStringList& words, SearchIndexKind index, int direction, bool withinDates,
    const QDate& start, const QDate& end)
{
    QString sql = documentSql() + QStringLiteral("WHERE ");
    if (words.isEmpty())
        sql += QStringLiteral("0 = 1");
    else if (index == SearchIndexKind::FullText)
        sql += indexedCondition(words);
    else if (index == SearchIndexKind::Table)
        sql += tableCondition(words);
    else
        sql += scanCondition(words);
    if (direction != 0)
        sql += QStringLiteral(" AND tbl_Documents.KryptisID=") + QString::number(direction);
    if (withinDates)
        sql += QStringLiteral(" AND tbl_Documents.DokRegistracData between #") + jetDate(start)
            + QStringLiteral("# and #") + jetDate(end) + u'#';
    return sql + QStringLiteral(" ORDER BY tbl_Documents.DokRegistracData");
}

SearchIndexKind registerSearchIndex()
{
    Connection connection;
    connection.setMode(ConnectModeEnum::ShareDenyNone);
    connection.open(plainConnectionString());
    const SearchIndexKind index = searchIndexKind(connection);
    connection.close();
    return index;
}

} // namespace kartella
