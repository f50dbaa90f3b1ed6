// The store's tests: schema, lookups, the program's statements, sample data and the
// kartella-db tool, copying registers, run one class after the other.
#include <QCoreApplication>

int runSchemaTest(int argc, char** argv);
int runLookupsTest(int argc, char** argv);
int runStatementsTest(int argc, char** argv);
int runSampleTest(int argc, char** argv);
int runToolTest(int argc, char** argv);
int runPlainRegisterTest(int argc, char** argv);
int runCopyTest(int argc, char** argv);

int main(int argc, char** argv)
{
    QCoreApplication app(argc, argv);
    int failures = 0;
    for (const auto run : {runSchemaTest, runLookupsTest, runStatementsTest, runSampleTest, runToolTest,
             runPlainRegisterTest, runCopyTest})
        failures += run(argc, argv);
    return failures;
}
