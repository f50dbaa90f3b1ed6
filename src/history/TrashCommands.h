#pragma once

#include "history/Trash.h"

#include <QString>

namespace kartella {

class Connection;

// The folder of the trash of the register the options name: for a register on a server the
// shared folder of the options, empty while none is named.
QString registerTrashFolder();
// The same, but a shared folder not named yet is asked for (through the Prompter) and kept;
// empty when the user cancels.
QString askRegisterTrashFolder();
// The folder of the earlier versions of the register's files, asked for as the trash's is
// (one shared folder holds both); empty when the user cancels.
QString askRegisterVersionsFolder();

// Moves the item of kind and key to the register's trash on connection, as the delete
// commands do; a failure is told to the user ("Unable to delete as requested") and leaves
// everything as it was. False when nothing was deleted.
bool moveToRegisterTrash(Connection& connection, const QString& kind, qint64 key);

// Tells the user where a restore put files whose paths were taken meanwhile; nothing when none.
void tellRenamedFiles(const RestoreOutcome& outcome);

} // namespace kartella
