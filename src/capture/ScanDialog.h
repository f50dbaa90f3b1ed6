#pragma once

#include "capture/SaneScanner.h"

#include <QDialog>
#include <QImage>
#include <QList>

#include <atomic>
#include <functional>
#include <memory>

class QComboBox;
class QLabel;
class QListWidget;
class QPushButton;
class QThread;

namespace kartella {

class ScanSession;

// frmScan, "Scan": scans the pages of one document. The scanner, its source, colour mode
// and resolution are picked from what the scanner offers and remembered in the options.
// Scan Page reads one page (a flatbed) and Scan Feeder every sheet in the feeder, each
// page listed as it arrives; a page can be rotated, deleted, or scanned again in its place.
// Done asks the caller for the file's path, writes the pages there as one searchable PDF (in
// the background, the window painting) and closes with Accepted. Cancel stops the scanner
// or the writing and closes, keeping nothing. A scanner that fails in the middle of a page
// is reported; the pages scanned before it stay.
class ScanDialog : public QDialog
{
    Q_OBJECT

public:
    // pathForPdf gives the path of the new file when Done is pressed (empty: stay open,
    // the user having been told why); it is not called otherwise.
    explicit ScanDialog(std::function<QString()> pathForPdf, QWidget* parent = nullptr);
    ~ScanDialog() override;

    // The PDF written by Done.
    QString savedPath() const { return m_savedPath; }
    const QList<QImage>& pages() const { return m_pages; }
    // Sets a scanner option by its SANE name (the tests use the test backend's options).
    void setScannerOption(const QString& name, const QString& value);

public Q_SLOTS:
    void scanPage();
    void scanFeeder();
    void rotatePage();
    void deletePage();
    void rescanPage();
    void finish();
    void reject() override;

private:
    void buildWidgets();
    void onScannersFound(const QList<kartella::ScannerDevice>& devices, const QString& message);
    void onScannerChosen();
    void onScannerOpened(const kartella::ScannerChoices& choices, const QString& message);
    void onPageScanned(const QImage& page);
    void onScanEnded(bool cancelled, const QString& message);
    void onPdfWritten();
    void startScan(bool wholeFeeder);
    ScanSettings chosenSettings() const;
    void showPage(int index);
    void setBusy(bool busy, const QString& status);
    void tell(const QString& message);

    std::function<QString()> m_pathForPdf;
    ScanSession* m_session = nullptr;
    QList<QImage> m_pages;
    // The page a rescan replaces, -1 for none.
    int m_replacing = -1;
    bool m_busy = false;
    QString m_savedPath;
    QThread* m_writer = nullptr;
    std::shared_ptr<std::atomic_bool> m_stopWriting;
    QString m_writeError;
    QString m_writingPath;

    QComboBox* m_scanner = nullptr;
    QComboBox* m_source = nullptr;
    QComboBox* m_mode = nullptr;
    QComboBox* m_resolution = nullptr;
    QListWidget* m_pageList = nullptr;
    QLabel* m_status = nullptr;
    QPushButton* m_scanPage = nullptr;
    QPushButton* m_scanFeeder = nullptr;
    QPushButton* m_rotate = nullptr;
    QPushButton* m_delete = nullptr;
    QPushButton* m_rescan = nullptr;
    QPushButton* m_done = nullptr;
    QPushButton* m_cancel = nullptr;
};

} // namespace kartella
