// Feeds any text to the translation of Jet's dialect. A statement that SQLite already
// prepares on the register's tables must still prepare once translated, and a translation
// translated again stays as it is. The PostgreSQL translation gets the same text.
#include "FuzzInput.h"
#include "store/engine/JetDialect.h"
#include "store/engine/SqliteBackend.h"
#include "store/migration/TableMapping.h"

#include <sqlite3.h>

namespace {

// An in-memory database with the register's tables and the engine's collation and like().
sqlite3* registerDatabase()
{
    static sqlite3* db = [] {
        sqlite3* opened = nullptr;
        FUZZ_CHECK(sqlite3_open(":memory:", &opened) == SQLITE_OK);
        FUZZ_CHECK(kartella::engine::registerTextFunctions(opened));
        for (const kartella::migration::TableMapping& mapping : kartella::migration::registerTables()) {
            const QString create = QStringLiteral("CREATE TABLE ") + mapping.table + u'('
                + mapping.fieldNames().join(u',') + u')';
            FUZZ_CHECK(
                sqlite3_exec(opened, create.toUtf8().constData(), nullptr, nullptr, nullptr) == SQLITE_OK);
        }
        return opened;
    }();
    return db;
}

bool prepares(const QString& sql)
{
    const QByteArray utf8 = sql.toUtf8();
    sqlite3_stmt* statement = nullptr;
    const char* tail = nullptr;
    const int rc
        = sqlite3_prepare_v2(registerDatabase(), utf8.constData(), int(utf8.size()), &statement, &tail);
    sqlite3_finalize(statement);
    return rc == SQLITE_OK && statement != nullptr;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    using namespace kartella::engine;
    const QString sql = kartella::fuzz::text(data, size);
    const QString translated = translateJetToSqlite(sql);
    if (prepares(sql))
        FUZZ_CHECK(prepares(translated));
    FUZZ_CHECK(translateJetToSqlite(translated) == translated);

    static const ServerNames names = {{QStringLiteral("tbl_documents"), QStringLiteral("tbl_Documents")},
        {QStringLiteral("fullname"), QStringLiteral("FullName")}};
    translateJetToPostgres(sql, names);
    return 0;
}
