#include "registration/ShellFiles.h"

#include "platform/Shell.h"
#include "support/PathUtils.h"

#include <QFile>
#include <QFileInfo>

namespace kartella {

namespace {

// A rename that, like the file system's own, never replaces a file.
bool renameOnly(const QString& source, const QString& target)
{
    if (QFileInfo::exists(target) || QFileInfo(target).isSymLink())
        return false;
    return MoveFileContents(source, target);
}

// Tries operation on target; when that fails, once more on target taken as a folder.
template<typename Operation>
bool intoFolderOnFailure(const QString& source, QString& target, Operation operation)
{
    if (operation(source, target))
        return true;
    target = NormalizePath(target) % GetFileBaseExt(source);
    return operation(source, target);
}

} // namespace

bool CopyFileWithoutShell(const QString& source, QString& target)
{
    return intoFolderOnFailure(
        source, target, [](const QString& from, const QString& to) { return CopyFileContents(from, to); });
}

bool MoveFileWithoutShell(const QString& source, QString& target)
{
    return intoFolderOnFailure(source, target, renameOnly);
}

bool DeleteFileWithoutShell(const QString& path)
{
    return QFile::remove(path);
}

bool ShellCopyFile(const QString& source, QString& target, [[maybe_unused]] int options)
{
    if (HasShell())
        return Shell::instance().CopyFile(source, target);
    return CopyFileWithoutShell(source, target);
}

bool ShellMoveFile(const QString& source, QString& target, [[maybe_unused]] int options)
{
    if (HasShell())
        return Shell::instance().MoveFile(source, target);
    return MoveFileWithoutShell(source, target);
}

bool ShellDeleteFile(const QString& path, [[maybe_unused]] int options)
{
    if (HasShell())
        return Shell::instance().DeleteFile(path);
    return DeleteFileWithoutShell(path);
}

} // namespace kartella
