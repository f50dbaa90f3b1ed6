#include "history/KeptFilesCopy.h"

#include "options/TrashOptions.h"

#include <QCoreApplication>
#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QFileInfo>

namespace kartella {

namespace {

// Copies every file under source to the same place under target; false at the first that
// can't be, with problem naming it.
bool copyFolder(const QString& source, const QString& target, int* files, QString* problem)
{
    QDirIterator entries(
        source, QDir::Files | QDir::Hidden | QDir::NoDotAndDotDot, QDirIterator::Subdirectories);
    const QDir from(source);
    while (entries.hasNext()) {
        const QString path = entries.next();
        const QString copy = QDir(target).filePath(from.relativeFilePath(path));
        if (QFileInfo::exists(copy))
            continue;
        if (!QDir().mkpath(QFileInfo(copy).absolutePath()) || !QFile::copy(path, copy)) {
            *problem = QCoreApplication::translate("kartella::KeptFilesCopy", "%1 could not be copied to %2.")
                           .arg(QDir::toNativeSeparators(path), QDir::toNativeSeparators(copy));
            return false;
        }
        ++*files;
    }
    return true;
}

} // namespace

KeptFilesCopy copyKeptFiles(const QString& from, const QString& to)
{
    KeptFilesCopy result;
    const std::pair<QString, QString> folders[] = {
        {trashFolderFor(from), trashFolderFor(to)},
        {versionsFolderFor(from), versionsFolderFor(to)},
    };
    for (const auto& [source, target] : folders) {
        if (source.isEmpty() || !QFileInfo(source).isDir()
            || QDir(source).isEmpty(QDir::AllEntries | QDir::NoDotAndDotDot))
            continue;
        if (target.isEmpty()) {
            result.notice = QCoreApplication::translate("kartella::KeptFilesCopy",
                "The files of the deleted items and earlier versions stay in %1: the new register has "
                "no folder for them until a shared folder for the trash is named in Settings.")
                                .arg(QDir::toNativeSeparators(source));
            return result;
        }
        if (QFileInfo(source).canonicalFilePath() == QFileInfo(target).canonicalFilePath())
            continue;
        if (!copyFolder(source, target, &result.files, &result.problem))
            return result;
    }
    return result;
}

} // namespace kartella
