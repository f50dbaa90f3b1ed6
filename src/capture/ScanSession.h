#pragma once

#include "capture/SaneScanner.h"

#include <QByteArray>
#include <QImage>
#include <QObject>

class QProcess;
class QTimer;

namespace kartella {

// The scanner behind a scan window. SANE runs in a process of its own (kartella-scanner):
// requests go to it and its answers come back as signals, so that the window keeps painting
// while a page is read, and a scanner backend that hangs or crashes never takes the program
// with it. cancel() stops the scanner within one read; destroying the session cancels, lets
// the process end, and ends it when it does not within two seconds. A scanner that sends
// nothing of a page for the stall limit (two minutes) is taken to hang: its process is ended
// and the scan reported as stopped, the pages before it kept by the window.
class ScanSession : public QObject
{
    Q_OBJECT

public:
    explicit ScanSession(QObject* parent = nullptr);
    ~ScanSession() override;

    // The scanning program: beside the program (a build tree), else in
    // <prefix>/libexec/kartella beside <prefix>/bin. A test names the one it built.
    static QString scanningProgram();
    static void setScanningProgram(const QString& path);
    // How long a scan may go without a word from the scanner (a test shortens it).
    static int stallLimitMs();
    static void setStallLimitMs(int milliseconds);

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
    // The scan ended: message is empty when it went as asked, else says why it stopped.
    void scanEnded(bool cancelled, const QString& message);

private:
    void send(int message, const QByteArray& values = {});
    void readAnswers();
    void processEnded();
    void reportStopped();
    void stopStalledScanner();

    QProcess* m_process = nullptr;
    QTimer* m_stall = nullptr;
    QByteArray m_received;
    bool m_finding = false;
    bool m_opening = false;
    bool m_scanning = false;
    bool m_ended = false;
    bool m_stalled = false;
};

} // namespace kartella
