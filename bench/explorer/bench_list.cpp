// Times the main window's document list on a register of 100 000 documents: from a node
// click to a filled list, in category mode (the root: all documents) and in contact mode,
// beside the engine's read of the same query. Prints "name: value" lines.
#include "explorer/DocumentQueries.h"
#include "explorer/Form2.h"
#include "explorer/ListModel.h"
#include "explorer/NavigationTree.h"
#include "explorer/SelectionState.h"
#include "options/FirstRun.h"
#include "options/OptionStore.h"
#include "store/SampleRegister.h"
#include "store/Schema.h"
#include "store/Store.h"
#include "store/engine/Connection.h"
#include "store/engine/Recordset.h"

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
    connection.SetMode(ConnectModeEnum::ShareDenyNone);
    connection.Open(PlainConnectionString());
    Recordset rs;
    rs.Open(sql, connection);
    qint64 sink = 0;
    const int fields = rs.FieldCount();
    while (!rs.Eof()) {
        for (int f = 0; f < fields; ++f)
            sink += rs.Fields(f).Value().isValid() ? 1 : 0;
        rs.MoveNext();
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
    SeedOptionsIfMissing();
    const QString path = dir.filePath(QStringLiteral("Kartella.mdb"));
    CreateRegister(path);
    SampleOptions options;
    options.documents = 100000;
    FillSampleRegister(path, options);
    SetRegValue(QStringLiteral("DbLocation"), path);

    const int runs = 5;
    const QDate today = QDate::currentDate();
    const QString sql = CategoryListSql(0, 0, false, today, today);
    const double read = medianMs(runs, [&] { readAll(sql); });

    // Memory: the load's first fill lists all 100 000 documents.
    Form2 window;
    const double before = residentMb();
    window.Form_Load();
    const double memory = residentMb() - before;
    const int rows = window.documentModel()->itemCount();
    NavigationTree* tree = window.tree();
    const QString someCategory = NavigationTree::nodeKey(tree->nodeByIndex(2));
    // The root's click fills the list with all documents (after another node, so it acts).
    const double categoryFill = medianMs(
        runs, [&] { window.acxTreeKategorijos_NodeClick(tree->nodeByKey(QStringLiteral("ALL"))); },
        [&] { window.acxTreeKategorijos_NodeClick(tree->nodeByKey(someCategory)); });

    tree->clearNodes();
    window.CategoryView = false;
    window.LastNodeIndex = 0;
    window.FillContactTree();
    QTreeWidgetItem* letter = tree->nodeByKey(QStringLiteral("A"));
    QTreeWidgetItem* first = letter->child(0);
    QTreeWidgetItem* second = letter->child(1);
    const double contactFill = medianMs(
        runs, [&] { window.acxTreeKategorijos_NodeClick(first); },
        [&] { window.acxTreeKategorijos_NodeClick(second); });

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
