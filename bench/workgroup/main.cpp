// The workgroup load test: N client processes (this binary again, with --client) run a fixed
// mix against one register for a fixed time, each pausing 200 ms to 1 s between operations as a
// person at a desk does: a node's list, a quick search, a new document with an automatic
// registration index, an edit of a document's description (half of them of ten documents every
// client edits), a new contact with two phones, an import of 100 contacts half of which are
// there, a delete of a document another client may be editing. Each client logs what it did;
// afterwards the register is checked against the logs. Prints "name: value" lines:
//   ops_per_s, save_p99_ms, list_p99_ms, failures, lost_updates, duplicate_indexes,
//   duplicate_contacts (and a few more).
// Options: --clients N (8), --seconds S (60), --register FILE or postgresql://... (a new file
// in a temporary folder; on a server, a database kartella_bench_workgroup is made and dropped),
// --no-pause (no pauses: a saturation run), --keep (keeps the register and the logs).
#include "WorkgroupCheck.h"
#include "WorkgroupClient.h"
#include "base/Error.h"
#include "store/Schema.h"
#include "store/Store.h"
#include "store/engine/Connection.h"
#include "store/engine/Recordset.h"

#include <QCoreApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <QUrl>

#include <algorithm>
#include <cstdio>
#include <memory>
#include <vector>

using namespace kartella;
using namespace kartella::bench;

