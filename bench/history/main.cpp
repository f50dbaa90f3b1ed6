// The cost of the history of changes, on register files:
//   history_save_ratio: <r>   a details save (one document's row written) with history, over
//                             the same save on a register without it
//   import_10000_s: <s>       10 000 vCards with two phones each imported, history written
//   import_10000_cpu_s: <s>   the processor's time of it, and of the same import without
//   import_without_history_cpu_s: <s>   history
//   history_open_ms: <n>      a document's History tab filled, with 1 000 000 history rows in
//                             the register (made once, kept in the build's bench-data folder)
//   delete_ms, restore_ms     a document with 20 related documents and their files deleted into
//                             the trash and restored (TrashBench.h)
// Options: --saves <n> (300), --contacts <n> (10000).
#include "TrashBench.h"
#include "addressbook/import/ContactFile.h"
#include "addressbook/import/ContactImporter.h"
#include "base/Error.h"
#include "history/HistorySchema.h"
#include "history/HistoryTab.h"
#include "store/Schema.h"
#include "store/Store.h"
#include "store/engine/Connection.h"
#include "store/engine/Recordset.h"
#include "store/engine/WriteContext.h"

#include <QApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QTemporaryDir>
#include <QTextStream>

#include <algorithm>
#include <cstdio>
#include <ctime>

using namespace kartella;

namespace {

const QString Provider = QStringLiteral("Microsoft.Jet.OLEDB.4.0");

QString connectionTo(const QString& path)
{
    return plainConnectionString(Provider, path);
}

// A register with a few documents; without history when asked: its triggers and context gone.
QString makeRegister(const QString& path, bool history)
{
    createRegister(path);
    Connection connection(connectionTo(path));
    connection.open();
    for (int i = 0; i < 20; ++i)
        connection.execute(QStringLiteral("INSERT INTO tbl_Documents (DokAntraste, DokRegistracIndeksas, "
                                          "DokRegistracData) VALUES ('Document %1', 'B-%1', #3/1/2024#)")
                               .arg(i));
    if (!history) {
        for (const HistoryTable& table : historyTables()) {
            for (const char* change : {"Insert", "Update", "Delete"})
                connection.execute(QStringLiteral("DROP TRIGGER trg_History_") + table.name.mid(4) + u'_'
                    + QLatin1String(change));
        }
        connection.execute(QStringLiteral("DROP TABLE tbl_Write_Context"));
    }
    return path;
}

// Milliseconds of `saves` saves of a document's description, as the details dialog writes them.
double saveMs(const QString& path, int saves, int round)
{
    Connection connection(connectionTo(path));
    connection.open();
    const CommandScope command(QStringLiteral("Details"));
    qint64 nanoseconds = 0;
    for (int i = 0; i < saves; ++i) {
        Recordset document;
        document.open(
            QStringLiteral("SELECT * FROM tbl_Documents WHERE RastasID = ") + QString::number(1 + i % 20),
            connection, CursorTypeEnum::Static, LockTypeEnum::BatchOptimistic);
        document.fields(QStringLiteral("DokAntraste"))
            .setValue(QStringLiteral("Save %1 of round %2").arg(i).arg(round));
        QElapsedTimer timer;
        timer.start();
        document.updateBatch(AffectEnum::Current);
        nanoseconds += timer.nsecsElapsed();
    }
    return double(nanoseconds) / 1e6;
}

double saveRatio(const QTemporaryDir& dir, int saves)
{
    const QString with = makeRegister(dir.filePath(QStringLiteral("with.mdb")), true);
    const QString without = makeRegister(dir.filePath(QStringLiteral("without.mdb")), false);
    // Rounds taken in turn, so that the machine's other work falls on both alike; the
    // median round of each.
    std::vector<double> withMs;
    std::vector<double> withoutMs;
    for (int round = 0; round < 5; ++round) {
        withoutMs.push_back(saveMs(without, saves, round));
        withMs.push_back(saveMs(with, saves, round));
    }
    std::sort(withMs.begin(), withMs.end());
    std::sort(withoutMs.begin(), withoutMs.end());
    return withMs[withMs.size() / 2] / withoutMs[withoutMs.size() / 2];
}

QByteArray vCardFile(int contacts)
{
    QString text;
    for (int i = 0; i < contacts; ++i) {
        text += QStringLiteral("BEGIN:VCARD\r\nVERSION:3.0\r\nFN:Ona Kazlauskienė %1\r\nORG:UAB Įmonė %1\r\n"
                               "TEL;TYPE=WORK,VOICE:+370 5 %1\r\nTEL;TYPE=CELL:+370 6 %1\r\n"
                               "ADR;TYPE=WORK:;;Gedimino pr. %1;Vilnius;;01103;Lietuva\r\n"
                               "EMAIL;TYPE=INTERNET:c%1@example.lt\r\nEND:VCARD\r\n")
                    .arg(i);
    }
    return text.toUtf8();
}

struct ImportTimes
{
    double seconds = 0;
    double cpuSeconds = 0;
};

// The import into a new register, with its history or with the history's triggers gone.
ImportTimes importSeconds(const QTemporaryDir& dir, int contacts, bool history)
{
    const QString file = dir.filePath(QStringLiteral("contacts.vcf"));
    QFile out(file);
    const QByteArray data = vCardFile(contacts);
    if (!out.open(QIODevice::WriteOnly) || out.write(data) != data.size())
        throw Error(ErrorNumber::PathFileAccess, QStringLiteral("cannot write ") + file);
    out.close();
    const QString path = dir.filePath(history ? QStringLiteral("import.mdb") : QStringLiteral("plain.mdb"));
    makeRegister(path, history);
    int errors = 0;
    QElapsedTimer timer;
    timer.start();
    const std::clock_t cpuStart = std::clock();
    ContactImporter importer(connectionTo(path), [&errors](const Error&) {
        ++errors;
        return true;
    });
    importer.run(readContactFile(file));
    ImportTimes times;
    times.seconds = double(timer.elapsed()) / 1000.0;
    times.cpuSeconds = double(std::clock() - cpuStart) / CLOCKS_PER_SEC;
    if (errors != 0 || importer.counts().added != contacts)
        throw Error(ErrorNumber::CommandFailed,
            QStringLiteral("import: %1 added, %2 errors").arg(importer.counts().added).arg(errors));
    Connection connection(connectionTo(path));
    connection.open();
    Recordset count;
    count.open(QStringLiteral("SELECT COUNT(*) FROM tbl_History WHERE Command = 'Import'"), connection);
    if (history && count.fields(0).value().toInt() < contacts)
        throw Error(ErrorNumber::CommandFailed, QStringLiteral("the import left no history"));
    return times;
}

// 10 000 documents with 100 history rows each, in the order a register gathers them.
QString largeHistory(int rows)
{
    QDir data(QStringLiteral(KARTELLA_BENCH_DATA));
    if (!data.mkpath(QStringLiteral(".")))
        throw Error(ErrorNumber::PathFileAccess, QStringLiteral("cannot make ") + data.path());
    const QString path = data.filePath(QStringLiteral("history-%1.mdb").arg(rows));
    if (QFile::exists(path))
        return path;
    const QString making = path + QStringLiteral(".part");
    QFile::remove(making);
    createRegister(making);
    Connection connection(connectionTo(making));
    connection.open();
    connection.beginTrans();
    connection.execute(
        QStringLiteral("WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n WHERE i < 10000) "
                       "INSERT INTO tbl_Documents (RastasID, DokAntraste, DokRegistracIndeksas) "
                       "SELECT i, 'Document ' || i, 'H-' || i FROM n"));
    connection.execute(QStringLiteral(
        "WITH RECURSIVE n(i) AS (SELECT 0 UNION ALL SELECT i + 1 FROM n WHERE i < %1) "
        "INSERT INTO tbl_History (ChangedAt, Who, Command, TableName, RowKey, Change, ColumnName, OldValue, "
        "NewValue, RastasID) SELECT '2025-01-01 10:00:00.000', 'clerk@desk', 'Details', 'tbl_Documents', "
        "1 + i % 10000, 'update', 'DokAntraste', 'Before ' || i, 'After ' || i, 1 + i % 10000 FROM n")
                           .arg(rows - 1));
    connection.commitTrans();
    connection.close();
    if (!QFile::rename(making, path))
        throw Error(ErrorNumber::PathFileAccess, QStringLiteral("cannot keep ") + path);
    return path;
}

double historyOpenMs(int rows)
{
    const QString path = largeHistory(rows);
    HistoryTab tab(HistoryTab::Document, [] { return qint64(5000); });
    tab.setConnectionString(connectionTo(path));
    std::vector<double> times;
    for (int i = 0; i < 5; ++i) {
        QElapsedTimer timer;
        timer.start();
        tab.refresh();
        times.push_back(double(timer.nsecsElapsed()) / 1e6);
    }
    std::sort(times.begin(), times.end());
    return times[times.size() / 2];
}

} // namespace

