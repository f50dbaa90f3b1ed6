// Times the main window on a register of 1 000 000 documents (another size with
// --documents N, another register with --register LOCATION) and 50 000 contacts: the start
// to a painted list, node clicks in both views with the date and direction filters on and
// off, a column sort, Ctrl+End, quick searches, the address book's opening, and the memory
// after scrolling the whole list.
// The register is made once and kept in the build folder. Prints "name: value" lines.
#include "addressbook/AddressBookWindow.h"
#include "explorer/DeletedItemsNode.h"
#include "explorer/DocumentFills.h"
#include "explorer/ExplorerList.h"
#include "explorer/ListModel.h"
#include "explorer/MainWindow.h"
#include "explorer/NavigationTree.h"
#include "explorer/RemindersCommand.h"
#include "options/FirstRun.h"
#include "options/OptionStore.h"
#include "store/DueReminders.h"
#include "store/InsertBatch.h"
#include "store/SampleRegister.h"
#include "store/Schema.h"
#include "store/SchemaSteps.h"
#include "store/Store.h"
#include "store/engine/Connection.h"

#include <QApplication>
#include <QComboBox>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QKeyEvent>
#include <QScrollBar>
#include <QTemporaryDir>
#include <QTextStream>
#include <QTreeView>
#include <QTreeWidgetItem>

#include <algorithm>
#include <functional>
#include <vector>

using namespace kartella;

