// kartella-bench-content: how fast the text of documents' files is read, and searched.
// Each part prints "name: value" lines; a part is one function of ContentBench.h.
#include "ContentBench.h"

#include <QApplication>
#include <QTemporaryDir>

using namespace kartella::bench;

int main(int argc, char** argv)
{
    // QPdfWriter, which makes the PDFs read, needs a GUI application's fonts.
    QApplication app(argc, argv);
    QTemporaryDir folder;
    if (!folder.isValid())
        return 1;
    QTextStream out(stdout);
    const BenchPart parts[] = {benchReading};
    for (const BenchPart part : parts)
        part(folder.path(), out);
    return 0;
}
