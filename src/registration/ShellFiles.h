#pragma once

#include <QString>

namespace kartella {

// The file routines of the copy, move and delete commands. Each returns true for success.
// Where the program has a desktop shell (hasShell) they go through Shell::instance(), which
// asks before replacing or deleting a file, shows its progress, and deletes for good; else
// they work on the file system directly, without a question.
//
// options stand for the shell operation flags of other desktops, where 0 asks for the
// shell's defaults; the program always passes 0, and the shell here has only its defaults.

// Copies source to target. Without the shell a failed copy is tried once more with target
// taken as a folder: target becomes normalizePath(target) followed by the source's name.
bool shellCopyFile(const QString& source, QString& target, int options = 0);
// Moves source to target; without the shell a rename, retried into a folder as a copy is.
bool shellMoveFile(const QString& source, QString& target, int options = 0);
// Deletes path.
bool shellDeleteFile(const QString& path, int options = 0);

// Moves path to the desktop's trash where it has one, else deletes it; asks nothing (the
// command asked already). True when the file is no longer at path; otherwise *error, when
// not null, says why.
bool moveFileToTrash(const QString& path, QString* error = nullptr);

// The ways without the shell, on their own.
bool copyFileWithoutShell(const QString& source, QString& target);
bool moveFileWithoutShell(const QString& source, QString& target);
bool deleteFileWithoutShell(const QString& path);

} // namespace kartella
