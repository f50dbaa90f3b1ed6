// Reads the whole document list of a 100 000 document register through a Recordset,
// walking every row and every field as a list fill does, and through the sqlite3 C API
// into plain C++ memory, and prints the medians:
//   recordset_ms: <n>
//   raw_ms: <n>
//   ratio: <recordset over raw>
// The raw read runs the statement as the engine hands it to SQLite, so that both sides
// run the same query plan. Options: --documents <n> (100000), --runs <n> (7), --register
// <path> to use or keep a register file (made there when missing), --joins to print also
// the raw times of the list's RIGHT JOIN as written and as the engine rewrites it
// (raw_right_join_ms, raw_left_join_ms), for the whole list and for one category and month,
// --storage to print the cost of the engine's compact row store against one QVariant per
// cell (storage_compact_ms, storage_variant_ms).
#include "BenchRegister.h"
#include "RawRead.h"
#include "StorageCompare.h"
#include "base/Error.h"
#include "explorer/DocumentQueries.h"
#include "store/Store.h"
#include "store/engine/Connection.h"
#include "store/engine/JetDialect.h"
#include "store/engine/Recordset.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QFileInfo>
#include <QStringList>
#include <QTemporaryDir>

#include <algorithm>
#include <cstdio>
#include <vector>

using namespace kartella;

namespace {

const QString Ordering = QStringLiteral(" ORDER BY tbl_Documents.DokRegistracData");

// The fields as a list fill names them.
const QStringList FieldNames = {QStringLiteral("RastasID"), QStringLiteral("DokGavSiuntData"),
    QStringLiteral("DokRegistracData"), QStringLiteral("DokRegistracIndeksas"), QStringLiteral("DokAntraste"),
    QStringLiteral("DokVykdytojas"), QStringLiteral("DokIvykdymoZyma"), QStringLiteral("RastoKel"),
    QStringLiteral("ContactID"), QStringLiteral("FullName"), QStringLiteral("KategID"),
    QStringLiteral("DokPastaba")};

// Milliseconds to open the recordset and read every value of every row; count gets the
// number of values that aren't Null.
double readRecordset(Connection& connection, const QString& sql, qint64& count)
{
    QElapsedTimer timer;
    timer.start();
    Recordset recordset;
    recordset.open(sql, connection);
    count = 0;
    while (!recordset.eof()) {
        for (const QString& name : FieldNames) {
            const QVariant value = recordset.fields(name).value();
            count += isNull(value) ? 0 : 1;
        }
        recordset.moveNext();
    }
    return double(timer.nsecsElapsed()) / 1e6;
}

double readRaw(const std::string& path, const std::string& sql, qint64& count)
{
    QElapsedTimer timer;
    timer.start();
    const std::vector<bench::RawRow> rows = bench::readRaw(path, sql);
    const double ms = double(timer.nsecsElapsed()) / 1e6;
    count = 0;
    for (const bench::RawRow& row : rows) {
        for (const bench::RawValue& value : row)
            count += value.type == bench::RawValue::NullType ? 0 : 1;
    }
    return ms;
}

double median(std::vector<double> values)
{
    std::sort(values.begin(), values.end());
    return values[values.size() / 2];
}

// The raw time of the list as written (RIGHT JOIN) and as rewritten (LEFT JOIN).
void compareJoins(const std::string& path, int runs)
{
    const QString filtered = QStringLiteral("WHERE tbl_Documents.DokRegistracData between '2020-03-01' and "
                                            "'2020-04-01' AND tbl_Documents.KategID=7");
    for (const auto& [name, clause] : {std::pair {"", QString()}, std::pair {"_filtered", filtered}}) {
        const QString written = documentSql() + clause + Ordering;
        const QString rewritten = engine::translateJetToSqlite(written);
        for (const auto& [form, sql] : {std::pair {"right", written}, std::pair {"left", rewritten}}) {
            std::vector<double> times;
            qint64 count = 0;
            for (int run = 0; run < runs; ++run)
                times.push_back(readRaw(path, sql.toStdString(), count));
            std::printf("raw_%s_join%s_ms: %.1f\n", form, name, median(times));
        }
    }
}

int intOption(const QStringList& arguments, const QString& name, int fallback)
{
    const qsizetype at = arguments.indexOf(name);
    return at >= 0 && at + 1 < arguments.size() ? arguments[at + 1].toInt() : fallback;
}

} // namespace

int main(int argc, char** argv)
{
    QCoreApplication app(argc, argv);
    const QStringList arguments = app.arguments();
    const int documents = intOption(arguments, QStringLiteral("--documents"), 100000);
    const int runs = std::max(1, intOption(arguments, QStringLiteral("--runs"), 7));
    const qsizetype registerAt = arguments.indexOf(QStringLiteral("--register"));

    try {
        QTemporaryDir dir;
        QString path = dir.filePath(QStringLiteral("Bench.mdb"));
        if (registerAt >= 0 && registerAt + 1 < arguments.size())
            path = arguments[registerAt + 1];
        if (!QFileInfo::exists(path))
            bench::buildRegister(path, documents);

        Connection connection(plainConnectionString(QStringLiteral("Microsoft.Jet.OLEDB.4.0"), path));
        connection.open();
        const QString sql = documentSql() + Ordering;
        const std::string rawPath = path.toStdString();
        const std::string rawSql = engine::translateJetToSqlite(sql).toStdString();

        std::vector<double> recordsetTimes;
        std::vector<double> rawTimes;
        qint64 recordsetCount = 0;
        qint64 rawCount = 0;
        // One untimed round warms the file cache.
        readRecordset(connection, sql, recordsetCount);
        readRaw(rawPath, rawSql, rawCount);
        for (int run = 0; run < runs; ++run) {
            recordsetTimes.push_back(readRecordset(connection, sql, recordsetCount));
            rawTimes.push_back(readRaw(rawPath, rawSql, rawCount));
        }
        if (recordsetCount != rawCount) {
            std::fprintf(
                stderr, "The two reads differ: %lld values against %lld\n", recordsetCount, rawCount);
            return 1;
        }
        const double recordsetMs = median(recordsetTimes);
        const double rawMs = median(rawTimes);
        std::printf("recordset_ms: %.1f\n", recordsetMs);
        std::printf("raw_ms: %.1f\n", rawMs);
        std::printf("ratio: %.2f\n", recordsetMs / rawMs);
        if (arguments.contains(QStringLiteral("--joins")))
            compareJoins(rawPath, runs);
        if (arguments.contains(QStringLiteral("--storage")))
            bench::compareStorage(rawPath, rawSql, runs);
    } catch (const Error& error) {
        std::fprintf(stderr, "%s\n", qPrintable(error.description()));
        return 1;
    }
    return 0;
}
