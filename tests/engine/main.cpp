// The engine's tests, one class after the other.
#include "harness/ServerDatabase.h"

#include <QCoreApplication>

#include <cstdio>

int runDialectTest(int argc, char** argv);
int runConnectionTest(int argc, char** argv);
int runRecordsetTest(int argc, char** argv);
int runEditTest(int argc, char** argv);
int runShapeTest(int argc, char** argv);
int runShapeComputeTest(int argc, char** argv);
int runStatementsTest(int argc, char** argv);
int runConcurrencyTest(int argc, char** argv);
int runTransactionTest(int argc, char** argv);

int main(int argc, char** argv)
{
    QCoreApplication app(argc, argv);
    using namespace kartella::test;
    if (testsOnServer() && !ServerDatabase::available()) {
        std::printf("SKIP: %s\n", qPrintable(ServerDatabase::skipReason()));
        return 77;
    }
    int failures = 0;
    for (const auto run : {runDialectTest, runConnectionTest, runRecordsetTest, runEditTest, runShapeTest,
             runShapeComputeTest, runStatementsTest, runConcurrencyTest, runTransactionTest})
        failures += run(argc, argv);
    return failures;
}
