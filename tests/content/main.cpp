// The text of documents' files: the readers of each kind, and the reading of a register's
// files, its progress in the window and the tool, one test class after the other.
#include <QApplication>

int runReadersTest(int argc, char** argv);
int runIndexerTest(int argc, char** argv);
int runProgressTest(int argc, char** argv);

int main(int argc, char** argv)
{
    // QPdfWriter, which makes the tests' PDFs, needs the fonts of a GUI application.
    QApplication app(argc, argv);
    int failures = 0;
    for (const auto run : {runReadersTest, runIndexerTest, runProgressTest})
        failures += run(argc, argv);
    return failures;
}
