// The store's tests: schema, lookups, the program's statements, sample data and the
// kartella-db tool, run one class after the other.
#include <QCoreApplication>

int RunSchemaTest(int argc, char** argv);
int RunLookupsTest(int argc, char** argv);
int RunStatementsTest(int argc, char** argv);
int RunSampleTest(int argc, char** argv);
int RunToolTest(int argc, char** argv);

int main(int argc, char** argv)
{
    QCoreApplication app(argc, argv);
    int failures = 0;
    for (const auto run : {RunSchemaTest, RunLookupsTest, RunStatementsTest, RunSampleTest, RunToolTest})
        failures += run(argc, argv);
    return failures;
}
