// The migration's tests: the mapping of the register tables, then reading a real Jet file
// and the kartella-db migrate command.
#include <QCoreApplication>

int runMappingTest(int argc, char** argv);
int runMdbTest(int argc, char** argv);

int main(int argc, char** argv)
{
    QCoreApplication app(argc, argv);
    int failures = 0;
    for (const auto run : {runMappingTest, runMdbTest})
        failures += run(argc, argv);
    return failures;
}
