// The fault suite: each class injects one kind of fault into the program's writes and
// checks that nothing the register held is lost.
#include <QApplication>

int runDiskFullTest(int argc, char** argv);
int runToolExitTest(int argc, char** argv);
int runKilledTest(int argc, char** argv);
int runDialogFaultsTest(int argc, char** argv);
int runOptionFaultsTest(int argc, char** argv);
int runFileFaultsTest(int argc, char** argv);
int runServerFaultsTest(int argc, char** argv);
int runCommandFaultsTest(int argc, char** argv);

int main(int argc, char** argv)
{
    QApplication app(argc, argv);
    int failures = 0;
    for (const auto run : {runDiskFullTest, runToolExitTest, runKilledTest, runDialogFaultsTest,
             runOptionFaultsTest, runFileFaultsTest, runCommandFaultsTest, runServerFaultsTest})
        failures += run(argc, argv);
    return failures;
}
