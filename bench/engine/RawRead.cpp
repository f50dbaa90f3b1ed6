#include "RawRead.h"

#include <cstring>
#include <sqlite3.h>
#include <stdexcept>

namespace kartella::bench {

namespace {

int compareBytes(void*, int aSize, const void* a, int bSize, const void* b)
{
    const int common = std::memcmp(a, b, std::size_t(aSize < bSize ? aSize : bSize));
    return common != 0 ? common : aSize - bSize;
}

} // namespace

std::vector<RawRow> readRaw(const std::string& path, const std::string& sql)
{
    sqlite3* db = nullptr;
    if (sqlite3_open_v2(path.c_str(), &db, SQLITE_OPEN_READONLY, nullptr) != SQLITE_OK) {
        sqlite3_close(db);
        throw std::runtime_error("can't open " + path);
    }
    sqlite3_create_collation(db, "NAMEFOLD", SQLITE_UTF8, nullptr, compareBytes);
    sqlite3_stmt* statement = nullptr;
    if (sqlite3_prepare_v2(db, sql.c_str(), int(sql.size()), &statement, nullptr) != SQLITE_OK) {
        const std::string message = sqlite3_errmsg(db);
        sqlite3_close(db);
        throw std::runtime_error(message);
    }
    std::vector<RawRow> rows;
    const int columns = sqlite3_column_count(statement);
    while (sqlite3_step(statement) == SQLITE_ROW) {
        RawRow row(static_cast<std::size_t>(columns));
        for (int c = 0; c < columns; ++c) {
            RawValue& value = row[std::size_t(c)];
            value.type = sqlite3_column_type(statement, c);
            switch (value.type) {
            case SQLITE_INTEGER:
                value.integer = sqlite3_column_int64(statement, c);
                break;
            case SQLITE_FLOAT:
                value.real = sqlite3_column_double(statement, c);
                break;
            case SQLITE_TEXT:
            case SQLITE_BLOB:
                value.text.assign(reinterpret_cast<const char*>(sqlite3_column_blob(statement, c)),
                    std::size_t(sqlite3_column_bytes(statement, c)));
                break;
            default:
                break;
            }
        }
        rows.push_back(std::move(row));
    }
    sqlite3_finalize(statement);
    sqlite3_close(db);
    return rows;
}

} // namespace kartella::bench
