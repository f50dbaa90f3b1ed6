#include "IndexCommand.h"

#include "RegisterArgument.h"
#include "ToolText.h"
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
    out << ToolText::tr("Files read: %1").arg(summary.read) << '\n'
        << ToolText::tr("Unchanged since last read: %1").arg(summary.unchanged) << '\n'
        << ToolText::tr("No text in their kind: %1").arg(summary.noText) << '\n'
        << ToolText::tr("Needing OCR (PDF without text): %1").arg(summary.needsOcr) << '\n'
        << ToolText::tr("Not read: %1").arg(summary.failed) << '\n';
    for (auto reason = summary.failures.cbegin(); reason != summary.failures.cend(); ++reason)
        out << "  " << reason.key() << ": " << reason.value() << '\n';
    out.flush();
}

} // namespace kartella::tool
