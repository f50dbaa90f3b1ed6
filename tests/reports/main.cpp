// The reports' tests: the reports and their menu, the layout of pages, kartella-db report,
// and the reports on both back ends, run one class after the other.
#include <QApplication>

int runReportsTest(int argc, char** argv);
int runReportPagesTest(int argc, char** argv);
int runReportToolTest(int argc, char** argv);
int runReportBackendsTest(int argc, char** argv);

int main(int argc, char** argv)
{
    QApplication app(argc, argv);
    int failures = 0;
    for (const auto run : {runReportsTest, runReportPagesTest, runReportToolTest, runReportBackendsTest})
        failures += run(argc, argv);
    return failures;
}
