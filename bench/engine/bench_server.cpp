// Reads the main window's list of all documents of a 100 000 document register through a
// Connection and a Recordset, walking every row and every field, once from a register on a
// PostgreSQL server and once from a register file, and prints the medians:
//   pg_read_ms: <n>
//   sqlite_read_ms: <n>
//   pg_ratio: <pg over sqlite>
// Both registers hold the same documents and are read with the same query text.
//
// The server is the location given as the first argument that isn't an option, else the one
// in KARTELLA_BENCH_POSTGRESQL, else KARTELLA_TEST_POSTGRESQL: a database to connect to while
// the benchmark creates a database of its own (kartella_bench), which it drops at the end.
// Without a server it says so and reads nothing.
//
// Options: --documents <n> (100000), --runs <n> (7), --phases to print also the medians of
// opening the recordset and of walking it on each side (pg_open_ms, pg_walk_ms, ...),
// --keep to leave the server database behind for a look at the statement in psql.
// The fill times (pg_fill_ms, sqlite_fill_ms) are printed for information; they are not part
// of the ratio.
#include "BenchRegister.h"
#include "base/Error.h"
#include "explorer/DocumentQueries.h"
#include "store/Store.h"
#include "store/engine/Connection.h"
#include "store/engine/Recordset.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QStringList>
#include <QTemporaryDir>
#include <QUrl>

#include <algorithm>
#include <cstdio>
#include <vector>

using namespace kartella;

namespace {

const QString JetProvider = QStringLiteral("Microsoft.Jet.OLEDB.4.0");
const QString DatabaseName = QStringLiteral("kartella_bench");

struct ReadTimes
{
    double openMs = 0;
    double walkMs = 0;
    double totalMs() const { return openMs + walkMs; }
};

// Opens the recordset and reads every value of every row; count gets the number of values
// that aren't Null.
ReadTimes readList(Connection& connection, const QString& sql, qint64& count)
{
    ReadTimes times;
    QElapsedTimer timer;
    timer.start();
    Recordset recordset;
    recordset.open(sql, connection);
    times.openMs = double(timer.nsecsElapsed()) / 1e6;
    timer.restart();
    count = 0;
    const int fields = recordset.fieldCount();
    while (!recordset.eof()) {
        for (int field = 0; field < fields; ++field)
            count += isNull(recordset.fields(field).value()) ? 0 : 1;
        recordset.moveNext();
    }
    times.walkMs = double(timer.nsecsElapsed()) / 1e6;
    return times;
}

double median(std::vector<double> values)
{
    std::sort(values.begin(), values.end());
    return values[values.size() / 2];
}

int intOption(const QStringList& arguments, const QString& name, int fallback)
{
    const qsizetype at = arguments.indexOf(name);
    return at >= 0 && at + 1 < arguments.size() ? arguments[at + 1].toInt() : fallback;
}

// The first argument that is neither an option nor an option's value.
QString serverArgument(const QStringList& arguments)
{
    for (qsizetype at = 1; at < arguments.size(); ++at) {
        const QString& argument = arguments[at];
        if (argument == QLatin1String("--documents") || argument == QLatin1String("--runs"))
            ++at;
        else if (!argument.startsWith(QLatin1String("--")))
            return argument;
    }
    return {};
}

QString serverLocation(const QStringList& arguments)
{
    QString location = serverArgument(arguments);
    for (const char* variable : {"KARTELLA_BENCH_POSTGRESQL", "KARTELLA_TEST_POSTGRESQL"}) {
        if (location.isEmpty())
            location = qEnvironmentVariable(variable);
    }
    return location;
}

void runOn(const QString& location, const QString& sql)
{
    Connection connection(plainConnectionString(JetProvider, location));
    connection.open();
    connection.execute(sql);
    connection.close();
}

// The benchmark's own database on the server, dropped again when the object goes.
class BenchDatabase
{
public:
    BenchDatabase(const QString& maintenance, bool keep)
        : m_maintenance(maintenance)
        , m_keep(keep)
    {
        drop();
        runOn(m_maintenance,
            QStringLiteral("CREATE DATABASE ") + DatabaseName
                + QStringLiteral(" TEMPLATE template0 ENCODING 'UTF8'"));
        QUrl url(maintenance);
        url.setPath(u'/' + DatabaseName);
        m_location = url.toString();
    }
    ~BenchDatabase()
    {
        if (m_keep)
            return;
        try {
            drop();
        } catch (const Error& error) {
            std::fprintf(stderr, "Can't drop the database %s: %s\n", qPrintable(DatabaseName),
                qPrintable(error.description()));
        }
    }
    BenchDatabase(const BenchDatabase&) = delete;
    BenchDatabase& operator=(const BenchDatabase&) = delete;

