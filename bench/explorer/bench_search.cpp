// Times the search across a register of 100 000 sample documents: from the text to a
// filled document list, for 20 fixed queries of one to three words (each matching at most
// some 2 000 documents) and for one word that most documents hold. Prints "name: value"
// lines; with --counts, also each query's number of rows.
#include "explorer/DocumentSearch.h"
#include "explorer/ListModel.h"
#include "explorer/MainWindow.h"
#include "options/FirstRun.h"
#include "options/OptionStore.h"
#include "store/SampleRegister.h"
#include "store/Schema.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QTemporaryDir>
#include <QTextStream>

#include <algorithm>
#include <vector>

using namespace kartella;

namespace {

// Words of the sample data: descriptions, contact names, registration indexes (the sample
// counts back from a fixed day), with and without their accents.
const char* const Queries[] = {
    "Petrauskas",
    "žukausk",
    "zukauskas",
    "nuomos sutartis grigait",
    "Černiauskienė",
    "cerniausk kvietimas",
    "atostogų jonas",
    "atostogu įsakymas ona",
    "0315/2",
    "SUT-20240402",
    "kasos čekis rūta",
    "pvm saskaita faktura",
    "posėdžio protokolas valdyb",
    "Šarūnė",
    "sarune juodyte",
    "mokesčių deklaracija",
    "žemės sklypo vilma",
    "tiekejo pasiulymas tomas",
    "O'Connor",
    "ataskaita dalia",
};

// The word most documents hold.
const char* const BroadWord = "a";

double percentile(std::vector<double> times, double fraction)
{
    std::sort(times.begin(), times.end());
    const auto at = std::size_t(fraction * double(times.size() - 1) + 0.5);
    return times[std::min(at, times.size() - 1)];
}

// One search from its text to the filled list, leaving the search again afterwards (not timed).
double timeSearch(MainWindow& window, const QString& text)
{
    QElapsedTimer timer;
    timer.start();
    window.search(text);
    const double ms = double(timer.nsecsElapsed()) / 1e6;
    window.search(QString());
    return ms;
}

} // namespace

int main(int argc, char* argv[])
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);
    const bool counts = app.arguments().contains(QStringLiteral("--counts"));
    QTemporaryDir dir;
    qputenv("XDG_CONFIG_HOME", dir.filePath(QStringLiteral("config")).toUtf8());
    seedOptionsIfMissing();
    const QString path = dir.filePath(QStringLiteral("Kartella.mdb"));
    createRegister(path);
    SampleOptions options;
    options.documents = 100000;
    options.today = QDate(2024, 6, 28);
    QElapsedTimer fillTimer;
    fillTimer.start();
    fillSampleRegister(path, options);
    const qint64 fillMs = fillTimer.elapsed();
    setRegValue(QStringLiteral("DbLocation"), path);

    MainWindow window;
    window.load();
    // The list of a narrow node, so that leaving a search costs little.
    window.search(QStringLiteral("nera-tokio-dokumento"));

    QTextStream out(stdout);
    const int runs = 5;
    std::vector<double> times;
    int mostRows = 0;
    for (const char* query : Queries) {
        const QString text = QString::fromUtf8(query);
        std::vector<double> own;
        for (int i = 0; i < runs; ++i)
            own.push_back(timeSearch(window, text));
        window.search(text);
        const int rows = window.documentModel()->itemCount();
        window.search(QString());
        mostRows = std::max(mostRows, rows);
        if (counts)
            out << "query \"" << text << "\": " << rows << " rows, " << qRound(percentile(own, 0.5))
                << " ms\n";
        times.insert(times.end(), own.begin(), own.end());
    }
    std::vector<double> broad;
    for (int i = 0; i < runs; ++i)
        broad.push_back(timeSearch(window, QString::fromUtf8(BroadWord)));
    window.search(QString::fromUtf8(BroadWord));
    const int broadRows = window.documentModel()->itemCount();

    out << "documents: " << options.documents << '\n';
    out << "sample_fill_ms: " << fillMs << '\n';
    out << "queries: " << int(std::size(Queries)) << '\n';
    out << "query_rows_max: " << mostRows << '\n';
    out << "search_median_ms: " << QString::number(percentile(times, 0.5), 'f', 1) << '\n';
    out << "search_p90_ms: " << QString::number(percentile(times, 0.9), 'f', 1) << '\n';
    out << "search_broad_ms: " << qRound(percentile(broad, 0.5)) << '\n';
    out << "search_broad_rows: " << broadRows << '\n';
    return 0;
}
