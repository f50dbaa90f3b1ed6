#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace kartella::bench {

// One value as plain C++ memory.
struct RawValue
{
    static constexpr int NullType = 5; // SQLITE_NULL
    int type = 0; // SQLITE_INTEGER, SQLITE_FLOAT, SQLITE_TEXT, SQLITE_BLOB or NullType
    std::int64_t integer = 0;
    double real = 0;
    std::string text;
};

using RawRow = std::vector<RawValue>;

// Runs sql on the file at path with the sqlite3 C API alone and copies every value of
// every row. The collation NAMEFOLD is registered as a plain byte comparison so that the
// register's schema opens; the query doesn't order by it.
std::vector<RawRow> readRaw(const std::string& path, const std::string& sql);

} // namespace kartella::bench
