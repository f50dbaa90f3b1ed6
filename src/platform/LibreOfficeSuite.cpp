#include "platform/LibreOfficeSuite.h"

#include "base/Error.h"
#include "platform/Shell.h"

#include <QCoreApplication>
#include <QDir>
#include <QEventLoop>
#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QTimer>
#include <QUrl>

#ifdef Q_OS_UNIX
#include <csignal>
#include <sys/types.h>
#include <unistd.h>
#endif

namespace kartella {

namespace {

const QString Source = QStringLiteral("LibreOffice");
constexpr int StopWaitMs = 5000;
constexpr long TemplateNotFound = 53; // File not found

[[noreturn]] void raise(long number, const QString& description)
{
    throw Error(number, description, Source);
}

QString filterName(OfficeSuite::Kind kind)
{
    switch (kind) {
    case OfficeSuite::Kind::Word:
        return QStringLiteral("MS Word 97");
    case OfficeSuite::Kind::Excel:
        return QStringLiteral("MS Excel 97");
    case OfficeSuite::Kind::PowerPoint:
        return QStringLiteral("MS PowerPoint 97");
    }
    return {};
}

QString findProgram()
{
    const QString program = LibreOfficeSuite::program();
    if (program.isEmpty())
        raise(OfficeErrorNumber::NotInstalled,
            QCoreApplication::translate("kartella::LibreOfficeSuite",
                "LibreOffice can't be found: there is no program \"soffice\" on the PATH. "
                "Install the Debian packages libreoffice-writer-nogui, "
                "libreoffice-calc-nogui and libreoffice-impress-nogui."));
    return program;
}

// What LibreOffice printed, without the lines that every run prints.
QString cleanOutput(const QByteArray& raw)
{
    QStringList kept;
    const QStringList lines = QString::fromLocal8Bit(raw).split(QLatin1Char('\n'));
    for (const QString& line : lines) {
        const QString text = line.trimmed();
        if (!text.isEmpty() && !text.contains(QLatin1String("javaldx")))
            kept << text;
    }
    return kept.isEmpty() ? QCoreApplication::translate("kartella::LibreOfficeSuite", "(no output)")
                          : kept.join(QLatin1Char('\n'));
}

// Stops the process and every process it started.
void stopTree(QProcess& process)
{
#ifdef Q_OS_UNIX
    const qint64 pid = process.processId();
    if (pid > 0)
        ::kill(-pid_t(pid), SIGKILL);
#endif
    process.kill();
    process.waitForFinished(StopWaitMs);
}

// Waits for the process to end, at most timeoutMs. With an event loop about, the windows
// keep painting meanwhile (no input reaches them). False when the time ran out.
bool waitWhileThePainting(QProcess& process, int timeoutMs)
{
    if (!QCoreApplication::instance())
        return process.waitForFinished(timeoutMs);
    QEventLoop loop;
    QTimer limit;
    limit.setSingleShot(true);
    QObject::connect(&process, &QProcess::finished, &loop, &QEventLoop::quit);
    QObject::connect(&process, &QProcess::errorOccurred, &loop, &QEventLoop::quit);
    QObject::connect(&limit, &QTimer::timeout, &loop, &QEventLoop::quit);
    limit.start(timeoutMs);
    if (process.state() != QProcess::NotRunning)
        loop.exec(QEventLoop::ExcludeUserInputEvents);
    return process.state() == QProcess::NotRunning;
}

// Runs LibreOffice with arguments; returns its output, or throws when it can't be started,
// times out, or fails.
QString run(const QString& program, const QStringList& arguments, int timeoutMs, const QString& what)
{
    QProcess process;
    process.setProgram(program);
    process.setArguments(arguments);
    process.setProcessChannelMode(QProcess::MergedChannels);
    process.setStandardInputFile(QProcess::nullDevice());
#ifdef Q_OS_UNIX
    // A group of its own, so that a timeout stops the helpers it starts too.
    process.setChildProcessModifier([] { ::setpgid(0, 0); });
#endif
    process.start();
    if (!process.waitForStarted(timeoutMs))
        raise(OfficeErrorNumber::NotInstalled,
            QCoreApplication::translate(
                "kartella::LibreOfficeSuite", "LibreOffice (%1) couldn't be started: %2")
                .arg(program, process.errorString()));
    if (!waitWhileThePainting(process, timeoutMs)) {
        stopTree(process);
        raise(OfficeErrorNumber::TimedOut,
            QCoreApplication::translate("kartella::LibreOfficeSuite",
                "LibreOffice didn't finish making %1 within %2 seconds and was stopped.")
                .arg(what, QString::number(timeoutMs / 1000.0)));
    }
    const QString output = cleanOutput(process.readAll());
    if (process.exitStatus() != QProcess::NormalExit || process.exitCode() != 0)
        raise(OfficeErrorNumber::Failed,
            QCoreApplication::translate(
                "kartella::LibreOfficeSuite", "LibreOffice failed making %1 (exit code %2): %3")
                .arg(what, QString::number(process.exitCode()), output));
    return output;
}

// The one file with the extension in folder; empty when there is none.
QString resultIn(const QString& folder, const QString& extension)
{
    const QFileInfoList files = QDir(folder).entryInfoList(QDir::Files);
    for (const QFileInfo& file : files) {
        if (file.suffix().compare(extension, Qt::CaseInsensitive) == 0)
            return file.absoluteFilePath();
    }
    return {};
}

} // namespace

QString LibreOfficeSuite::extension(Kind kind)
{
    switch (kind) {
    case Kind::Word:
        return QStringLiteral("doc");
    case Kind::Excel:
        return QStringLiteral("xls");
    case Kind::PowerPoint:
        return QStringLiteral("ppt");
    }
    return {};
}

QString LibreOfficeSuite::seedExtension(Kind kind)
{
    switch (kind) {
    case Kind::Word:
        return QStringLiteral("fodt");
    case Kind::Excel:
        return QStringLiteral("fods");
    case Kind::PowerPoint:
        return QStringLiteral("fodp");
    }
    return {};
}

QByteArray LibreOfficeSuite::seedDocument(Kind kind)
{
    static const QByteArray head = QByteArrayLiteral(
        "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
        "<office:document xmlns:office=\"urn:oasis:names:tc:opendocument:xmlns:office:1.0\" "
        "xmlns:text=\"urn:oasis:names:tc:opendocument:xmlns:text:1.0\" "
        "xmlns:table=\"urn:oasis:names:tc:opendocument:xmlns:table:1.0\" "
        "xmlns:draw=\"urn:oasis:names:tc:opendocument:xmlns:drawing:1.0\" office:version=\"1.2\" "
        "office:mimetype=\"application/vnd.oasis.opendocument.");
    static const QByteArray tail = QByteArrayLiteral("</office:body></office:document>\n");
    switch (kind) {
    case Kind::Word:
        return head + "text\"><office:body><office:text><text:p/></office:text>" + tail;
    case Kind::Excel:
        return head
            + "spreadsheet\"><office:body><office:spreadsheet><table:table table:name=\"Sheet1\">"
              "<table:table-row><table:table-cell/></table:table-row></table:table></office:spreadsheet>"
            + tail;
    case Kind::PowerPoint:
        return head
            + "presentation\"><office:body><office:presentation><draw:page draw:name=\"Slide1\"/>"
              "</office:presentation>"
            + tail;
    }
    return {};
}

void LibreOfficeSuite::create(Kind kind, const QString& templatePath, const QString& target)
{
    const QFileInfo into(target);
    const QString shown = QDir::toNativeSeparators(target);
    if (target.isEmpty())
        raise(OfficeErrorNumber::Failed,
            QCoreApplication::translate("kartella::LibreOfficeSuite", "The new document has no path."));
    if (into.exists() || into.isSymLink())
        raise(OfficeErrorNumber::FileExists,
            QCoreApplication::translate("kartella::LibreOfficeSuite", "The file '%1' already exists.")
                .arg(shown));
    if (!into.absoluteDir().exists())
        raise(OfficeErrorNumber::Failed,
            QCoreApplication::translate("kartella::LibreOfficeSuite", "The folder '%1' doesn't exist.")
                .arg(QDir::toNativeSeparators(into.absolutePath())));
    if (!templatePath.isEmpty() && !QFileInfo(templatePath).isFile())
        raise(TemplateNotFound,
            QCoreApplication::translate("kartella::LibreOfficeSuite", "The template '%1' can't be found.")
                .arg(QDir::toNativeSeparators(templatePath)));
    const QString program = findProgram();

    QTemporaryDir work(QDir(QDir::tempPath()).filePath(QStringLiteral("kartella-office-XXXXXX")));
    if (!work.isValid())
        raise(OfficeErrorNumber::Failed,
            QCoreApplication::translate(
                "kartella::LibreOfficeSuite", "No temporary folder for LibreOffice: %1")
                .arg(work.errorString()));
    const QString profile = work.filePath(QStringLiteral("profile"));
    const QString outDir = work.filePath(QStringLiteral("out"));

    QString source = templatePath.isEmpty() ? QString() : QFileInfo(templatePath).absoluteFilePath();
    if (source.isEmpty()) {
        source = work.filePath(QStringLiteral("New.") % seedExtension(kind));
        QFile seed(source);
        if (!seed.open(QIODevice::WriteOnly) || seed.write(seedDocument(kind)) < 0 || !seed.flush())
            raise(OfficeErrorNumber::Failed,
                QCoreApplication::translate(
                    "kartella::LibreOfficeSuite", "The empty document couldn't be written: %1")
                    .arg(seed.errorString()));
    }

    const QString targetExtension = extension(kind);
    const QStringList arguments = headlessArguments(profile)
        + QStringList {QStringLiteral("--convert-to"), targetExtension % QLatin1Char(':') % filterName(kind),
            QStringLiteral("--outdir"), outDir, source};
    const QString what = QLatin1Char('\'') % shown % QLatin1Char('\'');
    const QString output = run(program, arguments, m_timeoutMs, what);

    const QString result = resultIn(outDir, targetExtension);
    if (result.isEmpty())
        raise(OfficeErrorNumber::Failed,
            QCoreApplication::translate(
                "kartella::LibreOfficeSuite", "LibreOffice couldn't make %1 from '%2': %3")
                .arg(what, QDir::toNativeSeparators(source), output));
    // A rename never replaces a file: one that appeared meanwhile stays.
    QFile made(result);
    if (!made.rename(target)) {
        if (QFileInfo::exists(target))
            raise(OfficeErrorNumber::FileExists,
                QCoreApplication::translate("kartella::LibreOfficeSuite", "The file '%1' already exists.")
                    .arg(shown));
        raise(OfficeErrorNumber::Failed,
            QCoreApplication::translate(
                "kartella::LibreOfficeSuite", "The new document couldn't be moved to '%1': %2")
                .arg(shown, made.errorString()));
    }
}

void LibreOfficeSuite::show(const QString& path)
{
    if (!Shell::instance().open(path))
        raise(OfficeErrorNumber::Failed,
            QCoreApplication::translate(
                "kartella::LibreOfficeSuite", "No program could be started to show '%1'.")
                .arg(QDir::toNativeSeparators(path)));
}

QString LibreOfficeSuite::program()
{
    return QStandardPaths::findExecutable(QStringLiteral("soffice"));
}

QStringList LibreOfficeSuite::headlessArguments(const QString& profileFolder)
{
    return {QStringLiteral("--headless"), QStringLiteral("--norestore"), QStringLiteral("--nolockcheck"),
        QStringLiteral("-env:UserInstallation=")
            + QUrl::fromLocalFile(profileFolder).toString(QUrl::FullyEncoded)};
}

} // namespace kartella
