#pragma once

#include "base/Error.h"

#include <QString>

#include <optional>

namespace kartella {

// When the register at path (a file, or a location on a database server) was made by an
// earlier Kartella, asks the user (through the Prompter, Yes/No) whether to upgrade it, and
// does so on Yes. Gives the error that stands in for an unusable register when the user
// says No or the upgrade fails (the register is then left as it was), and the connection
// error of a server that can't be reached; nothing when the register can be opened as it
// is, or is a file that can't be read at all (the first fill reports that). The busy
// pointer shows while the register is opened and upgraded, not over the question.
std::optional<Error> offerRegisterUpgrade(const QString& path);

} // namespace kartella
