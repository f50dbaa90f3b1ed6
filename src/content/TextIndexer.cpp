#include "content/TextIndexer.h"

#include "base/Error.h"
#include "store/engine/Backend.h"
#include "store/engine/Connection.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QFileInfo>

#include <optional>
#include <utility>

namespace kartella {

TextIndexer::TextIndexer(Connection& connection, qint64 limitBytes)
    : m_connection(connection)
    , m_limitBytes(limitBytes)
{ }

FileStamp TextIndexer::currentStamp(const QString& storedPath)
{
    const QFileInfo file(storedPath);
    FileStamp stamp;
    stamp.path = file.absoluteFilePath();
    if (file.exists() && file.isFile()) {
        stamp.size = file.size();
        stamp.modified = stampTime(file.lastModified());
    }
    return stamp;
}

IndexSummary TextIndexer::run(const Progress& progress)
{
    IndexSummary summary;
    // Only the documents with a file: most of a large register may have none.
    const engine::QueryResult documents = m_connection.backend().query(
        QStringLiteral("SELECT RastasID, RastoKel FROM tbl_Documents WHERE RastoKel IS NOT NULL AND "
                       "RastoKel <> '' ORDER BY RastasID"));
    QHash<qint32, FileStamp> stored = storedFileStamps(m_connection);

    QList<Pending> pending;
    for (int row = 0; row < documents.rows.rowCount(); ++row) {
        const qint32 id = qint32(documents.rows.value(row, 0).toLongLong());
        const QString path = documents.rows.value(row, 1).toString();
        if (path.trimmed().isEmpty())
            continue;
        const std::optional<FileStamp> known
            = stored.contains(id) ? std::optional(stored.take(id)) : std::nullopt;
        const FileStamp stamp = currentStamp(path);
        if (known && *known == stamp) {
            ++summary.unchanged;
            continue;
        }
        pending.append({id, stamp});
    }
    // A document whose file was taken away keeps no text of it.
    for (auto gone = stored.cbegin(); gone != stored.cend(); ++gone) {
        try {
            removeDocumentText(m_connection, gone.key());
        } catch (const Error&) {
            // Taken out by the next pass.
        }
    }

    const int total = int(pending.size());
    int done = 0;
    if (progress && !progress(done, total))
        return summary;
    QList<Pending> batch;
    for (const Pending& file : pending) {
        const QString extension = QFileInfo(file.stamp.path).suffix().toLower();
        if (convertsInBatches(extension) && file.stamp.size >= 0 && file.stamp.size <= m_limitBytes) {
            batch.append(file);
            if (batch.size() >= m_batchSize && !readBatch(batch, summary, done, total, progress)) {
                writeCollected(summary);
                return summary;
            }
            continue;
        }
        collect(file, readFileText(file.stamp.path, m_limitBytes), summary);
        ++done;
        if (progress && !progress(done, total)) {
            writeCollected(summary);
            return summary;
        }
    }
    readBatch(batch, summary, done, total, progress);
    writeCollected(summary);
    return summary;
}

bool TextIndexer::readBatch(
    QList<Pending>& batch, IndexSummary& summary, int& done, int total, const Progress& progress)
{
    if (batch.isEmpty())
        return true;
    QStringList paths;
    for (const Pending& file : batch)
        paths << file.stamp.path;
    const QList<FileText> texts = readConvertedTexts(paths, 10 * 60 * 1000, m_cancelled);
    // A conversion stopped by a cancel read nothing: the files stay for the next pass.
    if (m_cancelled && m_cancelled())
        return false;
    for (qsizetype i = 0; i < batch.size(); ++i)
        collect(batch.at(i), texts.value(i, FileText::failed(TextReason::Damaged)), summary);
    done += int(batch.size());
    batch.clear();
    return !progress || progress(done, total);
}

void TextIndexer::collect(const Pending& file, const FileText& text, IndexSummary& summary)
{
    DocumentText row;
    row.documentId = file.documentId;
    row.file = file.stamp;
    row.state = text.state;
    row.reason = text.reason;
    row.body = text.state == TextState::Read ? text.body : QString();
    row.readAt = stampTime(QDateTime::currentDateTimeUtc());
    if (m_unwritten.isEmpty())
        m_sinceFirstUnwritten.start();
    m_unwritten.append(row);
    if (m_unwritten.size() >= WriteBatchFiles || m_sinceFirstUnwritten.elapsed() >= WriteBatchMs)
        writeCollected(summary);
}

namespace {

void count(const DocumentText& row, IndexSummary& summary)
{
    switch (row.state) {
    case TextState::Read:
        ++summary.read;
        break;
    case TextState::NoText:
        ++summary.noText;
        break;
    case TextState::NeedsOcr:
        ++summary.needsOcr;
        break;
    case TextState::Failed:
    case TextState::NotRead:
        ++summary.failed;
        ++summary.failures[row.reason];
        break;
    }
}

} // namespace

void TextIndexer::writeCollected(IndexSummary& summary)
{
    if (m_unwritten.isEmpty())
        return;
    const QList<DocumentText> rows = std::exchange(m_unwritten, {});
    try {
        storeDocumentTexts(m_connection, rows);
        for (const DocumentText& row : rows)
            count(row, summary);
        return;
    } catch (const Error&) {
        // One row the register refuses must not cost the others theirs: each on its own.
    }
    for (const DocumentText& row : rows) {
        try {
            storeDocumentText(m_connection, row);
            count(row, summary);
        } catch (const Error& error) {
            // The register refused this row (busy, or a server gone for a moment): the next
            // pass reads the file again, since its row still has the old stamp.
            ++summary.failed;
            ++summary.failures[error.description()];
        }
    }
}

QString groupedNumber(qint64 number)
{
    QString digits = QString::number(number < 0 ? -number : number);
    for (qsizetype at = digits.size() - 3; at > 0; at -= 3)
        digits.insert(at, u' ');
    return number < 0 ? u'-' + digits : digits;
}

QString readingProgressText(int done, int total)
{
    return QCoreApplication::translate("kartella::TextIndexer", "Reading files: %1 of %2")
        .arg(groupedNumber(done), groupedNumber(total));
}

} // namespace kartella
