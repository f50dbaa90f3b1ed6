#include "IndexCommand.h"

#include "RegisterArgument.h"
#include "content/TextIndexer.h"
#include "options/TextOptions.h"
#include "store/engine/Connection.h"

#include <QElapsedTimer>

namespace kartella::tool {

void indexCommand(const QString& path, QTextStream& out, QTextStream& progress)
{
    Connection connection(registerConnectionString(existingRegister(path)));
    connection.open();
    TextIndexer indexer(connection, textSizeLimitBytes());
    QElapsedTimer shown;
    const IndexSummary summary = indexer.run([&](int done, int total) {
        // A line a few times a second is enough to watch; the last one always shows.
        if (done == total || !shown.isValid() || shown.elapsed() >= 200) {
            progress << '\r' << readingProgressText(done, total) << Qt::flush;
            shown.restart();
        }
        return true;
    });
    progress << Qt::endl;
    out << "Files read: " << summary.read << '\n'
        << "Unchanged since last read: " << summary.unchanged << '\n'
        << "No text in their kind: " << summary.noText << '\n'
        << "Needing OCR (PDF without text): " << summary.needsOcr << '\n'
        << "Not read: " << summary.failed << '\n';
    for (auto reason = summary.failures.cbegin(); reason != summary.failures.cend(); ++reason)
        out << "  " << reason.key() << ": " << reason.value() << '\n';
    out.flush();
}

} // namespace kartella::tool
