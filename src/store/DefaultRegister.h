#pragma once

#include <QString>

#include <functional>

namespace kartella {

// The register a program opens when its options name none that exists: "Kartella.mdb" in
// the program's folder, or, where that folder is not writable (an installed program),
// in $XDG_DATA_HOME/Kartella (default ~/.local/share/Kartella).
QString defaultRegisterPath(const QString& programFolder, bool programFolderWritable);
QString defaultRegisterPath();

// Whether the default register is the one in the user's data folder, i.e. the program's
// folder is not writable. Only then does the first start offer to create it.
bool defaultRegisterInDataFolder();

// Whether the start gives location up for the default register: a register file (or a
// folder) that isn't there. A register on a database server (postgresql://...) is never
// given up, nor looked for on disk: it is opened as it stands, and a server that can't be
// reached is reported as any register that can't be opened.
bool registerLocationMissing(const QString& location);

// Replaces the check of the program folder's writability (tests; nullptr restores it).
void setProgramFolderWritableCheck(std::function<bool()> check);

} // namespace kartella
