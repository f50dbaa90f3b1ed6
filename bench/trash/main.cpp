// kartella-bench-trash: a delete into the trash and a restore of a document with 20 related
// documents and their files.
#include "TrashBench.h"

#include <QCoreApplication>
#include <QTemporaryDir>

int main(int argc, char** argv)
{
    QCoreApplication app(argc, argv);
    QTemporaryDir folder;
    QTextStream out(stdout);
    kartella::bench::measureTrash(folder.path(), out);
    return 0;
}
