#include "SearchCommand.h"

#include "RegisterArgument.h"
#include "ToolText.h"
#include "base/Error.h"
#include "explorer/DocumentPaging.h"
#include "explorer/DocumentSearch.h"
#include "store/SearchIndex.h"
#include "store/engine/Connection.h"
#include "store/engine/Recordset.h"

#include <limits>

namespace kartella::tool {

namespace {

// A field as one cell of a line: no tab or line break inside.
QString cell(const QVariant& value)
{
    QString text = value.userType() == QMetaType::QDate || value.userType() == QMetaType::QDateTime
        ? value.toDate().toString(Qt::ISODate)
        : value.toString();
    for (QChar& c : text) {
        if (c == u'\t' || c == u'\n' || c == u'\r')
            c = u' ';
    }
    return text;
}

} // namespace

void searchCommand(const QString& path, const QStringList& words, QTextStream& out)
{
    const QString location = existingRegister(path);
    const QList<SearchTerm> terms = searchTerms(words.join(u' '));
    if (terms.isEmpty())
        throw Error(ErrorNumber::CommandFailed, ToolText::tr("no word to search for"));
    Connection connection;
    connection.open(registerConnectionString(location));
    const SearchIndexes indexes = searchIndexes(connection);
    // The rows in the order of the window's list of results.
    DocumentPaging paging(searchListSql(terms, indexes, 0, false, {}, {}), DocumentPaging::Mode::Category);
    const SearchRanking ranking = searchRanking(terms, indexes);
    paging.setRanking(ranking.join, ranking.key);
    Recordset rs;
    rs.open(paging.pageSql(nullptr, std::numeric_limits<int>::max()), connection);
    struct Line
    {
        qint32 id;
        QString text;
    };
    std::vector<Line> lines;
    std::vector<qint32> ids;
    while (!rs.eof()) {
        const qint32 id = rs.fields(QStringLiteral("RastasID")).value().toInt();
        lines.push_back({id,
            cell(rs.fields(QStringLiteral("DokRegistracIndeksas")).value()) + u'\t'
                + cell(rs.fields(QStringLiteral("DokRegistracData")).value()) + u'\t'
                + cell(rs.fields(QStringLiteral("DokAntraste")).value())});
        ids.push_back(id);
        rs.moveNext();
    }
    rs.close();
    const std::map<qint32, QString> passages
        = ranking.key.isEmpty() ? std::map<qint32, QString>() : searchPassages(connection, ids, terms);
    for (const Line& line : lines) {
        out << line.text;
        auto passage = passages.find(line.id);
        if (passage != passages.end())
            out << '\t'
                << QString(passage->second).replace(PassageHitStart, u'[').replace(PassageHitEnd, u']');
        out << '\n';
    }
    connection.close();
    out.flush();
}

} // namespace kartella::tool
