#include "SearchCommand.h"

#include "RegisterArgument.h"
#include "base/Error.h"
#include "explorer/DocumentSearch.h"
#include "store/SearchIndex.h"
#include "store/engine/Connection.h"
#include "store/engine/Recordset.h"

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
    const QStringList folded = searchWords(words.join(u' '));
    if (folded.isEmpty())
        throw Error(ErrorNumber::CommandFailed, QStringLiteral("no word to search for"));
    Connection connection;
    connection.open(registerConnectionString(location));
    Recordset rs;
    rs.open(searchListSql(folded, searchIndexKind(connection), 0, false, {}, {}), connection);
    while (!rs.eof()) {
        out << cell(rs.fields(QStringLiteral("DokRegistracIndeksas")).value()) << '\t'
            << cell(rs.fields(QStringLiteral("DokRegistracData")).value()) << '\t'
            << cell(rs.fields(QStringLiteral("DokAntraste")).value()) << '\n';
        rs.moveNext();
    }
    rs.close();
    connection.close();
    out.flush();
}

} // namespace kartella::tool
