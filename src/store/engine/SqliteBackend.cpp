#include "store/engine/SqliteBackend.h"

#include "store/StoreText.h"
#include "store/engine/BackendParts.h"
#include "store/engine/DateText.h"
#include "store/engine/EngineErrors.h"
#include "store/engine/JetDialect.h"

#include <QDate>
#include <QDateTime>
#include <QFile>
#include <QFileInfo>

#include <cstring>
#include <sqlite3.h>

namespace kartella::engine {

namespace {

[[noreturn]] void failToOpen(const QString& description)
{
    throwError(ErrorNumber::ConnectionFailed, description, ConnectionSource);
}

ValueKind declaredKind(const char* declared)
{
    if (declared == nullptr || *declared == 0)
        return ValueKind::Null;
    const QByteArray type = QByteArray(declared).toUpper();
    if (type.contains("DATETIME") || type.contains("TIMESTAMP"))
        return ValueKind::DateTime;
    if (type.contains("DATE"))
        return ValueKind::Date;
    if (type.contains("INT") || type.contains("BOOL") || type.contains("BIT"))
        return ValueKind::Integer;
    if (type.contains("CHAR") || type.contains("CLOB") || type.contains("TEXT") || type.contains("MEMO"))
        return ValueKind::Text;
    if (type.contains("BLOB") || type.contains("BINARY"))
        return ValueKind::Blob;
    if (type.contains("REAL") || type.contains("FLOA") || type.contains("DOUB") || type.contains("NUM")
        || type.contains("DEC") || type.contains("CURRENCY") || type.contains("MONEY"))
        return ValueKind::Real;
    return ValueKind::Text;
}

// What the first 100 bytes of a file say about it.
enum class FileKind { Empty, Sqlite, Access, Other };

FileKind fileKind(const QString& path, QString& error)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        error = file.errorString();
        return FileKind::Other;
    }
    const QByteArray head = file.read(100);
    if (head.isEmpty() && file.size() == 0)
        return FileKind::Empty;
    if (head.startsWith(QByteArray("SQLite format 3\0", 16)))
        return FileKind::Sqlite;
    const QByteArray jetName = head.mid(4, 15);
    if (jetName == "Standard Jet DB" || jetName == "Standard ACE DB")
        return FileKind::Access;
    return FileKind::Other;
}

// The SELECT with the source table's rowid as its first column.
QString withRowid(const QString& sql, const QString& qualifier)
{
    const qsizetype select = sql.indexOf(QLatin1String("select"), 0, Qt::CaseInsensitive);
    const qsizetype after = select + 6;
    return sql.left(after) + u' ' + qualifier + QStringLiteral("rowid,") + sql.mid(after);
}

} // namespace

void SqliteBackend::StatementDeleter::operator()(sqlite3_stmt* statement) const
{
    sqlite3_finalize(statement);
}

namespace {
// The wait of an opening, in milliseconds; -1: the normal busy timeout.
int g_openingWait = -1;
} // namespace

OpeningWait::OpeningWait(int timeoutMs)
    : m_previous(g_openingWait)
{
    g_openingWait = timeoutMs;
}

OpeningWait::~OpeningWait()
{
    g_openingWait = m_previous;
}

