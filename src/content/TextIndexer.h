#pragma once

#include "content/FileText.h"
#include "content/TextStore.h"

#include <QElapsedTimer>
#include <QList>
#include <QMap>
#include <QString>

#include <functional>

namespace kartella {

class Connection;

// What one pass over a register's documents did.
struct IndexSummary
{
    int read = 0; // text read and stored
    int unchanged = 0; // file as it was when last read: not read again
    int noText = 0; // a kind of file without text
    int needsOcr = 0; // PDFs without a text layer
    int failed = 0; // not read; failures counts them by reason
    QMap<QString, int> failures;

    int total() const { return read + unchanged + noText + needsOcr + failed; }
};

// One pass over the documents of a register that name a file: each file whose path, size
// or modification time differs from what its row holds (or that has no row) is read and
// its row written. The rows are written in short transactions of their own, a few files
// at a time (at most WriteBatchFiles, or what was read in WriteBatchMs), the files read
// before the transaction begins: so a pass that stops (a cancel, a crash, the end of the
// program) is taken up by the next one where it stopped, other writers never wait longer
// than a few inserts take, and a register file isn't flushed to disk once for every file. A file that can't
// be read is recorded with its reason; nothing stops the pass but a cancel. The old binary presentations are
// gathered and converted in batches.
//
// A document's stored path is taken as the program opens it: relative to the current folder
// when it isn't absolute.
class TextIndexer
{
public:
    // Called after each file (done of total); returning false cancels the pass.
    using Progress = std::function<bool(int done, int total)>;

    static constexpr int WriteBatchFiles = 25;
    static constexpr qint64 WriteBatchMs = 250;

    TextIndexer(Connection& connection, qint64 limitBytes);

    void setBatchSize(int files) { m_batchSize = files; }
    // Asked while LibreOffice converts a batch, so that a cancel needn't wait for it.
    void setCancelCheck(std::function<bool()> cancelled) { m_cancelled = std::move(cancelled); }

    // Reads what changed; returns what the pass did. Throws kartella::Error only when the
    // documents can't be listed at all.
    IndexSummary run(const Progress& progress = {});

    // The file a stored path names, and its stamp as it stands now (size -1 and no time
    // when the file isn't there).
    static FileStamp currentStamp(const QString& storedPath);

private:
    struct Pending
    {
        qint32 documentId;
        FileStamp stamp;
    };
    void collect(const Pending& file, const FileText& text, IndexSummary& summary);
    void writeCollected(IndexSummary& summary);
    bool readBatch(
        QList<Pending>& batch, IndexSummary& summary, int& done, int total, const Progress& progress);

    Connection& m_connection;
    qint64 m_limitBytes;
    int m_batchSize = 50;
    std::function<bool()> m_cancelled;
    // Read and not yet written, with the outcome each counts as once written.
    QList<DocumentText> m_unwritten;
    QElapsedTimer m_sinceFirstUnwritten;
};

// A count with its thousands set apart by a space, as the progress shows it: "3 400".
QString groupedNumber(qint64 number);

// The progress line: "Reading files: 120 of 3 400".
QString readingProgressText(int done, int total);

} // namespace kartella