int main(int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM",
        qgetenv("QT_QPA_PLATFORM").isEmpty() ? QByteArray("offscreen") : qgetenv("QT_QPA_PLATFORM"));
    QApplication app(argc, argv);
    int saves = 300;
    int contacts = 10000;
    const QStringList arguments = QCoreApplication::arguments();
    for (int i = 1; i + 1 < arguments.size(); ++i) {
        if (arguments[i] == u"--saves")
            saves = arguments[++i].toInt();
        else if (arguments[i] == u"--contacts")
            contacts = arguments[++i].toInt();
    }
    try {
        QTemporaryDir dir;
        std::printf("history_save_ratio: %.2f\n", saveRatio(dir, saves));
        std::fflush(stdout);
        const ImportTimes with = importSeconds(dir, contacts, true);
        const ImportTimes without = importSeconds(dir, contacts, false);
        std::printf("import_10000_s: %.2f\n", with.seconds);
        // The processor's time beside it: on a loaded machine the wall clock tells little.
        std::printf("import_10000_cpu_s: %.2f\n", with.cpuSeconds);
        std::printf("import_without_history_cpu_s: %.2f\n", without.cpuSeconds);
        std::fflush(stdout);
        std::printf("history_open_ms: %.1f\n", historyOpenMs(1000000));
        std::fflush(stdout);
        QTextStream out(stdout);
        kartella::bench::measureTrash(dir.path(), out);
    } catch (const Error& error) {
        std::fprintf(stderr, "kartella-bench-history: %s\n", qPrintable(error.description()));
        return 1;
    }
    return 0;
}