std::unique_ptr<SqliteBackend> SqliteBackend::open(const QString& path)
{
    if (path.isEmpty())
        failToOpen(
            kartella::StoreText::tr("No register file is named: the connection string has no Data Source."));
    const QFileInfo info(path);
    if (!info.exists())
        failToOpen(kartella::StoreText::tr("Could not find file '%1'.").arg(path));
    if (info.isDir())
        failToOpen(
            kartella::StoreText::tr("'%1' is a folder, not a register file. Choose the register file itself.")
                .arg(path));
    QString readError;
    const FileKind kind = fileKind(path, readError);
    if (!readError.isEmpty())
        failToOpen(kartella::StoreText::tr("Could not read file '%1': %2").arg(path, readError));
    if (kind == FileKind::Access)
        failToOpen(
            kartella::StoreText::tr("'%1' is a Microsoft Access database, not a register. Convert it into a "
                                    "register with \"kartella-db migrate\" and open the new register.")
                .arg(path));
    if (kind == FileKind::Other)
        failToOpen(kartella::StoreText::tr(
            "'%1' is not a register: it isn't a database file that Kartella can read, "
            "or it is damaged.")
                       .arg(path));

    sqlite3* db = nullptr;
    const int code
        = sqlite3_open_v2(QFile::encodeName(path).constData(), &db, SQLITE_OPEN_READWRITE, nullptr);
    if (code != SQLITE_OK) {
        const QString message
            = db ? QString::fromUtf8(sqlite3_errmsg(db)) : QString::fromUtf8(sqlite3_errstr(code));
        sqlite3_close_v2(db);
        failToOpen(kartella::StoreText::tr("Could not open the register '%1': %2").arg(path, message));
    }
    std::unique_ptr<SqliteBackend> backend(new SqliteBackend(db));
    if (!registerTextFunctions(db))
        failToOpen(kartella::StoreText::tr("Could not prepare the register '%1': %2")
                       .arg(path, QString::fromUtf8(sqlite3_errmsg(db))));
    backend->m_busyTimeoutMs = Connection::lockWaitMs();
    sqlite3_busy_timeout(db, g_openingWait >= 0 ? g_openingWait : backend->m_busyTimeoutMs);
    // The register relies on no cascade but its own trigger.
    sqlite3_exec(db, "PRAGMA foreign_keys = OFF", nullptr, nullptr, nullptr);
    if (kind == FileKind::Empty)
        return backend;

    // Reading the table list finds a damaged file and tells a register from other databases.
    sqlite3_stmt* check = nullptr;
    int status = sqlite3_prepare_v2(db,
        "SELECT count(*) FROM sqlite_master WHERE type = 'table' AND name = 'tbl_Documents' COLLATE NOCASE",
        -1, &check, nullptr);
    if (status == SQLITE_OK)
        status = sqlite3_step(check);
    const bool isRegister = status == SQLITE_ROW && sqlite3_column_int(check, 0) > 0;
    const QString message = QString::fromUtf8(sqlite3_errmsg(db));
    sqlite3_finalize(check);
    if (status == SQLITE_BUSY || status == SQLITE_LOCKED)
        failToOpen(kartella::StoreText::tr(
            "The register '%1' is in use by another program, which kept it locked; try "
            "again once it is done.")
                       .arg(path));
    if (status != SQLITE_ROW)
        failToOpen(kartella::StoreText::tr(
            "The register '%1' can't be read: %2. The file may be damaged, or locked by another program.")
                       .arg(path, message));
    if (!isRegister)
        failToOpen(
            kartella::StoreText::tr("'%1' is a database but not a register: it has no table tbl_Documents.")
                .arg(path));
    sqlite3_busy_timeout(db, backend->m_busyTimeoutMs);
    return backend;
}

SqliteBackend::SqliteBackend(sqlite3* db)
    : m_db(db)
{ }

SqliteBackend::~SqliteBackend()
{
    for (sqlite3_stmt* statement : std::as_const(m_writeStatements))
        sqlite3_finalize(statement);
    if (m_depth > 0)
        sqlite3_exec(m_db, "ROLLBACK", nullptr, nullptr, nullptr);
    sqlite3_close_v2(m_db);
}

