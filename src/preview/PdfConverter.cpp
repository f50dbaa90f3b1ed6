#include "preview/PdfConverter.h"

#include "platform/LibreOfficeSuite.h"

#include <QDir>
#include <QFileInfo>
#include <QProcess>
#include <QTemporaryDir>
#include <QTimer>

#ifdef Q_OS_UNIX
#include <csignal>
#include <sys/types.h>
#include <unistd.h>
#endif

namespace kartella {

bool PdfConverter::converts(const QString& suffix)
{
    static const QStringList office = {QStringLiteral("doc"), QStringLiteral("docx"), QStringLiteral("odt"),
        QStringLiteral("xls"), QStringLiteral("xlsx"), QStringLiteral("ods"), QStringLiteral("ppt"),
        QStringLiteral("pptx"), QStringLiteral("odp"), QStringLiteral("rtf")};
    return office.contains(suffix, Qt::CaseInsensitive);
}

LibreOfficeConverter::LibreOfficeConverter(const QString& profileFolder, QObject* parent)
    : PdfConverter(parent)
    , m_profile(profileFolder)
{ }

LibreOfficeConverter::~LibreOfficeConverter()
{
    stop();
}

QString LibreOfficeConverter::program()
{
    return LibreOfficeSuite::program();
}

void LibreOfficeConverter::convert(const QString& source)
{
    stop();
    m_source = source;
    const QString soffice = program();
    if (soffice.isEmpty()) {
        // Reported once the caller is back in the event loop, as a real ending is.
        QTimer::singleShot(0, this, [this, source] {
            if (m_source == source && !m_process)
                Q_EMIT finished(source, {},
                    QStringLiteral(
                        "LibreOffice is not installed: there is no program \"soffice\" on the PATH."));
        });
        return;
    }
    m_output = new QTemporaryDir(QDir(QDir::tempPath()).filePath(QStringLiteral("kartella-preview-XXXXXX")));
    m_process = new QProcess(this);
    m_process->setProgram(soffice);
    m_process->setArguments(LibreOfficeSuite::headlessArguments(m_profile)
        + QStringList {QStringLiteral("--convert-to"), QStringLiteral("pdf"), QStringLiteral("--outdir"),
            m_output->path(), QFileInfo(source).absoluteFilePath()});
    m_process->setProcessChannelMode(QProcess::MergedChannels);
    m_process->setStandardInputFile(QProcess::nullDevice());
#ifdef Q_OS_UNIX
    // A group of its own, so that stopping it stops the helpers it starts too.
    m_process->setChildProcessModifier([] { ::setpgid(0, 0); });
#endif
    connect(m_process, &QProcess::finished, this, &LibreOfficeConverter::onProcessEnded);
    connect(m_process, &QProcess::errorOccurred, this, [this](QProcess::ProcessError error) {
        if (error == QProcess::FailedToStart)
            onProcessEnded();
    });
    auto* limit = new QTimer(m_process);
    limit->setSingleShot(true);
    connect(limit, &QTimer::timeout, this, [this] {
        const QString source = m_source;
        stop();
        Q_EMIT finished(source, {},
            tr("LibreOffice did not finish the conversion in %1 seconds and was stopped.")
                .arg(m_timeoutMs / 1000));
    });
    limit->start(m_timeoutMs);
    m_process->start();
}

void LibreOfficeConverter::onProcessEnded()
{
    if (!m_process)
        return;
    const QString source = m_source;
    const QString output = QString::fromLocal8Bit(m_process->readAll()).trimmed();
    const bool started = m_process->error() != QProcess::FailedToStart;
    QString made;
    const QFileInfoList files = QDir(m_output->path()).entryInfoList({QStringLiteral("*.pdf")}, QDir::Files);
    if (!files.isEmpty())
        made = files.first().absoluteFilePath();
    // The made file outlives the temporary folder: it is moved beside it first.
    QString kept;
    if (!made.isEmpty()) {
        kept = m_output->path() + QStringLiteral(".pdf");
        QFile::remove(kept);
        if (!QFile::rename(made, kept))
            kept.clear();
    }
    const QString reason = !started
        ? tr("LibreOffice could not be started: ") + m_process->errorString()
        : tr("LibreOffice made no PDF of the file: ") + (output.isEmpty() ? tr("(no output)") : output);
    stop();
    Q_EMIT finished(source, kept, kept.isEmpty() ? reason : QString());
}

void LibreOfficeConverter::abandon()
{
    stop();
    m_source.clear();
}

void LibreOfficeConverter::stop()
{
    if (m_process) {
        QProcess* process = m_process;
        m_process = nullptr;
        process->disconnect(this);
        if (process->state() != QProcess::NotRunning) {
#ifdef Q_OS_UNIX
            const qint64 pid = process->processId();
            if (pid > 0)
                ::kill(-pid_t(pid), SIGKILL);
#endif
            process->kill();
            // The kill is immediate; the wait only collects the process.
            process->waitForFinished(1000);
        }
        process->deleteLater();
    }
    delete m_output;
    m_output = nullptr;
}

} // namespace kartella
