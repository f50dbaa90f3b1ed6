#include "store/engine/BackendParts.h"

#include "store/StoreText.h"
#include "store/engine/EngineErrors.h"
#include "store/engine/SqlLexer.h"

#include <QLocale>

namespace kartella::engine {

QString quotedName(const QString& name)
{
    QString escaped = name;
    escaped.replace(u'"', QLatin1String("\"\""));
    return u'"' + escaped + u'"';
}

bool acceptsHiddenKey(const QString& sql)
{
    const std::vector<SqlToken> tokens = tokenizeSql(sql);
    bool first = true;
    for (const SqlToken& token : tokens) {
        if (token.kind == SqlToken::Space)
            continue;
        if (first) {
            if (!isKeyword(sql, token, u"SELECT"))
                return false;
            first = false;
            continue;
        }
        for (const char16_t* word : {u"DISTINCT", u"GROUP", u"UNION", u"INTERSECT", u"EXCEPT", u"VALUES"}) {
            if (isKeyword(sql, token, word))
                return false;
        }
    }
    return !first;
}

QString singleSourceTable(const std::vector<ColumnInfo>& columns)
{
    QString table;
    for (const ColumnInfo& column : columns) {
        if (column.table.isEmpty()
            || (!table.isEmpty() && column.table.compare(table, Qt::CaseInsensitive) != 0))
            return {};
        table = column.table;
    }
    return table;
}

void failRowGone(const TableSchema& table, const QString& keyName, const QVariant& key)
{
    throwError(ErrorNumber::RowDeleted,
        kartella::StoreText::tr("Row cannot be located for updating: another user may have deleted it (%1)")
            .arg(table.name + u' ' + keyName + u'=' + key.toString()),
        ConnectionSource);
}

void failRowChanged(const TableSchema& table, const QString& keyName, const QVariant& key)
{
    throwError(ErrorNumber::RowChanged,
        kartella::StoreText::tr("Row cannot be located for updating. Some values may have been changed since "
                                "it was last read. (%1)")
            .arg(table.name + u' ' + keyName + u'=' + key.toString()),
        ConnectionSource);
}

QString originalDateTimeText(const QDateTime& dateTime)
{
    return dateTime.toString(u"yyyy-MM-dd HH:mm:ss.zzz");
}

QString waitText(int milliseconds)
{
    if (milliseconds == 1000)
        return kartella::StoreText::tr("1 second");
    return kartella::StoreText::tr("%1 seconds").arg(QLocale().toString(milliseconds / 1000.0));
}

void findKeyColumn(QueryResult& result, const TableSchema& schema)
{
    for (int c = 0; c < result.visibleColumns; ++c) {
        if (result.columns[std::size_t(c)].origin.compare(schema.key, Qt::CaseInsensitive) == 0) {
            result.keyColumn = c;
            result.keyName = schema.key;
            return;
        }
    }
}

bool writesRows(const QString& sql)
{
    const QStringList words = sql.simplified().split(u' ');
    if (words.isEmpty())
        return false;
    const QString& verb = words.front();
    const auto is
        = [](const QString& word, QStringView name) { return word.compare(name, Qt::CaseInsensitive) == 0; };
    if (!is(verb, u"INSERT") && !is(verb, u"UPDATE") && !is(verb, u"DELETE") && !is(verb, u"REPLACE"))
        return false;
    // The table written: after INTO or FROM, or UPDATE's own (past an OR clause).
    qsizetype at = 1;
    if (is(verb, u"UPDATE")) {
        if (at < words.size() && is(words[at], u"OR"))
            at += 2;
    } else {
        const QStringView marker = is(verb, u"DELETE") ? u"FROM" : u"INTO";
        while (at < words.size() && !is(words[at], marker))
            ++at;
        ++at;
    }
    // A program's own temporary table (a search's found rows) is no row of the register.
    return at >= words.size() || !words[at].startsWith(QLatin1String("temp."), Qt::CaseInsensitive);
}

} // namespace kartella::engine
