#include "capture/ScanSession.h"

#include "capture/ScanProtocol.h"
#include "platform/Translations.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QProcess>
#include <QTimer>

namespace kartella {

namespace {

QString& chosenProgram()
{
    static QString program;
    return program;
}

int& stallLimit()
{
    static int limit = 120000;
    return limit;
}

QString stalledMessage()
{
    return QCoreApplication::translate("kartella::ScanSession",
        "The scanner sent nothing for %1 seconds and was stopped. The pages scanned before are kept; "
        "close the scan window and open it again to go on scanning.")
        .arg((stallLimit() + 999) / 1000);
}

QString stoppedMessage()
{
    return QCoreApplication::translate("kartella::ScanSession",
        "The scanning program %1 stopped or could not be started. Reinstalling Kartella puts it back.")
        .arg(QFileInfo(ScanSession::scanningProgram()).fileName());
}

} // namespace

ScanSession::ScanSession(QObject* parent)
    : QObject(parent)
    , m_process(new QProcess(this))
    , m_stall(new QTimer(this))
{
    m_stall->setSingleShot(true);
    connect(m_stall, &QTimer::timeout, this, &ScanSession::stopStalledScanner);
    m_process->setProcessChannelMode(QProcess::ForwardedErrorChannel);
    connect(m_process, &QProcess::readyReadStandardOutput, this, &ScanSession::readAnswers);
    connect(m_process, &QProcess::errorOccurred, this, &ScanSession::processEnded);
    connect(m_process, &QProcess::finished, this, &ScanSession::processEnded);
    qRegisterMetaType<kartella::ScannerChoices>();
    qRegisterMetaType<QList<kartella::ScannerDevice>>();
    // A library named in this process (a test's) is the one the scanning process loads.
    // It speaks the program's language, whatever the options say now.
    const QString language = installedInterfaceLanguage();
    QStringList arguments {
        QStringLiteral("--language"), language.isEmpty() ? QStringLiteral("en") : language};
    if (!SaneScanner::libraryName().isEmpty())
        arguments << QStringLiteral("--sane-library") << SaneScanner::libraryName();
    m_process->start(scanningProgram(), arguments);
}

ScanSession::~ScanSession()
{
    m_process->disconnect(this);
    if (m_process->state() == QProcess::NotRunning)
        return;
    send(int(ScanMessage::Cancel));
    send(int(ScanMessage::Quit));
    m_process->closeWriteChannel();
    if (!m_process->waitForFinished(2000)) {
        m_process->kill();
        m_process->waitForFinished(1000);
    }
}

QString ScanSession::scanningProgram()
{
    if (!chosenProgram().isEmpty())
        return chosenProgram();
    const QString name = QStringLiteral("kartella-scanner");
    const QDir programs(QCoreApplication::applicationDirPath());
    if (QFileInfo::exists(programs.filePath(name)))
        return programs.filePath(name);
    return QDir::cleanPath(programs.filePath(QStringLiteral("../libexec/kartella/") + name));
}

void ScanSession::setScanningProgram(const QString& path)
{
    chosenProgram() = path;
}

int ScanSession::stallLimitMs()
{
    return stallLimit();
}

void ScanSession::setStallLimitMs(int milliseconds)
{
    stallLimit() = milliseconds;
}

void ScanSession::stopStalledScanner()
{
    if (!m_scanning || m_process->state() == QProcess::NotRunning)
        return;
    m_stalled = true;
    m_process->kill();
}

void ScanSession::findScanners()
{
    m_finding = true;
    send(int(ScanMessage::Find));
}

void ScanSession::openScanner(const QString& device)
{
    m_opening = true;
    send(int(ScanMessage::Open), scanValues(device));
}

void ScanSession::scan(const ScanSettings& settings, bool wholeFeeder)
{
    if (m_scanning)
        return;
    m_scanning = true;
    m_stall->start(stallLimit());
    send(int(ScanMessage::Scan), scanValues(settings, wholeFeeder));
}

void ScanSession::cancel()
{
    if (m_scanning)
        send(int(ScanMessage::Cancel));
}

void ScanSession::setOption(const QString& name, const QString& value)
{
    send(int(ScanMessage::SetOption), scanValues(name, value));
}

void ScanSession::send(int message, const QByteArray& values)
{
    if (m_process->state() != QProcess::NotRunning)
        m_process->write(scanFrame(ScanMessage(message), values));
    else if (m_ended)
        // Asked again after the process ended: told again, as an answer would come.
        QTimer::singleShot(0, this, &ScanSession::reportStopped);
}

void ScanSession::readAnswers()
{
    m_received.append(m_process->readAllStandardOutput());
    if (m_scanning)
        m_stall->start(stallLimit());
    ScanMessage message {};
    QByteArray values;
    while (takeScanFrame(&m_received, &message, &values)) {
        QDataStream stream(values);
        switch (message) {
        case ScanMessage::Found: {
            QList<ScannerDevice> devices;
            QString text;
            stream >> devices >> text;
            m_finding = false;
            Q_EMIT scannersFound(devices, text);
            break;
        }
        case ScanMessage::Opened: {
            ScannerChoices choices;
            QString text;
            stream >> choices >> text;
            m_opening = false;
            Q_EMIT scannerOpened(choices, text);
            break;
        }
        case ScanMessage::Page: {
            const QImage page = readScanImage(stream);
            if (!page.isNull())
                Q_EMIT pageScanned(page);
            break;
        }
        case ScanMessage::Ended: {
            bool cancelled = false;
            QString text;
            stream >> cancelled >> text;
            m_scanning = false;
            m_stall->stop();
            Q_EMIT scanEnded(cancelled, text);
            break;
        }
        case ScanMessage::Quit:
            m_process->kill(); // a broken stream: what follows can't be read
            return;
        default:
            break;
        }
    }
}

void ScanSession::processEnded()
{
    if (m_ended || m_process->state() == QProcess::Starting)
        return;
    if (m_process->state() == QProcess::Running && m_process->error() != QProcess::FailedToStart)
        return; // a write or read error while it runs: its end follows
    m_ended = true;
    reportStopped();
}

void ScanSession::reportStopped()
{
    m_stall->stop();
    const QString message = m_stalled ? stalledMessage() : stoppedMessage();
    m_stalled = false;
    if (m_finding) {
        m_finding = false;
        Q_EMIT scannersFound({}, message);
    }
    if (m_opening) {
        m_opening = false;
        Q_EMIT scannerOpened({}, message);
    }
    if (m_scanning) {
        m_scanning = false;
        Q_EMIT scanEnded(false, message);
    }
}

} // namespace kartella
