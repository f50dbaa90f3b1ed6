// kartella-bench-content: how fast the text of documents' files is read and searched, and how
// fast the preview shows a file. Each part prints "name: value" lines; a part is one function
// of ContentBench.h. Arguments "reading", "search" or "preview" run only those parts.
#include "ContentBench.h"

#include <QApplication>
#include <QRegularExpression>
#include <QTemporaryDir>

#include <utility>

using namespace kartella::bench;

int main(int argc, char** argv)
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    // QPdfWriter, which makes the PDFs read, needs a GUI application's fonts.
    QApplication app(argc, argv);
    const QStringList named = QCoreApplication::arguments().mid(1).filter(
        QRegularExpression(QStringLiteral("^(reading|search|preview)$")));
    QTemporaryDir folder;
    if (!folder.isValid())
        return 1;
    QTextStream out(stdout);
    const std::pair<const char*, BenchPart> parts[]
        = {{"reading", benchReading}, {"search", benchSearch}, {"preview", benchPreview}};
    for (const auto& [name, part] : parts) {
        if (named.isEmpty() || named.contains(QLatin1String(name))) {
            part(folder.path(), out);
            out.flush();
        }
    }
    return 0;
}
