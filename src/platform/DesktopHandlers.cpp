#include "platform/DesktopHandlers.h"

#include <QFileInfo>
#include <QMimeDatabase>
#include <QProcess>
#include <QStandardPaths>

namespace kartella {

namespace {

constexpr int QueryWaitMs = 5000;

} // namespace

std::optional<QString> defaultProgramFor(const QString& mimeType)
{
#if defined(Q_OS_WIN) || defined(Q_OS_MACOS)
    Q_UNUSED(mimeType);
    return std::nullopt;
#else
    const QString query = QStandardPaths::findExecutable(QStringLiteral("xdg-mime"));
    if (query.isEmpty())
        return std::nullopt;
    QProcess process;
    process.start(query, {QStringLiteral("query"), QStringLiteral("default"), mimeType});
    if (!process.waitForFinished(QueryWaitMs) || process.exitStatus() != QProcess::NormalExit
        || process.exitCode() != 0) {
        process.kill();
        process.waitForFinished();
        return std::nullopt;
    }
    return QString::fromLocal8Bit(process.readAllStandardOutput()).trimmed();
#endif
}

bool desktopOpensFile(const QString& path)
{
    const QMimeType type = QMimeDatabase().mimeTypeForFile(path);
    QStringList types {type.name()};
    types += type.allAncestors();
    for (const QString& name : std::as_const(types)) {
        const std::optional<QString> program = defaultProgramFor(name);
        if (!program || !program->isEmpty())
            return true;
    }
    return false;
}

bool desktopPlacesCalls()
{
    const std::optional<QString> program = defaultProgramFor(QStringLiteral("x-scheme-handler/tel"));
    return !program || !program->isEmpty();
}

QString fileTypeDescription(const QString& path)
{
    const QMimeType type = QMimeDatabase().mimeTypeForFile(path);
    const QString suffix = QFileInfo(path).suffix();
    QString details = type.name();
    if (!suffix.isEmpty())
        details += QStringLiteral(", .") + suffix;
    return type.comment() + QStringLiteral(" (") + details + u')';
}

} // namespace kartella
