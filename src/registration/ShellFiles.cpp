#include "registration/ShellFiles.h"

#include "platform/Shell.h"
#include "support/PathUtils.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QStandardPaths>

namespace kartella {

namespace {

// A rename that, like the file system's own, never replaces a file.
bool renameOnly(const QString& source, const QString& target)
{
    if (QFileInfo::exists(target) || QFileInfo(target).isSymLink())
        return false;
    return moveFileContents(source, target);
}

// Tries operation on target; when that fails, once more on target taken as a folder.
template<typename Operation>
bool intoFolderOnFailure(const QString& source, QString& target, Operation operation)
{
    if (operation(source, target))
        return true;
    target = normalizePath(target) % getFileBaseExt(source);
    return operation(source, target);
}

} // namespace

bool copyFileWithoutShell(const QString& source, QString& target)
{
    return intoFolderOnFailure(
        source, target, [](const QString& from, const QString& to) { return copyFileContents(from, to); });
}

bool moveFileWithoutShell(const QString& source, QString& target)
{
    return intoFolderOnFailure(source, target, renameOnly);
}

bool deleteFileWithoutShell(const QString& path)
{
    return QFile::remove(path);
}

bool moveFileToTrash(const QString& path, QString* error)
{
#if !defined(Q_OS_WIN) && !defined(Q_OS_MACOS)
    // The desktop's trash lives in the user's data folder, which a new account may not have
    // yet: without it the file would go for good.
    QDir().mkpath(QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation));
#endif
    QFile file(path);
    if (file.moveToTrash())
        return true;
    // A folder without a trash of its own (a share, a removable disk): the file goes for good.
    if (file.remove())
        return true;
    if (error)
        *error = file.errorString();
    return false;
}

bool shellCopyFile(const QString& source, QString& target, [[maybe_unused]] int options)
{
    if (hasShell())
        return Shell::instance().copyFile(source, target);
    return copyFileWithoutShell(source, target);
}

bool shellMoveFile(const QString& source, QString& target, [[maybe_unused]] int options)
{
    if (hasShell())
        return Shell::instance().moveFile(source, target);
    return moveFileWithoutShell(source, target);
}

bool shellDeleteFile(const QString& path, [[maybe_unused]] int options)
{
    if (hasShell())
        return Shell::instance().deleteFile(path);
    return deleteFileWithoutShell(path);
}

} // namespace kartella
