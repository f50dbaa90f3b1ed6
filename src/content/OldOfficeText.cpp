// The old binary Office formats (.doc .xls .ppt) that the program's templates make.
//
// Measured on files LibreOffice makes from our templates (Lithuanian text), 50 files each:
// catdoc read 50 .doc in 0.13 s and xls2csv 50 .xls in 0.08 s, every letter right;
// LibreOffice's text export took 3.7 s for the same 50 .doc in one call. catppt gives no
// text at all from the .ppt files LibreOffice writes, and LibreOffice has no text export
// for presentations: those are converted to .pptx in one LibreOffice call for many files
// (50 in 8 s) and read as Office Open XML.
#include "content/FileText.h"
#include "platform/LibreOfficeSuite.h"

#include <QDir>
#include <QElapsedTimer>
#include <QFileInfo>
#include <QProcess>
#include <QStandardPaths>
#include <QTemporaryDir>

namespace kartella {

namespace {

constexpr int ToolTimeoutMs = 60 * 1000;

// Runs a program to its end; its standard output, or nothing when it failed or ran over.
std::optional<QByteArray> runTool(const QString& program, const QStringList& arguments, int timeoutMs,
    const std::function<bool()>& cancelled = {})
{
    QProcess process;
    process.setProgram(program);
    process.setArguments(arguments);
    process.setStandardInputFile(QProcess::nullDevice());
    process.start();
    if (!process.waitForStarted())
        return std::nullopt;
    QElapsedTimer running;
    running.start();
    while (!process.waitForFinished(100)) {
        if (process.state() == QProcess::NotRunning)
            break;
        if (running.elapsed() >= timeoutMs || (cancelled && cancelled())) {
            process.kill();
            process.waitForFinished();
            return std::nullopt;
        }
    }
    if (process.exitStatus() != QProcess::NormalExit || process.exitCode() != 0)
        return std::nullopt;
    return process.readAllStandardOutput();
}

} // namespace

FileText readOldOfficeText(const QString& path, const QString& extension)
{
    const bool sheet = extension == QLatin1String("xls");
    const QString program
        = QStandardPaths::findExecutable(sheet ? QStringLiteral("xls2csv") : QStringLiteral("catdoc"));
    if (program.isEmpty())
        return FileText::failed(TextReason::NoConverter);
    // UTF-8 out; the spreadsheet's cells unquoted, a tab between them; no folding of lines.
    const QStringList arguments = sheet
        ? QStringList {QStringLiteral("-d"), QStringLiteral("utf-8"), QStringLiteral("-q"),
            QStringLiteral("0"), QStringLiteral("-c"), QStringLiteral("\t"), path}
        : QStringList {QStringLiteral("-d"), QStringLiteral("utf-8"), QStringLiteral("-w"), path};
    const auto output = runTool(program, arguments, ToolTimeoutMs);
    if (!output)
        return FileText::failed(TextReason::Damaged);
    return FileText::read(QString::fromUtf8(*output).trimmed());
}

bool convertsInBatches(const QString& extension)
{
    return extension == QLatin1String("ppt");
}

QList<FileText> readConvertedTexts(
    const QStringList& paths, int timeoutMs, const std::function<bool()>& cancelled)
{
    QList<FileText> results;
    const QString program = LibreOfficeSuite::program();
    QTemporaryDir work;
    if (program.isEmpty() || !work.isValid()) {
        for (qsizetype i = 0; i < paths.size(); ++i)
            results << FileText::failed(TextReason::NoConverter);
        return results;
    }
    // Files of the same name from different folders would land on one another: each goes
    // in under a number of its own.
    const QDir in(work.filePath(QStringLiteral("in")));
    const QDir out(work.filePath(QStringLiteral("out")));
    QDir().mkpath(in.path());
    QDir().mkpath(out.path());
    QStringList inputs;
    for (qsizetype i = 0; i < paths.size(); ++i) {
        const QString copy
            = in.filePath(QString::number(i) + u'.' + QFileInfo(paths.at(i)).suffix().toLower());
        if (QFile::copy(paths.at(i), copy))
            inputs << copy;
    }
    const QStringList arguments
        = LibreOfficeSuite::headlessArguments(work.filePath(QStringLiteral("profile")))
        + QStringList {QStringLiteral("--convert-to"), QStringLiteral("pptx"), QStringLiteral("--outdir"),
            out.path()}
        + inputs;
    runTool(program, arguments, timeoutMs, cancelled);
    for (qsizetype i = 0; i < paths.size(); ++i) {
        const QString converted = out.filePath(QString::number(i) + QStringLiteral(".pptx"));
        results << (QFileInfo::exists(converted) ? readOfficeXmlText(converted, QStringLiteral("pptx"))
                                                 : FileText::failed(TextReason::Damaged));
    }
    return results;
}

} // namespace kartella
