#pragma once

#include "content/TextIndexer.h"

#include <QObject>
#include <QString>

#include <atomic>
#include <memory>

class QThread;
class QTimer;

namespace kartella {

class Connection;

// Works on the reading thread: a connection of its own (connections are per thread) and
// one TextIndexer pass per scan, followed by a TextRecognitionPass for the pages that
// have to be read as images.
class ReadingWorker : public QObject
{
    Q_OBJECT

public:
    // cancelled ends a walk after the file being read; requested is set while a walk is asked
    // for and not yet begun, so that requests while a long walk runs make one walk, not many.
    ReadingWorker(QString connectionString, qint64 limitBytes, std::shared_ptr<std::atomic_bool> cancelled,
        std::shared_ptr<std::atomic_bool> requested);
    ~ReadingWorker() override;

    void scan();

Q_SIGNALS:
    void progress(int done, int total);
    void finished(const kartella::IndexSummary& summary);
    void failed(const QString& message);
    void recognitionProgress(int done, int total);
    void recognitionFinished();

private:
    void recognise();

    QString m_connectionString;
    qint64 m_limitBytes;
    std::shared_ptr<std::atomic_bool> m_cancelled;
    std::shared_ptr<std::atomic_bool> m_requested;
    std::unique_ptr<Connection> m_connection;
    bool m_scanning = false;
};

// The background reading of a register's files: a worker on a thread of its own walks the
// documents and reads what changed (see TextIndexer), and walks them again every
// rescanInterval, which is how a document saved with a new file, or a file changed on
// disk, is picked up; rescan() asks for a walk at once. Progress comes as signals on the
// thread that made the queue. Stopping (or destroying the queue) cancels the walk after the
// file being read and waits for the thread.
class ReadingQueue : public QObject
{
    Q_OBJECT

public:
    static constexpr int DefaultRescanMs = 30 * 1000;

    explicit ReadingQueue(QObject* parent = nullptr);
    ~ReadingQueue() override;

    // Starts reading the register of connectionString (a walk begins at once); a queue
    // already running is stopped first.
    void start(const QString& connectionString, qint64 limitBytes, int rescanMs = DefaultRescanMs);
    void stop();
    bool isRunning() const;
    void rescan();

Q_SIGNALS:
    void progress(int done, int total);
    // A walk ended, having done what summary says.
    void finished(const kartella::IndexSummary& summary);
    // A walk could not list the documents (the register can't be opened, say).
    void failed(const QString& message);
    // After a walk, the words of scanned pages and images are recognised (languages from
    // the option OcrLanguages): documents done of total, then recognitionFinished. A walk
    // with nothing to recognise sends neither.
    void recognitionProgress(int done, int total);
    void recognitionFinished();
    // Internal: carried to the worker's thread.
    void scanRequested();

private:
    QThread* m_thread = nullptr;
    ReadingWorker* m_worker = nullptr;
    QTimer* m_timer = nullptr;
    std::shared_ptr<std::atomic_bool> m_cancelled;
    std::shared_ptr<std::atomic_bool> m_requested;
};

} // namespace kartella
