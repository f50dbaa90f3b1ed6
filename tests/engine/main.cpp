// The engine's tests, one class after the other.
#include <QCoreApplication>

int RunDialectTest(int argc, char** argv);
int RunConnectionTest(int argc, char** argv);
int RunRecordsetTest(int argc, char** argv);
int RunEditTest(int argc, char** argv);
int RunShapeTest(int argc, char** argv);
int RunStatementsTest(int argc, char** argv);

int main(int argc, char** argv)
{
    QCoreApplication app(argc, argv);
    int failures = 0;
    for (const auto run :
        {RunDialectTest, RunConnectionTest, RunRecordsetTest, RunEditTest, RunShapeTest, RunStatementsTest})
        failures += run(argc, argv);
    return failures;
}
