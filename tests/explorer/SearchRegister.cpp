#include "explorer/SearchRegister.h"

#include "explorer/DocumentPaging.h"
#include "store/engine/Connection.h"
#include "store/engine/Recordset.h"
#include "store/engine/SqlText.h"

namespace kartella::test {

Ids idsOf(Connection& connection, const QString& sql)
{
    Recordset rs;
    rs.open(sql, connection);
    Ids ids;
    while (!rs.eof()) {
        ids << rs.fields(QStringLiteral("RastasID")).value().toInt();
        rs.moveNext();
    }
    return ids;
}

Ids found(const TestRegister& reg, const QString& text, qint64 broadHits)
{
    Connection connection;
    connection.open(reg.connectionString());
    const QList<SearchTerm> terms = searchTerms(text);
    const SearchIndexes indexes = searchIndexes(connection);
    DocumentPaging paging(searchListSql(terms, indexes, 0, false, {}, {}), DocumentPaging::Mode::Category);
    const SearchRanking ranking = prepareRanking(connection, searchRanking(terms, indexes), broadHits);
    paging.setRanking(ranking.join, ranking.key);
    return idsOf(connection, paging.pageSql(nullptr, 1000));
}

qint32 addDocument(const TestRegister& reg, const QString& description, const QDate& date)
{
    return reg.insert(
        QStringLiteral("tbl_Documents"), {{"DokAntraste", description}, {"DokRegistracData", date}});
}

void addText(const TestRegister& reg, qint32 id, const QString& body)
{
    reg.exec(QStringLiteral(
        "INSERT INTO tbl_Document_Text (RastasID, FilePath, State, Body) VALUES (%1, %2, 1, %3)")
                 .arg(id)
                 .arg(sqlString(QStringLiteral("/docs/") + QString::number(id) + QStringLiteral(".pdf")),
                     sqlString(body)));
}

} // namespace kartella::test
