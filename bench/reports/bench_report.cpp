// The "All" report (documents by category) of 10 000 documents to PDF: reading the rows,
// laying out the pages and writing the file, from a register made once beforehand.
//
//     build/rel/bin/kartella-bench-report
#include "reports/ReportCommands.h"
#include "reports/ReportLayouts.h"
#include "reports/ReportPages.h"
#include "reports/ReportPdf.h"
#include "store/SampleRegister.h"
#include "store/Schema.h"
#include "store/Store.h"

#include <QElapsedTimer>
#include <QGuiApplication>
#include <QTemporaryDir>
#include <QTextStream>

#include <sys/resource.h>

using namespace kartella;

namespace {

// User and system time of the process so far, which a busy machine stretches less than
// the wall clock.
double cpuMs()
{
    rusage usage {};
    getrusage(RUSAGE_SELF, &usage);
    const auto ms = [](const timeval& t) { return t.tv_sec * 1000.0 + t.tv_usec / 1000.0; };
    return ms(usage.ru_utime) + ms(usage.ru_stime);
}

double peakResidentMb()
{
    rusage usage {};
    getrusage(RUSAGE_SELF, &usage);
    return usage.ru_maxrss / 1024.0;
}

} // namespace

int main(int argc, char* argv[])
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QGuiApplication app(argc, argv);
    QTemporaryDir dir;
    const QString path = dir.filePath(QStringLiteral("Kartella.mdb"));
    createRegister(path);
    SampleOptions options;
    options.documents = 10000;
    options.filesOnDisk = 0;
    fillSampleRegister(path, options);

    ReportCommands& commands = ReportCommands::instance();
    commands.setConnectionString(plainConnectionString(QStringLiteral("Microsoft.Jet.OLEDB.4.0"), path));
    const ReportLayout& layout = *findReportLayout(QStringLiteral("by-category"));
    const QString pdf = dir.filePath(QStringLiteral("all.pdf"));

    QElapsedTimer timer;
    const double cpuBefore = cpuMs();
    timer.start();
    const int pages = writeReportPdf(layout, commands.run(layout), pdf);
    const qint64 ms = timer.elapsed();
    const double cpu = cpuMs() - cpuBefore;

    QTextStream out(stdout);
    out << "report_10k_ms: " << ms << '\n';
    out << "report_10k_cpu_ms: " << QString::number(cpu, 'f', 0) << '\n';
    out << "pages: " << pages << '\n';
    out << "report_10k_peak_mb: " << QString::number(peakResidentMb(), 'f', 1) << '\n';
    return 0;
}
