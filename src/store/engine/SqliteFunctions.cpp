#include "store/engine/SqliteBackend.h"
#include "store/engine/TextFold.h"

#include <sqlite3.h>

namespace kartella::engine {

namespace {

int nameCollation(void*, int aSize, const void* a, int bSize, const void* b)
{
    return compareNames(
        static_cast<const char*>(a), std::size_t(aSize), static_cast<const char*>(b), std::size_t(bSize));
}

// like(pattern, text[, escape]): Null when pattern or text is Null.
void like(sqlite3_context* context, int argc, sqlite3_value** argv)
{
    const auto* pattern = reinterpret_cast<const char*>(sqlite3_value_text(argv[0]));
    const int patternSize = sqlite3_value_bytes(argv[0]);
    const auto* text = reinterpret_cast<const char*>(sqlite3_value_text(argv[1]));
    const int textSize = sqlite3_value_bytes(argv[1]);
    if (pattern == nullptr || text == nullptr) {
        sqlite3_result_null(context);
        return;
    }
    char32_t escape = 0;
    if (argc == 3) {
        const QString escapeText = QString::fromUtf8(
            reinterpret_cast<const char*>(sqlite3_value_text(argv[2])), sqlite3_value_bytes(argv[2]));
        const QList<uint> characters = escapeText.toUcs4();
        if (characters.size() != 1) {
            sqlite3_result_error(context, "ESCAPE expression must be a single character", -1);
            return;
        }
        escape = char32_t(characters.front());
    }
    sqlite3_result_int(
        context, likeMatches(pattern, std::size_t(patternSize), text, std::size_t(textSize), escape) ? 1 : 0);
}

} // namespace

bool registerTextFunctions(sqlite3* db)
{
    const int flags = SQLITE_UTF8 | SQLITE_DETERMINISTIC | SQLITE_INNOCUOUS;
    return sqlite3_create_collation_v2(db, "NAMEFOLD", SQLITE_UTF8, nullptr, nameCollation, nullptr)
        == SQLITE_OK
        && sqlite3_create_function_v2(db, "like", 2, flags, nullptr, like, nullptr, nullptr, nullptr)
        == SQLITE_OK
        && sqlite3_create_function_v2(db, "like", 3, flags, nullptr, like, nullptr, nullptr, nullptr)
        == SQLITE_OK;
}

} // namespace kartella::engine
