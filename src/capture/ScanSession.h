#pragma once

#include "capture/SaneScanner.h"

#include <QImage>
#include <QObject>

#include <atomic>
#include <memory>

class QThread;

namespace kartella {

// Works on the scanning thread: every SANE call is made here.
class ScanWorker : public QObject
{
    Q_OBJECT

public:
    explicit ScanWorker(std::shared_ptr<std::atomic_bool> cancel);
    ~ScanWorker() override;

    void findScanners();
    void openScanner(const QString& device);
    void scan(const kartella::ScanSettings& settings, bool wholeFeeder);
    void setOption(const QString& name, const QString& value);

Q_SIGNALS:
    void scannersFound(const QList<kartella::ScannerDevice>& devices, const QString& message);
    void scannerOpened(const kartella::ScannerChoices& choices, const QString& message);
    void pageScanned(const QImage& page);
    // The scan ended: message is empty when it went as asked, else says why it stopped.
    void scanEnded(bool cancelled, const QString& message);

private:
    std::shared_ptr<std::atomic_bool> m_cancel;
    std::unique_ptr<SaneScanner> m_scanner;
};

// The scanner behind a scan window: requests go to a worker thread and the answers come
// back as signals on the thread that made the session, so that the window keeps painting
// while a page is read. cancel() stops the scanner within one read; destroying the
// session cancels and waits for the thread.
class ScanSession : public QObject
{
    Q_OBJECT

public:
    explicit ScanSession(QObject* parent = nullptr);
    ~ScanSession() override;

    void findScanners();
    void openScanner(const QString& device);
    // One page (wholeFeeder false) or every sheet in the feeder.
    void scan(const ScanSettings& settings, bool wholeFeeder);
    void cancel();
    bool isScanning() const { return m_scanning; }
    // Sets a scanner option by its SANE name (the tests set the test backend's).
    void setOption(const QString& name, const QString& value);

Q_SIGNALS:
    void scannersFound(const QList<kartella::ScannerDevice>& devices, const QString& message);
    void scannerOpened(const kartella::ScannerChoices& choices, const QString& message);
    void pageScanned(const QImage& page);
    void scanEnded(bool cancelled, const QString& message);

    // Internal: carried to the worker's thread.
    void findRequested();
    void openRequested(const QString& device);
    void scanRequested(const kartella::ScanSettings& settings, bool wholeFeeder);
    void optionRequested(const QString& name, const QString& value);

private:
    void onScanEnded(bool cancelled, const QString& message);

    QThread* m_thread = nullptr;
    std::shared_ptr<std::atomic_bool> m_cancel;
    bool m_scanning = false;
};

} // namespace kartella