namespace {

constexpr int Contacts = 50000;

double elapsedMs(const std::function<void()>& work)
{
    QElapsedTimer timer;
    timer.start();
    work();
    return double(timer.nsecsElapsed()) / 1e6;
}

double percentile(std::vector<double> times, double part)
{
    std::sort(times.begin(), times.end());
    return times[std::min(times.size() - 1, size_t(double(times.size()) * part))];
}

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

// Lets the window paint what the last step changed.
void paint()
{
    QCoreApplication::processEvents();
    QCoreApplication::processEvents();
}

// Contacts beyond the sample's own, so that the address book has Contacts in all.
void addContacts(const QString& path)
{
    static const QStringList first = {QStringLiteral("Ona"), QStringLiteral("Jonas"),
        QStringLiteral("Birutė"), QStringLiteral("Petras"), QStringLiteral("Šarūnas"),
        QStringLiteral("Aistė"), QStringLiteral("Kęstutis"), QStringLiteral("Rasa"),
        QStringLiteral("Mindaugas"), QStringLiteral("Gintarė"), QStringLiteral("Tomas")};
    static const QStringList last = {QStringLiteral("Petraitis"), QStringLiteral("Jonaitis"),
        QStringLiteral("Kazlauskas"), QStringLiteral("Žukauskas"), QStringLiteral("Butkus"),
        QStringLiteral("Urbonas"), QStringLiteral("Navickas")};
    Connection connection(plainConnectionString(QStringLiteral("Microsoft.Jet.OLEDB.4.0"), path));
    connection.open();
    connection.beginTrans();
    {
        InsertBatch contacts(connection, QStringLiteral("tbl_Contacts"),
            {QStringLiteral("ContactID"), QStringLiteral("FullName"), QStringLiteral("City")});
        for (int i = 0; i < Contacts; ++i) {
            const QString name = first[i % first.size()] + u' ' + last[(i / first.size()) % last.size()]
                + u' ' + QString::number(i);
            contacts.add({1000000 + i, name, QStringLiteral("Vilnius")});
        }
        contacts.flush();
    }
    connection.commitTrans();
}

QString sampleRegister(int documents)
{
    const QString folder = QStringLiteral(KARTELLA_BENCH_DATA) + QStringLiteral("/scale-%1").arg(documents);
    const QString path = folder + QStringLiteral("/Kartella.mdb");
    if (QFile::exists(path + QStringLiteral(".done")))
        return path;
    // A sample made by kartella-db (marked ".sample") only lacks the contacts.
    if (!QFile::exists(path + QStringLiteral(".sample"))) {
        QDir(folder).removeRecursively();
        QDir().mkpath(folder);
        QTextStream(stderr) << "making a sample of " << documents << " documents in " << folder << '\n';
        createRegister(path);
        SampleOptions options;
        options.documents = documents;
        fillSampleRegister(path, options);
    }
    addContacts(path);
    QFile done(path + QStringLiteral(".done"));
    done.open(QIODevice::WriteOnly);
    return path;
}

void sendKey(QWidget* to, int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
{
    QKeyEvent press(QEvent::KeyPress, key, modifiers);
    QApplication::sendEvent(to, &press);
    QKeyEvent release(QEvent::KeyRelease, key, modifiers);
    QApplication::sendEvent(to, &release);
}

} // namespace

int main(int argc, char* argv[])
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);
    int documents = 1000000;
    const QStringList arguments = QCoreApplication::arguments();
    const qsizetype at = arguments.indexOf(QStringLiteral("--documents"));
    if (at > 0 && at + 1 < arguments.size())
        documents = arguments.at(at + 1).toInt();
    // --register LOCATION: a register made before (a server's, say, with the sample copied
    // to it by kartella-db copy), instead of the sample of the build folder.
    const qsizetype given = arguments.indexOf(QStringLiteral("--register"));
    const QString path
        = given > 0 && given + 1 < arguments.size() ? arguments.at(given + 1) : sampleRegister(documents);
    // A sample kept from an earlier build gets the schema steps added since.
    if (given < 0 && registerNeedsUpgrade(path)) {
        QTextStream(stderr) << "upgrading the sample\n";
        upgradeRegister(path);
    }
    // --no-reminders: without the window of due reminders at the start, to tell its share.
    const bool reminders = !arguments.contains(QStringLiteral("--no-reminders"));

    QTemporaryDir dir;
    qputenv("XDG_CONFIG_HOME", dir.filePath(QStringLiteral("config")).toUtf8());
    seedOptionsIfMissing();
    setRegValue(QStringLiteral("DbLocation"), path);
    setRegValue(QStringLiteral("Filter"), QStringLiteral("0"));
    setShowDueRemindersAtStart(reminders);

    // The start as the program makes it: show, load, paint.
    std::unique_ptr<MainWindow> window;
    std::vector<double> steps;
    const double start = elapsedMs([&] {
        steps.push_back(elapsedMs([&] {
            window = std::make_unique<MainWindow>();
            window->resize(1000, 700);
            window->show();
        }));
        steps.push_back(elapsedMs([&] { window->load(); }));
        steps.push_back(elapsedMs([&] { paint(); }));
    });
    // The due reminders are counted once the window has painted, on a thread of their own,
    // and their window shown when they are: from the start to that window. (Waiting for
    // events, not polling: a loop that polls takes a core from the count.)
    QElapsedTimer sinceStart;
    sinceStart.start();
    while (window->reminders()->counting())
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    paint();
    const double remindersShown = start + double(sinceStart.nsecsElapsed()) / 1e6;
    if (qEnvironmentVariableIsSet("KARTELLA_BENCH_VERBOSE"))
        QTextStream(stderr) << "start: window " << qRound(steps[0]) << " ms, load " << qRound(steps[1])
                            << " ms, paint " << qRound(steps[2]) << " ms\n";
    QTreeView* list = window->documentList()->detailsView();
    NavigationTree* tree = window->tree();
    auto* direction = window->findChild<QComboBox*>(QStringLiteral("cboDirection"));

    // Clicks: every category node (and subcategory), with the filters off and on.
    std::vector<double> clicks;
    auto clickAll = [&](const QList<QTreeWidgetItem*>& nodes) {
        for (QTreeWidgetItem* node : nodes) {
            clicks.push_back(elapsedMs([&] {
                window->onNodeClicked(node);
                paint();
            }));
            if (qEnvironmentVariableIsSet("KARTELLA_BENCH_VERBOSE"))
                QTextStream(stderr) << "click " << node->text(0) << ": " << qRound(clicks.back()) << " ms\n";
        }
    };
    QList<QTreeWidgetItem*> categoryNodes;
    // The deleted items open a window of their own, not the list.
    for (int i = 1; tree->nodeByIndex(i); ++i) {
        if (NavigationTree::nodeKey(tree->nodeByIndex(i)) != DeletedItemsKey)
            categoryNodes << tree->nodeByIndex(i);
    }
    for (int pass = 0; pass < 4; ++pass) {
        setRegValue(QStringLiteral("Filter"), pass % 2 ? QStringLiteral("1") : QStringLiteral("0"));
        direction->setCurrentIndex(pass < 2 ? 0 : 1);
        paint();
        clickAll(categoryNodes);
    }

    // The root again, in its own order.
    setRegValue(QStringLiteral("Filter"), QStringLiteral("0"));
    direction->setCurrentIndex(0);
    window->onNodeClicked(tree->nodeByKey(QStringLiteral("ALL")));
    paint();
    // Quick searches in the list's own order (the ranked hits first), for words of the first
    // rows' descriptions.
    QStringList words;
    for (int row = 0; row < 40 && words.size() < 10; row += 4) {
        const QStringList parts = window->documentModel()->item(row).text.split(u' ', Qt::SkipEmptyParts);
        if (!parts.isEmpty() && !words.contains(parts.first()))
            words << parts.first();
    }
    words << QStringLiteral("nothing-like-this");
    std::vector<double> searches;
    for (const QString& word : words) {
        searches.push_back(elapsedMs([&] {
            window->search(word);
            paint();
        }));
        QElapsedTimer counting;
        counting.start();
        // A search shown by its first page is found whole on a thread of its own.
        while (window->documentFills().findingSearch())
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents, 5);
        if (qEnvironmentVariableIsSet("KARTELLA_BENCH_VERBOSE"))
            QTextStream(stderr) << "search " << word << ": " << qRound(searches.back()) << " ms, counted "
                                << qRound(searches.back() + double(counting.nsecsElapsed()) / 1e6) << " ms\n";
    }
    window->search(QString());
    paint();

    // A sort by description and the way to its last row.
    const double sort = elapsedMs([&] {
        Q_EMIT window->documentList()->columnClicked(0);
        paint();
        // The first row read, whether or not the window painted it.
        window->documentModel()->item(0);
    });
    list->setFocus();
    const double end = elapsedMs([&] {
        sendKey(list, Qt::Key_End, Qt::ControlModifier);
        paint();
        window->documentModel()->item(window->documentModel()->itemCount() - 1);
    });
    sendKey(list, Qt::Key_Home, Qt::ControlModifier);
    Q_EMIT window->documentList()->columnClicked(3);
    paint();

    // Memory after scrolling the root's whole list, top to bottom.
    window->onNodeClicked(tree->nodeByKey(QStringLiteral("ALL")));
    paint();
    QScrollBar* bar = list->verticalScrollBar();
    for (int step = 0; step <= 400; ++step) {
        bar->setValue(int(qint64(bar->maximum()) * step / 400));
        paint();
    }
    const double memory = residentMb();

    // The contact view: letters and contacts, with the filters off and on.
    const double contactView = elapsedMs([&] {
        window->viewByContacts();
        paint();
    });
    QList<QTreeWidgetItem*> contactNodes;
    for (const QString& key :
        {QStringLiteral("A"), QStringLiteral("J"), QStringLiteral("P"), QStringLiteral("Z")}) {
        if (QTreeWidgetItem* letter = tree->nodeByKey(key)) {
            contactNodes << letter;
            for (int c = 0; c < std::min(3, letter->childCount()); ++c)
                contactNodes << letter->child(c);
        }
    }
    for (int pass = 0; pass < 2; ++pass) {
        setRegValue(QStringLiteral("Filter"), pass ? QStringLiteral("1") : QStringLiteral("0"));
        clickAll(contactNodes);
    }
    window.reset();

    std::vector<double> opens;
    for (int i = 0; i < 3; ++i) {
        opens.push_back(elapsedMs([&] {
            AddressBookWindow book;
            book.show();
            paint();
        }));
    }

    QTextStream out(stdout);
    out << "documents: " << documents << '\n';
    out << "start_ms: " << qRound(start) << '\n';
    out << "reminders_ms: " << qRound(remindersShown) << '\n';
    out << "clicks: " << clicks.size() << '\n';
    out << "click_median_ms: " << qRound(percentile(clicks, 0.5)) << '\n';
    out << "click_max_ms: " << qRound(*std::max_element(clicks.begin(), clicks.end())) << '\n';
    out << "sort_ms: " << qRound(sort) << '\n';
    out << "end_ms: " << qRound(end) << '\n';
    out << "search_p90_ms: " << qRound(percentile(searches, 0.9)) << '\n';
    out << "contact_view_ms: " << qRound(contactView) << '\n';
    out << "addressbook_open_ms: " << qRound(percentile(opens, 0.5)) << '\n';
    out << "rss_mb: " << qRound(memory) << '\n';
    return 0;
}