void SqliteBackend::fail(int code, const QString& shownSql) const
{
    const int primary = code & 0xFF;
    QString message;
    if (primary == SQLITE_BUSY || primary == SQLITE_LOCKED)
        message = kartella::StoreText::tr(
            "The register is in use by another program, which kept it locked for %1; "
            "try again.")
                      .arg(waitText(m_busyTimeoutMs));
    else if (primary == SQLITE_FULL)
        message = kartella::StoreText::tr(
            "The disk that holds the register is full, and the change was not stored. "
            "Make room on it and try again.");
    else if (primary == SQLITE_READONLY || primary == SQLITE_CANTOPEN || primary == SQLITE_PERM)
        // A statement that can't open a file could not make the register's journal beside it.
        message = kartella::StoreText::tr(
            "The register can't be written: its file or its folder is read-only, or you "
            "may not change them. The change was not stored (%1).")
                      .arg(QString::fromUtf8(sqlite3_errmsg(m_db)));
    else if (primary == SQLITE_IOERR)
        message = kartella::StoreText::tr(
            "The disk that holds the register failed to read or write, and the change "
            "was not stored (%1).")
                      .arg(QString::fromUtf8(sqlite3_errmsg(m_db)));
    else
        // Only a failure the register can't explain in a user's words names its statement.
        message = QString::fromUtf8(sqlite3_errmsg(m_db)) + QStringLiteral("\nStatement: ") + shownSql;
    throwError(ErrorNumber::CommandFailed, message, ConnectionSource);
}

SqliteBackend::Statement SqliteBackend::prepare(
    const QByteArray& sql, const QString& shownSql, const char** tail)
{
    sqlite3_stmt* statement = nullptr;
    const int code = sqlite3_prepare_v2(m_db, sql.constData(), int(sql.size()), &statement, tail);
    if (code != SQLITE_OK)
        fail(code, shownSql);
    return Statement(statement);
}

int SqliteBackend::run(sqlite3_stmt* statement, const QString& shownSql)
{
    int code = SQLITE_ROW;
    while (code == SQLITE_ROW)
        code = sqlite3_step(statement);
    if (code != SQLITE_DONE) {
        sqlite3_reset(statement);
        fail(code, shownSql);
    }
    return sqlite3_changes(m_db);
}

void SqliteBackend::setStopFlag(std::shared_ptr<const std::atomic<bool>> flag)
{
    m_stop = std::move(flag);
    // Looked at every thousand steps of a statement: a statement stopped so fails as
    // interrupted.
    if (m_stop) {
        sqlite3_progress_handler(
            m_db, 1000,
            [](void* stop) { return static_cast<const std::atomic<bool>*>(stop)->load() ? 1 : 0; },
            const_cast<void*>(static_cast<const void*>(m_stop.get())));
    } else {
        sqlite3_progress_handler(m_db, 0, nullptr, nullptr);
    }
}

void SqliteBackend::execute(const QString& sql)
{
    const QString translated = translateJetToSqlite(sql);
    const QStringView head = QStringView(translated).trimmed().left(6);
    const bool changesSchema = head.compare(u"CREATE", Qt::CaseInsensitive) == 0
        || head.startsWith(u"ALTER", Qt::CaseInsensitive) || head.startsWith(u"DROP", Qt::CaseInsensitive);
    if (changesSchema) {
        m_schemas.clear();
        m_hasContextTable.reset();
    }
    const auto runAll = [&] {
        const QByteArray text = translated.toUtf8();
        const char* start = text.constData();
        const char* end = start + text.size();
        while (start < end) {
            const char* tail = nullptr;
            Statement statement = prepare(QByteArray::fromRawData(start, end - start), sql, &tail);
            if (statement)
                run(statement.get(), sql);
            if (tail == nullptr || tail <= start)
                break;
            start = tail;
        }
    };
    if (writesRows(translated))
        withContext(runAll);
    else
        runAll();
}

