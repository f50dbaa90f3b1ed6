// The PostgreSQL back end's knowledge of the database: the names and keys it declares,
// and the key generators that rows written with their keys given leave behind.
#include "store/StoreText.h"
#include "store/engine/BackendParts.h"
#include "store/engine/EngineErrors.h"
#include "store/engine/PostgresBackend.h"
#include "store/engine/PostgresTypes.h"
#include "store/engine/SqlLexer.h"

#include <cstdlib>

namespace kartella::engine {

using namespace postgres;

void PostgresBackend::loadCatalog()
{
    // Every column of the tables and views of the current schema, with the key of each table:
    // its one-column primary key, and whether the database makes its values.
    static const QByteArray sql
        = "SELECT c.oid, c.relname, a.attnum, a.attname, a.atttypid, "
          "a.attidentity <> '' OR coalesce(pg_get_expr(d.adbin, d.adrelid) LIKE 'nextval(%', false), "
          "coalesce(i.indnatts = 1 AND a.attnum = i.indkey[0], false) "
          "FROM pg_class c JOIN pg_attribute a ON a.attrelid = c.oid "
          "LEFT JOIN pg_attrdef d ON d.adrelid = c.oid AND d.adnum = a.attnum "
          "LEFT JOIN pg_index i ON i.indrelid = c.oid AND i.indisprimary "
          "WHERE c.relnamespace = current_schema()::regnamespace AND c.relkind IN ('r', 'v', 'm', 'p', 'f') "
          "AND a.attnum > 0 AND NOT a.attisdropped ORDER BY c.oid, a.attnum";
    const Result result = run(sql, {}, QString::fromUtf8(sql));
    m_relations.clear();
    m_relationByOid.clear();
    m_names.clear();
    const int rows = PQntuples(result.get());
    for (int r = 0; r < rows; ++r) {
        const unsigned oid = unsigned(std::strtoul(PQgetvalue(result.get(), r, 0), nullptr, 10));
        const QString table = QString::fromUtf8(PQgetvalue(result.get(), r, 1));
        const QString lower = table.toLower();
        Relation& relation = m_relations[lower];
        if (relation.schema.name.isEmpty()) {
            relation.schema.name = table;
            m_relationByOid.insert(oid, lower);
            m_names.insert(lower, table);
        }
        TableColumn column;
        column.name = QString::fromUtf8(PQgetvalue(result.get(), r, 3));
        column.declared = kindOfType(Oid(std::strtoul(PQgetvalue(result.get(), r, 4), nullptr, 10)));
        relation.columnsByNumber.emplace(std::atoi(PQgetvalue(result.get(), r, 2)), column.name);
        if (*PQgetvalue(result.get(), r, 6) == 't') {
            relation.schema.key = column.name;
            relation.schema.keyGenerated = *PQgetvalue(result.get(), r, 5) == 't';
        }
        m_names.insert(column.name.toLower(), column.name);
        relation.schema.columns.push_back(std::move(column));
    }
    for (auto& [name, relation] : m_relations) {
        // A table without a one-column key is written by its row's place.
        if (relation.schema.key.isEmpty())
            relation.schema.key = QStringLiteral("ctid");
    }
    m_catalogLoaded = true;
}

const ServerNames& PostgresBackend::names()
{
    if (!m_catalogLoaded)
        loadCatalog();
    return m_names;
}

QString PostgresBackend::translate(const QString& sql)
{
    return translateJetToPostgres(sql, names());
}

void PostgresBackend::noteInsert(const QString& translatedSql)
{
    const std::vector<SqlToken> tokens = tokenizeSql(translatedSql);
    std::vector<const SqlToken*> solid;
    for (const SqlToken& token : tokens) {
        if (token.kind != SqlToken::Space)
            solid.push_back(&token);
        if (solid.size() == 3)
            break;
    }
    if (solid.size() < 3 || !isKeyword(translatedSql, *solid[0], u"INSERT")
        || !isKeyword(translatedSql, *solid[1], u"INTO"))
        return;
    const auto found = m_relations.find(unquotedText(translatedSql, *solid[2]).toLower());
    if (found != m_relations.end())
        noteExplicitKey(found->second.schema);
}

void PostgresBackend::noteExplicitKey(const TableSchema& table)
{
    if (!table.keyGenerated)
        return;
    m_explicitKeys.insert(table.name.toLower());
    if (m_depth == 0)
        advanceKeyGenerators();
}

void PostgresBackend::advanceKeyGenerators()
{
    // Rows written with their keys given leave the key generator behind: move it past the
    // largest key, never back, so that new rows get keys no row has had.
    for (const QString& lower : std::as_const(m_explicitKeys)) {
        const auto found = m_relations.find(lower);
        if (found == m_relations.end())
            continue;
        const TableSchema& table = found->second.schema;
        const QString sql
            = QStringLiteral("SELECT setval(s, m) FROM (SELECT pg_get_serial_sequence(%1, %2) AS s, "
                             "(SELECT max(%3) FROM %4) AS m) q "
                             "WHERE s IS NOT NULL AND m > coalesce(pg_sequence_last_value(s::regclass), 0)")
                  .arg(literal(quotedName(table.name)), literal(table.key), quotedName(table.key),
                      quotedName(table.name));
        run(sql.toUtf8(), {}, sql);
    }
    m_explicitKeys.clear();
}

qint64 PostgresBackend::keyCounter(const QString& table)
{
    const TableSchema& schema = tableSchema(table);
    if (!schema.keyGenerated)
        return 0;
    // A generator that has made no key yet has no last value.
    static const QByteArray sql = "SELECT coalesce(pg_sequence_last_value(s::regclass), 0) FROM "
                                  "(SELECT pg_get_serial_sequence($1, $2) AS s) q WHERE s IS NOT NULL";
    const StatementGuard guard(*this);
    const Result result
        = run(sql, {quotedName(schema.name).toUtf8(), schema.key.toUtf8()}, QString::fromUtf8(sql));
    return PQntuples(result.get()) == 0 ? 0 : std::strtoll(PQgetvalue(result.get(), 0, 0), nullptr, 10);
}

void PostgresBackend::raiseKeyCounter(const QString& table, qint64 value)
{
    const TableSchema& schema = tableSchema(table);
    if (!schema.keyGenerated || value <= 0)
        return;
    static const QByteArray sql
        = "SELECT setval(s, $3::bigint) FROM (SELECT pg_get_serial_sequence($1, $2) AS s) q "
          "WHERE s IS NOT NULL AND $3::bigint > coalesce(pg_sequence_last_value(s::regclass), 0)";
    const StatementGuard guard(*this);
    run(sql, {quotedName(schema.name).toUtf8(), schema.key.toUtf8(), QByteArray::number(value)},
        QString::fromUtf8(sql));
}

void PostgresBackend::lockForWriting(const QString& name)
{
    if (m_depth == 0)
        throwError(ErrorNumber::CommandFailed, QStringLiteral("A write lock is taken inside a transaction."),
            ConnectionSource);
    // Writers of one database serialise on an advisory lock of the name, released by the
    // server when the transaction ends, whichever way it ends.
    static const QByteArray sql = "SELECT pg_advisory_xact_lock(hashtext($1))";
    const StatementGuard guard(*this);
    run(sql, {QByteArrayLiteral("kartella:") + name.toUtf8()}, QString::fromUtf8(sql));
}

const TableSchema& PostgresBackend::tableSchema(const QString& table)
{
    names();
    auto found = m_relations.find(table.toLower());
    if (found == m_relations.end()) {
        loadCatalog();
        found = m_relations.find(table.toLower());
    }
    if (found == m_relations.end())
        throwError(ErrorNumber::CommandFailed,
            kartella::StoreText::tr("The register has no table '%1'").arg(table), ConnectionSource);
    return found->second.schema;
}

} // namespace kartella::engine
