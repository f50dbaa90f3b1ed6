// Times the main window's document list on a register of 100 000 documents: from a node
// click to a filled list, in category mode (the root: all documents) and in contact mode,
// beside the engine's read of the same query. Prints "name: value" lines.
#include "explorer/DocumentQueries.h"
#include "explorer/ListModel.h"
#include "explorer/MainWindow.h"
#include "explorer/NavigationTree.h"
#include "options/FirstRun.h"
#include "options/OptionStore.h"
#include "store/SampleRegister.h"
#include "store/Schema.h"
#include "store/Store.h"
#include "store/engine/Connection.h"
#include "store/engine/Recordset.h"
#include "support/SelectionState.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QFile>
#include <QTemporaryDir>
#include <QTextStream>

#include <algorithm>
#include <functional>
#include <vector>

using namespace kartella;

namespace {

double medianMs(int runs, const std::function<void()>& work, const std::function<void()>& setup = {})
{
    std::vector<double> times;
    for (int i = 0; i < runs; ++i) {
        if (setup)
            setup();
        QElapsedTimer timer;
        timer.start();
        work();
        times.push_back(double(timer.nsecsElapsed()) / 1e6);
    }
    std::sort(times.begin(), times.end());
    return times[times.size() / 2];
}

// Resident memory of the process, in MB.
double residentMb()
{
    QFile status(QStringLiteral("/proc/self/status"));
    if (!status.open(QIODevice::ReadOnly))
        return 0;
    const QList<QByteArray> lines = status.readAll().split('\n');
    for (const QByteArray& line : lines) {
        if (line.startsWith("VmRSS:"))
            return line.mid(6).trimmed().split(' ').first().toDouble() / 1024.0;
    }
    return 0;
}

void readAll(const QString& sql)
{
    Connection connection;
    connection.setMode(ConnectModeEnum::ShareDenyNone);
    connection.open(plainConnectionString());
    Recordset rs;
    rs.open(sql, connection);
    qint64 sink = 0;
    const int fields = rs.fieldCount();
    while (!rs.eof()) {
        for (int f = 0; f < fields; ++f)
            sink += rs.fields(f).value().isValid() ? 1 : 0;
        rs.moveNext();
    }
    if (sink < 0)
        qWarning("unreachable");
}

} // namespace

int main(int argc, char* argv[])
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);
    QTemporaryDir dir;
    qputenv("XDG_CONFIG_HOME", dir.filePath(QStringLiteral("config")).toUtf8());
    seedOptionsIfMissing();
    const QString path = dir.filePath(QStringLiteral("Kartella.mdb"));
    createRegister(path);
    SampleOptions options;
    options.documents = 100000;
    fillSampleRegister(path, options);
    setRegValue(QStringLiteral("DbLocation"), path);

    const int runs = 5;
    const QDate today = QDate::currentDate();
    const QString sql = categoryListSql(0, 0, false, today, today);
    const double read = medianMs(runs, [&] { readAll(sql); });

    // Memory: the load's first fill lists all 100 000 documents.
    MainWindow window;
    const double before = residentMb();
    window.load();
    const double memory = residentMb() - before;
    const int rows = window.documentModel()->itemCount();
    NavigationTree* tree = window.tree();
    const QString someCategory = NavigationTree::nodeKey(tree->nodeByIndex(2));
    // The root's click fills the list with all documents (after another node, so it acts).
    const double categoryFill = medianMs(
        runs, [&] { window.onNodeClicked(tree->nodeByKey(QStringLiteral("ALL"))); },
        [&] { window.onNodeClicked(tree->nodeByKey(someCategory)); });

    tree->clearNodes();
    window.setCategoryView(false);
    window.fillContactTree();
    QTreeWidgetItem* letter = tree->nodeByKey(QStringLiteral("A"));
    QTreeWidgetItem* first = letter->child(0);
    QTreeWidgetItem* second = letter->child(1);
    const double contactFill = medianMs(
        runs, [&] { window.onNodeClicked(first); }, [&] { window.onNodeClicked(second); });

    QTextStream out(stdout);
    out << "rows: " << rows << '\n';
    out << "read_ms: " << qRound(read) << '\n';
    out << "category_fill_ms: " << qRound(categoryFill) << '\n';
    out << "contact_fill_ms: " << qRound(contactFill) << '\n';
    out << "category_ratio: " << QString::number(categoryFill / read, 'f', 2) << '\n';
    out << "contact_ratio: " << QString::number(contactFill / categoryFill, 'f', 2) << '\n';
    out << "fill_memory_mb: " << qRound(memory) << '\n';
    return 0;
}