QueryResult SqliteBackend::query(const QString& sql)
{
    const QString translated = translateJetToSqlite(sql);
    Statement statement = prepare(translated.toUtf8(), sql);
    QueryResult result;
    if (!statement)
        return result;

    auto describe = [&result](sqlite3_stmt* s, int first) {
        result.columns.clear();
        const int count = sqlite3_column_count(s);
        for (int c = first; c < count; ++c) {
            ColumnInfo column;
            column.name = QString::fromUtf8(sqlite3_column_name(s, c));
            column.table = QString::fromUtf8(sqlite3_column_table_name(s, c));
            column.origin = QString::fromUtf8(sqlite3_column_origin_name(s, c));
            column.declared = declaredKind(sqlite3_column_decltype(s, c));
            result.columns.push_back(column);
        }
    };
    describe(statement.get(), 0);
    result.visibleColumns = int(result.columns.size());

    const QString table = singleSourceTable(result.columns);
    if (!table.isEmpty()) {
        const TableSchema& schema = tableSchema(table);
        findKeyColumn(result, schema);
        if (result.keyColumn < 0 && acceptsHiddenKey(translated)) {
            // Read the rowid too, first, and keep it behind the visible columns.
            for (const QString& qualifier : QStringList {quotedName(table) + u'.', QString()}) {
                sqlite3_stmt* keyed = nullptr;
                const QByteArray keyedSql = withRowid(translated, qualifier).toUtf8();
                if (sqlite3_prepare_v2(m_db, keyedSql.constData(), int(keyedSql.size()), &keyed, nullptr)
                    == SQLITE_OK) {
                    statement.reset(keyed);
                    describe(statement.get(), 1);
                    ColumnInfo key;
                    key.name = QStringLiteral("rowid");
                    key.table = table;
                    key.origin = QStringLiteral("rowid");
                    key.declared = ValueKind::Integer;
                    result.columns.push_back(key);
                    result.keyColumn = result.visibleColumns;
                    result.keyName = QStringLiteral("rowid");
                    break;
                }
                sqlite3_finalize(keyed);
            }
        }
    }

    const int count = int(result.columns.size());
    std::vector<int> order(static_cast<std::size_t>(count));
    const bool keyFirst = count > result.visibleColumns;
    for (int c = 0; c < count; ++c)
        order[std::size_t(c)] = keyFirst ? (c + 1) % count : c;
    result.rows = RowStore(count);
    readRows(statement.get(), result, order, sql);
    return result;
}

void SqliteBackend::readRows(
    sqlite3_stmt* statement, QueryResult& result, const std::vector<int>& order, const QString& shownSql)
{
    RowStore& rows = result.rows;
    const int count = int(order.size());
    std::vector<bool> dates(static_cast<std::size_t>(count));
    for (int c = 0; c < count; ++c) {
        const ValueKind declared = result.columns[std::size_t(c)].declared;
        dates[std::size_t(c)] = declared == ValueKind::Date || declared == ValueKind::DateTime;
    }
    int code;
    while ((code = sqlite3_step(statement)) == SQLITE_ROW) {
        for (int c = 0; c < count; ++c) {
            const int source = order[std::size_t(c)];
            switch (sqlite3_column_type(statement, source)) {
            case SQLITE_INTEGER:
                rows.addInteger(sqlite3_column_int64(statement, source));
                break;
            case SQLITE_FLOAT:
                rows.addReal(sqlite3_column_double(statement, source));
                break;
            case SQLITE_TEXT: {
                const auto* text = reinterpret_cast<const char*>(sqlite3_column_text(statement, source));
                const auto size = std::size_t(sqlite3_column_bytes(statement, source));
                qint64 julianDay = 0;
                int msecs = 0;
                bool hasTime = false;
                if (dates[std::size_t(c)] && parseIsoBytes(text, size, julianDay, msecs, hasTime)) {
                    if (hasTime)
                        rows.addDateTime(julianDay, msecs);
                    else
                        rows.addDate(julianDay);
                } else {
                    rows.addText(text, size);
                }
                break;
            }
            case SQLITE_BLOB:
                rows.addBlob(sqlite3_column_blob(statement, source),
                    std::size_t(sqlite3_column_bytes(statement, source)));
                break;
            default:
                rows.addNull();
                break;
            }
        }
    }
    if (code != SQLITE_DONE)
        fail(code, shownSql);
}

