#pragma once

#include <QString>

namespace kartella {

// What the start does about the register the options name, before it opens it:
//
// - no register named (the first start: DbLocation absent or empty): the default
//   register becomes DbLocation, and the start goes on;
// - a register file that isn't there (a share not mounted yet): the user is told, with
//   its name, and chooses: Try Again (looks once more; still missing asks again), Choose
//   Another (a file chooser; the file chosen becomes DbLocation, Cancel asks again) or
//   Open Settings (Esc too). DbLocation changes only by the user's choice of a file.
// - anything else (a file that is there, a register on a server, or the default register
//   of an installed program, whose creation the start offers): the start goes on.
//
// Returns false when the user chose the settings: the start then opens nothing.
bool settleRegisterLocation(const QString& defaultLocation);

// The question about a missing register file, naming it.
QString missingRegisterQuestion(const QString& location);

} // namespace kartella
