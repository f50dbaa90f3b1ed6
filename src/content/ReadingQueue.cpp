#include "content/ReadingQueue.h"

#include "base/Error.h"
#include "capture/TextRecognition.h"
#include "content/TextRecognitionPass.h"
#include "options/CaptureOptions.h"
#include "store/engine/Connection.h"

#include <QThread>
#include <QTimer>

namespace kartella {

ReadingWorker::ReadingWorker(QString connectionString, qint64 limitBytes,
    std::shared_ptr<std::atomic_bool> cancelled, std::shared_ptr<std::atomic_bool> requested)
    : m_connectionString(std::move(connectionString))
    , m_limitBytes(limitBytes)
    , m_cancelled(std::move(cancelled))
    , m_requested(std::move(requested))
{ }

ReadingWorker::~ReadingWorker() = default;

void ReadingWorker::scan()
{
    *m_requested = false;
    if (m_scanning || *m_cancelled)
        return;
    m_scanning = true;
    try {
        if (!m_connection) {
            m_connection = std::make_unique<Connection>();
            m_connection->open(m_connectionString);
        }
        TextIndexer indexer(*m_connection, m_limitBytes);
        indexer.setCancelCheck([this] { return bool(*m_cancelled); });
        const IndexSummary summary = indexer.run([this](int done, int total) {
            Q_EMIT progress(done, total);
            return !*m_cancelled;
        });
        Q_EMIT finished(summary);
        recognise();
        m_scanning = false;
    } catch (const Error& error) {
        // Opened again at the next walk: a server may be back by then.
        m_connection.reset();
        m_scanning = false;
        Q_EMIT failed(error.description());
    }
}

void ReadingWorker::recognise()
{
    if (*m_cancelled)
        return;
    TextRecognitionPass pass(*m_connection, ocrLanguages());
    pass.setCancelCheck([this] { return bool(*m_cancelled); });
    pass.setLimitBytes(m_limitBytes);
    bool started = false;
    pass.run([this, &started](int done, int total) {
        started = true;
        Q_EMIT recognitionProgress(done, total);
        return !*m_cancelled;
    });
    if (started)
        Q_EMIT recognitionFinished();
}

ReadingQueue::ReadingQueue(QObject* parent)
    : QObject(parent)
{
    // Tesseract needs the C numeric locale; set here, on the thread that made the queue.
    useCNumericLocale();
    qRegisterMetaType<kartella::IndexSummary>();
    m_timer = new QTimer(this);
    connect(m_timer, &QTimer::timeout, this, &ReadingQueue::rescan);
}

ReadingQueue::~ReadingQueue()
{
    stop();
}

void ReadingQueue::start(const QString& connectionString, qint64 limitBytes, int rescanMs)
{
    stop();
    m_cancelled = std::make_shared<std::atomic_bool>(false);
    m_requested = std::make_shared<std::atomic_bool>(false);
    m_thread = new QThread;
    m_thread->setObjectName(QStringLiteral("ReadingFiles"));
    m_worker = new ReadingWorker(connectionString, limitBytes, m_cancelled, m_requested);
    m_worker->moveToThread(m_thread);
    connect(m_thread, &QThread::finished, m_worker, &QObject::deleteLater);
    connect(this, &ReadingQueue::scanRequested, m_worker, &ReadingWorker::scan);
    connect(m_worker, &ReadingWorker::progress, this, &ReadingQueue::progress);
    connect(m_worker, &ReadingWorker::finished, this, &ReadingQueue::finished);
    connect(m_worker, &ReadingWorker::failed, this, &ReadingQueue::failed);
    connect(m_worker, &ReadingWorker::recognitionProgress, this, &ReadingQueue::recognitionProgress);
    connect(m_worker, &ReadingWorker::recognitionFinished, this, &ReadingQueue::recognitionFinished);
    m_thread->start(QThread::LowPriority);
    m_timer->start(rescanMs);
    rescan();
}

void ReadingQueue::stop()
{
    m_timer->stop();
    if (!m_thread)
        return;
    *m_cancelled = true;
    m_thread->quit();
    m_thread->wait();
    delete m_thread;
    m_thread = nullptr;
    m_worker = nullptr;
}

bool ReadingQueue::isRunning() const
{
    return m_thread != nullptr;
}

void ReadingQueue::rescan()
{
    if (m_thread && !m_requested->exchange(true))
        Q_EMIT scanRequested();
}

} // namespace kartella
