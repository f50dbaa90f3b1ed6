#include "capture/ScanDialog.h"

#include "base/Error.h"
#include "capture/ScanSession.h"
#include "capture/TextRecognition.h"
#include "options/CaptureOptions.h"
#include "platform/Prompter.h"
#include "support/BusyCursor.h"
#include "support/DialogParts.h"

#include <QAction>
#include <QComboBox>
#include <QFile>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QThread>
#include <QTransform>
#include <QVBoxLayout>

namespace kartella {

namespace {

QIcon thumbnail(const QImage& page)
{
    return QIcon(QPixmap::fromImage(page.scaled(120, 160, Qt::KeepAspectRatio, Qt::SmoothTransformation)));
}

} // namespace

ScanDialog::ScanDialog(std::function<QString()> pathForPdf, QWidget* parent)
    : QDialog(parent)
    , m_pathForPdf(std::move(pathForPdf))
    , m_session(new ScanSession(this))
    , m_stopWriting(std::make_shared<std::atomic_bool>(false))
{
    setObjectName(QStringLiteral("frmScan"));
    setWindowTitle(tr("Scan"));
    useCNumericLocale();
    buildWidgets();
    connect(m_session, &ScanSession::scannersFound, this, &ScanDialog::onScannersFound);
    connect(m_session, &ScanSession::scannerOpened, this, &ScanDialog::onScannerOpened);
    connect(m_session, &ScanSession::pageScanned, this, &ScanDialog::onPageScanned);
    connect(m_session, &ScanSession::scanEnded, this, &ScanDialog::onScanEnded);
    setBusy(true, tr("Looking for scanners..."));
    m_session->findScanners();
}

ScanDialog::~ScanDialog()
{
    // Ending the scanning process can take seconds when its scanner hangs, and a page being
    // written finishes first: the user sees the wait.
    const BusyCursor busy;
    *m_stopWriting = true;
    if (m_writer) {
        m_writer->wait();
        delete m_writer;
    }
    delete m_session;
}

void ScanDialog::buildWidgets()
{
    m_scanner = new QComboBox(this);
    m_scanner->setObjectName(QStringLiteral("cboScanner"));
    m_source = new QComboBox(this);
    m_source->setObjectName(QStringLiteral("cboSource"));
    m_mode = new QComboBox(this);
    m_mode->setObjectName(QStringLiteral("cboMode"));
    m_resolution = new QComboBox(this);
    m_resolution->setObjectName(QStringLiteral("cboResolution"));

    m_pageList = new QListWidget(this);
    m_pageList->setObjectName(QStringLiteral("lstPages"));
    m_pageList->setAccessibleName(tr("Scanned pages"));
    m_pageList->setViewMode(QListView::IconMode);
    m_pageList->setIconSize(QSize(120, 160));
    m_pageList->setMovement(QListView::Static);
    m_pageList->setResizeMode(QListView::Adjust);
    m_pageList->setMinimumSize(540, 360);

    m_status = new QLabel(this);
    m_status->setObjectName(QStringLiteral("lblStatus"));
    m_status->setWordWrap(true);

    m_scanPage = makeDialogButton(QStringLiteral("cmdScanPage"), tr("Scan &Page"), this);
    m_scanFeeder = makeDialogButton(QStringLiteral("cmdScanFeeder"), tr("Scan &Feeder"), this);
    m_rotate = makeDialogButton(QStringLiteral("cmdRotate"), tr("R&otate"), this);
    m_delete = makeDialogButton(QStringLiteral("cmdDeletePage"), tr("&Delete Page"), this);
    m_rescan = makeDialogButton(QStringLiteral("cmdRescan"), tr("Sca&n Again"), this);
    m_done = makeDialogButton(QStringLiteral("cmdDone"), tr("Done"), this);
    m_cancel = makeDialogButton(QStringLiteral("cmdCancel"), tr("Cancel"), this);
    m_done->setDefault(true);

    // Del on the list deletes the selected page, as the button does.
    auto* deleteKey = new QAction(m_pageList);
    deleteKey->setShortcut(QKeySequence::Delete);
    deleteKey->setShortcutContext(Qt::WidgetShortcut);
    m_pageList->addAction(deleteKey);
    connect(deleteKey, &QAction::triggered, this, &ScanDialog::deletePage);
    connect(m_scanner, &QComboBox::activated, this, &ScanDialog::onScannerChosen);
    connect(m_scanPage, &QPushButton::clicked, this, &ScanDialog::scanPage);
    connect(m_scanFeeder, &QPushButton::clicked, this, &ScanDialog::scanFeeder);
    connect(m_rotate, &QPushButton::clicked, this, &ScanDialog::rotatePage);
    connect(m_delete, &QPushButton::clicked, this, &ScanDialog::deletePage);
    connect(m_rescan, &QPushButton::clicked, this, &ScanDialog::rescanPage);
    connect(m_done, &QPushButton::clicked, this, &ScanDialog::finish);
    connect(m_cancel, &QPushButton::clicked, this, &ScanDialog::reject);

    auto* settings = new QGridLayout;
    settings->addWidget(makeBuddyLabel(tr("Sc&anner:"), m_scanner, this), 0, 0);
    settings->addWidget(m_scanner, 0, 1, 1, 3);
    settings->addWidget(makeBuddyLabel(tr("&Source:"), m_source, this), 1, 0);
    settings->addWidget(m_source, 1, 1);
    settings->addWidget(makeBuddyLabel(tr("&Colour mode:"), m_mode, this), 1, 2);
    settings->addWidget(m_mode, 1, 3);
    settings->addWidget(makeBuddyLabel(tr("&Resolution:"), m_resolution, this), 2, 0);
    settings->addWidget(m_resolution, 2, 1);

    auto* pageButtons = new QVBoxLayout;
    for (QPushButton* button : {m_scanPage, m_scanFeeder, m_rotate, m_delete, m_rescan})
        pageButtons->addWidget(button);
    pageButtons->addStretch();

    auto* pages = new QHBoxLayout;
    pages->addWidget(m_pageList, 1);
    pages->addLayout(pageButtons);

    auto* closing = new QHBoxLayout;
    closing->addWidget(m_status, 1);
    closing->addWidget(m_done);
    closing->addWidget(m_cancel);

    auto* layout = new QVBoxLayout(this);
    layout->addLayout(settings);
    layout->addLayout(pages, 1);
    layout->addLayout(closing);
}

void ScanDialog::setScannerOption(const QString& name, const QString& value)
{
    m_session->setOption(name, value);
}

void ScanDialog::tell(const QString& message)
{
    m_status->setText(message);
    msgBox(message, MsgBoxStyle::OkOnly | MsgBoxStyle::Exclamation, tr("Scan"));
}

void ScanDialog::setBusy(bool busy, const QString& status)
{
    m_busy = busy;
    m_status->setText(status);
    const bool ready = !busy && m_scanner->count() > 0;
    for (QWidget* widget : {static_cast<QWidget*>(m_scanner), static_cast<QWidget*>(m_source),
             static_cast<QWidget*>(m_mode), static_cast<QWidget*>(m_resolution),
             static_cast<QWidget*>(m_scanPage), static_cast<QWidget*>(m_scanFeeder)})
        widget->setEnabled(ready);
    const bool hasPage = !busy && m_pageList->currentRow() >= 0;
    m_rotate->setEnabled(hasPage);
    m_delete->setEnabled(hasPage);
    m_rescan->setEnabled(hasPage && ready);
    m_done->setEnabled(!busy && !m_pages.isEmpty());
}

void ScanDialog::onScannersFound(const QList<ScannerDevice>& devices, const QString& message)
{
    const QString remembered = scanSettings().device;
    for (const ScannerDevice& device : devices)
        m_scanner->addItem(device.label(), device.name);
    if (devices.isEmpty()) {
        setBusy(false, message);
        tell(message);
        return;
    }
    const int index = m_scanner->findData(remembered);
    m_scanner->setCurrentIndex(index >= 0 ? index : 0);
    onScannerChosen();
}

void ScanDialog::onScannerChosen()
{
    setBusy(true, tr("Opening the scanner..."));
    m_session->openScanner(m_scanner->currentData().toString());
}

void ScanDialog::onScannerOpened(const ScannerChoices& choices, const QString& message)
{
    const ScanSettings remembered = scanSettings();
    const auto fill = [](QComboBox* box, const QStringList& items, const QString& chosen) {
        box->clear();
        box->addItems(items);
        const int index = box->findText(chosen);
        if (index >= 0)
            box->setCurrentIndex(index);
    };
    fill(m_source, choices.sources, remembered.source);
    fill(m_mode, choices.modes, remembered.mode);
    m_resolution->clear();
    for (const int dpi : choices.resolutions)
        m_resolution->addItem(tr("%1 dpi").arg(dpi), dpi);
    const int index = m_resolution->findData(remembered.resolution);
    if (index >= 0)
        m_resolution->setCurrentIndex(index);
    else if (const int standard = m_resolution->findData(DefaultScanResolution); standard >= 0)
        m_resolution->setCurrentIndex(standard);
    setBusy(false, message);
    if (!message.isEmpty())
        tell(message);
}

ScanSettings ScanDialog::chosenSettings() const
{
    ScanSettings settings;
    settings.device = m_scanner->currentData().toString();
    settings.source = m_source->currentText();
    settings.mode = m_mode->currentText();
    settings.resolution
        = m_resolution->currentData().isValid() ? m_resolution->currentData().toInt() : DefaultScanResolution;
    return settings;
}

void ScanDialog::startScan(bool wholeFeeder)
{
    if (m_busy || m_scanner->count() == 0)
        return;
    const ScanSettings settings = chosenSettings();
    saveScanSettings(settings);
    setBusy(true, tr("Scanning..."));
    m_session->scan(settings, wholeFeeder);
}

void ScanDialog::scanPage()
{
    m_replacing = -1;
    startScan(false);
}

void ScanDialog::scanFeeder()
{
    m_replacing = -1;
    startScan(true);
}

void ScanDialog::rescanPage()
{
    m_replacing = m_pageList->currentRow();
    startScan(false);
}

void ScanDialog::onPageScanned(const QImage& page)
{
    if (m_replacing >= 0 && m_replacing < m_pages.size()) {
        m_pages[m_replacing] = page;
        showPage(m_replacing);
        m_replacing = -1;
    } else {
        m_pages.append(page);
        m_pageList->addItem(new QListWidgetItem(QString()));
        showPage(int(m_pages.size()) - 1);
    }
    m_status->setText(tr("Scanning... %1 pages").arg(m_pages.size()));
}

void ScanDialog::showPage(int index)
{
    for (int row = 0; row < m_pageList->count(); ++row)
        m_pageList->item(row)->setText(tr("Page %1").arg(row + 1));
    m_pageList->item(index)->setIcon(thumbnail(m_pages.at(index)));
    m_pageList->setCurrentRow(index);
    m_pageList->scrollToItem(m_pageList->item(index));
}

void ScanDialog::onScanEnded(bool, const QString& message)
{
    m_replacing = -1;
    setBusy(false, tr("%1 pages").arg(m_pages.size()));
    if (!message.isEmpty())
        tell(message);
}

void ScanDialog::rotatePage()
{
    const int index = m_pageList->currentRow();
    if (m_busy || index < 0)
        return;
    m_pages[index] = m_pages.at(index).transformed(QTransform().rotate(90));
    showPage(index);
}

void ScanDialog::deletePage()
{
    const int index = m_pageList->currentRow();
    if (m_busy || index < 0)
        return;
    m_pages.removeAt(index);
    delete m_pageList->takeItem(index);
    if (!m_pages.isEmpty())
        showPage(std::min(index, int(m_pages.size()) - 1));
    setBusy(false, tr("%1 pages").arg(m_pages.size()));
}

void ScanDialog::finish()
{
    if (m_busy)
        return;
    if (m_pages.isEmpty()) {
        tell(tr("Scan at least one page, or press Cancel."));
        return;
    }
    const QString missing = missingLanguageMessage(ocrLanguages());
    if (!missing.isEmpty()) {
        tell(missing);
        return;
    }
    const QString path = m_pathForPdf ? m_pathForPdf() : QString();
    if (path.isEmpty())
        return;
    setBusy(true, tr("Reading the words of the pages and saving them..."));
    m_writingPath = path;
    *m_stopWriting = false;
    const QList<QImage> pages = m_pages;
    const QString languages = ocrLanguages();
    const int dotsPerInch = chosenSettings().resolution;
    auto stop = m_stopWriting;
    m_writeError.clear();
    m_writer = QThread::create([this, pages, languages, dotsPerInch, path, stop] {
        try {
            writeSearchablePdf(pages, dotsPerInch, path, languages, [stop](int) { return !*stop; });
        } catch (const Error& error) {
            // Read on the window's thread once the writer has finished.
            m_writeError
                = error.number() == RecognitionError::Cancelled ? QStringLiteral(" ") : error.description();
        }
    });
    connect(m_writer, &QThread::finished, this, &ScanDialog::onPdfWritten);
    m_writer->start();
}

void ScanDialog::onPdfWritten()
{
    // A Cancel meanwhile has waited for the writer and deleted it.
    if (!m_writer)
        return;
    m_writer->wait();
    delete m_writer;
    m_writer = nullptr;
    if (*m_stopWriting)
        return;
    if (!m_writeError.trimmed().isEmpty()) {
        setBusy(false, m_writeError);
        tell(m_writeError);
        return;
    }
    m_savedPath = m_writingPath;
    setBusy(false, {});
    accept();
}

void ScanDialog::reject()
{
    m_session->cancel();
    *m_stopWriting = true;
    if (m_writer) {
        m_writer->wait();
        delete m_writer;
        m_writer = nullptr;
        // Finished before it saw the cancel: the file goes too.
        if (m_writeError.isEmpty())
            QFile::remove(m_writingPath);
    }
    m_pages.clear();
    QDialog::reject();
}

} // namespace kartella
