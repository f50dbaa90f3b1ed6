#pragma once

#include <QString>

namespace kartella {

// TrashDays: deleted items older than this many days are purged when the program starts.
// VersionsPerDocument: the earlier files kept for one document; the oldest go first.
// TrashFolder: the shared folder of the trash and the versions of a register on a server
// (a register file keeps them beside itself). A value that isn't a whole number of 1 or
// more counts as the default.
inline constexpr int DefaultTrashDays = 90;
inline constexpr int DefaultVersionsPerDocument = 20;

int trashDays();
void setTrashDays(int days);
int versionsPerDocument();
void setVersionsPerDocument(int count);
QString sharedTrashFolder();
void setSharedTrashFolder(const QString& folder);

// The folder where the files of the register at location go when deleted: beside a register
// file, "<file name>.trash"; for a register on a server the shared folder, empty while none
// is named.
QString trashFolderFor(const QString& location);
// The same for the versions of the documents' files: "<file name>.versions", or "versions"
// in the shared folder.
QString versionsFolderFor(const QString& location);

} // namespace kartella
