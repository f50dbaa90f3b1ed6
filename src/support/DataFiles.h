#pragma once

#include <QString>
#include <QStringList>

namespace kartella {

// The folders in which the program looks for the files it ships (the "no file" picture,
// its icon), first hit wins: $KARTELLA_DATA_DIR when set (the tests point it at the
// sources' share folder), the program's own folder (a build tree, where the build copies
// them), the installed share folder beside it (<prefix>/share/kartella for
// <prefix>/bin/kartella), then "kartella" under each of the system's data folders
// ($XDG_DATA_HOME, $XDG_DATA_DIRS).
QStringList dataFolders();

// The path of a shipped file by its name ("snow.ico"); empty when no folder has it.
QString findDataFile(const QString& name);

} // namespace kartella