namespace {

const QString DatabaseName = QStringLiteral("kartella_bench_workgroup");

struct Arguments
{
    int clients = 8;
    int seconds = 60;
    QString location;
    bool pause = true;
    bool keep = false;
    int client = -1; // a client process: its number
    QString log;
};

bool parse(const QStringList& list, Arguments& arguments)
{
    for (qsizetype i = 1; i < list.size(); ++i) {
        const QString& name = list[i];
        const bool hasValue = i + 1 < list.size();
        if (name == u"--no-pause")
            arguments.pause = false;
        else if (name == u"--keep")
            arguments.keep = true;
        else if (name == u"--clients" && hasValue)
            arguments.clients = list[++i].toInt();
        else if (name == u"--seconds" && hasValue)
            arguments.seconds = list[++i].toInt();
        else if (name == u"--register" && hasValue)
            arguments.location = list[++i];
        else if (name == u"--client" && hasValue)
            arguments.client = list[++i].toInt();
        else if (name == u"--log" && hasValue)
            arguments.log = list[++i];
        else
            return false;
    }
    return arguments.clients > 0 && arguments.seconds > 0;
}

void runOn(const QString& location, const QString& sql)
{
    Connection connection(plainConnectionString(JetProvider, location));
    connection.open();
    connection.execute(sql);
}

// The benchmark's own database on the server named by maintenance, made afresh.
QString freshServerDatabase(const QString& maintenance)
{
    runOn(maintenance,
        QStringLiteral("DROP DATABASE IF EXISTS ") + DatabaseName + QStringLiteral(" WITH (FORCE)"));
    runOn(maintenance,
        QStringLiteral("CREATE DATABASE ") + DatabaseName
            + QStringLiteral(" TEMPLATE template0 ENCODING 'UTF8'"));
    QUrl url(maintenance);
    url.setPath(u'/' + DatabaseName);
    return url.toString();
}

double percentile(std::vector<double> times, double part)
{
    if (times.empty())
        return 0;
    std::sort(times.begin(), times.end());
    return times[std::min(times.size() - 1, size_t(double(times.size()) * part))];
}

void print(const char* name, double value, int decimals = 0)
{
    std::printf("%s: %.*f\n", name, decimals, value);
}

int runBenchmark(const Arguments& arguments)
{
    QTemporaryDir work(QDir::tempPath() + QStringLiteral("/kartella-bench-workgroup-XXXXXX"));
    work.setAutoRemove(!arguments.keep);
    const bool server = isServerLocation(arguments.location);
    QString location = arguments.location;
    if (server) {
        location = freshServerDatabase(arguments.location);
    } else if (location.isEmpty()) {
        location = work.filePath(QStringLiteral("Workgroup.mdb"));
    } else if (QFile::exists(location)) {
        std::fprintf(stderr, "%s exists: the load test writes a register of its own\n", qPrintable(location));
        return 2;
    }
    createRegister(location);
    seedRegister(location);

    std::vector<std::unique_ptr<QProcess>> clients;
    QElapsedTimer clock;
    clock.start();
    for (int i = 0; i < arguments.clients; ++i) {
        const QString folder = work.filePath(QStringLiteral("client-%1").arg(i));
        QDir().mkpath(folder + QStringLiteral("/config"));
        auto process = std::make_unique<QProcess>();
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(QStringLiteral("XDG_CONFIG_HOME"), folder + QStringLiteral("/config"));
        process->setProcessEnvironment(environment);
        process->setProcessChannelMode(QProcess::ForwardedErrorChannel);
        QStringList clientArguments {QStringLiteral("--client"), QString::number(i), QStringLiteral("--log"),
            folder + QStringLiteral("/operations.log"), QStringLiteral("--register"), location,
            QStringLiteral("--seconds"), QString::number(arguments.seconds)};
        if (!arguments.pause)
            clientArguments << QStringLiteral("--no-pause");
        process->start(QCoreApplication::applicationFilePath(), clientArguments);
        clients.push_back(std::move(process));
    }
    int crashed = 0;
    for (auto& process : clients) {
        if (!process->waitForFinished((arguments.seconds + 300) * 1000)) {
            process->kill();
            process->waitForFinished();
        }
        if (process->exitStatus() != QProcess::NormalExit || process->exitCode() != 0)
            ++crashed;
    }
    const double seconds = double(clock.elapsed()) / 1000.0;

    QList<LoggedOperation> operations;
    for (int i = 0; i < arguments.clients; ++i)
        operations += OperationLog::read(work.filePath(QStringLiteral("client-%1/operations.log").arg(i)));
    std::vector<double> saves;
    std::vector<double> lists;
    int refused = 0;
    for (const LoggedOperation& operation : std::as_const(operations)) {
        if (operation.result == LoggedOperation::Result::Refused)
            ++refused;
        if (operation.result != LoggedOperation::Result::Done)
            continue;
        if (operation.kind == u"new" || operation.kind == u"edit" || operation.kind == u"contact")
            saves.push_back(operation.ms);
        else if (operation.kind == u"list")
            lists.push_back(operation.ms);
    }
    const CheckResult check = checkRegister(location, operations);

    print("clients", arguments.clients);
    print("seconds", seconds, 1);
    print("operations", double(operations.size()));
    print("ops_per_s", double(operations.size()) / seconds, 1);
    print("save_p99_ms", percentile(saves, 0.99), 1);
    print("list_p99_ms", percentile(lists, 0.99), 1);
    print("conflicts_refused", refused);
    print("failures", check.failures + crashed);
    print("lost_updates", check.lostUpdates);
    print("duplicate_indexes", check.duplicateIndexes);
    print("duplicate_contacts", check.duplicateContacts);
    std::printf("integrity: %s\n", qPrintable(check.integrity));
    for (const QString& problem : check.problems)
        std::fprintf(stderr, "  %s\n", qPrintable(problem));
    if (crashed > 0)
        std::fprintf(stderr, "  %d client(s) ended with an error\n", crashed);
    if (arguments.keep)
        std::fprintf(stderr, "register and logs kept in %s\n", qPrintable(work.path()));
    else if (server)
        runOn(arguments.location,
            QStringLiteral("DROP DATABASE IF EXISTS ") + DatabaseName + QStringLiteral(" WITH (FORCE)"));
    return 0;
}

} // namespace

int main(int argc, char* argv[])
{
    QCoreApplication app(argc, argv);
    Arguments arguments;
    if (!parse(app.arguments(), arguments)) {
        std::fprintf(stderr,
            "Usage: kartella-bench-workgroup [--clients N] [--seconds S] [--register FILE|postgresql://...] "
            "[--no-pause] [--keep]\n");
        return 2;
    }
    try {
        if (arguments.client >= 0)
            return runClient(
                {arguments.client, arguments.location, arguments.log, arguments.seconds, arguments.pause});
        return runBenchmark(arguments);
    } catch (const Error& error) {
        std::fprintf(stderr, "kartella-bench-workgroup: %s\n", qPrintable(error.description()));
        return 1;
    }
}
