#include "history/Versions.h"

#include "base/Error.h"
#include "history/Trash.h"
#include "platform/Clock.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>

namespace kartella {

namespace {

const QString StampFormat = QStringLiteral("yyyyMMdd'T'HHmmsszzz");
const QString Separator = QStringLiteral("--");

Error fileError(const QString& what, const QString& path)
{
    return Error(ErrorNumber::PathFileAccess, what.arg(QDir::toNativeSeparators(path)));
}

// Copies from over to, through a file beside to, so that a failure leaves to as it was.
void copyOver(const QString& from, const QString& to)
{
    const QString partial = to + QStringLiteral(".partial");
    QFile::remove(partial);
    if (!QFile::copy(from, partial))
        throw fileError(
            QCoreApplication::translate("kartella::Versions", "The file could not be copied to %1."), to);
    QFile::remove(to);
    if (!QFile::rename(partial, to)) {
        QFile::remove(partial);
        throw fileError(
            QCoreApplication::translate("kartella::Versions", "The file %1 could not be replaced."), to);
    }
}

} // namespace

Versions::Versions(QString folder, int limit)
    : m_folder(std::move(folder))
    , m_limit(limit)
{ }

QString Versions::documentFolder(qint64 documentId) const
{
    if (m_folder.isEmpty())
        throw Error(ErrorNumber::PathFileAccess,
            QCoreApplication::translate(
                "kartella::Versions", "No folder is named for the versions of this register's files."));
    return QDir(m_folder).filePath(QString::number(documentId));
}

void Versions::keep(qint64 documentId, const QString& file)
{
    if (!QFileInfo(file).isFile())
        return;
    const QString folder = documentFolder(documentId);
    QDir().mkpath(folder);
    QString who = Trash::whoIsWorking();
    who.replace(Separator, QStringLiteral("-"));
    QDateTime now = Clock::instance().now().toUTC();
    QString target;
    // Two versions kept within one millisecond still get names of their own.
    do {
        target = QDir(folder).filePath(
            now.toString(StampFormat) + Separator + who + Separator + QFileInfo(file).fileName());
        now = now.addMSecs(1);
    } while (QFileInfo::exists(target));
    if (!QFile::copy(file, target))
        throw fileError(QCoreApplication::translate(
                            "kartella::Versions", "An earlier version of the file could not be kept in %1."),
            folder);
    dropBeyondLimit(documentId);
}

QList<FileVersion> Versions::list(qint64 documentId) const
{
    QList<FileVersion> versions;
    const QDir folder(documentFolder(documentId));
    const QFileInfoList files = folder.entryInfoList(QDir::Files, QDir::Name | QDir::Reversed);
    for (const QFileInfo& file : files) {
        const QStringList parts = file.fileName().split(Separator);
        if (parts.size() < 3)
            continue;
        QDateTime kept = QDateTime::fromString(parts[0], StampFormat);
        kept.setTimeSpec(Qt::UTC);
        versions.append({file.absoluteFilePath(), kept, file.size(), parts[1]});
    }
    return versions;
}

void Versions::dropBeyondLimit(qint64 documentId)
{
    const QList<FileVersion> versions = list(documentId);
    for (qsizetype i = m_limit; i < versions.size(); ++i)
        QFile::remove(versions[i].path);
}

void Versions::replace(qint64 documentId, const QString& current, const QString& replacement)
{
    if (!QFileInfo(replacement).isFile())
        throw fileError(
            QCoreApplication::translate("kartella::Versions", "The file %1 was not found."), replacement);
    keep(documentId, current);
    copyOver(replacement, current);
}

void Versions::restore(qint64 documentId, const QString& current, const FileVersion& version)
{
    if (!QFileInfo(version.path).isFile())
        throw fileError(
            QCoreApplication::translate("kartella::Versions", "The version %1 is no longer kept."),
            version.path);
    // The version is read before the current file is kept: the limit may drop it.
    const QString held = QDir(m_folder).filePath(QStringLiteral("restoring-%1").arg(documentId));
    if (!QFile::copy(version.path, held))
        throw fileError(
            QCoreApplication::translate("kartella::Versions", "The version %1 could not be read."),
            version.path);
    try {
        keep(documentId, current);
        copyOver(held, current);
    } catch (...) {
        QFile::remove(held);
        throw;
    }
    QFile::remove(held);
}

} // namespace kartella