const TableSchema& SqliteBackend::tableSchema(const QString& table)
{
    const QString lookup = table.toLower();
    const auto found = m_schemas.find(lookup);
    if (found != m_schemas.end())
        return found->second;

    const QString sql = QStringLiteral("PRAGMA table_info(") + quotedName(table) + u')';
    Statement statement = prepare(sql.toUtf8(), sql);
    TableSchema schema;
    schema.name = table;
    QStringList keys;
    bool integerKey = false;
    int code;
    while ((code = sqlite3_step(statement.get())) == SQLITE_ROW) {
        TableColumn column;
        column.name
            = QString::fromUtf8(reinterpret_cast<const char*>(sqlite3_column_text(statement.get(), 1)));
        const auto* type = reinterpret_cast<const char*>(sqlite3_column_text(statement.get(), 2));
        column.declared = declaredKind(type);
        if (sqlite3_column_int(statement.get(), 5) > 0) {
            keys << column.name;
            integerKey = type != nullptr && qstricmp(type, "INTEGER") == 0;
        }
        schema.columns.push_back(column);
    }
    if (code != SQLITE_DONE)
        fail(code, sql);
    if (schema.columns.empty())
        throwError(ErrorNumber::CommandFailed,
            kartella::StoreText::tr("The register has no table '%1'").arg(table), ConnectionSource);
    if (keys.size() == 1) {
        schema.key = keys.front();
        schema.keyGenerated = integerKey;
    } else {
        schema.key = QStringLiteral("rowid");
        schema.keyGenerated = true;
    }
    return m_schemas.emplace(lookup, std::move(schema)).first->second;
}

sqlite3_stmt* SqliteBackend::cachedStatement(const QString& sql)
{
    const auto found = m_writeStatements.constFind(sql);
    if (found != m_writeStatements.constEnd()) {
        sqlite3_reset(*found);
        sqlite3_clear_bindings(*found);
        return *found;
    }
    sqlite3_stmt* statement = prepare(sql.toUtf8(), sql).release();
    m_writeStatements.insert(sql, statement);
    return statement;
}

void SqliteBackend::bind(sqlite3_stmt* statement, int index, const QVariant& value, const QString& shownSql)
{
    int code = SQLITE_OK;
    if (!value.isValid() || value.isNull()) {
        code = sqlite3_bind_null(statement, index);
    } else {
        switch (value.typeId()) {
        case QMetaType::Bool:
            code = sqlite3_bind_int64(statement, index, value.toBool() ? -1 : 0);
            break;
        case QMetaType::Int:
        case QMetaType::UInt:
        case QMetaType::LongLong:
        case QMetaType::Short:
        case QMetaType::UShort:
            code = sqlite3_bind_int64(statement, index, value.toLongLong());
            break;
        case QMetaType::ULongLong:
        case QMetaType::Double:
        case QMetaType::Float:
            code = sqlite3_bind_double(statement, index, value.toDouble());
            break;
        case QMetaType::QByteArray: {
            const QByteArray bytes = value.toByteArray();
            code = sqlite3_bind_blob64(
                statement, index, bytes.constData(), sqlite3_uint64(bytes.size()), SQLITE_TRANSIENT);
            break;
        }
        default: {
            QString text;
            if (value.typeId() == QMetaType::QDate)
                text = isoText(value.toDate());
            else if (value.typeId() == QMetaType::QDateTime)
                text = isoText(value.toDateTime());
            else
                text = value.toString();
            const QByteArray utf8 = text.toUtf8();
            code = sqlite3_bind_text64(statement, index, utf8.constData(), sqlite3_uint64(utf8.size()),
                SQLITE_TRANSIENT, SQLITE_UTF8);
            break;
        }
        }
    }
    if (code != SQLITE_OK)
        fail(code, shownSql);
}

QVariant SqliteBackend::insertRow(
    const TableSchema& table, const QStringList& columns, const QVariantList& values)
{
    QString sql = QStringLiteral("INSERT INTO ") + quotedName(table.name);
    if (columns.isEmpty()) {
        sql += QStringLiteral(" DEFAULT VALUES");
    } else {
        QStringList names;
        for (const QString& column : columns)
            names << quotedName(column);
        sql += QStringLiteral(" (") + names.join(u',') + QStringLiteral(") VALUES (")
            + QString(QStringLiteral("?,")).repeated(columns.size()).chopped(1) + u')';
    }
    qint64 generated = 0;
    withContext([&] {
        sqlite3_stmt* statement = cachedStatement(sql);
        for (int i = 0; i < values.size(); ++i)
            bind(statement, i + 1, values[i], sql);
        run(statement, sql);
        generated = sqlite3_last_insert_rowid(m_db);
    });
    if (!table.keyGenerated) {
        for (qsizetype i = 0; i < columns.size(); ++i) {
            if (columns[i].compare(table.key, Qt::CaseInsensitive) == 0)
                return values[i];
        }
    }
    return QVariant(generated);
}

