#pragma once

#include <QString>

namespace kartella {

// Called before the program itself overwrites, moves over or deletes the file at path: when
// a document of the register the options name has that file, a version of it is kept (see
// Versions). Gives false only when a version was due and could not be kept; a file no
// document names, or a register without a versions folder, needs none; then *reason, when
// reason isn't null, says why.
bool keepVersionBeforeReplacing(const QString& path, QString* reason = nullptr);

} // namespace kartella
