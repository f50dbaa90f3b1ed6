#include "StorageCompare.h"

#include "store/engine/RowStore.h"

#include <QDate>
#include <QElapsedTimer>
#include <QString>
#include <QVariant>

#include <algorithm>
#include <cstdio>
#include <cstring>
#include <sqlite3.h>
#include <vector>

namespace kartella::bench {

namespace {

int compareBytes(void*, int aSize, const void* a, int bSize, const void* b)
{
    const int common = std::memcmp(a, b, std::size_t(aSize < bSize ? aSize : bSize));
    return common != 0 ? common : aSize - bSize;
}

// Columns 1 and 2 of the document list are dates.
bool isDateColumn(int column)
{
    return column == 1 || column == 2;
}

QDate isoDate(const char* text, int size)
{
    if (size < 10)
        return {};
    return QDate(std::atoi(text), std::atoi(text + 5), std::atoi(text + 8));
}

template<typename Store>
double timeRead(sqlite3* db, const std::string& sql, Store&& store)
{
    QElapsedTimer timer;
    timer.start();
    sqlite3_stmt* statement = nullptr;
    sqlite3_prepare_v2(db, sql.c_str(), int(sql.size()), &statement, nullptr);
    store(statement);
    sqlite3_finalize(statement);
    return double(timer.nsecsElapsed()) / 1e6;
}

double median(std::vector<double> values)
{
    std::sort(values.begin(), values.end());
    return values[values.size() / 2];
}

} // namespace

void compareStorage(const std::string& path, const std::string& sql, int runs)
{
    sqlite3* db = nullptr;
    sqlite3_open_v2(path.c_str(), &db, SQLITE_OPEN_READONLY, nullptr);
    sqlite3_create_collation(db, "NAMEFOLD", SQLITE_UTF8, nullptr, compareBytes);
    qint64 sink = 0;

    auto compact = [&sink](sqlite3_stmt* statement) {
        const int columns = sqlite3_column_count(statement);
        engine::RowStore store(columns);
        while (sqlite3_step(statement) == SQLITE_ROW) {
            for (int c = 0; c < columns; ++c) {
                switch (sqlite3_column_type(statement, c)) {
                case SQLITE_INTEGER:
                    store.addInteger(sqlite3_column_int64(statement, c));
                    break;
                case SQLITE_TEXT: {
                    const auto* text = reinterpret_cast<const char*>(sqlite3_column_text(statement, c));
                    const int size = sqlite3_column_bytes(statement, c);
                    if (isDateColumn(c))
                        store.addDate(isoDate(text, size).toJulianDay());
                    else
                        store.addText(text, std::size_t(size));
                    break;
                }
                default:
                    store.addNull();
                    break;
                }
            }
        }
        for (int row = 0; row < store.rowCount(); ++row) {
            for (int c = 0; c < columns; ++c)
                sink += store.value(row, c).isNull() ? 0 : 1;
        }
    };
    auto variants = [&sink](sqlite3_stmt* statement) {
        const int columns = sqlite3_column_count(statement);
        std::vector<QVariant> cells;
        while (sqlite3_step(statement) == SQLITE_ROW) {
            for (int c = 0; c < columns; ++c) {
                switch (sqlite3_column_type(statement, c)) {
                case SQLITE_INTEGER:
                    cells.emplace_back(int(sqlite3_column_int64(statement, c)));
                    break;
                case SQLITE_TEXT: {
                    const auto* text = reinterpret_cast<const char*>(sqlite3_column_text(statement, c));
                    const int size = sqlite3_column_bytes(statement, c);
                    if (isDateColumn(c))
                        cells.emplace_back(isoDate(text, size));
                    else
                        cells.emplace_back(QString::fromUtf8(text, size));
                    break;
                }
                default:
                    cells.emplace_back();
                    break;
                }
            }
        }
        for (const QVariant& cell : cells) {
            const QVariant copy = cell;
            sink += copy.isNull() ? 0 : 1;
        }
    };

    std::vector<double> compactTimes;
    std::vector<double> variantTimes;
    for (int run = 0; run < runs; ++run) {
        compactTimes.push_back(timeRead(db, sql, compact));
        variantTimes.push_back(timeRead(db, sql, variants));
    }
    sqlite3_close(db);
    std::printf("storage_compact_ms: %.1f\n", median(compactTimes));
    std::printf("storage_variant_ms: %.1f\n", median(variantTimes));
    if (sink < 0)
        std::printf("%lld\n", sink);
}

} // namespace kartella::bench