void SqliteBackend::updateRow(const TableSchema& table, const QString& keyName, const QVariant& key,
    const QStringList& columns, const QVariantList& values, const QVariantList& originals)
{
    if (columns.isEmpty())
        return;
    QStringList assignments;
    for (const QString& column : columns)
        assignments << quotedName(column) + QStringLiteral("=?");
    QString sql = QStringLiteral("UPDATE ") + quotedName(table.name) + QStringLiteral(" SET ")
        + assignments.join(u',') + QStringLiteral(" WHERE ") + quotedName(keyName) + QStringLiteral("=?");
    QVariantList parameters = values;
    parameters << key;
    for (qsizetype i = 0; i < columns.size() && i < originals.size(); ++i) {
        const QVariant& original = originals[i];
        const QString column = quotedName(columns[i]);
        if (isNullValue(original)) {
            sql += QStringLiteral(" AND ") + column + QStringLiteral(" IS NULL");
        } else if (original.typeId() == QMetaType::QDate || original.typeId() == QMetaType::QDateTime) {
            // A date was read from any of the text forms that mean it ("T" or a blank before
            // the time, with or without milliseconds): compared as the moment it names.
            sql += QStringLiteral(" AND julianday(") + column + QStringLiteral(")=julianday(?)");
            parameters << (original.typeId() == QMetaType::QDate
                    ? QVariant(isoText(original.toDate()))
                    : QVariant(originalDateTimeText(original.toDateTime())));
        } else {
            sql += QStringLiteral(" AND ") + column + QStringLiteral("=?");
            parameters << original;
        }
    }
    int changed = 0;
    withContext([&] {
        sqlite3_stmt* statement = cachedStatement(sql);
        for (int i = 0; i < parameters.size(); ++i)
            bind(statement, i + 1, parameters[i], sql);
        changed = run(statement, sql);
    });
    if (changed > 0)
        return;
    if (readRow(table, keyName, key, {keyName}).rows.rowCount() == 0)
        failRowGone(table, keyName, key);
    failRowChanged(table, keyName, key);
}

QueryResult SqliteBackend::readRow(
    const TableSchema& table, const QString& keyName, const QVariant& key, const QStringList& columns)
{
    QStringList names;
    for (const QString& column : columns)
        names << quotedName(column);
    const QString sql = QStringLiteral("SELECT ") + names.join(u',') + QStringLiteral(" FROM ")
        + quotedName(table.name) + QStringLiteral(" WHERE ") + quotedName(keyName) + QStringLiteral("=?");
    Statement statement = prepare(sql.toUtf8(), sql);
    bind(statement.get(), 1, key, sql);
    QueryResult result;
    const int count = sqlite3_column_count(statement.get());
    std::vector<int> order;
    for (int c = 0; c < count; ++c) {
        ColumnInfo column;
        column.name = QString::fromUtf8(sqlite3_column_name(statement.get(), c));
        column.table = table.name;
        column.origin = columns.value(c);
        column.declared = declaredKind(sqlite3_column_decltype(statement.get(), c));
        result.columns.push_back(column);
        order.push_back(c);
    }
    result.visibleColumns = count;
    result.rows = RowStore(count);
    readRows(statement.get(), result, order, sql);
    return result;
}

void SqliteBackend::deleteRow(const TableSchema& table, const QString& keyName, const QVariant& key)
{
    const QString sql = QStringLiteral("DELETE FROM ") + quotedName(table.name) + QStringLiteral(" WHERE ")
        + quotedName(keyName) + QStringLiteral("=?");
    withContext([&] {
        sqlite3_stmt* statement = cachedStatement(sql);
        bind(statement, 1, key, sql);
        run(statement, sql);
    });
}

} // namespace kartella::engine
