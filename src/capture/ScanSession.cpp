#include "capture/ScanSession.h"

#include <QThread>

namespace kartella {

ScanWorker::ScanWorker(std::shared_ptr<std::atomic_bool> cancel)
    : m_cancel(std::move(cancel))
{ }

ScanWorker::~ScanWorker() = default;

void ScanWorker::findScanners()
{
    if (!m_scanner)
        m_scanner = std::make_unique<SaneScanner>();
    QString message;
    const QList<ScannerDevice> devices = m_scanner->devices(&message);
    Q_EMIT scannersFound(devices, message);
}

void ScanWorker::openScanner(const QString& device)
{
    if (!m_scanner)
        m_scanner = std::make_unique<SaneScanner>();
    QString message;
    if (!m_scanner->open(device, &message)) {
        Q_EMIT scannerOpened({}, message);
        return;
    }
    Q_EMIT scannerOpened(m_scanner->choices(), {});
}

void ScanWorker::setOption(const QString& name, const QString& value)
{
    if (m_scanner)
        m_scanner->setOption(name, value);
}

void ScanWorker::scan(const ScanSettings& settings, bool wholeFeeder)
{
    if (!m_scanner || !m_scanner->isOpen()) {
        Q_EMIT scanEnded(false, tr("No scanner is open."));
        return;
    }
    m_scanner->apply(settings);
    int pages = 0;
    for (;;) {
        QImage page;
        QString message;
        switch (m_scanner->scanPage(&page, &message, *m_cancel, wholeFeeder)) {
        case SaneScanner::Outcome::Page:
            ++pages;
            Q_EMIT pageScanned(page);
            if (wholeFeeder)
                continue;
            Q_EMIT scanEnded(false, {});
            return;
        case SaneScanner::Outcome::NoMorePages:
            Q_EMIT scanEnded(false, pages == 0 ? tr("There is no paper in the feeder.") : QString());
            return;
        case SaneScanner::Outcome::Cancelled:
            Q_EMIT scanEnded(true, {});
            return;
        case SaneScanner::Outcome::Failed:
            Q_EMIT scanEnded(false, message);
            return;
        }
    }
}

ScanSession::ScanSession(QObject* parent)
    : QObject(parent)
    , m_cancel(std::make_shared<std::atomic_bool>(false))
{
    qRegisterMetaType<kartella::ScanSettings>();
    qRegisterMetaType<kartella::ScannerChoices>();
    qRegisterMetaType<QList<kartella::ScannerDevice>>();
    m_thread = new QThread;
    m_thread->setObjectName(QStringLiteral("Scanning"));
    auto* worker = new ScanWorker(m_cancel);
    worker->moveToThread(m_thread);
    connect(m_thread, &QThread::finished, worker, &QObject::deleteLater);
    connect(this, &ScanSession::findRequested, worker, &ScanWorker::findScanners);
    connect(this, &ScanSession::openRequested, worker, &ScanWorker::openScanner);
    connect(this, &ScanSession::scanRequested, worker, &ScanWorker::scan);
    connect(this, &ScanSession::optionRequested, worker, &ScanWorker::setOption);
    connect(worker, &ScanWorker::scannersFound, this, &ScanSession::scannersFound);
    connect(worker, &ScanWorker::scannerOpened, this, &ScanSession::scannerOpened);
    connect(worker, &ScanWorker::pageScanned, this, &ScanSession::pageScanned);
    connect(worker, &ScanWorker::scanEnded, this, &ScanSession::onScanEnded);
    m_thread->start();
}

ScanSession::~ScanSession()
{
    *m_cancel = true;
    m_thread->quit();
    m_thread->wait();
    delete m_thread;
}

void ScanSession::findScanners()
{
    Q_EMIT findRequested();
}

void ScanSession::openScanner(const QString& device)
{
    Q_EMIT openRequested(device);
}

void ScanSession::scan(const ScanSettings& settings, bool wholeFeeder)
{
    if (m_scanning)
        return;
    m_scanning = true;
    *m_cancel = false;
    Q_EMIT scanRequested(settings, wholeFeeder);
}

void ScanSession::cancel()
{
    if (m_scanning)
        *m_cancel = true;
}

void ScanSession::setOption(const QString& name, const QString& value)
{
    Q_EMIT optionRequested(name, value);
}

void ScanSession::onScanEnded(bool cancelled, const QString& message)
{
    m_scanning = false;
    Q_EMIT scanEnded(cancelled, message);
}

} // namespace kartella
