#include "store/engine/PostgresBackend.h"

#include "store/StoreText.h"
#include "store/engine/BackendParts.h"
#include "store/engine/DateText.h"
#include "store/engine/EngineErrors.h"
#include "store/engine/PostgresSessions.h"
#include "store/engine/PostgresTypes.h"

#include <QDate>
#include <QDateTime>
#include <QStringList>
#include <QSysInfo>
#include <QTimeZone>
#include <QUrl>
#include <QUrlQuery>

#include <charconv>
#include <cstdlib>
#include <libpq-fe.h>
#ifdef Q_OS_UNIX
#include <pwd.h>
#include <unistd.h>
#endif

namespace kartella::engine {

namespace {

using namespace postgres;

// The SQLSTATEs of a lock wait that ran out and of a deadlock.
constexpr const char* LockNotAvailable = "55P03";
constexpr const char* DeadlockDetected = "40P01";

[[noreturn]] void failToOpen(const QString& description)
{
    throwError(ErrorNumber::ConnectionFailed, description, ConnectionSource);
}

// The location without the password, should it hold one, for messages.
QString shownLocation(const QString& location)
{
    QUrl url(location);
    if (!url.isValid() || url.password().isEmpty())
        return location;
    url.setPassword(QString());
    return url.toString();
}

QByteArray hexBytes(const char* text, int size)
{
    // bytea's text form: \x and two hex digits a byte.
    if (size >= 2 && text[0] == '\\' && text[1] == 'x')
        return QByteArray::fromHex(QByteArray::fromRawData(text + 2, size - 2));
    return QByteArray(text, size);
}

// Who this program runs for, as other programs on the server see it: "Kartella <user>@<host>".
QByteArray applicationName()
{
    QString user = qEnvironmentVariable("USER");
    if (user.isEmpty())
        user = qEnvironmentVariable("USERNAME");
#ifdef Q_OS_UNIX
    if (user.isEmpty()) {
        if (const passwd* account = getpwuid(geteuid()))
            user = QString::fromLocal8Bit(account->pw_name);
    }
#endif
    if (user.isEmpty())
        user = QStringLiteral("unknown");
    return (QStringLiteral("Kartella ") + user + u'@' + QSysInfo::machineHostName()).toUtf8();
}

// A libpq connection to location with the settings every connection of the program has.
pg_conn* connectTo(const QString& location, int lockWaitMs)
{
    const QUrl url(location);
    // Keywords after dbname override what the location says; those before it give way to it.
    const QByteArray timeout = QByteArray::number(PostgresBackend::ConnectTimeoutSeconds);
    const QByteArray dbname = location.toUtf8();
    const QByteArray options = "-c DateStyle=ISO,YMD -c lock_timeout=" + QByteArray::number(lockWaitMs);
    const QByteArray name = applicationName();
    std::vector<const char*> keywords;
    std::vector<const char*> values;
    if (!QUrlQuery(url).hasQueryItem(QStringLiteral("connect_timeout"))) {
        keywords.push_back("connect_timeout");
        values.push_back(timeout.constData());
    }
    for (const auto& [keyword, value] :
        {std::pair {"application_name", name.constData()}, std::pair {"dbname", dbname.constData()},
            std::pair {"client_encoding", "UTF8"}, std::pair {"options", options.constData()}}) {
        keywords.push_back(keyword);
        values.push_back(value);
    }
    keywords.push_back(nullptr);
    values.push_back(nullptr);
    return PQconnectdbParams(keywords.data(), values.data(), 1);
}

} // namespace

void PostgresBackend::ResultDeleter::operator()(pg_result* result) const
{
    PQclear(result);
}

std::unique_ptr<PostgresBackend> PostgresBackend::open(const QString& location)
{
    const int lockWait = Connection::lockWaitMs();
    std::unique_ptr<PostgresBackend> backend = PostgresSessions::take(location, lockWait);
    if (!backend)
        backend = connect(location, lockWait);
    // Read afresh on a kept session too: another program may have changed the tables.
    backend->loadCatalog();
    if (!backend->m_relations.empty() && backend->m_relations.count(QStringLiteral("tbl_documents")) == 0)
        failToOpen(
            kartella::StoreText::tr("'%1' is a database but not a register: it has no table tbl_Documents.")
                .arg(shownLocation(location)));
    return backend;
}

std::unique_ptr<PostgresBackend> PostgresBackend::connect(const QString& location, int lockWait)
{
    const QString shown = shownLocation(location);
    pg_conn* connection = connectTo(location, lockWait);
    if (connection == nullptr)
        failToOpen(kartella::StoreText::tr("Could not connect to '%1': out of memory.").arg(shown));
    if (PQstatus(connection) != CONNECTION_OK) {
        const QString message = QString::fromUtf8(PQerrorMessage(connection)).trimmed();
        PQfinish(connection);
        failToOpen(
            kartella::StoreText::tr("Could not connect to the register server '%1': %2").arg(shown, message));
    }
    // The server's notices ("... does not exist, skipping") are no news to a user.
    PQsetNoticeProcessor(
        connection, [](void*, const char*) {}, nullptr);
    std::unique_ptr<PostgresBackend> backend(new PostgresBackend(connection, location));
    backend->m_lockWaitMs = lockWait;
    // Local time for the views of this and the previous month, as on a register file; a
    // zone the server doesn't know leaves the server's own.
    const QString zone = QString::fromUtf8(QTimeZone::systemTimeZoneId());
    if (!zone.isEmpty())
        PQclear(PQexec(connection, ("SET TimeZone = " + literal(zone)).toUtf8().constData()));
    // The program's statements read a page or look rows up: compiling one costs more than it
    // saves, whatever its estimate.
    PQclear(PQexec(connection, "SET jit = off"));
    return backend;
}

PostgresBackend::PostgresBackend(pg_conn* connection, QString location)
    : m_connection(connection)
    , m_location(std::move(location))
{ }

PostgresBackend::~PostgresBackend()
{
    PQfinish(m_connection);
}

void PostgresBackend::fail(pg_result* result, const QString& shownSql) const
{
    QString message;
    const char* state = result ? PQresultErrorField(result, PG_DIAG_SQLSTATE) : nullptr;
    if (state && qstrcmp(state, LockNotAvailable) == 0) {
        const QString holders = lockHolders();
        message
            = kartella::StoreText::tr("The register is in use by %1, which kept it locked for %2; try again.")
                  .arg(holders.isEmpty() ? kartella::StoreText::tr("another program") : holders,
                      waitText(m_lockWaitMs));
    } else if (state && qstrcmp(state, DeadlockDetected) == 0) {
        message = kartella::StoreText::tr(
            "Another program was changing the same rows at the same moment; try again.");
    } else if (PQstatus(m_connection) != CONNECTION_OK) {
        message = kartella::StoreText::tr("The connection to the register server was lost: %1")
                      .arg(QString::fromUtf8(PQerrorMessage(m_connection)).trimmed());
    } else {
        const char* primary = result ? PQresultErrorField(result, PG_DIAG_MESSAGE_PRIMARY) : nullptr;
        message = QString::fromUtf8(primary ? primary : PQerrorMessage(m_connection)).trimmed();
        if (const char* detail = result ? PQresultErrorField(result, PG_DIAG_MESSAGE_DETAIL) : nullptr)
            message += QStringLiteral(" (") + QString::fromUtf8(detail) + u')';
        // Only a failure the register can't explain in a user's words names its statement.
        message += QStringLiteral("\nStatement: ") + shownSql;
    }
    throwError(ErrorNumber::CommandFailed, message, ConnectionSource);
}

QString PostgresBackend::lockHolders() const
{
    // This connection's transaction failed: a connection of its own asks the server which
    // other sessions hold write locks in the register (the lock this one waited for is
    // among them), by the names their programs gave.
    pg_conn* probe = connectTo(m_location, m_lockWaitMs);
    QStringList names;
    if (probe && PQstatus(probe) == CONNECTION_OK) {
        const QByteArray waiter = QByteArray::number(PQbackendPID(m_connection));
        const char* parameters[] = {waiter.constData()};
        Result holders(PQexecParams(probe,
            "SELECT DISTINCT CASE WHEN a.application_name <> '' THEN a.application_name "
            "ELSE a.usename || COALESCE('@' || host(a.client_addr), '') END "
            "FROM pg_stat_activity a JOIN pg_locks l ON l.pid = a.pid "
            "WHERE a.datname = current_database() AND a.pid <> $1::int AND a.pid <> pg_backend_pid() "
            "AND l.granted AND (l.locktype IN ('advisory', 'transactionid') "
            "OR l.mode IN ('RowExclusiveLock', 'ShareRowExclusiveLock', 'ExclusiveLock', "
            "'AccessExclusiveLock')) "
            "ORDER BY 1",
            1, nullptr, parameters, nullptr, nullptr, 0));
        if (holders && PQresultStatus(holders.get()) == PGRES_TUPLES_OK) {
            for (int row = 0; row < PQntuples(holders.get()); ++row)
                names << QString::fromUtf8(PQgetvalue(holders.get(), row, 0));
        }
    }
    PQfinish(probe);
    return names.join(QStringLiteral(", "));
}

bool PostgresBackend::isIdle() const
{
    return m_depth == 0 && PQstatus(m_connection) == CONNECTION_OK
        && PQtransactionStatus(m_connection) == PQTRANS_IDLE;
}

bool PostgresBackend::stillConnected()
{
    const Result result(PQexec(m_connection, ""));
    return result && PQresultStatus(result.get()) == PGRES_EMPTY_QUERY && isIdle();
}

void PostgresBackend::reconnectIfLost()
{
    // Outside a transaction nothing is lost by starting again: the server may have restarted.
    if (PQstatus(m_connection) != CONNECTION_OK && m_depth == 0)
        PQreset(m_connection);
}

PostgresBackend::Result PostgresBackend::run(
    const QByteArray& sql, const std::vector<QByteArray>& parameters, const QString& shownSql)
{
    reconnectIfLost();
    std::vector<const char*> values;
    values.reserve(parameters.size());
    for (const QByteArray& parameter : parameters)
        values.push_back(parameter.isNull() ? nullptr : parameter.constData());
    Result result(PQexecParams(
        m_connection, sql.constData(), int(values.size()), nullptr, values.data(), nullptr, nullptr, 0));
    const ExecStatusType status = result ? PQresultStatus(result.get()) : PGRES_FATAL_ERROR;
    if (status != PGRES_COMMAND_OK && status != PGRES_TUPLES_OK)
        fail(result.get(), shownSql);
    return result;
}

PostgresBackend::Result PostgresBackend::runText(const QString& sql, const QString& shownSql)
{
    reconnectIfLost();
    // The simple protocol: the text may hold several statements.
    Result result(PQexec(m_connection, sql.toUtf8().constData()));
    const ExecStatusType status = result ? PQresultStatus(result.get()) : PGRES_FATAL_ERROR;
    if (status != PGRES_COMMAND_OK && status != PGRES_TUPLES_OK && status != PGRES_EMPTY_QUERY)
        fail(result.get(), shownSql);
    return result;
}

void PostgresBackend::execute(const QString& sql)
{
    // A write carries the program's context, which lives in a transaction.
    if (m_depth == 0 && writesWithContext() && writesRows(sql)) {
        beginTransaction();
        try {
            execute(sql);
            commitTransaction();
        } catch (...) {
            rollbackTransaction();
            throw;
        }
        return;
    }
    const StatementGuard guard(*this);
    const QString translated = translate(sql);
    const QStringView head = QStringView(translated).trimmed();
    const bool changesSchema = head.startsWith(u"CREATE", Qt::CaseInsensitive)
        || head.startsWith(u"ALTER", Qt::CaseInsensitive) || head.startsWith(u"DROP", Qt::CaseInsensitive);
    runText(translated, sql);
    if (changesSchema)
        m_catalogLoaded = false;
    noteInsert(translated);
}

void PostgresBackend::describe(pg_result* description, QueryResult& result)
{
    result.columns.clear();
    const int count = PQnfields(description);
    for (int c = 0; c < count; ++c) {
        ColumnInfo column;
        column.name = QString::fromUtf8(PQfname(description, c));
        column.declared = kindOfType(PQftype(description, c));
        const auto relation = m_relationByOid.constFind(unsigned(PQftable(description, c)));
        if (relation != m_relationByOid.constEnd()) {
            const Relation& source = m_relations.at(*relation);
            const auto origin = source.columnsByNumber.find(PQftablecol(description, c));
            if (origin != source.columnsByNumber.end()) {
                column.table = source.schema.name;
                column.origin = origin->second;
            }
        }
        result.columns.push_back(column);
    }
}

QueryResult PostgresBackend::query(const QString& sql)
{
    const StatementGuard guard(*this);
    QString translated = translate(sql);
    reconnectIfLost();
    QueryResult result;
    auto prepare = [this, &sql](const QString& text) {
        Result prepared(PQprepare(m_connection, "", text.toUtf8().constData(), 0, nullptr));
        if (!prepared || PQresultStatus(prepared.get()) != PGRES_COMMAND_OK)
            return Result(prepared.release());
        Result description(PQdescribePrepared(m_connection, ""));
        if (!description || PQresultStatus(description.get()) != PGRES_COMMAND_OK)
            fail(description.get(), sql);
        return description;
    };
    Result description = prepare(translated);
    if (!description || PQresultStatus(description.get()) != PGRES_COMMAND_OK)
        fail(description.get(), sql);
    describe(description.get(), result);
    result.visibleColumns = int(result.columns.size());

    const QString table = singleSourceTable(result.columns);
    bool keyFirst = false;
    if (!table.isEmpty()) {
        const TableSchema& schema = tableSchema(table);
        findKeyColumn(result, schema);
        if (result.keyColumn < 0 && acceptsHiddenKey(translated)) {
            // Read the key too, first, and keep it behind the visible columns. The name of
            // the table may not reach the key (an alias); a savepoint keeps a refusal from
            // spoiling a transaction.
            const qsizetype after = translated.indexOf(QLatin1String("select"), 0, Qt::CaseInsensitive) + 6;
            for (const QString& qualifier : QStringList {quotedName(table) + u'.', QString()}) {
                const QString keyed = translated.left(after) + u' ' + qualifier + quotedName(schema.key)
                    + u',' + translated.mid(after);
                if (m_depth > 0)
                    runText(QStringLiteral("SAVEPOINT hidden_key"), sql);
                Result keyedDescription = prepare(keyed);
                const bool accepted
                    = keyedDescription && PQresultStatus(keyedDescription.get()) == PGRES_COMMAND_OK;
                if (m_depth > 0)
                    runText(accepted ? QStringLiteral("RELEASE hidden_key")
                                     : QStringLiteral("ROLLBACK TO hidden_key; RELEASE hidden_key"),
                        sql);
                if (!accepted)
                    continue;
                // A simple query (the release above) drops the unnamed prepared statement.
                if (m_depth > 0) {
                    keyedDescription = prepare(keyed);
                    if (!keyedDescription || PQresultStatus(keyedDescription.get()) != PGRES_COMMAND_OK)
                        fail(keyedDescription.get(), sql);
                }
                translated = keyed;
                describe(keyedDescription.get(), result);
                std::rotate(result.columns.begin(), result.columns.begin() + 1, result.columns.end());
                result.keyColumn = result.visibleColumns;
                result.keyName = schema.key;
                keyFirst = true;
                break;
            }
            if (!keyFirst) {
                // The statement that was described last must be the one that runs.
                description = prepare(translated);
                if (!description || PQresultStatus(description.get()) != PGRES_COMMAND_OK)
                    fail(description.get(), sql);
            }
        }
    }

    Result rows(PQexecPrepared(m_connection, "", 0, nullptr, nullptr, nullptr, 0));
    if (!rows || PQresultStatus(rows.get()) != PGRES_TUPLES_OK)
        fail(rows.get(), sql);
    result.rows = RowStore(int(result.columns.size()));
    // A hidden key came first from the server and goes behind the visible columns.
    const int count = int(result.columns.size());
    std::vector<int> order(static_cast<std::size_t>(count));
    for (int c = 0; c < count; ++c)
        order[std::size_t(c)] = keyFirst ? (c + 1) % count : c;
    readRows(rows.get(), result, order);
    return result;
}

void PostgresBackend::readRows(pg_result* rows, QueryResult& result, const std::vector<int>& order)
{
    RowStore& store = result.rows;
    const int count = int(result.columns.size());
    std::vector<Oid> types(static_cast<std::size_t>(count));
    std::vector<int> source(static_cast<std::size_t>(count));
    for (int c = 0; c < count; ++c) {
        source[std::size_t(c)] = order[std::size_t(c)];
        types[std::size_t(c)] = PQftype(rows, source[std::size_t(c)]);
    }
    const int rowCount = PQntuples(rows);
    for (int r = 0; r < rowCount; ++r) {
        for (int c = 0; c < count; ++c) {
            const int s = source[std::size_t(c)];
            if (PQgetisnull(rows, r, s)) {
                store.addNull();
                continue;
            }
            const char* text = PQgetvalue(rows, r, s);
            const int size = PQgetlength(rows, r, s);
            switch (types[std::size_t(c)]) {
            case TypeId::Int2:
            case TypeId::Int4:
            case TypeId::Int8:
            case TypeId::ObjectId: {
                qint64 value = 0;
                std::from_chars(text, text + size, value);
                store.addInteger(value);
                break;
            }
            case TypeId::Bool:
                // As SQLite gives a comparison's truth.
                store.addInteger(*text == 't' ? 1 : 0);
                break;
            case TypeId::Float4:
            case TypeId::Float8:
            case TypeId::Numeric:
                store.addReal(std::strtod(text, nullptr));
                break;
            case TypeId::Date:
            case TypeId::Timestamp: {
                qint64 julianDay = 0;
                int msecs = 0;
                bool hasTime = false;
                if (!parseIsoBytes(text, std::size_t(size), julianDay, msecs, hasTime))
                    store.addText(text, std::size_t(size));
                else if (hasTime)
                    store.addDateTime(julianDay, msecs);
                else
                    store.addDate(julianDay);
                break;
            }
            case TypeId::Bytea: {
                const QByteArray bytes = hexBytes(text, size);
                store.addBlob(bytes.constData(), std::size_t(bytes.size()));
                break;
            }
            default:
                store.addText(text, std::size_t(size));
                break;
            }
        }
    }
}

std::vector<QByteArray> PostgresBackend::textParameters(const QVariantList& values)
{
    std::vector<QByteArray> parameters;
    parameters.reserve(std::size_t(values.size()));
    for (const QVariant& value : values) {
        if (!value.isValid() || value.isNull()) {
            parameters.emplace_back();
            continue;
        }
        switch (value.typeId()) {
        case QMetaType::Bool:
            parameters.push_back(value.toBool() ? "-1" : "0");
            break;
        case QMetaType::QDate:
            parameters.push_back(isoText(value.toDate()).toUtf8());
            break;
        case QMetaType::QDateTime:
            parameters.push_back(isoText(value.toDateTime()).toUtf8());
            break;
        case QMetaType::QByteArray:
            parameters.push_back("\\x" + value.toByteArray().toHex());
            break;
        default:
            // A value is never Null by its text: an empty text stays empty.
            parameters.push_back(value.toString().toUtf8());
            if (parameters.back().isNull())
                parameters.back() = QByteArray("");
            break;
        }
    }
    return parameters;
}

QVariant PostgresBackend::insertRow(
    const TableSchema& table, const QStringList& columns, const QVariantList& values)
{
    const StatementGuard guard(*this);
    QString sql = QStringLiteral("INSERT INTO ") + quotedName(table.name);
    if (columns.isEmpty()) {
        sql += QStringLiteral(" DEFAULT VALUES");
    } else {
        QStringList names;
        QStringList places;
        for (qsizetype i = 0; i < columns.size(); ++i) {
            names << quotedName(columns[i]);
            places << u'$' + QString::number(i + 1);
        }
        sql += QStringLiteral(" (") + names.join(u',') + QStringLiteral(") VALUES (") + places.join(u',')
            + u')';
    }
    qsizetype given = -1;
    for (qsizetype i = 0; i < columns.size(); ++i) {
        if (columns[i].compare(table.key, Qt::CaseInsensitive) == 0)
            given = i;
    }
    if (given >= 0 && !values[given].isNull()) {
        run(sql.toUtf8(), textParameters(values), sql);
        noteExplicitKey(table);
        return values[given];
    }
    sql += QStringLiteral(" RETURNING ") + quotedName(table.key);
    const Result result = run(sql.toUtf8(), textParameters(values), sql);
    if (table.key == QLatin1String("ctid"))
        return QString::fromUtf8(PQgetvalue(result.get(), 0, 0));
    return QVariant(qint64(std::strtoll(PQgetvalue(result.get(), 0, 0), nullptr, 10)));
}

void PostgresBackend::updateRow(const TableSchema& table, const QString& keyName, const QVariant& key,
    const QStringList& columns, const QVariantList& values, const QVariantList& originals)
{
    if (columns.isEmpty())
        return;
    const StatementGuard guard(*this);
    QStringList assignments;
    for (qsizetype i = 0; i < columns.size(); ++i)
        assignments << quotedName(columns[i]) + QStringLiteral("=$") + QString::number(i + 1);
    QString sql = QStringLiteral("UPDATE ") + quotedName(table.name) + QStringLiteral(" SET ")
        + assignments.join(u',') + QStringLiteral(" WHERE ") + quotedName(keyName) + QStringLiteral("=$")
        + QString::number(columns.size() + 1);
    QVariantList parameters = values;
    parameters << key;
    for (qsizetype i = 0; i < columns.size() && i < originals.size(); ++i) {
        const QVariant& original = originals[i];
        const QString column = quotedName(columns[i]);
        if (isNullValue(original)) {
            sql += QStringLiteral(" AND ") + column + QStringLiteral(" IS NULL");
            continue;
        }
        // The server reads the text as the column's own type, a time to the millisecond.
        parameters << (original.typeId() == QMetaType::QDateTime
                ? QVariant(originalDateTimeText(original.toDateTime()))
                : original);
        sql += QStringLiteral(" AND ") + column + QStringLiteral("=$") + QString::number(parameters.size());
    }
    const Result result = run(sql.toUtf8(), textParameters(parameters), sql);
    if (qstrcmp(PQcmdTuples(result.get()), "0") != 0)
        return;
    if (readRow(table, keyName, key, {keyName}).rows.rowCount() == 0)
        failRowGone(table, keyName, key);
    failRowChanged(table, keyName, key);
}

QueryResult PostgresBackend::readRow(
    const TableSchema& table, const QString& keyName, const QVariant& key, const QStringList& columns)
{
    const StatementGuard guard(*this);
    QStringList names;
    for (const QString& column : columns)
        names << quotedName(column);
    const QString sql = QStringLiteral("SELECT ") + names.join(u',') + QStringLiteral(" FROM ")
        + quotedName(table.name) + QStringLiteral(" WHERE ") + quotedName(keyName) + QStringLiteral("=$1");
    const Result rows = run(sql.toUtf8(), textParameters({key}), sql);
    QueryResult result;
    describe(rows.get(), result);
    result.visibleColumns = int(result.columns.size());
    std::vector<int> order;
    for (int c = 0; c < result.visibleColumns; ++c)
        order.push_back(c);
    result.rows = RowStore(result.visibleColumns);
    readRows(rows.get(), result, order);
    return result;
}

void PostgresBackend::deleteRow(const TableSchema& table, const QString& keyName, const QVariant& key)
{
    const StatementGuard guard(*this);
    const QString sql = QStringLiteral("DELETE FROM ") + quotedName(table.name) + QStringLiteral(" WHERE ")
        + quotedName(keyName) + QStringLiteral("=$1");
    run(sql.toUtf8(), textParameters({key}), sql);
}

} // namespace kartella::engine