    QString location() const { return m_location; }

private:
    // Only a database that is there is dropped, so that the server has no notice to print.
    void drop()
    {
        Connection connection(plainConnectionString(JetProvider, m_maintenance));
        connection.open();
        Recordset existing;
        existing.open(
            QStringLiteral("SELECT datname FROM pg_database WHERE datname = '") + DatabaseName + u'\'',
            connection);
        const bool exists = !existing.eof();
        existing.close();
        connection.close();
        if (exists)
            runOn(m_maintenance,
                QStringLiteral("DROP DATABASE IF EXISTS ") + DatabaseName + QStringLiteral(" WITH (FORCE)"));
    }

    QString m_maintenance;
    bool m_keep;
    QString m_location;
};

double fillMs(const QString& location, int documents)
{
    QElapsedTimer timer;
    timer.start();
    bench::buildRegister(location, documents);
    return double(timer.nsecsElapsed()) / 1e6;
}

} // namespace

int main(int argc, char** argv)
{
    QCoreApplication app(argc, argv);
    const QStringList arguments = app.arguments();
    const int documents = intOption(arguments, QStringLiteral("--documents"), 100000);
    const int runs = std::max(1, intOption(arguments, QStringLiteral("--runs"), 7));
    const bool phases = arguments.contains(QStringLiteral("--phases"));

    const QString server = serverLocation(arguments);
    if (server.isEmpty()) {
        std::printf("No PostgreSQL server given (an argument postgresql://user@host:port/database, or "
                    "KARTELLA_BENCH_POSTGRESQL or KARTELLA_TEST_POSTGRESQL): nothing measured.\n");
        return 0;
    }

    if (!isServerLocation(server)) {
        std::fprintf(stderr, "\"%s\" is not a server location (postgresql://user@host:port/database).\n",
            qPrintable(server));
        return 1;
    }

    try {
        QTemporaryDir dir;
        const QString file = dir.filePath(QStringLiteral("Bench.mdb"));
        BenchDatabase database(server, arguments.contains(QStringLiteral("--keep")));
        const double sqliteFill = fillMs(file, documents);
        const double pgFill = fillMs(database.location(), documents);

        // The main window's list of all documents, without the date filter.
        const QDate today = QDate::currentDate();
        const QString sql = categoryListSql(0, 0, false, today, today);

        std::vector<ReadTimes> pgTimes;
        std::vector<ReadTimes> sqliteTimes;
        qint64 pgCount = 0;
        qint64 sqliteCount = 0;
        {
            Connection pg(plainConnectionString(JetProvider, database.location()));
            pg.open();
            Connection sqlite(plainConnectionString(JetProvider, file));
            sqlite.open();
            // One untimed round warms the caches on both sides.
            readList(pg, sql, pgCount);
            readList(sqlite, sql, sqliteCount);
            for (int run = 0; run < runs; ++run) {
                pgTimes.push_back(readList(pg, sql, pgCount));
                sqliteTimes.push_back(readList(sqlite, sql, sqliteCount));
            }
        }
        if (pgCount != sqliteCount) {
            std::fprintf(stderr, "The two reads differ: %lld values on the server against %lld in the file\n",
                pgCount, sqliteCount);
            return 1;
        }

        auto medianOf = [](const std::vector<ReadTimes>& times, double (*part)(const ReadTimes&)) {
            std::vector<double> values;
            for (const ReadTimes& time : times)
                values.push_back(part(time));
            return median(values);
        };
        auto total = [](const ReadTimes& time) { return time.totalMs(); };
        auto open = [](const ReadTimes& time) { return time.openMs; };
        auto walk = [](const ReadTimes& time) { return time.walkMs; };
        const double pgMs = medianOf(pgTimes, total);
        const double sqliteMs = medianOf(sqliteTimes, total);
        std::printf("pg_read_ms: %.1f\n", pgMs);
        std::printf("sqlite_read_ms: %.1f\n", sqliteMs);
        std::printf("pg_ratio: %.2f\n", pgMs / sqliteMs);
        if (phases) {
            std::printf("pg_open_ms: %.1f\n", medianOf(pgTimes, open));
            std::printf("pg_walk_ms: %.1f\n", medianOf(pgTimes, walk));
            std::printf("sqlite_open_ms: %.1f\n", medianOf(sqliteTimes, open));
            std::printf("sqlite_walk_ms: %.1f\n", medianOf(sqliteTimes, walk));
        }
        std::printf("pg_fill_ms: %.0f\n", pgFill);
        std::printf("sqlite_fill_ms: %.0f\n", sqliteFill);
    } catch (const Error& error) {
        std::fprintf(stderr, "%s\n", qPrintable(error.description()));
        return 1;
    }
    return 0;
}
